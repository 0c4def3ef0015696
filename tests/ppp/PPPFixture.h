// The two PPP endpoints as a client sees them: the module's dispatcher initialised inside a
// fresh appliance (prepared first by the test, since the endpoints read their options when
// they are built), and the get, modify and method calls, each with its own environment.
#ifndef PPP_PPPFIXTURE_H
#define PPP_PPPFIXTURE_H

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ApplianceTest.h"
#include "CallEnvironment.hpp"
#include "CimFailure.h"
#include "OW_Bool.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "QvlStandIn.h"
#include "TestEnvironment.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_RASProvider.h"

namespace ppp {

inline constexpr char kClass[] = "Zeph_PPPProtocolEndpoint";
inline constexpr char kSource[] = "../src/Zeph_PPPProtocolEndpointProvider";
inline constexpr char kDialIn[] = "DialInEndpoint";
inline constexpr char kDialOut[] = "DialOutEndpoint";

inline constexpr char kDialInOptions[] = "/qv/etc/ppp/options_dialin";
inline constexpr char kDialOutOptions[] = "/qv/etc/ppp/options_dialout";
inline constexpr char kCallbackOptions[] = "/qv/etc/ppp/options_callback";
inline constexpr char kMgettyScript[] = "/qv/etc/ppp/mgetty_v2k";
inline constexpr char kDialOutScript[] = "/qv/etc/ppp/ppp_add_v2k";

using Lines = std::vector<std::string>;
using Change = std::pair<std::string, OpenWBEM::CIMValue>;

// The dial-out restart when no link is up: the interface is looked for, chat killed and the
// bare name hung up.
inline const Lines kRestartWithoutLink = {"/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ",
                                          "killall -9 chat", "/qv/etc/ppp/ppp_hup_v2k ppp"};

class PPPTest : public ApplianceTest {
 protected:
  void SetUp() override {
    ApplianceTest::SetUp();
    ConnectionStatus = DialOutConnectionStatus = false;
    check_key.clear();
    beforeInitialising();
    rascim::withCall(env_, [&](const auto& call) { provider_->initialize(call); });
    QvlNotifySync();
    initJournal_ = appliance::journal();
    appliance::clearJournal();
  }

  // What a test changes on the pristine appliance before the module starts.
  virtual void beforeInitialising() {}

  static OpenWBEM::CIMObjectPath pathOf(const char* name) {
    OpenWBEM::CIMObjectPath path(OpenWBEM::CIMName(kClass), "root/cimv2");
    for (const auto& [key, value] : keys(name)) {
      path.setKeyValue(key, OpenWBEM::CIMValue(OpenWBEM::String(value)));
    }
    return path;
  }

  OpenWBEM::CIMInstance get(const char* name) {
    return rascim::withCall(env_, [&](const auto& call) {
      return provider_->getInstance(call, kNs, pathOf(name), OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
                                    OpenWBEM::WBEMFlags::E_INCLUDE_QUALIFIERS,
                                    OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
    });
  }

  std::string value(const char* name, const char* property) {
    const OpenWBEM::CIMValue v = get(name).getPropertyValue(property);
    return v ? v.toString().c_str() : "<null>";
  }

  // The CIM error of a get, if any.
  CimFailure getFailure(const char* name) {
    return cimFailureOf([&] { get(name); });
  }

  // Modifies the endpoint with the given properties in order; the CIM error, if any.
  CimFailure modify(const char* name, const std::vector<Change>& changes) {
    OpenWBEM::CIMInstance instance(kClass);
    for (const auto& [key, text] : keys(name)) {
      instance.setProperty(key, OpenWBEM::CIMValue(OpenWBEM::String(text)));
    }
    for (const auto& [property, v] : changes) instance.setProperty(property.c_str(), v);
    return cimFailureOf([&] {
      rascim::withCall(env_, [&](const auto& call) {
        provider_->modifyInstance(call, kNs, instance, instance,
                                  OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
      });
    });
  }

  // Invokes `method` on the endpoint; its return value, or the CIM error.
  std::pair<OpenWBEM::CIMValue, CimFailure> invoke(const char* name, const char* method) {
    OpenWBEM::CIMValue result(OpenWBEM::CIMNULL);
    const CimFailure failure = cimFailureOf([&] {
      rascim::withCall(env_, [&](const auto& call) {
        OpenWBEM::CIMParamValueArray out;
        result = provider_->invokeMethod(call, kNs, pathOf(name), method,
                                         OpenWBEM::CIMParamValueArray(), out);
      });
    });
    return {result, failure};
  }

  static std::vector<std::pair<const char*, const char*>> keys(const char* name) {
    return {{"SystemCreationClassName", "Zeph_System"},
            {"SystemName", "Zeph"},
            {"CreationClassName", kClass},
            {"Name", name}};
  }

  const OpenWBEM::String kNs{"root/cimv2"};
  const OpenWBEM::CIMClass kNoClass{OpenWBEM::CIMNULL};
  TestEnvRef env_ = TestEnvironment::make();
  OpenWBEM::IntrusiveReference<Zeph_RASProvider> provider_{new Zeph_RASProvider};
  Lines initJournal_;  // what the module ran while it was initialised
};

// One row of a table per test, each in a fresh appliance prepared by the row's setUp before
// the module starts. Rows carry a `name` (letters and digits) that names the test.
template <class Row>
class PPPRowTest : public PPPTest, public ::testing::WithParamInterface<Row> {
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

// Replaces the line `from` of `file` with `to` (removes it when `to` is empty).
inline void replaceLine(const std::string& file, const std::string& from, const std::string& to) {
  std::string content;
  for (const std::string& line : appliance::readLines(file)) {
    if (line != from) {
      content += line + "\n";
    } else if (!to.empty()) {
      content += to + "\n";
    }
  }
  appliance::writeFile(file, content);
}

inline bool hasLine(const std::string& file, const std::string& line) {
  for (const std::string& l : appliance::readLines(file)) {
    if (l == line) return true;
  }
  return false;
}

inline OpenWBEM::CIMValue u16(unsigned short v) {
  return OpenWBEM::CIMValue(OpenWBEM::UInt16(v));
}
inline OpenWBEM::CIMValue u8(unsigned char v) {
  return OpenWBEM::CIMValue(OpenWBEM::UInt8(v));
}
inline OpenWBEM::CIMValue flag(bool v) {
  return OpenWBEM::CIMValue(OpenWBEM::Bool(v));
}

// The values of a property's qualifiers named `qualifier`, as text.
inline Lines qualifierValues(const OpenWBEM::CIMInstance& instance, const char* property,
                             const char* qualifier) {
  Lines values;
  for (const OpenWBEM::CIMQualifier& q : instance.getProperty(property).getQualifiers()) {
    if (q.getName().equalsIgnoreCase(qualifier)) values.push_back(q.getValue().toString().c_str());
  }
  return values;
}

}  // namespace ppp

namespace {
// Rows print as their name (found by argument-dependent lookup in each test file's unnamed
// namespace).
template <class Row, class = decltype(std::declval<const Row&>().name)>
std::ostream& operator<<(std::ostream& os, const Row& row) {
  return os << row.name;
}
}  // namespace

#endif
