// Any instance of the six implemented classes as a client reaches it: the dispatcher
// initialised inside a fresh appliance whose CIMOM handle serves the appliance's accounts,
// with requests built from a target's class and keys, and a snapshot of every file the
// classes edit.
#ifndef HOSTILE_CLIENTFIXTURE_H
#define HOSTILE_CLIENTFIXTURE_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "DialOutFixture.h"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "QvlStandIn.h"

// One instance: its class and its keys in path order.
struct Target {
  const char* className;
  std::vector<std::pair<const char*, const char*>> keys;
};

inline const Target kCallIn{"Zeph_CallInSettingData",
                            {{"InstanceID", "Velmar:Zeph_CallInSettingData"}}};
inline const Target kDialOut{"Zeph_DialOutSettingData",
                             {{"InstanceID", "Velmar:Zeph_DialOutSettingData"}}};
inline const Target kService{"Zeph_RASService",
                             {{"SystemCreationClassName", "Zeph_System"},
                              {"SystemName", "Zeph"},
                              {"CreationClassName", "Zeph_RASService"},
                              {"Name", "RASService"}}};
inline const Target kPppOut{"Zeph_PPPProtocolEndpoint",
                            {{"SystemCreationClassName", "Zeph_System"},
                             {"SystemName", "Zeph"},
                             {"CreationClassName", "Zeph_PPPProtocolEndpoint"},
                             {"Name", "DialOutEndpoint"}}};
inline const Target kModemOut{"Zeph_SoftModem",
                              {{"SystemCreationClassName", "Zeph_System"},
                               {"SystemName", "Zeph"},
                               {"CreationClassName", "Zeph_SoftModem"},
                               {"DeviceID", "SoftModemOut"}}};
inline const Target kPortIn{"Zeph_SerialPort",
                            {{"SystemCreationClassName", "Zeph_System"},
                             {"SystemName", "Zeph"},
                             {"CreationClassName", "Zeph_SerialPort"},
                             {"DeviceId", "DialInSerialPort"}}};
inline const Target kPortOut{"Zeph_SerialPort",
                             {{"SystemCreationClassName", "Zeph_System"},
                              {"SystemName", "Zeph"},
                              {"CreationClassName", "Zeph_SerialPort"},
                              {"DeviceId", "DialOutSerialPort"}}};

// Every file a setter of these classes may edit, and the modem's own parameter store.
inline const std::vector<std::string> kEditedFiles = {"/qv/etc/ppp/ppp_call_v2k",
                                                      "/qv/etc/ppp/callback_v2k",
                                                      "/qv/etc/ppp/options_dialout",
                                                      "/qv/etc/ppp/options_dialin",
                                                      "/qv/etc/ppp/options_callback",
                                                      "/qv/etc/ppp/mgetty_v2k",
                                                      "/qv/etc/ppp/ppp_add_v2k",
                                                      "/qv/etc/ppp/pppd_addo_v2k",
                                                      "/etc/ppp/pap-secrets",
                                                      "/etc/ppp/chap-secrets",
                                                      "/opt/etc/mgetty+sendfax/mgetty.config",
                                                      "/var/lib/appliance/modem"};

inline OpenWBEM::CIMValue text(const std::string& value) {
  return OpenWBEM::CIMValue(OpenWBEM::String(value.c_str(), value.size()));
}

class ClientTest : public DialOutTest {
 protected:
  void SetUp() override {
    DialOutTest::SetUp();
    QvlNotifySync();
  }

  // Initialises the module again, as a CIMOM does after an unload: every class rereads.
  void reinitialize() {
    rascim::withCall(env_, [&](const auto& call) { provider_->initialize(call); });
    QvlNotifySync();
  }

  OpenWBEM::CIMObjectPath pathOf(const Target& target) const {
    OpenWBEM::CIMObjectPath path(OpenWBEM::CIMName(target.className), kNs);
    for (const auto& [name, value] : target.keys) path.setKeyValue(name, text(value));
    return path;
  }

  CimFailure getFailure(const OpenWBEM::CIMObjectPath& path) {
    return cimFailureOf([&] {
      rascim::withCall(env_, [&](const auto& call) {
        provider_->getInstance(call, kNs, path, OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
                               OpenWBEM::WBEMFlags::E_INCLUDE_QUALIFIERS,
                               OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
      });
    });
  }

  // modifyInstance with the target's keys and then `changes`, in order.
  CimFailure modifyTarget(const Target& target, const std::vector<Change>& changes) {
    OpenWBEM::CIMInstance instance(target.className);
    for (const auto& [name, value] : target.keys) instance.setProperty(name, text(value));
    for (const auto& [name, value] : changes) instance.setProperty(name.c_str(), value);
    return cimFailureOf([&] {
      rascim::withCall(env_, [&](const auto& call) {
        provider_->modifyInstance(call, kNs, instance, instance,
                                  OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
      });
    });
  }

  CimFailure invoke(const Target& target, const char* method) {
    return cimFailureOf([&] {
      rascim::withCall(env_, [&](const auto& call) {
        OpenWBEM::CIMParamValueArray in, out;
        provider_->invokeMethod(call, kNs, pathOf(target), method, in, out);
      });
    });
  }

  static std::map<std::string, std::string> editedFiles() {
    std::map<std::string, std::string> content;
    for (const std::string& file : kEditedFiles) content[file] = appliance::readFile(file);
    return content;
  }
};

#endif
