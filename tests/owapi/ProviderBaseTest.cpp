// Provider bases: role queries, the default enumInstances, the factory macro and handles.
#include <gtest/gtest.h>

#include "OW_CppProviderIncludes.hpp"
#include "OW_ResultHandlers.hpp"

using namespace OpenWBEM;
using namespace OpenWBEM::WBEMFlags;

namespace {

class TwoModems : public CppAssociatorProviderIFC, public CppMethodProviderIFC {
 public:
  int gets = 0;

  void enumInstanceNames(const ProviderEnvironmentIFCRef&, const String& ns,
                         const String& className, CIMObjectPathResultHandlerIFC& result,
                         const CIMClass&) override {
    for (const char* id : {"SoftModemIn", "SoftModemOut"}) {
      result.handle(CIMObjectPath(className, ns).setKeyValue("DeviceID", CIMValue(id)));
    }
  }
  CIMInstance getInstance(const ProviderEnvironmentIFCRef&, const String&,
                          const CIMObjectPath& path, ELocalOnlyFlag, EIncludeQualifiersFlag,
                          EIncludeClassOriginFlag, const StringArray*, const CIMClass&) override {
    ++gets;
    CIMInstance inst(path.getClassName());
    inst.setProperty("DeviceID", path.getKeyValue("DeviceID"));
    return inst;
  }
  CIMObjectPath createInstance(const ProviderEnvironmentIFCRef&, const String&,
                               const CIMInstance&) override {
    OW_THROWCIM(CIMException::NOT_SUPPORTED);
  }
  void modifyInstance(const ProviderEnvironmentIFCRef&, const String&, const CIMInstance&,
                      const CIMInstance&, EIncludeQualifiersFlag, const StringArray*,
                      const CIMClass&) override {}
  void deleteInstance(const ProviderEnvironmentIFCRef&, const String&,
                      const CIMObjectPath&) override {}
  void associators(const ProviderEnvironmentIFCRef&, CIMInstanceResultHandlerIFC&, const String&,
                   const CIMObjectPath&, const String&, const String&, const String&, const String&,
                   EIncludeQualifiersFlag, EIncludeClassOriginFlag, const StringArray*) override {}
  void associatorNames(const ProviderEnvironmentIFCRef&, CIMObjectPathResultHandlerIFC&,
                       const String&, const CIMObjectPath&, const String&, const String&,
                       const String&, const String&) override {}
  void references(const ProviderEnvironmentIFCRef&, CIMInstanceResultHandlerIFC&, const String&,
                  const CIMObjectPath&, const String&, const String&, EIncludeQualifiersFlag,
                  EIncludeClassOriginFlag, const StringArray*) override {}
  void referenceNames(const ProviderEnvironmentIFCRef&, CIMObjectPathResultHandlerIFC&,
                      const String&, const CIMObjectPath&, const String&, const String&) override {}
  CIMValue invokeMethod(const ProviderEnvironmentIFCRef&, const String&, const CIMObjectPath&,
                        const String&, const CIMParamValueArray&, CIMParamValueArray&) override {
    return CIMValue(CIMNULL);
  }
};

}  // namespace

OW_PROVIDERFACTORY(TwoModems, TwoModemsProvider)

namespace {

TEST(ProviderBaseTest, FactoryAndRoleQueries) {
  EXPECT_STREQ("3.0.3", getOWVersion());
  IntrusiveReference<CppProviderBaseIFC> prov(createProviderTwoModemsProvider());
  ASSERT_TRUE(prov);
  EXPECT_NE(nullptr, prov->getInstanceProvider());
  EXPECT_NE(nullptr, prov->getMethodProvider());
  EXPECT_NE(nullptr, prov->getAssociatorProvider());
  EXPECT_EQ(nullptr, prov->getIndicationProvider());
  EXPECT_TRUE(prov->canUnload());
  InstanceProviderInfo info;
  prov->getInstanceProvider()->getInstanceProviderInfo(info);
  EXPECT_TRUE(info.getClassInfo().empty());
}

TEST(ProviderBaseTest, DefaultEnumInstancesGetsEachName) {
  TwoModems* raw = new TwoModems;
  IntrusiveReference<CppProviderBaseIFC> keep(raw);
  CIMInstanceArray found;
  CIMInstanceArrayBuilder handler(found);
  raw->CppInstanceProviderIFC::enumInstances(ProviderEnvironmentIFCRef(), "root/cimv2",
                                             "Zeph_SoftModem", handler, E_NOT_LOCAL_ONLY, E_DEEP,
                                             E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0,
                                             CIMClass(CIMNULL), CIMClass(CIMNULL));
  ASSERT_EQ(2u, found.size());
  EXPECT_EQ(2, raw->gets);
  EXPECT_EQ(CIMValue("SoftModemOut"), found[1].getPropertyValue("DeviceID"));
}

TEST(ProviderBaseTest, IntrusiveReferenceSharesAndResets) {
  TwoModems* raw = new TwoModems;
  IntrusiveReference<CppProviderBaseIFC> a(raw);
  IntrusiveReference<CppProviderBaseIFC> b = a;
  EXPECT_TRUE(a == b);
  a = 0;
  EXPECT_FALSE(a);
  EXPECT_TRUE(b);
  EXPECT_EQ(raw, b.getPtr());
  IntrusiveReference<CppMethodProviderIFC> m = b.cast_to<CppMethodProviderIFC>();
  EXPECT_TRUE(m);
}

}  // namespace
