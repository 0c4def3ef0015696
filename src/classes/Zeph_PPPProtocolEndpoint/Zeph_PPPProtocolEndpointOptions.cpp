// The link options of a PPP endpoint: header and BSD compression, the LCP limits, the idle
// time-out and the unit sizes. Getters report the values cached at construction; setters
// check the range, edit the options file (and, for the dial-in link, the call-back options)
// and restart the dial-out service after a dial-out change.
#include "Zeph_CommandRunner.h"
#include "Zeph_ImpactWarning.h"
#include "Zeph_PPPProtocolEndpointImpl.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

const char* const kCallbackSuffix = "_callback";

// Lines whose presence decides the compression options at construction.
const char* const kNoVj = "novj";
const char* const kVjSlots = "vj-max-slots";
const char* const kBsdcompFormat = "bsdcomp %s";
const char* const kBsdcompOff = "0";
const char* const kBsdcompOn = "12";
const char* const kNumberFormats[] = {"lcp-max-configure %d",
                                      "lcp-max-failure %d",
                                      "lcp-max-terminate %d",
                                      "idle %d",
                                      "mru %d",
                                      "mtu %d"};

const char* const kCmdVjSlotsOn = "%s -i '/^#\\?vj-max-slots/ c vj-max-slots 8' %s";
const char* const kCmdNoVjOff = "%s -i 's/^#\\?novj/#novj/' %s";
const char* const kCmdNoVjOn = "%s -i 's/^#\\?novj/novj/' %s";
const char* const kCmdVjSlotsOff = "%s -i '/^#\\?vj-max-slots/ c #vj-max-slots 8' %s";
const char* const kCmdBsdcompOn = "%s -i '/^#\\?bsdcomp/ c bsdcomp 12' %s";
const char* const kCmdBsdcompOff = "%s -i '/^#\\?bsdcomp/ c bsdcomp 0' %s";
const char* const kCmdIdleOff = "%s -i '/^#\\?idle/ c #idle 0' %s";
const char* const kCmdCallbackMru = "%s -i '/^mru/ c mru %d' %s";
const char* const kCmdCallbackMtu = "%s -i '/^mtu/ c mtu %d' %s";
// A setLine script, its keyword and the value.
const char* const kCmdSetLine = "%s %s %d";

const char* const kLcpMaxConfigure = "lcp-max-configure";
const char* const kLcpMaxFailure = "lcp-max-failure";
const char* const kLcpMaxTerminate = "lcp-max-terminate";
const char* const kIdle = "idle";
const char* const kMru = "mru";
const char* const kMtu = "mtu";

// Statuses of the setters, reported to the client as RAS_MODEM_<status>.
constexpr int kStatusConfigureOutOfRange = 6;
constexpr int kStatusNakOutOfRange = 7;
constexpr int kStatusTerminateOutOfRange = 8;
constexpr int kStatusIdleOutOfRange = 9;
constexpr int kStatusMruOutOfRange = 10;
constexpr int kStatusMtuOutOfRange = 11;

constexpr unsigned short kMaxConfigureRequest = 15;
constexpr unsigned short kMaxConfigureNak = 10;
constexpr unsigned short kMaxTerminateReq = 5;
constexpr unsigned short kMaxIdleTimeout = 36000;
constexpr unsigned short kMinUnitSize = 128;
constexpr unsigned short kMaxUnitSize = 16384;

const char* const kTraceGetHeaderComp = "Zeph_PPPProtocolEndpointImpl::getIPHeaderComp\n";
const char* const kTraceGetSoftwareComp = "Zeph_PPPProtocolEndpointImpl::getSoftwareComp\n";
const char* const kTraceGetIdle = "Zeph_PPPProtocolEndpointImpl::getIdleTimeout\n";
const char* const kTraceGetMru = "Zeph_PPPProtocolEndpointImpl::getMRU\n";
const char* const kTraceGetMtu = "Zeph_PPPProtocolEndpointImpl::getMTU\n";
const char* const kTraceGetNak = "Zeph_PPPProtocolEndpointImpl::getmaxConfigureNak\n";
const char* const kTraceGetRequest = "Zeph_PPPProtocolEndpointImpl::getmaxConfigureRequest\n";
const char* const kTraceGetTerminate = "Zeph_PPPProtocolEndpointImpl::getmaxTerminateReq\n";
const char* const kTraceSetIdle = "Zeph_PPPProtocolEndpointImpl::setIdleTimeout";
const char* const kLogIdle = "Idle Timeout is %d";
const char* const kLogMru = "MRU=%d";
const char* const kLogMtu = "MTU=%d";
const char* const kLogNumber = "%d";
const char* const kLogRestartMtu = "Calling Restartppd in setMTU";

