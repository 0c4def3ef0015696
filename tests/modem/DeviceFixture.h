// The soft modem and serial port instances as a client sees them: the module's dispatcher
// initialised inside a fresh appliance, with helpers to name, get and modify an instance.
// Each call gets its own environment whose CIMOM handle dies when the call returns.
#ifndef MODEM_DEVICEFIXTURE_H
#define MODEM_DEVICEFIXTURE_H

#include <string>
#include <vector>

#include "ClientFixture.h"

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

using client::Change;
using client::hasLine;
using client::joined;
using client::replaceLines;
using client::textOf;
using Lines = std::vector<std::string>;

// The commands that restart each side when no call is up.
inline const Lines kMgettyRestart = {"killall -9 mgetty", "init q"};
inline const Lines kDialOutRestart = {"/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ",
                                      "killall -9 chat", "/qv/etc/ppp/ppp_hup_v2k ppp"};

class DeviceTest : public client::ClientTest {
 protected:
  static client::Target target(const Device& device) {
    return client::systemElement(device.className, device.idKey, device.id);
  }
  static OpenWBEM::CIMObjectPath pathOf(const Device& device) { return target(device).path(); }
  OpenWBEM::CIMInstance get(const Device& device) { return ClientTest::get(target(device)); }
  std::string valueOf(const Device& device, const char* property) {
    return ClientTest::valueOf(target(device), property);
  }
  CimFailure modify(const Device& device, const std::vector<Change>& changes) {
    return ClientTest::modify(target(device), changes);
  }

  // The identity keys of the class's instances, in enumeration order.
  Lines enumeratedIds(const Device& device) {
    Lines ids;
    for (const auto& path : enumNames(device.className))
      ids.push_back(textOf(path.getKeyValue(device.idKey)));
    return ids;
  }

  static OpenWBEM::CIMValue text(const std::string& value) { return client::text(value); }
};

#endif
