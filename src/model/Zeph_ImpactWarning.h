// Impact warnings: an "ImpactWarning" qualifier attached to a property read while a dial
// session is up, telling the client that a change waits for the next session.
#ifndef ZEPH_IMPACTWARNING_H
#define ZEPH_IMPACTWARNING_H

#include <string>

#include "OW_Array.hpp"
#include "OW_CIMFwd.hpp"

namespace ras {
// The Name of each PPP endpoint, the dial session it reports on.
inline constexpr char kDialInEndpointName[] = "DialInEndpoint";
inline constexpr char kDialOutEndpointName[] = "DialOutEndpoint";
}  // namespace ras

// The session globals, written by the PPP endpoint's connection-status reader.
// True after the last connection-status reading found the dial-in link up.
extern bool ConnectionStatus;
// True after the last connection-status reading found the dial-out link up.
extern bool DialOutConnectionStatus;
// Name of the PPP endpoint (one of the two above) read last.
extern std::string check_key;

// Appends zero, one or two "ImpactWarning" qualifiers, from the session globals.
void ShowWarningMessage(OpenWBEM::Array<OpenWBEM::CIMQualifier>& qualifiers);

namespace ras {

// Appends a boolean qualifier that tells the client about one property, such as "Write" (the
// value can be changed now) or "Applicable".
void addFlagQualifier(OpenWBEM::Array<OpenWBEM::CIMQualifier>& qualifiers, const char* name,
                      bool value);

}  // namespace ras

#endif
