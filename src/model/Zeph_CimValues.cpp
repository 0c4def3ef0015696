// Conversions between CIM values and the module's property types.
#include "Zeph_CimValues.h"

#include "OW_Bool.hpp"
#include "OW_CIMDateTime.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"

namespace ras {
namespace {

constexpr char kInstanceID[] = "InstanceID";

OpenWBEM::String toOwString(const std::string& text) {
  return OpenWBEM::String(text.c_str(), text.size());
}

}  // namespace

OpenWBEM::CIMValue toCimValue(const std::string& value) {
  return OpenWBEM::CIMValue(toOwString(value));
}

OpenWBEM::CIMValue toCimValue(unsigned short value) {
  return OpenWBEM::CIMValue(OpenWBEM::UInt16(value));
}

OpenWBEM::CIMValue toCimValue(unsigned char value) {
  return OpenWBEM::CIMValue(OpenWBEM::UInt8(value));
}

OpenWBEM::CIMValue toCimValue(bool value) {
  return OpenWBEM::CIMValue(value);
}

OpenWBEM::CIMValue dateTimeValue(const std::string& value) {
  return OpenWBEM::CIMValue(OpenWBEM::CIMDateTime(toOwString(value)));
}

OpenWBEM::CIMValue referenceValue(const char* className, const OpenWBEM::String& ns,
                                  const std::string& instanceID) {
  OpenWBEM::CIMObjectPath path(OpenWBEM::CIMName(className), ns);
  path.setKeyValue(kInstanceID, toCimValue(instanceID));
  return OpenWBEM::CIMValue(path);
}

void fromCimValue(const OpenWBEM::CIMValue& value, std::string& out) {
  OpenWBEM::String text;
  value.get(text);
  out = toStdString(text);
}

void fromCimValue(const OpenWBEM::CIMValue& value, unsigned short& out) {
  OpenWBEM::UInt16 number = 0;
  value.get(number);
  out = number;
}

void fromCimValue(const OpenWBEM::CIMValue& value, unsigned char& out) {
  OpenWBEM::UInt8 number = 0;
  value.get(number);
  out = number;
}

void fromCimValue(const OpenWBEM::CIMValue& value, bool& out) {
  out = value.toBool();
}

std::optional<std::string> referencedInstanceID(const OpenWBEM::CIMValue& reference) {
  if (!reference || reference.getType() != OpenWBEM::CIMDataType::REFERENCE) return std::nullopt;
  const OpenWBEM::CIMValue id = reference.toCIMObjectPath().getKeyValue(kInstanceID);
  if (!id) return std::nullopt;
  return toStdString(id.toString());
}

std::string toStdString(const OpenWBEM::String& text) {
  return std::string(text.c_str(), text.length());
}

std::size_t utf8Length(const std::string& text) {
  std::size_t length = 0;
  for (const char c : text) {
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++length;
  }
  return length;
}

}  // namespace ras
