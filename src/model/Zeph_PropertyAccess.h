// Reading a property from a wrapper into a CIM value, writing a CIM value through its
// setter, and reading key values out of paths and instances; one table row at a time.
#ifndef ZEPH_PROPERTYACCESS_H
#define ZEPH_PROPERTYACCESS_H

#include <optional>
#include <string>
#include <variant>

#include "OW_CIMDataType.hpp"
#include "OW_CIMValue.hpp"
#include "Zeph_CimValues.h"
#include "Zeph_Property.h"
#include "Zeph_ProviderCore.h"

namespace ras {

// Calls the row's getter; on success `out` holds the value in the row's CIM type.
template <class W>
int readValue(const Property<W>& row, const W& object, const OpenWBEM::String& ns,
              Qualifiers& qualifiers, OpenWBEM::CIMValue& out) {
  return std::visit(
      [&](const auto& access) {
        typename std::decay_t<decltype(access)>::Value value{};
        const int status = (object.*access.get)(value, qualifiers);
        if (status != kStatusOk) return status;
        if constexpr (std::is_same_v<decltype(value), std::string>) {
          if (row.type == CimType::DateTime) {
            out = dateTimeValue(value);
            return status;
          }
          if (row.type == CimType::Reference) {
            out = referenceValue(row.referenceClass, ns, value);
            return status;
          }
        }
        out = toCimValue(value);
        return status;
      },
      row.access);
}

// Converts `value` to the setter's type, runs `check` on it (which throws on failure), then
// calls the setter and returns its status.
template <class W, class Check>
int writeValue(const Property<W>& row, W& object, const OpenWBEM::CIMValue& value, Check check) {
  return std::visit(
      [&](const auto& access) {
        typename std::decay_t<decltype(access)>::Value typed{};
        fromCimValue(value, typed);
        check(typed);
        return (object.*access.set)(typed);
      },
      row.access);
}

// Converts `value` to the setter's type and runs `check` on it (which throws on failure) and
// the row's own text check; returns the status the setter would give it, without calling it.
template <class W, class Check>
int acceptValue(const Property<W>& row, const OpenWBEM::CIMValue& value, Check check) {
  return std::visit(
      [&](const auto& access) {
        typename std::decay_t<decltype(access)>::Value typed{};
        fromCimValue(value, typed);
        check(typed);
        if constexpr (std::is_same_v<decltype(typed), std::string>) {
          if (row.limits.accept != nullptr) return row.limits.accept(typed);
        }
        return kStatusOk;
      },
      row.access);
}

// True when a non-null `value` has the row's CIM type; a CIMOM converts a client's value
// to the class's type, anything else reaching a setter is a malformed request.
template <class W>
bool hasRowType(const Property<W>& row, const OpenWBEM::CIMValue& value) {
  return hasCimType(row.type, value);
}

// The text of a key value; nothing if the value (or a referenced InstanceID) is null.
template <class W>
std::optional<std::string> keyText(const Property<W>& row, const OpenWBEM::CIMValue& value) {
  if (!value) return std::nullopt;
  if (row.type == CimType::Reference) return referencedInstanceID(value);
  return toStdString(value.toString());
}

}  // namespace ras

#endif
