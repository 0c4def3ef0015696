// MofSchemaTest.cpp: the MOF reader on the forms the schema uses, its errors, and the
// project's own schema (provider registration, keys, methods, the association).
#include <gtest/gtest.h>

#include "MofSchema.hpp"

using rascim::MofClass;
using rascim::MofError;
using rascim::MofSchema;

namespace {

const char kSample[] = R"(
// a comment
#pragma namespace("root/cimv2")
Qualifier Applicable : boolean = false, Scope(property);
/* a block
   comment */
[Association, Provider("c++::" "X"), Description("two\nlines")]
class Zeph_Link : Base {
    [Key] Zeph_A REF Left;
    [Key, Override("Right")] Zeph_B REF Right;
    [ValueMap{"0", "1"}, Values{"Off", "On"}, MaxValue(-3) : ToSubclass]
    uint8 State = 1;
    string Names[];
    [Description("method")] uint32 Reset([IN] uint16 Delay, [IN(false), OUT] string Log,
                                         string Mode[]);
    boolean Probe();
};
)";

TEST(MofSchema, ReadsClassesQualifiersPropertiesAndMethods) {
  MofSchema schema;
  schema.addText(kSample, "sample.mof");
  const MofClass* c = schema.findClass("ZEPH_LINK");
  ASSERT_NE(c, nullptr);
  EXPECT_EQ(c->superClass, "Base");
  EXPECT_TRUE(c->isAssociation());
  EXPECT_EQ(rascim::findQualifier(c->qualifiers, "provider")->values[0].text, "c++::X");
  EXPECT_EQ(rascim::findQualifier(c->qualifiers, "Description")->values[0].text, "two\nlines");
  ASSERT_EQ(c->properties.size(), 4u);
  EXPECT_EQ(c->keys().size(), 2u);
  EXPECT_EQ(c->properties[1].type.name, "ref");
  EXPECT_EQ(c->properties[1].type.refClass, "Zeph_B");
  const rascim::MofQualifier* valueMap =
      rascim::findQualifier(c->properties[2].qualifiers, "ValueMap");
  ASSERT_TRUE(valueMap && valueMap->isArray);
  EXPECT_EQ(valueMap->values.size(), 2u);
  EXPECT_EQ(rascim::findQualifier(c->properties[2].qualifiers, "MaxValue")->values[0].text, "-3");
  EXPECT_TRUE(c->properties[3].type.isArray);
  const rascim::MofMethod* reset = c->findMethod("reset");
  ASSERT_NE(reset, nullptr);
  EXPECT_EQ(reset->returnType.name, "uint32");
  ASSERT_EQ(reset->parameters.size(), 3u);
  EXPECT_TRUE(reset->parameters[0].isIn() && !reset->parameters[0].isOut());
  EXPECT_TRUE(!reset->parameters[1].isIn() && reset->parameters[1].isOut());
  EXPECT_TRUE(reset->parameters[2].isIn() && reset->parameters[2].type.isArray);
  EXPECT_TRUE(c->findMethod("Probe")->parameters.empty());
}

TEST(MofSchema, ErrorsNameTheLine) {
  const std::pair<const char*, const char*> rows[] = {
      {"class A {\n  strung X;\n};", "t.mof:2: unknown data type 'strung'"},
      {"class A {\n  string X\n};", "t.mof:3: expected ';' but found '}'"},
      {"class A {};\n\n\"open", "t.mof:3: unterminated string"},
      {"/* never closed", "t.mof:1: unterminated comment"},
      {"instance of A {};", "t.mof:1: expected 'class' but found 'instance'"},
      {"class A {};\nclass a {};", "t.mof: class a declared twice"},
  };
  for (const auto& row : rows) {
    MofSchema schema;
    try {
      schema.addText(row.first, "t.mof");
      ADD_FAILURE() << "no error for: " << row.first;
    } catch (const MofError& e) {
      EXPECT_STREQ(e.what(), row.second);
    }
  }
}

TEST(MofSchema, ProjectSchemaRoutesTheTenClassesToTheModule) {
  MofSchema schema;
  schema.load(RAS_MOF_DIR);
  const char* const served[] = {"Zeph_CallInSettingData",   "Zeph_DialOutSettingData",
                                "Zeph_RASService",          "Zeph_RASStaticIPAddressPool",
                                "Zeph_NextHopIPRoute",      "Zeph_RASIPProtocolEndpoint",
                                "Zeph_PPPProtocolEndpoint", "Zeph_SoftModem",
                                "Zeph_SerialPort",          "Zeph_DialOutRoutes"};
  for (const char* name : served) {
    const MofClass* c = schema.findClass(name);
    ASSERT_NE(c, nullptr) << name;
    const rascim::MofQualifier* provider = rascim::findQualifier(c->qualifiers, "Provider");
    ASSERT_NE(provider, nullptr) << name;
    EXPECT_EQ(provider->values[0].text, "c++::Zeph_RASProvider") << name;
    EXPECT_FALSE(c->keys().empty()) << name;
  }
  EXPECT_EQ(schema.classes().size(), 11u);  // and Zeph_Account, read through the CIMOM
  const MofClass* ppp = schema.findClass("Zeph_PPPProtocolEndpoint");
  for (const char* method : {"ConnectLink", "DisconnectLink"}) {
    ASSERT_NE(ppp->findMethod(method), nullptr) << method;
    EXPECT_EQ(ppp->findMethod(method)->returnType.name, "uint32");
    EXPECT_TRUE(ppp->findMethod(method)->parameters.empty());
  }
  const MofClass* routes = schema.findClass("Zeph_DialOutRoutes");
  EXPECT_TRUE(routes->isAssociation());
  EXPECT_EQ(routes->findProperty("Antecedent")->type.refClass, "Zeph_DialOutSettingData");
  EXPECT_EQ(routes->findProperty("Dependent")->type.refClass, "Zeph_NextHopIPRoute");
}

}  // namespace
