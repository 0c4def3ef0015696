// The platform registry as the module uses it: the values of section "SoftModem", group
// "ModemCC", read upper-cased into the appliance's 60-byte buffers.
#ifndef ZEPH_REGISTRY_H
#define ZEPH_REGISTRY_H

#include <string>

namespace ras {

extern const char* const kRegSection;  // "SoftModem"
extern const char* const kRegGroup;    // "ModemCC"
extern const char* const kRegModemStatus;
extern const char* const kRegMinLine;
extern const char* const kRegMaxLine;
extern const char* const kRegLineToAnswer;
extern const char* const kRegAutoDisableTimer;
extern const char* const kRegAutoDisableFlag;
extern const char* const kRegModemDn;
extern const char* const kRegEnabled;   // "ENABLED"
extern const char* const kRegDisabled;  // "DISABLED"
extern const char* const kRegOn;        // "ON"
extern const char* const kRegOff;       // "OFF"

// The two registry failure texts, each kept by its callers.
extern const char* const kQvlErrorLog;       // "Error in QVL Operation\n"
extern const char* const kQvlErrorLogUpper;  // "Error IN QVL Operation\n"
// "ModemStatus" holds neither value.
extern const char* const kBadModemStatusLog;

constexpr int kRegValueSize = 60;

// Reads a value of the modem group into `value`, upper-cased. False when the platform call
// fails (`value` is then untouched); the caller logs its own failure text.
bool readModemRegistry(const char* name, std::string& value);

// The same for a value that is only shown, never compared or converted: kept as stored.
bool readModemRegistryAsStored(const char* name, std::string& value);

// Stores a value of the modem group. False when the platform call fails.
bool writeModemRegistry(const char* name, const char* value);

}  // namespace ras

#endif  // ZEPH_REGISTRY_H
