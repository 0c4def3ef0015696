// A CIMOM's view of the call-in settings inside a fresh appliance: the module's dispatcher,
// initialised with a recording environment, and the requests a client sends to it.
#ifndef CALLIN_CALLINFIXTURE_H
#define CALLIN_CALLINFIXTURE_H

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ApplianceTest.h"
#include "CimFailure.h"
#include "OW_Bool.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ResultHandlers.hpp"
#include "QvlStandIn.h"
#include "TestEnvironment.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_RASProvider.h"

namespace callin {

inline constexpr char kClass[] = "Zeph_CallInSettingData";
inline constexpr char kInstanceID[] = "Velmar:Zeph_CallInSettingData";
inline constexpr char kMgettyScript[] = "/qv/etc/ppp/mgetty_v2k";
inline const OpenWBEM::String kNs("root/cimv2");

using Properties = std::vector<std::pair<const char*, OpenWBEM::CIMValue>>;

class CallInTest : public ApplianceTest {
 protected:
  void SetUp() override {
    ApplianceTest::SetUp();
    beforeInitialising();
    initialize();
  }
  void TearDown() override {
    ConnectionStatus = DialOutConnectionStatus = false;
    check_key.clear();
  }

  // What a test changes on the pristine appliance before the module starts.
  virtual void beforeInitialising() {}

  // Initialises the module as a CIMOM does, then forgets what other classes ran: waits until
  // the module's registry subscriptions have acted on every change so far (the service switch
  // follows "ModemStatus") and empties the journal.
  void initialize() {
    initEnv_ = TestEnvironment::make();
    provider_->initialize(initEnv_);
    QvlNotifySync();
    appliance::clearJournal();
  }

  // What the module logged, as "CATEGORY|text".
  std::vector<std::string> logged() const {
    std::vector<std::string> lines;
    for (const LogLine& line : initEnv_->logged()) lines.push_back(line.category + "|" + line.text);
    return lines;
  }

  OpenWBEM::CIMInstance get() {
    OpenWBEM::CIMObjectPath path(OpenWBEM::CIMName(kClass), kNs);
    path.setKeyValue("InstanceID", OpenWBEM::CIMValue(OpenWBEM::String(kInstanceID)));
    return provider_->getInstance(TestEnvironment::make(), kNs, path,
                                  OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
                                  OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS,
                                  OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
  }

  // Every property of a get in MOF form (qualifiers, type, name, value), in instance order.
  // Built from the parts: the layout of CIMProperty::toMOF() differs between OpenWBEM builds.
  std::vector<std::string> getAsMof() {
    std::vector<std::string> mof;
    for (const OpenWBEM::CIMProperty& property : get().getProperties()) {
      std::string line;
      for (const OpenWBEM::CIMQualifier& q : property.getQualifiers())
        line +=
            "[" + std::string(q.getName().c_str()) + "(" + q.getValue().toMOF().c_str() + ")]\n";
      line += std::string(property.getDataType().toString().c_str()) + " " +
              property.getName().c_str() + " = " + property.getValue().toMOF().c_str() + ";\n";
      mof.push_back(line);
    }
    return mof;
  }

  std::string value(const char* property) {
    return get().getProperty(property).getValue().toString().c_str();
  }

  CimFailure modify(const Properties& properties) {
    OpenWBEM::CIMInstance instance(kClass);
    instance.setProperty("InstanceID", OpenWBEM::CIMValue(OpenWBEM::String(kInstanceID)));
    for (const auto& [name, value] : properties) instance.setProperty(name, value);
    return cimFailureOf([&] {
      provider_->modifyInstance(TestEnvironment::make(), kNs, instance, instance,
                                OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
    });
  }

  const OpenWBEM::CIMClass kNoClass{OpenWBEM::CIMNULL};
  OpenWBEM::IntrusiveReference<Zeph_RASProvider> provider_{new Zeph_RASProvider};
  TestEnvRef initEnv_;
};

// One row of a table per test: its own fresh appliance, prepared by the row's setUp (if any)
// before the module starts. Rows carry a `name` (letters and digits) that names the test.
template <class Row>
class CallInRowTest : public CallInTest, public ::testing::WithParamInterface<Row> {
 protected:
  void beforeInitialising() override {
    if (this->GetParam().setUp) this->GetParam().setUp();
  }
};

struct RowName {
  template <class Row>
  std::string operator()(const ::testing::TestParamInfo<Row>& info) const {
    return info.param.name;
  }
};

namespace {
// Rows print as their name, so that CTest's test names and failure messages stay readable
// (and do not change with the addresses a row holds). The rows live in this same unnamed
// namespace of each test file, where argument-dependent lookup finds this.
template <class Row, class = decltype(std::declval<const Row&>().name)>
std::ostream& operator<<(std::ostream& os, const Row& row) {
  return os << row.name;
}
}  // namespace

inline OpenWBEM::CIMValue u16(unsigned short v) {
  return OpenWBEM::CIMValue(OpenWBEM::UInt16(v));
}
inline OpenWBEM::CIMValue flag(bool v) {
  return OpenWBEM::CIMValue(OpenWBEM::Bool(v));
}

}  // namespace callin

#endif
