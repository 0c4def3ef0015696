// CIMOMHandleIFC: a fake that implements every pure virtual; the array helpers forward to it.
#include <gtest/gtest.h>

#include "OW_CIM.hpp"
#include "OW_CIMFeatures.hpp"
#include "OW_CIMOMHandleIFC.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_Enumeration.hpp"
#include "OW_ResultHandlerIFC.hpp"

using namespace OpenWBEM;
using namespace OpenWBEM::WBEMFlags;

namespace {

const char* const kUnused = "not used by these tests";

// Serves two Zeph_Account instances and records the arguments of the last call.
class FakeCIMOM : public CIMOMHandleIFC {
 public:
  String lastNs, lastClass, lastRole;
  EDeepFlag lastDeep = E_SHALLOW;
  ELocalOnlyFlag lastLocalOnly = E_LOCAL_ONLY;
  const StringArray* lastList = 0;

  void enumInstances(const String& ns, const String& className, CIMInstanceResultHandlerIFC& result,
                     EDeepFlag deep, ELocalOnlyFlag localOnly, EIncludeQualifiersFlag,
                     EIncludeClassOriginFlag, const StringArray* propertyList) override {
    lastNs = ns, lastClass = className, lastDeep = deep, lastLocalOnly = localOnly;
    lastList = propertyList;
    for (const char* user : {"alice", "bob"}) {
      result.handle(CIMInstance(className).setProperty("UserID", CIMValue(user)));
    }
  }
  void enumInstanceNames(const String& ns, const String& className,
                         CIMObjectPathResultHandlerIFC& result) override {
    result.handle(CIMObjectPath(className, ns));
  }
  void referenceNames(const String& ns, const CIMObjectPath& path,
                      CIMObjectPathResultHandlerIFC& result, const String& resultClass,
                      const String& role) override {
    lastNs = ns, lastClass = resultClass, lastRole = role;
    result.handle(path);
  }
  void execQuery(const String&, CIMInstanceResultHandlerIFC& result, const String& query,
                 const String&) override {
    result.handle(CIMInstance(query));
  }

  void close() override {}
  void enumClass(const String&, const String&, CIMClassResultHandlerIFC&, EDeepFlag, ELocalOnlyFlag,
                 EIncludeQualifiersFlag, EIncludeClassOriginFlag) override {
    fail();
  }
  void enumClassNames(const String&, const String&, StringResultHandlerIFC&, EDeepFlag) override {
    fail();
  }
  CIMClass getClass(const String&, const String&, ELocalOnlyFlag, EIncludeQualifiersFlag,
                    EIncludeClassOriginFlag, const StringArray*) override {
    fail();
  }
  CIMInstance getInstance(const String&, const CIMObjectPath&, ELocalOnlyFlag,
                          EIncludeQualifiersFlag, EIncludeClassOriginFlag,
                          const StringArray*) override {
    fail();
  }
  CIMValue invokeMethod(const String&, const CIMObjectPath&, const String&,
                        const CIMParamValueArray&, CIMParamValueArray&) override {
    fail();
  }
  CIMQualifierType getQualifierType(const String&, const String&) override { fail(); }
  void setQualifierType(const String&, const CIMQualifierType&) override { fail(); }
  void deleteQualifierType(const String&, const String&) override { fail(); }
  void enumQualifierTypes(const String&, CIMQualifierTypeResultHandlerIFC&) override { fail(); }
  void modifyClass(const String&, const CIMClass&) override { fail(); }
  void createClass(const String&, const CIMClass&) override { fail(); }
  void deleteClass(const String&, const String&) override { fail(); }
  void modifyInstance(const String&, const CIMInstance&, EIncludeQualifiersFlag,
                      const StringArray*) override {
    fail();
  }
  CIMObjectPath createInstance(const String&, const CIMInstance&) override { fail(); }
  void deleteInstance(const String&, const CIMObjectPath&) override { fail(); }
  void setProperty(const String&, const CIMObjectPath&, const String&, const CIMValue&) override {
    fail();
  }
  CIMValue getProperty(const String&, const CIMObjectPath&, const String&) override { fail(); }
  void associatorNames(const String&, const CIMObjectPath&, CIMObjectPathResultHandlerIFC&,
                       const String&, const String&, const String&, const String&) override {
    fail();
  }
  void associators(const String&, const CIMObjectPath&, CIMInstanceResultHandlerIFC&, const String&,
                   const String&, const String&, const String&, EIncludeQualifiersFlag,
                   EIncludeClassOriginFlag, const StringArray*) override {
    fail();
  }
  void associatorsClasses(const String&, const CIMObjectPath&, CIMClassResultHandlerIFC&,
                          const String&, const String&, const String&, const String&,
                          EIncludeQualifiersFlag, EIncludeClassOriginFlag,
                          const StringArray*) override {
    fail();
  }
  void references(const String&, const CIMObjectPath&, CIMInstanceResultHandlerIFC&, const String&,
                  const String&, EIncludeQualifiersFlag, EIncludeClassOriginFlag,
                  const StringArray*) override {
    fail();
  }
  void referencesClasses(const String&, const CIMObjectPath&, CIMClassResultHandlerIFC&,
                         const String&, const String&, EIncludeQualifiersFlag,
                         EIncludeClassOriginFlag, const StringArray*) override {
    fail();
  }

