// A management client's view of the module: the dispatcher initialised as a CIMOM does inside
// a fresh simulated appliance, and the requests a client sends, each through its own call
// environment whose CIMOM handle dies when the call returns (as in OpenWBEM). Each area's
// tests name their instances with `Target`s and add only what is their own.
#ifndef RAS_TESTS_CLIENTFIXTURE_H
#define RAS_TESTS_CLIENTFIXTURE_H

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ApplianceTest.h"
#include "CallEnvironment.h"
#include "CimFailure.h"
#include "OW_Bool.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ResultHandlers.hpp"
#include "QvlStandIn.h"
#include "TestEnvironment.h"
#include "Zeph_DialService.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_RASProvider.h"

namespace client {

using Lines = std::vector<std::string>;
using Change = std::pair<std::string, OpenWBEM::CIMValue>;

inline OpenWBEM::CIMValue text(const std::string& value) {
  return OpenWBEM::CIMValue(OpenWBEM::String(value.c_str()));
}
inline OpenWBEM::CIMValue u8(unsigned char v) {
  return OpenWBEM::CIMValue(OpenWBEM::UInt8(v));
}
inline OpenWBEM::CIMValue u16(unsigned short v) {
  return OpenWBEM::CIMValue(OpenWBEM::UInt16(v));
}
inline OpenWBEM::CIMValue flag(bool v) {
  return OpenWBEM::CIMValue(OpenWBEM::Bool(v));
}
inline std::string textOf(const OpenWBEM::CIMValue& value) {
  return value ? value.toString().c_str() : "<null>";
}

// One instance as a client names it: its class and its key values, in order.
struct Target {
  std::string className;
  std::vector<std::pair<std::string, std::string>> keys;

  OpenWBEM::CIMObjectPath path() const {
    OpenWBEM::CIMObjectPath p(OpenWBEM::CIMName(className.c_str()), "root/cimv2");
    for (const auto& [key, value] : keys) p.setKeyValue(key.c_str(), text(value));
    return p;
  }
  // An instance of the class holding just the keys.
  OpenWBEM::CIMInstance instance() const {
    OpenWBEM::CIMInstance i(className.c_str());
    for (const auto& [key, value] : keys) i.setProperty(key.c_str(), text(value));
    return i;
  }
};

// A setting data instance, named by its InstanceID.
inline Target settingData(const char* className, const char* instanceID) {
  return {className, {{"InstanceID", instanceID}}};
}
// A system element, named by the system's keys, its class and its own identity key.
inline Target systemElement(const char* className, const char* idKey, const char* id) {
  return {className,
          {{"SystemCreationClassName", "Zeph_System"},
           {"SystemName", "Zeph"},
           {"CreationClassName", className},
           {idKey, id}}};
}

class ClientTest : public ApplianceTest {
 protected:
  void SetUp() override {
    ApplianceTest::SetUp();
    resetSession();
    initialize();
  }
  void TearDown() override { resetSession(); }

  // The environment requests are made with; an area may serve other classes through it.
  virtual TestEnvRef makeEnvironment() const { return TestEnvironment::make(); }

  // Runs `body` with the environment of one provider call.
  template <class Body>
  decltype(auto) call(Body body) {
    return harness::withCall(env_, body);
  }

  // A fresh dispatcher initialised as a CIMOM does: every instance reads its files again.
  // Waits until the registry subscriptions have acted on every change so far, keeps what
  // initialising ran and empties the journal.
  // The pristine appliance, changed by `prepare`, and a freshly initialised module; the module
  // before stops following "ModemStatus" first, so that its callback does not act on the reset.
  void restart(const std::function<void()>& prepare = [] {}) {
    QvlNotifySync();
    ras::stopModemStatusNotify();
    appliance::reset();
    resetSession();
    prepare();
    initialize();
  }

  void initialize() {
    provider_ = new Zeph_RASProvider;
    env_ = makeEnvironment();
    call([&](const auto& env) { provider_->initialize(env); });
    QvlNotifySync();
    initJournal_ = appliance::journal();
    appliance::clearJournal();
  }

