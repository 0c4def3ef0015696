// CimBuildTest.cpp: typing of wbemcli values from the schema, instances and method
// parameters arranged as a CIMOM arranges them, and the schema agreement checks.
#include <gtest/gtest.h>

#include "CimBuild.hpp"
#include "CimText.hpp"
#include "OW_Bool.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_String.hpp"
#include "SchemaCheck.hpp"

using namespace OpenWBEM;
using rascim::MofSchema;

namespace {

const char kSchema[] = R"(
class Zeph_T {
  [Key] string Id;
  [Write] uint8 Level;
  [Write] uint16 MTU;
  boolean On;
  datetime When;
  string Tags[];
  uint32 Go([IN] uint16 Delay, [IN(false), OUT] string Log, sint32 Mode);
};
[Association] class Zeph_L { [Key] Zeph_T REF Left; };
)";

class CimBuildTest : public ::testing::Test {
 protected:
  void SetUp() override { schema.addText(kSchema, "t.mof"); }
  CIMValue typed(const std::string& property, const std::string& text) {
    const rascim::MofProperty* p = schema.findClass("Zeph_T")->findProperty(property);
    return rascim::typedValue(rascim::parseBindings("X=" + text)[0].value, p->type, schema,
                              property);
  }
  MofSchema schema;
};

TEST_F(CimBuildTest, TypesValuesFromTheSchema) {
  const std::pair<const char*, const char*> ok[] = {{"Level", "255"},
                                                    {"MTU", "1400"},
                                                    {"On", "TRUE"},
                                                    {"Id", "\"a,b\""},
                                                    {"When", "00000101000001.000000+000"},
                                                    {"Tags", "{\"x\",y}"}};
  const char* const types[] = {"uint8", "uint16", "boolean", "string", "datetime", "string[]"};
  for (size_t i = 0; i < sizeof ok / sizeof ok[0]; ++i)
    EXPECT_EQ(rascim::valueTypeName(typed(ok[i].first, ok[i].second)), types[i]) << ok[i].first;
  EXPECT_EQ(typed("On", "false").toBool(), false);
  EXPECT_EQ(typed("Tags", "{\"x\",y}").toStringArray()[1], "y");
  const std::pair<const char*, const char*> bad[] = {
      {"Level", "256"},     {"MTU", "-1"},    {"MTU", "12a"}, {"On", "1"},
      {"When", "tomorrow"}, {"MTU", "{1,2}"}, {"Tags", "x"}};
  for (const auto& row : bad)
    EXPECT_THROW(typed(row.first, row.second), rascim::TypingError)
        << row.first << "=" << row.second;
}

TEST_F(CimBuildTest, InstancesFollowTheClassOrderWithKeysMarked) {
  const auto values = rascim::parseBindings("MTU=1400,Id=\"a\",Level=3");
  const CIMInstance modify = rascim::buildInstance("zeph_t", values, schema, false);
  const CIMPropertyArray props = modify.getProperties();
  ASSERT_EQ(props.size(), 3u);
  EXPECT_EQ(props[0].getName(), "Id");
  EXPECT_EQ(props[1].getName(), "Level");
  EXPECT_EQ(props[2].getName(), "MTU");
  EXPECT_TRUE(props[0].isKey());
  EXPECT_TRUE(props[1].hasTrueQualifier("Write"));
  EXPECT_EQ(modify.getKeyValuePairs().size(), 1u);

  const CIMInstance create = rascim::buildInstance("Zeph_T", values, schema, true);
  ASSERT_EQ(create.getProperties().size(), 6u);
  EXPECT_FALSE(create.getPropertyValue("On"));
  EXPECT_EQ(rascim::typeName(create.getProperty("On").getDataType()), "boolean");
}

TEST_F(CimBuildTest, UndeclaredNamesFailAsACimomWould) {
  try {
    rascim::buildInstance("Zeph_T", rascim::parseBindings("Speed=1"), schema, false);
    ADD_FAILURE() << "no error";
  } catch (const CIMException& e) {
    EXPECT_EQ(e.getErrNo(), CIMException::NO_SUCH_PROPERTY);
    EXPECT_STREQ(e.getFile(), "ras-cim");
  }
  EXPECT_THROW(rascim::buildMethodParams("Zeph_T", "Stop", {}, schema), CIMException);
  EXPECT_THROW(
      rascim::buildMethodParams("Zeph_T", "Go", rascim::parseBindings("Log=\"x\""), schema),
      CIMException);
}

TEST_F(CimBuildTest, MethodParametersComeInDeclarationOrder) {
  const rascim::MethodParams params =
      rascim::buildMethodParams("Zeph_T", "go", rascim::parseBindings("Mode=-2,Delay=5"), schema);
  const CIMParamValueArray& in = params.in;
  const CIMParamValueArray& out = params.out;
  ASSERT_EQ(in.size(), 2u);
  EXPECT_EQ(in[0].getName(), "Delay");
  EXPECT_EQ(in[0].getValue().getType(), CIMDataType::UINT16);
  EXPECT_EQ(in[1].getValue().toInt32(), -2);
  ASSERT_EQ(out.size(), 1u);
  EXPECT_EQ(out[0].getName(), "Log");
  EXPECT_FALSE(out[0].getValue());
}

TEST_F(CimBuildTest, UnknownClassesPassThroughAsStrings) {
  const CIMObjectPath path = rascim::buildPath(rascim::parsePath("Zeph_Other.N=7,M=\"x\""), schema);
  EXPECT_EQ(path.getClassName(), "Zeph_Other");
  EXPECT_EQ(path.getKeyValue("N").getType(), CIMDataType::STRING);
  const CIMObjectPath ref =
      rascim::buildPath(rascim::parsePath("Zeph_L.Left=\"Zeph_T.Id=\\\"a\\\"\""), schema);
  EXPECT_EQ(ref.getKeyValue("Left").toCIMObjectPath().getKeyValue("Id").toString(), "a");
}

TEST_F(CimBuildTest, SchemaChecksNameEveryDisagreement) {
  CIMInstance inst("Zeph_T");
  inst.setProperty("Id", CIMValue(String("a")));
  inst.setProperty("MTU", CIMValue(UInt32(5)));
  inst.setProperty("Speed", CIMValue(UInt16(5)));
  inst.setProperty("Level", CIMValue(UInt8(5)));
  EXPECT_EQ(rascim::checkInstance(inst, schema),
            (std::vector<std::string>{"property Zeph_T.MTU is uint32, declared uint16",
                                      "property Zeph_T.Speed is not declared in the schema"}));
  EXPECT_EQ(rascim::checkInstance(CIMInstance("zeph_t"), schema),
            std::vector<std::string>{"class zeph_t is declared as Zeph_T"});
  CIMObjectPath path("Zeph_T");
  path.setKeyValue("Level", CIMValue(UInt8(1)));
  EXPECT_EQ(rascim::checkPath(path, schema),
            (std::vector<std::string>{"Zeph_T.Level is not declared as a key",
                                      "path of Zeph_T lacks the key Id"}));
  EXPECT_EQ(rascim::checkReturn("Zeph_T", "Go", CIMValue(Int32(1)), schema),
            std::vector<std::string>{"method Zeph_T.Go returned sint32, declared uint32"});
}

}  // namespace