// A getter's trace, value log and impact warnings.
int report(const char* trace, const char* format, unsigned short field, unsigned short& value,
           ras::Qualifiers& qualifiers) {
  platformLogDebug(trace);
  platformLogDebug(formatText(format, field));
  value = field;
  ShowWarningMessage(qualifiers);
  return kStatusOk;
}

int report(const char* trace, bool field, bool& value, ras::Qualifiers& qualifiers) {
  platformLogDebug(trace);
  value = field;
  ShowWarningMessage(qualifiers);
  return kStatusOk;
}

std::string setLineScript(const char* suffix) {
  return std::string(kSetLineScript) + suffix;
}

}  // namespace

// "novj" turns header compression off, a bare "vj-max-slots" on; with neither line active
// the file is put into the "off" form.
void Zeph_PPPProtocolEndpointImpl::readHeaderComp(const char* options) {
  if (getConfigParameter(options, kNoVj) == 1) {
    ipHeaderComp_ = false;
  } else if (getConfigParameter(options, kVjSlots) == 1) {
    ipHeaderComp_ = true;
  } else {
    editOptions(kCmdNoVjOn);
    editOptions(kCmdVjSlotsOff);
    ipHeaderComp_ = false;
  }
}

// Only "bsdcomp 0" and "bsdcomp 12" are understood; anything else is rewritten as "off".
void Zeph_PPPProtocolEndpointImpl::readSoftwareComp(const char* options) {
  std::string level;
  getConfigParameter(options, kBsdcompFormat, &level);
  softwareComp_ = level == kBsdcompOn;
  if (level != kBsdcompOff && level != kBsdcompOn) editOptions(kCmdBsdcompOff);
}

void Zeph_PPPProtocolEndpointImpl::readNumbers(const char* options) {
  unsigned short* const fields[] = {
      &maxConfigureRequest_, &maxConfigureNak_, &maxTerminateReq_, &idleTimeout_, &mru_, &mtu_};
  for (std::size_t i = 0; i < std::size(fields); ++i) {
    int value = 0;
    getConfigParameter(options, kNumberFormats[i], &value);
    *fields[i] = static_cast<unsigned short>(value);
  }
}

int Zeph_PPPProtocolEndpointImpl::getIPHeaderComp(bool& value, ras::Qualifiers& q) const {
  return report(kTraceGetHeaderComp, ipHeaderComp_, value, q);
}

