// Impact warnings: an "ImpactWarning" qualifier attached to a property read while a dial
// session is up, telling the client that a change waits for the next session.
#ifndef ZEPH_IMPACTWARNING_H
#define ZEPH_IMPACTWARNING_H

#include "OW_Array.hpp"
#include "OW_CIMFwd.hpp"

// Appends zero, one or two "ImpactWarning" qualifiers, from the session globals.
void ShowWarningMessage(OpenWBEM::Array<OpenWBEM::CIMQualifier>& qualifiers);

namespace ras {

// Appends a boolean qualifier that tells the client about one property, such as "Write" (the
// value can be changed now) or "Applicable".
void addFlagQualifier(OpenWBEM::Array<OpenWBEM::CIMQualifier>& qualifiers, const char* name,
                      bool value);

}  // namespace ras

#endif
