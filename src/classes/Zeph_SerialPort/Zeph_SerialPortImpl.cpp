// The serial ports of the two dial sides: the device name in the sides' start scripts (and in
// mgetty's configuration for dial-in), and the flow control as the pppd options crtscts and
// xonxoff of each side's options file.
#include "Zeph_SerialPortImpl.h"

#include <cctype>
#include <cstring>
#include <iterator>

#include "Zeph_CommandRunner.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"

using namespace ras;

struct Zeph_SerialPortImpl::Side {
  const char* options;       // pppd options: the flow control
  const char* portSource;    // the script the port is read from
  const char* portTarget;    // the script a new port is written to
  const char* mgettyConfig;  // also given the new port, or null
  bool restartsDialOut;      // a flow-control change restarts the dial-out service
};

namespace {

using Side = Zeph_SerialPortImpl::Side;

const char* const kDialInID = "DialInSerialPort";
const char* const kDialOutID = "DialOutSerialPort";
const char* const kElementName = "SerialPort";

const char* const kMgettyConfig = "/opt/etc/mgetty+sendfax/mgetty.config";
const char* const kDialOutAddScript = "/qv/etc/ppp/pppd_addo_v2k";

// The dial-out side reads its port from the script pppd is started by, but writes it into the
// one the dial-out service sources; the appliance's scripts keep the two in step.
const Side kDialIn{kDialInOptions, kDialInScript, kDialInScript, kMgettyConfig, false};
const Side kDialOut{kDialOutOptions, kDialOutPppdScript, kDialOutAddScript, nullptr, true};

const char* const kPortDeclaration = "declare -r SERIAL_PORT";
const char* const kCmdMgettyPort = "%s -i '/^port/ c port %s' %s";

const char* const kHardwareFlow = "crtscts";
const char* const kSoftwareFlow = "xonxoff";
// Which of the two options are active, by FlowControl value (0 none, 1 hardware, 2 software).
struct FlowSetting {
  bool hardware;
  bool software;
};
const FlowSetting kFlowSettings[] = {{false, false}, {true, false}, {false, true}};
constexpr int kStatusNoSuchFlowControl = 100;

const char* const kTraceGetElementName = "Zeph_SerialPortImpl::getElementName\n";
const char* const kTraceGetName = "Zeph_SerialPortImpl::getName\n";
const char* const kTraceSetName = "Zeph_SerialPortImpl::setName\n";
const char* const kTraceGetFlowControl = "Zeph_SerialPortImpl::getFlowControl\n";
const char* const kLogReturningFlowControl = "Returning Flow Control Value \n";
const char* const kLogSettingFlowControl = "Setting Flow Control Value \n";
const char* const kLogBadFlowControl = "The value of Flow Control is ";
const char* const kLogPortName = "Name of the Serial Port is ";

bool startsWith(const std::string& text, const char* prefix) {
  return std::strncmp(text.c_str(), prefix, std::strlen(prefix)) == 0;
}

bool isAlphanumeric(const std::string& text) {
  for (char c : text) {
    if (!std::isalnum(static_cast<unsigned char>(c))) return false;
  }
  return true;
}

// `declare -r SERIAL_PORT="%s`: the scanned value keeps the closing quote.
std::string portReadFormat() {
  return std::string(kPortDeclaration) + "=\"%s";
}

// `%s -i '/declare -r SERIAL_PORT/ c declare -r SERIAL_PORT="%s"' %s`
std::string portEditFormat() {
  const std::string declaration = kPortDeclaration;
  return "%s -i '/" + declaration + "/ c " + declaration + "=\"%s\"' %s";
}

// `%s -i 's/^#\?crtscts/crtscts/' %s` activates the option, with "#crtscts" as the
// replacement it comments it out; either way with or without a "#" before.
std::string optionEditFormat(const char* option, bool active) {
  return std::string("%s -i 's/^#\\?") + option + "/" + (active ? "" : "#") + option + "/' %s";
}

// 1 hardware when crtscts is active (also with xonxoff), else 2 when xonxoff is, else 0.
unsigned char readFlowControl(const char* options) {
  if (getConfigParameter(options, kHardwareFlow) == 1) return 1;
  if (getConfigParameter(options, kSoftwareFlow) == 1) return 2;
  return 0;
}

std::string readPort(const char* script) {
  std::string port;
  getConfigParameter(script, portReadFormat().c_str(), &port);
  if (!port.empty()) port.pop_back();  // the closing quote
  return port;
}

// Both port lines of the side, or none when the name cannot stand in either.
bool writePort(const Side& side, const std::string& port) {
  CommandSequence edits;
  if (side.mgettyConfig != nullptr) edits.add(kCmdMgettyPort, {kSed, port, side.mgettyConfig});
  edits.add(portEditFormat().c_str(), {kSed, port, side.portTarget});
  return edits.run();
}

void writeFlowControl(const Side& side, const FlowSetting& setting) {
  runCommand(optionEditFormat(kHardwareFlow, setting.hardware).c_str(), {kSed, side.options});
  runCommand(optionEditFormat(kSoftwareFlow, setting.software).c_str(), {kSed, side.options});
}

}  // namespace