 private:
  [[noreturn]] static void fail() { OW_THROWCIMMSG(CIMException::NOT_SUPPORTED, kUnused); }
};

TEST(CIMOMHandleTest, ArrayHelpersCollectFromTheHandlerForms) {
  IntrusiveReference<FakeCIMOM> fake(new FakeCIMOM);
  CIMOMHandleIFCRef hdl(fake);
  CIMInstanceArray accounts = hdl->enumInstancesA("root/cimv2", "Zeph_Account");
  ASSERT_EQ(2u, accounts.size());
  EXPECT_EQ(CIMValue("bob"), accounts[1].getPropertyValue("UserID"));
  EXPECT_STREQ("root/cimv2", fake->lastNs.c_str());
  EXPECT_EQ(E_DEEP, fake->lastDeep);
  EXPECT_EQ(E_NOT_LOCAL_ONLY, fake->lastLocalOnly);
  EXPECT_EQ(nullptr, fake->lastList);

  StringArray list(1, String("UserID"));
  CIMInstanceEnumeration e =
      hdl->enumInstancesE("root/cimv2", "Zeph_Account", E_SHALLOW, E_LOCAL_ONLY,
                          E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, &list);
  EXPECT_EQ(2u, e.numberOfElements());
  EXPECT_EQ(CIMValue("alice"), e.nextElement().getPropertyValue("UserID"));
  EXPECT_EQ(&list, fake->lastList);
  EXPECT_EQ(E_LOCAL_ONLY, fake->lastLocalOnly);

  EXPECT_EQ(1u, hdl->enumInstanceNamesA("root/cimv2", "Zeph_Account").size());
  CIMObjectPath route("Zeph_NextHopIPRoute", "root/cimv2");
  CIMObjectPathArray refs = hdl->referenceNamesA("root/cimv2", route, "Zeph_DialOutRoutes");
  ASSERT_EQ(1u, refs.size());
  EXPECT_TRUE(refs[0].equals(route));
  EXPECT_STREQ("Zeph_DialOutRoutes", fake->lastClass.c_str());
  EXPECT_STREQ("", fake->lastRole.c_str());
  EXPECT_EQ(1u, hdl->execQueryA("root/cimv2", "Q", "WQL").size());
}

TEST(CIMOMHandleTest, DefaultsOfTheNonPureMembers) {
  FakeCIMOM fake;
  EXPECT_EQ(CIMFeatures::CIM_HTTP, fake.getServerFeatures().protocolType);
  try {
    fake.exportIndication(CIMInstance("X"), "root/cimv2");
    FAIL() << "no exception";
  } catch (const CIMException& e) {
    EXPECT_EQ(CIMException::FAILED, e.getErrNo());
  }
  EXPECT_THROW(fake.associatorNamesA("root/cimv2", CIMObjectPath("X")), CIMException);
  Enumeration<String> empty;
  EXPECT_FALSE(empty.hasMoreElements());
  EXPECT_THROW(empty.nextElement(), EnumerationException);
}

}  // namespace
