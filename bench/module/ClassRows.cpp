// The rows of the setting, device and address classes and of the module's initialisation, in
// the pristine appliance (no link up, the service enabled). Each prescribed count is the
// number of command lines the design names for the operation in that state:
//   dial-out restart, no link recorded: the ifconfig pipeline, "killall -9 chat" and the
//   hang-up script (3); mgetty restart, no dial-in call: "killall -9 mgetty", "init q" (2).
#include "Appliance.h"
#include "OW_Bool.hpp"
#include "OW_Types.hpp"
#include "Operation.h"
#include "QvlStandIn.h"

using OpenWBEM::Bool;
using OpenWBEM::CIMValue;
using OpenWBEM::UInt16;
using OpenWBEM::UInt8;

namespace bench {
namespace {

constexpr long kDialOutRestart = 3;
constexpr long kMgettyRestart = 2;

Target settingData(const char* className, const char* id) {
  return {className, {{"InstanceID", id}}};
}

// Keys in the order the class lists them; the last one names the instance.
Target systemElement(const char* className, const char* idKey, const char* id) {
  return {className,
          {{"SystemCreationClassName", "Zeph_System"},
           {"SystemName", "Zeph"},
           {"CreationClassName", className},
           {idKey, id}}};
}

const Target kCallIn = settingData("Zeph_CallInSettingData", "Velmar:Zeph_CallInSettingData");
const Target kDialOut = settingData("Zeph_DialOutSettingData", "Velmar:Zeph_DialOutSettingData");
const Target kService = systemElement("Zeph_RASService", "Name", "RASService");
const Target kDialOutEndpoint =
    systemElement("Zeph_PPPProtocolEndpoint", "Name", "DialOutEndpoint");
const Target kModemIn = systemElement("Zeph_SoftModem", "DeviceID", "SoftModemIn");
const Target kModemOut = systemElement("Zeph_SoftModem", "DeviceID", "SoftModemOut");
const Target kPortOut = systemElement("Zeph_SerialPort", "DeviceId", "DialOutSerialPort");
const Target kPoolOut =
    settingData("Zeph_RASStaticIPAddressPool", "Velmar:DialOutRASStaticIPAddressPool");
const Target kAddressOut = systemElement("Zeph_RASIPProtocolEndpoint", "Name", "DialOutEndpoint");

// Enabling the service from disabled: the set opens the dial-out gate and continues its
// script (2); the registry change makes the module's callback do the same for the dial-in
// and then the dial-out script (4). The disabling before each run is not measured.
Operation enableService() {
  Operation row =
      modifyRow(kService, "modemStatus=true", {{"modemStatus", CIMValue(Bool(true))}}, 2 + 4);
  row.settles = true;
  row.before = [](BenchClient&) {
    appliance::regSet("ModemStatus", "DISABLED");
    QvlNotifySync();
  };
  return row;
}

}  // namespace

std::vector<Operation> classRows() {
  return {
      // The password's grep of the dial-out settings (1); three getModemParam reads of the
      // answering modem (3). The PPP options of the pristine files need no repair.
      initializeRow(1 + 3),

      enumerateRow("Zeph_CallInSettingData", 0),
      getRow(kCallIn, 0),
      // sed of NUMBER_OF_RINGS, then the mgetty restart.
      modifyRow(kCallIn, "RingsBeforeAnswer=7", {{"RingsBeforeAnswer", CIMValue(UInt16(7))}},
                1 + kMgettyRestart),

      enumerateRow("Zeph_DialOutSettingData", 0),
      getRow(kDialOut, 0),
      modifyRow(kDialOut, "DialOutNumber", {{"DialOutNumber", text("5550100")}},
                1 + kDialOutRestart),
      modifyRow(kDialOut, "DialRetries=5", {{"DialRetries", CIMValue(UInt16(5))}}, 1),

      enumerateRow("Zeph_RASService", 0),
      getRow(kService, 0),
      enableService(),

      // IfName of the dial-out endpoint with no link recorded: the ifconfig pipeline.
      enumerateRow("Zeph_PPPProtocolEndpoint", 1),
      getRow(kDialOutEndpoint, 1),
      // setLine_dialout mtu, then the dial-out restart.
      modifyRow(kDialOutEndpoint, "MTU=1400", {{"MTU", CIMValue(UInt16(1400))}},
                1 + kDialOutRestart),

      enumerateRow("Zeph_SoftModem", 0),
      getRow(kModemIn, 0),
      // setModemParam 2 m0, then the mgetty restart.
      modifyRow(kModemIn, "ErrorControl=false", {{"ErrorControl", CIMValue(Bool(false))}},
                1 + kMgettyRestart),
      // sed of MODEM_OPT_SPEED, then the dial-out restart.
      modifyRow(kModemOut, "CallSpeed=4", {{"CallSpeed", CIMValue(UInt8(4))}}, 1 + kDialOutRestart),

      enumerateRow("Zeph_SerialPort", 0),
      getRow(kPortOut, 0),
      // crtscts on, xonxoff off, then the dial-out restart.
      modifyRow(kPortOut, "FlowControl=1", {{"FlowControl", CIMValue(UInt8(1))}},
                2 + kDialOutRestart),

      enumerateRow("Zeph_RASStaticIPAddressPool", 0),
      getRow(kPoolOut, 0),
      // setIPEx of the dial-out options' address line, then the dial-out restart.
      modifyRow(kPoolOut, "ipAddr", {{"ipAddr", text("10.64.0.9")}}, 1 + kDialOutRestart),

      enumerateRow("Zeph_RASIPProtocolEndpoint", 0),
      getRow(kAddressOut, 0),
      modifyRow(kAddressOut, "IPv4Address", {{"IPv4Address", text("10.64.0.3")}},
                1 + kDialOutRestart),
  };
}

}  // namespace bench
