// CIMObjectPath: keys by name, equality rules, text forms and parsing.
#include <gtest/gtest.h>

#include "OW_CIM.hpp"
#include "OW_NoSuchPropertyException.hpp"

using namespace OpenWBEM;

namespace {

CIMObjectPath modemPath(const char* ns, const char* cls, const char* k1, const CIMValue& v1,
                        const char* k2, const CIMValue& v2) {
  CIMObjectPath p(cls, ns);
  p.setKeyValue(k1, v1);
  p.setKeyValue(k2, v2);
  return p;
}

TEST(CIMObjectPathTest, EqualsIgnoresCaseAndKeyOrder) {
  const CIMObjectPath base = modemPath("root/cimv2", "Zeph_SoftModem", "CreationClassName",
                                       CIMValue("Zeph_SoftModem"), "DeviceID", CIMValue("In"));
  struct Row {
    const char* what;
    CIMObjectPath other;
    bool equal;
  } rows[] = {
      {"same", base, true},
      {"case of namespace, class and key names",
       modemPath("ROOT/CIMV2", "zeph_softmodem", "creationclassname", CIMValue("Zeph_SoftModem"),
                 "DEVICEID", CIMValue("In")),
       true},
      {"key order",
       modemPath("root/cimv2", "Zeph_SoftModem", "DeviceID", CIMValue("In"), "CreationClassName",
                 CIMValue("Zeph_SoftModem")),
       true},
      {"leading slash in namespace",
       modemPath("/root/cimv2", "Zeph_SoftModem", "CreationClassName", CIMValue("Zeph_SoftModem"),
                 "DeviceID", CIMValue("In")),
       true},
      {"key value case matters",
       modemPath("root/cimv2", "Zeph_SoftModem", "CreationClassName", CIMValue("Zeph_SoftModem"),
                 "DeviceID", CIMValue("IN")),
       false},
      {"other namespace",
       modemPath("root/other", "Zeph_SoftModem", "CreationClassName", CIMValue("Zeph_SoftModem"),
                 "DeviceID", CIMValue("In")),
       false},
      {"fewer keys", CIMObjectPath("Zeph_SoftModem", "root/cimv2"), false},
      {"key of another type",
       modemPath("root/cimv2", "Zeph_SoftModem", "CreationClassName", CIMValue("Zeph_SoftModem"),
                 "DeviceID", CIMValue(UInt16(1))),
       false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(row.equal, base.equals(row.other));
    EXPECT_EQ(row.equal, row.other == base);
    EXPECT_EQ(!row.equal, base != row.other);
  }
  EXPECT_TRUE(CIMObjectPath(CIMNULL).equals(CIMObjectPath(CIMNULL)));
  EXPECT_THROW(base.equals(CIMObjectPath(CIMNULL)), Exception);
}

TEST(CIMObjectPathTest, TextForms) {
  struct Row {
    const char* what;
    CIMObjectPath path;
    const char* model;
    const char* full;
  } rows[] = {
      {"class only", CIMObjectPath("Zeph_RASService", "root/cimv2"), "Zeph_RASService",
       "/root/cimv2:Zeph_RASService"},
      {"numbers are quoted",
       CIMObjectPath("Zeph_X", "root/cimv2").setKeyValue("N", CIMValue(UInt16(5))),
       "Zeph_X.N=\"5\"", "/root/cimv2:Zeph_X.N=\"5\""},
      {"escapes", CIMObjectPath("Zeph_X", "ns").setKeyValue("K", CIMValue("a\"b\\c\nd")),
       "Zeph_X.K=\"a\\\"b\\\\c\\nd\"", "/ns:Zeph_X.K=\"a\\\"b\\\\c\\nd\""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_STREQ(row.model, row.path.modelPath().c_str());
    EXPECT_STREQ(row.full, row.path.toString().c_str());
  }
}

TEST(CIMObjectPathTest, AbsentKeysAndConversionOnUpdate) {
  CIMObjectPath p("Zeph_X", "root/cimv2");
  p.setKeyValue("N", CIMValue(UInt16(1)));
  EXPECT_FALSE(p.getKey("Missing"));
  EXPECT_FALSE(p.getKeyValue("Missing"));
  EXPECT_FALSE(p.keyHasValue("Missing"));
  EXPECT_THROW(p.getKeyT("Missing"), NoSuchPropertyException);
  p.setKeyValue("n", CIMValue("7"));
  ASSERT_EQ(1u, p.getKeys().size());
  EXPECT_EQ(CIMValue(UInt16(7)), p.getKeyValue("N"));
  EXPECT_THROW(p.setKeyValue("N", CIMValue(CIMNULL)), Exception);
}

TEST(CIMObjectPathTest, ParseReadsWhatToStringWrites) {
  CIMObjectPath p = modemPath("root/cimv2", "Zeph_SoftModem", "CreationClassName",
                              CIMValue("Zeph_SoftModem"), "DeviceID", CIMValue("a,\"b\""));
  CIMObjectPath back = CIMObjectPath::parse(p.toString());
  EXPECT_TRUE(back.equals(p)) << back.toString();
  CIMObjectPath bare = CIMObjectPath::parse("Zeph_X.N=5,F=true");
  EXPECT_EQ(5u, bare.getKeyValue("N").toUInt32());
  EXPECT_EQ(CIMValue(true), bare.getKeyValue("F"));
  EXPECT_THROW(CIMObjectPath::parse("Zeph_X.N"), CIMException);
}

}  // namespace
