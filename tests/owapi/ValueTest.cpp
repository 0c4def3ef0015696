// CIMValue: the type a constructor gives, wrong-type and null reads, equality, text.
#include <gtest/gtest.h>

#include <functional>

#include "OW_Bool.hpp"
#include "OW_CIM.hpp"
#include "OW_CIMValueCast.hpp"

using namespace OpenWBEM;

namespace {

struct TypeRow {
  const char* what;
  CIMValue value;
  CIMDataType::Type type;
  bool isArray;
  const char* text;
};

TEST(CIMValueTest, ConstructorArgumentFixesTypeAndText) {
  StringArray names;
  names.push_back("a");
  names.push_back("b c");
  const TypeRow rows[] = {
      {"int literal", CIMValue(5), CIMDataType::SINT32, false, "5"},
      {"char literal", CIMValue('x'), CIMDataType::SINT32, false, "120"},
      {"UInt16", CIMValue(UInt16(5)), CIMDataType::UINT16, false, "5"},
      {"UInt8 is a number", CIMValue(UInt8(7)), CIMDataType::UINT8, false, "7"},
      {"bool", CIMValue(true), CIMDataType::BOOLEAN, false, "true"},
      {"Bool", CIMValue(Bool(false)), CIMDataType::BOOLEAN, false, "false"},
      {"const char*", CIMValue("abc"), CIMDataType::STRING, false, "abc"},
      {"null const char*", CIMValue(static_cast<const char*>(0)), CIMDataType::STRING, false, ""},
      {"type enum is an int", CIMValue(CIMDataType::CIMNULL), CIMDataType::SINT32, false, "0"},
      {"string array", CIMValue(names), CIMDataType::STRING, true, "a,b c"},
      {"reference", CIMValue(CIMObjectPath("Zeph_X", "root/cimv2")), CIMDataType::REFERENCE, false,
       "/root/cimv2:Zeph_X"},
  };
  for (const TypeRow& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(row.type, row.value.getType());
    EXPECT_EQ(row.isArray, row.value.isArray());
    EXPECT_STREQ(row.text, row.value.toString().c_str());
  }
}

struct ReadRow {
  const char* what;
  CIMValue value;
  std::function<void(const CIMValue&)> read;
};

TEST(CIMValueTest, ReadingAnotherTypeThrowsValueCastException) {
  StringArray names(1, String("a"));
  const ReadRow rows[] = {
      {"uint16 as uint32", CIMValue(UInt16(5)), [](const CIMValue& v) { v.toUInt32(); }},
      {"uint32 as uint16", CIMValue(UInt32(5)), [](const CIMValue& v) { v.toUInt16(); }},
      {"string as bool", CIMValue("true"), [](const CIMValue& v) { v.toBool(); }},
      {"bool as string", CIMValue(true),
       [](const CIMValue& v) {
         String s;
         v.get(s);
       }},
      {"array as scalar", CIMValue(names),
       [](const CIMValue& v) {
         String s;
         v.get(s);
       }},
      {"scalar as array", CIMValue("a"), [](const CIMValue& v) { v.toStringArray(); }},
      {"sint32 as uint8", CIMValue(Int32(1)), [](const CIMValue& v) { v.toUInt8(); }},
  };
  for (const ReadRow& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_THROW(row.read(row.value), ValueCastException);
  }
}

TEST(CIMValueTest, ScalarSint64ReadsAsAnyNumber) {
  CIMValue v(Int64(300));
  EXPECT_EQ(300u, v.toUInt32());
  EXPECT_EQ(UInt16(300), v.toUInt16());
  EXPECT_EQ(300, v.toInt32());
  EXPECT_THROW(v.toBool(), ValueCastException);
}

TEST(CIMValueTest, NullValueIsSafeOnlyForTestsAndText) {
  CIMValue null(CIMNULL);
  EXPECT_FALSE(null);
  EXPECT_STREQ("(null)", null.toString().c_str());
  const std::function<void()> calls[] = {[&] { null.getType(); }, [&] { null.isArray(); },
                                         [&] { null.toUInt16(); }, [&] { null.getArraySize(); }};
  for (const auto& call : calls) {
    try {
      call();
      ADD_FAILURE() << "no exception";
    } catch (const ValueCastException&) {
      ADD_FAILURE() << "a null value is not a type mismatch";
    } catch (const Exception& e) {
      EXPECT_STRNE("", e.getMessage());
    }
  }
}

TEST(CIMValueTest, EqualityNeedsSameTypeArraynessAndValue) {
  struct Row {
    const char* what;
    CIMValue a;
    CIMValue b;
    bool equal;
  } rows[] = {
      {"both null", CIMValue(CIMNULL), CIMValue(CIMNULL), true},
      {"one null", CIMValue(CIMNULL), CIMValue(UInt16(0)), false},
      {"same uint16", CIMValue(UInt16(5)), CIMValue(UInt16(5)), true},
      {"uint16 vs uint32", CIMValue(UInt16(5)), CIMValue(UInt32(5)), false},
      {"string case matters", CIMValue("Abc"), CIMValue("abc"), false},
      {"scalar vs array", CIMValue("a"), CIMValue(StringArray(1, String("a"))), false},
      {"arrays", CIMValue(StringArray(2, String("a"))), CIMValue(StringArray(2, String("a"))),
       true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(row.equal, row.a == row.b);
    EXPECT_EQ(row.equal, row.b.equal(row.a));
  }
}

TEST(CIMValueTest, CreateSimpleValueParsesTheNamedType) {
  EXPECT_EQ(CIMValue(UInt16(42)), CIMValue::createSimpleValue("uint16", "42"));
  EXPECT_EQ(CIMValue(true), CIMValue::createSimpleValue("boolean", "TRUE"));
  EXPECT_FALSE(CIMValue::createSimpleValue("nosuchtype", "1"));
  EXPECT_THROW(CIMValue::createSimpleValue("uint8", "256"), CIMException);
}

TEST(CIMValueTest, ParamValueLookupIgnoresCase) {
  CIMParamValueArray params;
  params.push_back(CIMParamValue("Number", CIMValue("555")));
  params.push_back(CIMParamValue("Empty"));
  EXPECT_EQ(CIMValue("555"), getParamValue("number", params));
  EXPECT_FALSE(getParamValue("Empty", params));
  EXPECT_FALSE(getParamValue("Missing", params));
  EXPECT_STREQ("CIMParamValue(Number): 555", params[0].toString().c_str());
}

}  // namespace
