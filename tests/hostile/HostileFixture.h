// Every implemented class as a hostile client reaches it: the dial-out fixture's dispatcher
// (whose CIMOM handle serves the appliance's accounts), one target per instance, requests on
// hand-made paths, and a snapshot of every file the classes edit.
#ifndef HOSTILE_HOSTILEFIXTURE_H
#define HOSTILE_HOSTILEFIXTURE_H

#include <map>
#include <string>
#include <vector>

#include "DialOutFixture.h"

using client::text;

inline const client::Target kCallIn =
    client::settingData("Zeph_CallInSettingData", "Velmar:Zeph_CallInSettingData");
inline const client::Target kService =
    client::systemElement("Zeph_RASService", "Name", "RASService");
inline const client::Target kPppOut =
    client::systemElement("Zeph_PPPProtocolEndpoint", "Name", "DialOutEndpoint");
inline const client::Target kModemOut =
    client::systemElement("Zeph_SoftModem", "DeviceID", "SoftModemOut");
inline const client::Target kPortIn =
    client::systemElement("Zeph_SerialPort", "DeviceId", "DialInSerialPort");
inline const client::Target kPortOut =
    client::systemElement("Zeph_SerialPort", "DeviceId", "DialOutSerialPort");
inline const client::Target kPoolOut =
    client::settingData("Zeph_RASStaticIPAddressPool", "Velmar:DialOutRASStaticIPAddressPool");
inline const client::Target kEndpointIn =
    client::systemElement("Zeph_RASIPProtocolEndpoint", "Name", "DialInEndpoint");
inline const client::Target kRoute = client::settingData("Zeph_NextHopIPRoute", "10.1.0.0");

// Every file a setter of these classes may edit, and the modem's own parameter store.
inline const std::vector<std::string> kEditedFiles = {
    "/qv/etc/ppp/ppp_call_v2k",     "/qv/etc/ppp/callback_v2k",
    "/qv/etc/ppp/options_dialout",  "/qv/etc/ppp/options_dialin",
    "/qv/etc/ppp/options_callback", "/qv/etc/ppp/mgetty_v2k",
    "/qv/etc/ppp/ppp_add_v2k",      "/qv/etc/ppp/pppd_addo_v2k",
    "/qv/etc/ppp/ip_up_add_v2k",    "/etc/ppp/pap-secrets",
    "/etc/ppp/chap-secrets",        "/opt/etc/mgetty+sendfax/mgetty.config",
    "/var/lib/appliance/modem"};

class HostileTest : public DialOutTest {
 protected:
  using ClientTest::getFailure;
  using ClientTest::modify;
  using DialOutTest::modify;

  CimFailure getFailure(const OpenWBEM::CIMObjectPath& path) {
    return cimFailureOf([&] {
      call([&](const auto& env) {
        provider_->getInstance(env, kNs, path, OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
                               OpenWBEM::WBEMFlags::E_INCLUDE_QUALIFIERS,
                               OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
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
