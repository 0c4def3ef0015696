// Conversions between CIM values and the module's property types (text, unsigned 16- and
// 8-bit integers, booleans; datetimes and references carried as text).
#ifndef ZEPH_CIMVALUES_H
#define ZEPH_CIMVALUES_H

#include <cstddef>
#include <optional>
#include <string>

#include "OW_CIMValue.hpp"
#include "OW_String.hpp"

namespace ras {

OpenWBEM::CIMValue toCimValue(const std::string& value);
OpenWBEM::CIMValue toCimValue(unsigned short value);
OpenWBEM::CIMValue toCimValue(unsigned char value);
OpenWBEM::CIMValue toCimValue(bool value);
OpenWBEM::CIMValue dateTimeValue(const std::string& value);
// A reference to the instance of `className` whose InstanceID is `instanceID`.
OpenWBEM::CIMValue referenceValue(const char* className, const OpenWBEM::String& ns,
                                  const std::string& instanceID);

// Reads a non-null value into the setter's type (a value of another type throws).
void fromCimValue(const OpenWBEM::CIMValue& value, std::string& out);
void fromCimValue(const OpenWBEM::CIMValue& value, unsigned short& out);
void fromCimValue(const OpenWBEM::CIMValue& value, unsigned char& out);
void fromCimValue(const OpenWBEM::CIMValue& value, bool& out);

// The InstanceID named by a reference value; none if the value is null or not a reference, or
// its path has no InstanceID.
std::optional<std::string> referencedInstanceID(const OpenWBEM::CIMValue& reference);

std::string toStdString(const OpenWBEM::String& text);

// Number of characters of UTF-8 text (continuation bytes are not counted).
std::size_t utf8Length(const std::string& text);

}  // namespace ras

#endif
