// Impact warnings and the session globals they are computed from.
#include "Zeph_ImpactWarning.h"

#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"

bool ConnectionStatus = false;
bool DialOutConnectionStatus = false;
std::string check_key;

namespace {

constexpr char kImpactWarning[] = "ImpactWarning";
constexpr char kDialInWarning[] =
    "Dial-In Session is in Progress.Change will take effect for Next Dial-In Session";
constexpr char kDialOutWarning[] =
    "Dial-Out Session is in Progress.Change will take effect for Next Dial-Out Session";

void appendWarning(OpenWBEM::Array<OpenWBEM::CIMQualifier>& qualifiers, const char* text) {
  OpenWBEM::CIMQualifier warning(kImpactWarning);
  warning.setValue(OpenWBEM::CIMValue(OpenWBEM::String(text)));
  qualifiers.push_back(warning);
}

}  // namespace

void ShowWarningMessage(OpenWBEM::Array<OpenWBEM::CIMQualifier>& qualifiers) {
  if (ConnectionStatus && check_key == ras::kDialInEndpointName)
    appendWarning(qualifiers, kDialInWarning);
  if (DialOutConnectionStatus && check_key == ras::kDialOutEndpointName) {
    appendWarning(qualifiers, kDialOutWarning);
  }
}

namespace ras {

void addFlagQualifier(OpenWBEM::Array<OpenWBEM::CIMQualifier>& qualifiers, const char* name,
                      bool value) {
  OpenWBEM::CIMQualifier qualifier(name);
  qualifier.setValue(OpenWBEM::CIMValue(value));
  qualifiers.push_back(qualifier);
}

}  // namespace ras