  OpenWBEM::CIMInstance get(const Target& target,
                            OpenWBEM::WBEMFlags::EIncludeQualifiersFlag qualifiers =
                                OpenWBEM::WBEMFlags::E_INCLUDE_QUALIFIERS) {
    return call([&](const auto& env) {
      return provider_->getInstance(env, kNs, target.path(), OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
                                    qualifiers, OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0,
                                    kNoClass);
    });
  }
  std::string valueOf(const Target& target, const char* property) {
    return textOf(get(target).getPropertyValue(property));
  }
  CimFailure getFailure(const Target& target) {
    return cimFailureOf([&] { get(target); });
  }

  // Modifies the instance with the given properties in order; the CIM error, if any.
  CimFailure modify(const Target& target, const std::vector<Change>& changes) {
    OpenWBEM::CIMInstance instance = target.instance();
    for (const auto& [name, value] : changes) instance.setProperty(name.c_str(), value);
    return cimFailureOf([&] {
      call([&](const auto& env) {
        provider_->modifyInstance(env, kNs, instance, instance,
                                  OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
      });
    });
  }

  // Invokes `method` without parameters; its return value, or the CIM error.
  std::pair<OpenWBEM::CIMValue, CimFailure> invoke(const Target& target, const char* method) {
    OpenWBEM::CIMValue result(OpenWBEM::CIMNULL);
    const CimFailure failure = cimFailureOf([&] {
      call([&](const auto& env) {
        OpenWBEM::CIMParamValueArray out;
        result = provider_->invokeMethod(env, kNs, target.path(), method,
                                         OpenWBEM::CIMParamValueArray(), out);
      });
    });
    return {result, failure};
  }

  // The paths of the class's instances, in enumeration order.
  OpenWBEM::CIMObjectPathArray enumNames(const char* className) {
    OpenWBEM::CIMObjectPathArray paths;
    OpenWBEM::CIMObjectPathArrayBuilder result(paths);
    call([&](const auto& env) {
      provider_->enumInstanceNames(env, kNs, className, result, kNoClass);
    });
    return paths;
  }

  // Texts the module logged since it was last initialised (or the log last cleared).
  Lines logged() const { return env_->log().texts(); }
  // The same as "CATEGORY|text".
  Lines loggedWithCategory() const { return env_->log().categorised(); }
  bool wasLogged(const std::string& line) const {
    const Lines texts = logged();
    return std::find(texts.begin(), texts.end(), line) != texts.end();
  }

  const OpenWBEM::String kNs{"root/cimv2"};
  const OpenWBEM::CIMClass kNoClass{OpenWBEM::CIMNULL};
  TestEnvRef env_;
  OpenWBEM::IntrusiveReference<Zeph_RASProvider> provider_;
  Lines initJournal_;  // what the module ran while it was initialised

  // The module's dial session flags and account check, as a freshly loaded module has them.
  static void resetSession() {
    ConnectionStatus = DialOutConnectionStatus = false;
    check_key.clear();
  }
};

// Rewrites `file` with every line for which `matches` holds replaced by `line`, or dropped
// when `line` is empty.
template <class Match>
void rewriteLines(const std::string& file, Match matches, const std::string& line) {
  std::string content;
  for (const std::string& old : appliance::readLines(file)) {
    if (!matches(old)) {
      content += old + "\n";
    } else if (!line.empty()) {
      content += line + "\n";
    }
  }
  appliance::writeFile(file, content);
}
// Replaces the lines equal to `from` by `to`.
inline void replaceLine(const std::string& file, const std::string& from, const std::string& to) {
  rewriteLines(
      file, [&](const std::string& old) { return old == from; }, to);
}
// Replaces the lines that start with `prefix` by `line`.
inline void replaceLines(const std::string& file, const std::string& prefix,
                         const std::string& line) {
  rewriteLines(
      file, [&](const std::string& old) { return old.rfind(prefix, 0) == 0; }, line);
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

}  // namespace client

#endif
