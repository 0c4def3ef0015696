// The provider template's contract, checked once for each of the ten classes: before a class
// has an implementation nothing is listed or created, a bare wrapper shows only its keys and
// is found again by its path, and every writable property reaches the wrapper's default.
#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

#include "CimFailure.h"
#include "OW_CIMClass.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_ResultHandlers.hpp"
#include "TestEnvironment.h"
#include "Zeph_ModuleProviders.h"

namespace {

using namespace OpenWBEM;

// One provider of the module's table with the source name its errors carry, as clients have
// always seen it: "../src/<Class>Provider", for the association its instance provider's.
template <class P>
struct ProviderCase {
  using Provider = P;
  static inline const std::string kSource =
      std::string("../src/") + P::Traits::kClass +
      (std::is_base_of_v<CppAssociatorProviderIFC, P> ? "InstProvider" : "Provider");
};

template <class... P>
using ProviderCases = ::testing::Types<ProviderCase<P>...>;

const String kNs("root/cimv2");
const CIMClass kNoClass(CIMNULL);

template <class Case>
class ProviderContract : public ::testing::Test {
 protected:
  using Provider = typename Case::Provider;
  using W = typename Provider::W;

  // The provider installs a fresh, empty manager of its class. A class that has an
  // implementation gets its abstract manager instead, so the frame's part is what is checked.
  void SetUp() override {
    if constexpr (std::is_same_v<typename Provider::Traits::ImplManager,
                                 typename Provider::Traits::Manager>) {
      provider_.initialize(env_);
    } else {
      W::SetInstanceManager(&abstractManager_);
    }
  }
  void TearDown() override {
    if (W::getInstanceManager() == &abstractManager_) W::ClearInstanceManager();
  }

  template <std::size_t... I>
  static std::unique_ptr<W> bareWrapper(std::index_sequence<I...>) {
    return std::make_unique<W>(("key" + std::to_string(I))...);
  }

  CIMObjectPathArray names() {
    CIMObjectPathArray paths;
    CIMObjectPathArrayBuilder result(paths);
    provider_.enumInstanceNames(env_, kNs, Provider::Traits::kClass, result, kNoClass);
    return paths;
  }

  static CIMValue sampleOf(const ras::Property<W>& row) {
    using ras::CimType;
    return row.type == CimType::UInt16    ? CIMValue(UInt16(5))
           : row.type == CimType::UInt8   ? CIMValue(UInt8(1))
           : row.type == CimType::Boolean ? CIMValue(true)
                                          : CIMValue(String("x"));
  }

  TestEnvRef env_ = TestEnvironment::make();
  Provider provider_;
  typename Provider::M abstractManager_;
};

using Cases = ras::WithModuleProviders<ProviderCases>;
TYPED_TEST_SUITE(ProviderContract, Cases);

TYPED_TEST(ProviderContract, WithoutImplementationNothingIsListedOrCreated) {
  EXPECT_EQ(this->names().size(), 0u);
  const CimFailure create = cimFailureOf(
      [&] { this->provider_.createInstance(this->env_, kNs, CIMInstance("Anything")); });
  if constexpr (std::is_same_v<typename TestFixture::W, Zeph_DialOutRoutes>) {
    // An association is refused first for the references it lacks.
    EXPECT_EQ(create, (CimFailure{CIMException::INVALID_PARAMETER, TypeParam::kSource, 0,
                                  "Invalid reference objectPath"}));
  } else {
    EXPECT_EQ(create, (CimFailure{CIMException::NOT_SUPPORTED, TypeParam::kSource, 206,
                                  "The system cannot create the instance specified.\n"
                                  "#CFG_000_0005#"}));
  }
  CIMParamValueArray out;
  const CimFailure invoke = cimFailureOf([&] {
    this->provider_.invokeMethod(this->env_, kNs, CIMObjectPath(), "Anything", CIMParamValueArray(),
                                 out);
  });
  EXPECT_EQ(invoke,
            (CimFailure{CIMException::METHOD_NOT_FOUND, TypeParam::kSource, 432, std::nullopt}));
}

TYPED_TEST(ProviderContract, BareWrapperShowsItsKeysAndIsFoundByItsPath) {
  using W = typename TestFixture::W;
  const auto wrapper = TestFixture::bareWrapper(std::make_index_sequence<W::kKeyCount>{});
  const CIMObjectPathArray paths = this->names();
  ASSERT_EQ(paths.size(), 1u);
  const CIMInstance instance = this->provider_.getInstance(
      this->env_, kNs, paths[0], WBEMFlags::E_NOT_LOCAL_ONLY, WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
  std::size_t keys = 0;
  for (const auto& row : TestFixture::Provider::Traits::properties()) {
    if (row.role != ras::Role::Key) continue;
    EXPECT_TRUE(instance.getProperty(row.name)) << row.name;
    EXPECT_EQ(instance.getPropertyValue(row.name), paths[0].getKeyValue(row.name)) << row.name;
    ++keys;
  }
  EXPECT_EQ(instance.getProperties().size(), keys);
  EXPECT_EQ(keys, W::kKeyCount);
  // Without an implementation the object can be found but not deleted, and a method that no
  // class has is not found.
  EXPECT_EQ(cimFailureOf([&] { this->provider_.deleteInstance(this->env_, kNs, paths[0]); }),
            (CimFailure{CIMException::NOT_SUPPORTED, TypeParam::kSource, 253,
                        "The system cannot delete the instance specified.\n#CFG_000_0006#"}));
  CIMParamValueArray out;
  EXPECT_EQ(cimFailureOf([&] {
              this->provider_.invokeMethod(this->env_, kNs, paths[0], "NoSuchMethod",
                                           CIMParamValueArray(), out);
            }),
            (CimFailure{CIMException::METHOD_NOT_FOUND, TypeParam::kSource, 432, std::nullopt}));
}

TYPED_TEST(ProviderContract, EveryWritablePropertyReachesTheWrappersDefaultSetter) {
  using W = typename TestFixture::W;
  const auto wrapper = TestFixture::bareWrapper(std::make_index_sequence<W::kKeyCount>{});
  const CIMObjectPath path = this->names()[0];
  for (const auto& row : TestFixture::Provider::Traits::properties()) {
    if (row.role != ras::Role::Writable) continue;
    CIMInstance instance(path.getClassName().c_str());
    for (const CIMProperty& key : path.getKeys()) instance.setProperty(key);
    instance.setProperty(row.name, TestFixture::sampleOf(row));
    const CimFailure failure = cimFailureOf([&] {
      this->provider_.modifyInstance(this->env_, kNs, instance, instance,
                                     WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
    });
    EXPECT_EQ(failure,
              (CimFailure{CIMException::FAILED, TypeParam::kSource, 388, "#RAS_MODEM_101#"}))
        << row.name;
  }
}

}  // namespace
