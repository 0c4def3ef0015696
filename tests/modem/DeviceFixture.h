// The soft modem and serial port instances as a client sees them: the module's dispatcher
// initialised inside a fresh appliance, with helpers to name, get and modify an instance.
// Each call gets its own environment whose CIMOM handle dies when the call returns.
#ifndef MODEM_DEVICEFIXTURE_H
#define MODEM_DEVICEFIXTURE_H

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "ApplianceTest.h"
#include "CallEnvironment.hpp"
#include "CimFailure.h"
#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ResultHandlers.hpp"
#include "QvlStandIn.h"
#include "TestEnvironment.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_RASProvider.h"

// One instance: its class, the name of its identity key and the key's value.
struct Device {
  const char* className;
  const char* idKey;
  const char* id;
};

inline const Device kModemIn{"Zeph_SoftModem", "DeviceID", "SoftModemIn"};
inline const Device kModemOut{"Zeph_SoftModem", "DeviceID", "SoftModemOut"};
inline const Device kPortIn{"Zeph_SerialPort", "DeviceId", "DialInSerialPort"};
inline const Device kPortOut{"Zeph_SerialPort", "DeviceId", "DialOutSerialPort"};

using Change = std::pair<std::string, OpenWBEM::CIMValue>;
using Lines = std::vector<std::string>;

// The commands that restart each side when no call is up.
inline const Lines kMgettyRestart = {"killall -9 mgetty", "init q"};
inline const Lines kDialOutRestart = {"/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ",
                                      "killall -9 chat", "/qv/etc/ppp/ppp_hup_v2k ppp"};

inline Lines joined(Lines head, const Lines& tail) {
  head.insert(head.end(), tail.begin(), tail.end());
  return head;
}

inline bool hasLine(const std::string& file, const std::string& line) {
  const Lines lines = appliance::readLines(file);
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

// Replaces every line of `file` that starts with `prefix` by `line`.
inline void replaceLines(const std::string& file, const std::string& prefix,
                         const std::string& line) {
  std::string content;
  for (const std::string& old : appliance::readLines(file))
    content += (old.rfind(prefix, 0) == 0 ? line : old) + "\n";
  appliance::writeFile(file, content);
}

inline std::string textOf(const OpenWBEM::CIMValue& value) {
  return value ? value.toString().c_str() : "<null>";
}

class DeviceTest : public ApplianceTest {
 protected:
  void SetUp() override {
    ApplianceTest::SetUp();
    ConnectionStatus = DialOutConnectionStatus = false;
    check_key.clear();
    initialize();
  }

  // A fresh dispatcher initialised as a CIMOM does: every instance reads its files again.
  // Waits for the registry subscriptions to settle and empties the journal.
  void initialize() {
    provider_ = new Zeph_RASProvider;
    env_ = TestEnvironment::make();
    rascim::withCall(env_, [&](const auto& call) { provider_->initialize(call); });
    QvlNotifySync();
    appliance::clearJournal();
  }

  static OpenWBEM::CIMObjectPath pathOf(const Device& device) {
    OpenWBEM::CIMObjectPath path(OpenWBEM::CIMName(device.className), "root/cimv2");
    path.setKeyValue("SystemCreationClassName", text("Zeph_System"));
    path.setKeyValue("SystemName", text("Zeph"));
    path.setKeyValue("CreationClassName", text(device.className));
    path.setKeyValue(device.idKey, text(device.id));
    return path;
  }

  OpenWBEM::CIMInstance get(const Device& device) {
    return rascim::withCall(env_, [&](const auto& call) {
      return provider_->getInstance(call, kNs, pathOf(device),
                                    OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
                                    OpenWBEM::WBEMFlags::E_INCLUDE_QUALIFIERS,
                                    OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
    });
  }

  std::string valueOf(const Device& device, const char* property) {
    return textOf(get(device).getPropertyValue(property));
  }

  // The identity keys of the class's instances, in enumeration order.
  Lines enumeratedIds(const Device& device) {
    OpenWBEM::CIMObjectPathArray paths;
    OpenWBEM::CIMObjectPathArrayBuilder result(paths);
    rascim::withCall(env_, [&](const auto& call) {
      provider_->enumInstanceNames(call, kNs, device.className, result, kNoClass);
    });
    Lines ids;
    for (const auto& path : paths) ids.push_back(textOf(path.getKeyValue(device.idKey)));
    return ids;
  }

  // Modifies the instance with the given properties in order; the CIM error, if any.
  CimFailure modify(const Device& device, const std::vector<Change>& changes) {
    OpenWBEM::CIMInstance instance(device.className);
    for (const auto& key : pathOf(device).getKeys()) instance.setProperty(key);
    for (const auto& [name, value] : changes) instance.setProperty(name.c_str(), value);
    return cimFailureOf([&] {
      rascim::withCall(env_, [&](const auto& call) {
        provider_->modifyInstance(call, kNs, instance, instance,
                                  OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
      });
    });
  }

  // Texts logged since the module was last initialised.
  Lines logged() const {
    Lines texts;
    for (const LogLine& line : env_->logged()) texts.push_back(line.text);
    return texts;
  }

  bool wasLogged(const std::string& text) const {
    const Lines texts = logged();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  static OpenWBEM::CIMValue text(const std::string& value) {
    return OpenWBEM::CIMValue(OpenWBEM::String(value.c_str()));
  }

  const OpenWBEM::String kNs{"root/cimv2"};
  const OpenWBEM::CIMClass kNoClass{OpenWBEM::CIMNULL};
  OpenWBEM::IntrusiveReference<TestEnvironment> env_;
  OpenWBEM::IntrusiveReference<Zeph_RASProvider> provider_;
};

#endif
