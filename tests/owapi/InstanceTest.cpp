// CIMInstance: absent and null properties, the implicit key list, copies and clone.
#include <gtest/gtest.h>

#include <functional>

#include "OW_CIM.hpp"
#include "OW_NoSuchPropertyException.hpp"

using namespace OpenWBEM;
using namespace OpenWBEM::WBEMFlags;

namespace {

CIMProperty keyProperty(const char* name, const CIMValue& v) {
  CIMProperty p(name, v);
  p.addQualifier(CIMQualifier::createKeyQualifier());
  return p;
}

StringArray keyNames(const CIMInstance& inst) {
  StringArray names;
  CIMPropertyArray keys = inst.getKeyValuePairs();
  for (size_t i = 0; i < keys.size(); ++i) {
    names.push_back(keys[i].getName());
  }
  return names;
}

TEST(CIMInstanceTest, AbsentAndNullProperties) {
  CIMInstance inst("Zeph_SoftModem");
  inst.setProperty("Present", CIMValue("x"));
  inst.setProperty("Null", CIMValue(CIMNULL));

  EXPECT_FALSE(inst.getProperty("Absent"));
  EXPECT_FALSE(inst.getPropertyValue("Absent"));
  EXPECT_FALSE(inst.propertyHasValue("Absent"));
  EXPECT_THROW(inst.getPropertyT("Absent"), NoSuchPropertyException);

  EXPECT_TRUE(inst.getProperty("null"));
  EXPECT_FALSE(inst.getProperty("null").getValue());
  EXPECT_FALSE(inst.propertyHasValue("Null"));

  EXPECT_TRUE(inst.propertyHasValue("PRESENT"));
  EXPECT_EQ(CIMValue("x"), inst.getPropertyValue("present"));
}

TEST(CIMInstanceTest, DefaultAndNullHandles) {
  EXPECT_TRUE(CIMInstance());
  EXPECT_FALSE(CIMInstance(CIMNULL));
  EXPECT_TRUE(CIMObjectPath());
  EXPECT_FALSE(CIMObjectPath(CIMNULL));
  EXPECT_TRUE(CIMProperty());
  EXPECT_FALSE(CIMProperty(CIMNULL));
  EXPECT_FALSE(CIMDataType());
  EXPECT_TRUE(CIMDataType(CIMDataType::STRING));
  EXPECT_FALSE(CIMDateTime());
  EXPECT_THROW(CIMInstance(CIMNULL).getClassName(), Exception);
  EXPECT_THROW(CIMInstance(CIMNULL).setProperty("A", CIMValue(1)), Exception);
}

struct KeyRow {
  const char* what;
  std::function<void(CIMInstance&)> change;
  const char* keys;
};

TEST(CIMInstanceTest, KeyListFollowsTheDocumentedRules) {
  const KeyRow rows[] = {
      {"setProperty by value adds no key",
       [](CIMInstance& i) { i.setProperty("Name", CIMValue("n")); }, "Id"},
      {"keyed property joins",
       [](CIMInstance& i) { i.setProperty(keyProperty("Name", CIMValue("n"))); }, "Id,Name"},
      {"reference property joins",
       [](CIMInstance& i) { i.setProperty(CIMProperty("Ref", CIMValue(CIMObjectPath("X")))); },
       "Id,Ref"},
      {"qualifier added on a copy changes nothing",
       [](CIMInstance& i) {
         i.setProperty("Name", CIMValue("n"));
         i.getProperty("Name").addQualifier(CIMQualifier::createKeyQualifier());
       },
       "Id"},
      {"replacing the key with a plain property drops it",
       [](CIMInstance& i) { i.setProperty(CIMProperty("Id", CIMValue("1"))); }, ""},
      {"removing the key drops it", [](CIMInstance& i) { i.removeProperty("ID"); }, ""},
      {"setKeys overrides without checks",
       [](CIMInstance& i) { i.setKeys(CIMPropertyArray(1, CIMProperty("Other", CIMValue("o")))); },
       "Other"},
      {"setKeys is undone by a rebuild",
       [](CIMInstance& i) {
         i.setKeys(CIMPropertyArray());
         i.setProperties(i.getProperties());
       },
       "Id"},
  };
  for (const KeyRow& row : rows) {
    SCOPED_TRACE(row.what);
    CIMInstance inst("Zeph_X");
    inst.setProperty(keyProperty("Id", CIMValue("1")));
    row.change(inst);
    StringArray expected = String(row.keys).tokenize(",");
    EXPECT_EQ(expected, keyNames(inst));
  }
}

TEST(CIMInstanceTest, KeyValueUpdatesReachTheKeyList) {
  CIMInstance inst("Zeph_X");
  inst.setProperty(keyProperty("Id", CIMValue(UInt16(1))));
  inst.setProperty("Id", CIMValue("2"));
  ASSERT_EQ(1u, inst.getKeyValuePairs().size());
  EXPECT_EQ(CIMValue(UInt16(2)), inst.getKeyValuePairs()[0].getValue());
  inst.updatePropertyValue("Id", CIMValue(UInt16(3)));
  EXPECT_EQ(CIMValue(UInt16(3)), inst.getKeyValuePairs()[0].getValue());
  EXPECT_THROW(inst.updatePropertyValue("Id", CIMValue(CIMNULL)), Exception);
  EXPECT_THROW(inst.setProperty("Id", CIMValue("x")), CIMException);
}

TEST(CIMInstanceTest, PathFromInstanceUsesKeysOnly) {
  CIMInstance inst("Zeph_SoftModem");
  inst.setProperty(keyProperty("DeviceID", CIMValue("SoftModemIn")));
  inst.setProperty("Status", CIMValue("OK"));
  CIMObjectPath path("root/cimv2", inst);
  EXPECT_STREQ("/root/cimv2:Zeph_SoftModem.DeviceID=\"SoftModemIn\"", path.toString().c_str());
  EXPECT_FALSE(path.getKey("DeviceID").getQualifier("Key"));
}

TEST(CIMInstanceTest, EqualityOperatorComparesClassNamesOnly) {
  CIMInstance a("Zeph_X");
  CIMInstance b("zeph_x");
  a.setProperty("P", CIMValue(UInt16(1)));
  b.setProperty("P", CIMValue(UInt16(2)));
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(a.propertiesAreEqualTo(b));
  b.setProperty("P", CIMValue(UInt16(1)));
  EXPECT_TRUE(a.propertiesAreEqualTo(b));
}

TEST(CIMInstanceTest, CloneHonoursThePropertyList) {
  CIMInstance inst("Zeph_X");
  inst.setProperty(keyProperty("Id", CIMValue("1")));
  inst.setProperty("A", CIMValue("a"));
  StringArray onlyA(1, String("a"));
  StringArray none;
  struct Row {
    const char* what;
    const StringArray* list;
    size_t count;
  } rows[] = {{"null list keeps all", 0, 2}, {"named", &onlyA, 1}, {"empty keeps none", &none, 0}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    CIMInstance c =
        inst.clone(E_NOT_LOCAL_ONLY, E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, row.list);
    EXPECT_EQ(row.count, c.getProperties().size());
  }
  EXPECT_EQ(2u, inst.getProperties().size());
}

TEST(CIMInstanceTest, CloneDropsWhatTheFlagsExclude) {
  CIMInstance inst("Zeph_X");
  inst.setProperty(keyProperty("Id", CIMValue("1")));
  inst.setProperty(CIMProperty("Inherited", CIMValue("i")).setPropagated());
  inst.setQualifier(CIMQualifier("Description"));
  CIMInstance local = inst.clone(E_LOCAL_ONLY, E_INCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0);
  EXPECT_FALSE(local.getProperty("Inherited"));
  EXPECT_TRUE(local.getProperty("Id").getQualifier("Key"));
  EXPECT_EQ(1u, local.getQualifiers().size());
  CIMInstance bare = inst.clone(E_NOT_LOCAL_ONLY, E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0);
  EXPECT_TRUE(bare.getProperty("Inherited"));
  EXPECT_FALSE(bare.getProperty("Id").getQualifier("Key"));
  EXPECT_TRUE(bare.getQualifiers().empty());
  EXPECT_EQ(1u, bare.getKeyValuePairs().size());
}

TEST(CIMInstanceTest, CopiesDoNotShareChanges) {
  CIMInstance a("Zeph_X");
  a.setProperty("P", CIMValue(UInt16(1)));
  CIMInstance b(a);
  b.setProperty("P", CIMValue(UInt16(2)));
  a.getProperty("P").setValue(CIMValue(UInt16(9)));
  EXPECT_EQ(CIMValue(UInt16(1)), a.getPropertyValue("P"));
  EXPECT_EQ(CIMValue(UInt16(2)), b.getPropertyValue("P"));
}

TEST(CIMInstanceTest, ClassBuildsKeyedInstances) {
  CIMClass cls("Zeph_X");
  cls.addProperty(keyProperty("Id", CIMValue("")));
  cls.addProperty(CIMProperty("MTU", CIMDataType::UINT16));
  CIMInstance inst = cls.newInstance();
  EXPECT_EQ(1u, inst.getKeyValuePairs().size());
  inst.setProperty("MTU", CIMValue("576"));
  EXPECT_EQ(CIMValue(UInt16(576)), inst.getPropertyValue("MTU"));
}

}  // namespace
