// Registry access: the names of the modem group's values and their reads and writes through
// the platform library.
#include "Zeph_Registry.h"

#include "QvlShared.h"
#include "TORapi.h"

namespace ras {

const char* const kRegSection = "SoftModem";
const char* const kRegGroup = "ModemCC";
const char* const kRegModemStatus = "ModemStatus";
const char* const kRegMinLine = "MinLine";
const char* const kRegMaxLine = "MaxLine";
const char* const kRegLineToAnswer = "LineToAnswer";
const char* const kRegAutoDisableTimer = "AutoDisableTimer";
const char* const kRegAutoDisableFlag = "AutoDisableFlag";
const char* const kRegModemDn = "modemdn";
const char* const kRegEnabled = "ENABLED";
const char* const kRegDisabled = "DISABLED";
const char* const kRegOn = "ON";
const char* const kRegOff = "OFF";
const char* const kQvlErrorLog = "Error in QVL Operation\n";
const char* const kQvlErrorLogUpper = "Error IN QVL Operation\n";
const char* const kBadModemStatusLog = "ERROR:modemStatus is not properly update in the PDR.. \n";

namespace {

bool readModemRegistryBuffer(const char* name, std::string& value, bool upperCase) {
  char buffer[kRegValueSize] = {};
  if (QvlGetRegEntryString(kRegSection, kRegGroup, name, buffer, kRegValueSize) != 0) {
    return false;
  }
  buffer[kRegValueSize - 1] = '\0';
  value = upperCase ? osStrUpr(buffer) : buffer;
  return true;
}

}  // namespace

bool readModemRegistry(const char* name, std::string& value) {
  return readModemRegistryBuffer(name, value, true);
}

bool readModemRegistryAsStored(const char* name, std::string& value) {
  return readModemRegistryBuffer(name, value, false);
}

bool writeModemRegistry(const char* name, const char* value) {
  return QvlSetRegEntryString(kRegSection, kRegGroup, name, value) == 0;
}

}  // namespace ras