int Zeph_PPPProtocolEndpointImpl::setIPHeaderComp(bool value) {
  editOptions(value ? kCmdVjSlotsOn : kCmdNoVjOn);
  editOptions(value ? kCmdNoVjOff : kCmdVjSlotsOff);
  ipHeaderComp_ = value;
  restartIfDialOut();
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getSoftwareComp(bool& value, ras::Qualifiers& q) const {
  return report(kTraceGetSoftwareComp, softwareComp_, value, q);
}

int Zeph_PPPProtocolEndpointImpl::setSoftwareComp(bool value) {
  editOptions(value ? kCmdBsdcompOn : kCmdBsdcompOff);
  softwareComp_ = value;
  restartIfDialOut();
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getmaxConfigureRequest(unsigned short& value,
                                                         ras::Qualifiers& q) const {
  return report(kTraceGetRequest, kLogNumber, maxConfigureRequest_, value, q);
}

int Zeph_PPPProtocolEndpointImpl::setmaxConfigureRequest(unsigned short value) {
  return setLcpLimit(kLcpMaxConfigure, value, kMaxConfigureRequest, kStatusConfigureOutOfRange,
                     maxConfigureRequest_);
}

int Zeph_PPPProtocolEndpointImpl::getmaxConfigureNak(unsigned short& value,
                                                     ras::Qualifiers& q) const {
  return report(kTraceGetNak, kLogNumber, maxConfigureNak_, value, q);
}

int Zeph_PPPProtocolEndpointImpl::setmaxConfigureNak(unsigned short value) {
  return setLcpLimit(kLcpMaxFailure, value, kMaxConfigureNak, kStatusNakOutOfRange,
                     maxConfigureNak_);
}

int Zeph_PPPProtocolEndpointImpl::getmaxTerminateReq(unsigned short& value,
                                                     ras::Qualifiers& q) const {
  return report(kTraceGetTerminate, kLogNumber, maxTerminateReq_, value, q);
}

int Zeph_PPPProtocolEndpointImpl::setmaxTerminateReq(unsigned short value) {
  return setLcpLimit(kLcpMaxTerminate, value, kMaxTerminateReq, kStatusTerminateOutOfRange,
                     maxTerminateReq_);
}

// An LCP limit: 1..maximum, written through the link's setLine script.
int Zeph_PPPProtocolEndpointImpl::setLcpLimit(const char* keyword, unsigned short value,
                                              unsigned short maximum, int status,
                                              unsigned short& field) {
  if (value < 1 || value > maximum) return status;
  runCommand(kCmdSetLine, {setLineScript(link().setLineSuffix), keyword, value});
  field = value;
  restartIfDialOut();
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getIdleTimeout(unsigned short& value, ras::Qualifiers& q) const {
  return report(kTraceGetIdle, kLogIdle, idleTimeout_, value, q);
}

// 0 means no idle disconnect and is written as the commented line "#idle 0". The dial-in
// link's time-out holds for its call-back link too.
int Zeph_PPPProtocolEndpointImpl::setIdleTimeout(unsigned short value) {
  platformLogDebug(kTraceSetIdle);
  platformLogDebug(formatText(kLogNumber, value));
  if (value > kMaxIdleTimeout) return kStatusIdleOutOfRange;
  const PPPLink& options = link();
  if (options.dialIn) {
    if (value != 0) {
      runCommand(kCmdSetLine, {setLineScript(kCallbackSuffix), kIdle, value});
    } else {
      runCommand(kCmdIdleOff, {kSed, kCallbackOptions});
    }
  }
  if (value != 0) {
    runCommand(kCmdSetLine, {setLineScript(options.setLineSuffix), kIdle, value});
  } else {
    editOptions(kCmdIdleOff);
  }
  idleTimeout_ = value;
  restartIfDialOut();
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getMRU(unsigned short& value, ras::Qualifiers& q) const {
  return report(kTraceGetMru, kLogMru, mru_, value, q);
}

int Zeph_PPPProtocolEndpointImpl::setMRU(unsigned short value) {
  return setUnitSize(kMru, kCmdCallbackMru, value, kStatusMruOutOfRange, mru_);
}

int Zeph_PPPProtocolEndpointImpl::getMTU(unsigned short& value, ras::Qualifiers& q) const {
  return report(kTraceGetMtu, kLogMtu, mtu_, value, q);
}

int Zeph_PPPProtocolEndpointImpl::setMTU(unsigned short value) {
  if (link().dialOut && value >= kMinUnitSize && value <= kMaxUnitSize) {
    platformLogDebug(kLogRestartMtu);
  }
  return setUnitSize(kMtu, kCmdCallbackMtu, value, kStatusMtuOutOfRange, mtu_);
}

// MRU or MTU: 128..16384. The dial-in link also replaces an active line of the call-back
// options; a commented or missing line there stays as it is.
int Zeph_PPPProtocolEndpointImpl::setUnitSize(const char* keyword, const char* callbackEdit,
                                              unsigned short value, int status,
                                              unsigned short& field) {
  if (value < kMinUnitSize || value > kMaxUnitSize) return status;
  const PPPLink& options = link();
  if (options.dialIn) {
    runCommand(callbackEdit, {kSed, value, kCallbackOptions});
  }
  runCommand(kCmdSetLine, {setLineScript(options.setLineSuffix), keyword, value});
  field = value;
  restartIfDialOut();
  return kStatusOk;
}
