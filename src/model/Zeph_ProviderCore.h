// The parts of the provider template that do not depend on the class: the checks and error
// reports of the change sequence, key texts and instance building. Compiled once instead of
// once per class.
#ifndef ZEPH_PROVIDERCORE_H
#define ZEPH_PROVIDERCORE_H

#include <string>
#include <type_traits>
#include <vector>

#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"
#include "Zeph_ClassModel.h"
#include "Zeph_Property.h"
#include "Zeph_ProviderLines.h"

namespace ras {

// Which class's provider raises an error, and from which lines.
struct ProviderSite {
  const char* className;
  const char* source;
  const ProviderLines& lines;
  ErrorSite at(int line) const { return {source, line}; }
};

// Throws the error of a setter status other than success.
void raiseSetterStatus(const ProviderSite& site, int status);

// The provider-side limits of a property, before its setter runs.
void checkTextLimits(const ProviderSite& site, const char* property, const Limits& limits,
                     const std::string& value);
void checkNumberLimits(const ProviderSite& site, const char* property, const Limits& limits,
                       unsigned value);

// The errors of startChange and endChange statuses.
void checkChangeStarted(const ProviderSite& site, int started);
void checkChangeEnded(const ProviderSite& site, int ended);

// True when a non-null `value` has CIM type `type`.
bool hasCimType(CimType type, const OpenWBEM::CIMValue& value);

// The key text of `property` for a lookup, or the error of a missing or null key.
struct LookupLines {
  int missing;
  int null;
  int noInstance;
};
std::string lookupKeyText(const ProviderSite& site, const LookupLines& where, CimType type,
                          const OpenWBEM::CIMProperty& property);

// The class-independent view of a property table row.
struct RowInfo {
  const char* name;
  Role role;
  CimType type;
};

// What the shared provider code needs of one class: its error site, its rows, and the typed
// accessors of row `i` (getter into a CIM value; conversion, checks and setter; conversion and
// checks alone), which the provider template supplies.
struct ClassOps {
  ProviderSite site;
  std::size_t (*rowCount)();
  RowInfo (*rowAt)(std::size_t row);
  int (*read)(std::size_t row, const ManagedObject& object, const OpenWBEM::String& ns,
              Qualifiers& qualifiers, OpenWBEM::CIMValue& out);
  int (*write)(std::size_t row, ManagedObject& object, const OpenWBEM::CIMValue& value);
  int (*accept)(std::size_t row, const OpenWBEM::CIMValue& value);
};

// Every property whose getter succeeds, in table order, the instance named by its keys.
void buildInstance(const ClassOps& ops, const OpenWBEM::String& ns, const ManagedObject& object,
                   OpenWBEM::CIMInstance& instance);
// The key values of `path`; an unreadable key means the object cannot be named.
void buildObjectPath(const ClassOps& ops, const ManagedObject& object,
                     OpenWBEM::CIMObjectPath& path);
// The manager key named by the key properties `keyOf` gives (a path's keys or an instance's
// properties), or the error of a missing or null one.
using KeySource = OpenWBEM::CIMProperty (*)(const void* source, const char* name);
std::string lookupKey(const ClassOps& ops, const LookupLines& where, KeySource keyOf,
                      const void* source);
// The key texts of a new instance in key order (absent or null keys are empty).
std::vector<std::string> creationKeys(const ClassOps& ops, const OpenWBEM::CIMInstance& instance);
// The change sequence: startChange, each writable property in the instance's order (checks,
// then setter), endChange. A failure stops it; earlier properties stay applied.
void runChange(const ClassOps& ops, ManagedObject& object, const OpenWBEM::CIMInstance& instance);
// The checks of the change sequence over a new instance, before its object exists.
void refuseUnacceptable(const ClassOps& ops, const OpenWBEM::CIMInstance& instance);

// The provider-side limits of a typed value.
template <class T>
void checkLimits(const ProviderSite& site, const char* property, const Limits& limits,
                 const T& value) {
  if constexpr (std::is_same_v<T, std::string>) {
    checkTextLimits(site, property, limits, value);
  } else if constexpr (!std::is_same_v<T, bool>) {
    checkNumberLimits(site, property, limits, value);
  }
}

}  // namespace ras

#endif