Zeph_SerialPortImpl::Zeph_SerialPortImpl(const std::string& systemCreationClassName,
                                         const std::string& systemName,
                                         const std::string& creationClassName,
                                         const std::string& deviceId)
    : Zeph_SerialPort(systemCreationClassName, systemName, creationClassName, deviceId),
      elementName_(kElementName) {
  Initialize_Parameters();
}

// The side by the identifier's prefix; null for an instance of neither side.
const Side* Zeph_SerialPortImpl::side() const {
  std::string id;
  ras::Qualifiers unused;
  getDeviceId(id, unused);
  if (startsWith(id, kDialInID)) return &kDialIn;
  if (startsWith(id, kDialOutID)) return &kDialOut;
  return nullptr;
}

void Zeph_SerialPortImpl::Initialize_Parameters() {
  const Side* own = side();
  if (own == nullptr) return;
  flowControl_ = readFlowControl(own->options);
  name_ = readPort(own->portSource);
  platformLogDebug(kLogPortName);
  platformLogDebug(name_);
}

int Zeph_SerialPortImpl::getElementName(std::string& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetElementName);
  value = elementName_;
  return kStatusOk;
}

int Zeph_SerialPortImpl::getName(std::string& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetName);
  value = name_;
  return kStatusOk;
}

// Letters and digits only, so the name can stand in the sed lines and scripts as it is.
int Zeph_SerialPortImpl::setName(std::string value) {
  if (!isAlphanumeric(value)) return kStatusInvalidValue;
  platformLogDebug(kTraceSetName);
  platformLogDebug(value);
  const Side* own = side();
  if (own != nullptr && !writePort(*own, value)) return kStatusInvalidValue;
  name_ = value;
  return kStatusOk;
}

int Zeph_SerialPortImpl::getFlowControl(unsigned char& value, ras::Qualifiers&) const {
  platformLogDebug(kTraceGetFlowControl);
  platformLogDebug(kLogReturningFlowControl);
  value = flowControl_;
  return kStatusOk;
}

int Zeph_SerialPortImpl::setFlowControl(unsigned char value) {
  platformLogDebug(kLogSettingFlowControl);
  if (value >= std::size(kFlowSettings)) {
    platformLogDebug(kLogBadFlowControl);
    return kStatusNoSuchFlowControl;
  }
  const Side* own = side();
  if (own != nullptr) writeFlowControl(*own, kFlowSettings[value]);
  flowControl_ = value;
  if (own != nullptr && own->restartsDialOut) Restart_ppp_add_v2k();
  return kStatusOk;
}

int Zeph_SerialPortImplInstanceManager::init() {
  new Zeph_SerialPortImpl(kSystemCreationClassName, kSystemName, Zeph_SerialPortName, kDialInID);
  new Zeph_SerialPortImpl(kSystemCreationClassName, kSystemName, Zeph_SerialPortName, kDialOutID);
  return kStatusOk;
}
