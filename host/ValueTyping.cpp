// ValueTyping.cpp: wbemcli value texts to CIM values of a declared type, and MOF qualifiers
// to CIM qualifiers.
#include <vector>

#include "CimBuild.hpp"
#include "CimText.hpp"
#include "OW_Array.hpp"
#include "OW_Bool.hpp"
#include "OW_CIMDateTime.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_Exception.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

template <class T, class Parse>
CIMValue makeValue(const TextValue& v, Parse parse) {
  if (!v.isArray) return CIMValue(parse(String(v.text.c_str())));
  // Built from a range: a real OpenWBEM's Array<T>::push_back does not compile for the
  // number types (its copy-on-write clone is not found by name lookup for std::vector<UInt8>).
  std::vector<T> items;
  for (const TextValue& item : v.items) items.push_back(parse(String(item.text.c_str())));
  return CIMValue(Array<T>(items.begin(), items.end()));
}

CIMValue numberValue(const TextValue& v, const std::string& type) {
  if (type == "uint8") return makeValue<UInt8>(v, [](const String& s) { return s.toUInt8(); });
  if (type == "sint8") return makeValue<Int8>(v, [](const String& s) { return s.toInt8(); });
  if (type == "uint16") return makeValue<UInt16>(v, [](const String& s) { return s.toUInt16(); });
  if (type == "sint16") return makeValue<Int16>(v, [](const String& s) { return s.toInt16(); });
  if (type == "uint32") return makeValue<UInt32>(v, [](const String& s) { return s.toUInt32(); });
  if (type == "sint32") return makeValue<Int32>(v, [](const String& s) { return s.toInt32(); });
  if (type == "uint64") return makeValue<UInt64>(v, [](const String& s) { return s.toUInt64(); });
  if (type == "sint64") return makeValue<Int64>(v, [](const String& s) { return s.toInt64(); });
  if (type == "real32") return makeValue<Real32>(v, [](const String& s) { return s.toReal32(); });
  return makeValue<Real64>(v, [](const String& s) { return s.toReal64(); });
}

CIMValue convert(const TextValue& v, const MofType& type, const MofSchema& schema) {
  if (type.name == "string") return makeValue<String>(v, [](const String& s) { return s; });
  if (type.name == "boolean")
    return makeValue<Bool>(v, [](const String& s) { return Bool(s.toBool()); });
  if (type.name == "datetime")
    return makeValue<CIMDateTime>(v, [](const String& s) { return CIMDateTime(s); });
  if (type.name == "ref") return CIMValue(buildPath(parsePath(v.text), schema));
  if (type.name == "char16") throw TypingError("char16 values are not supported");
  return numberValue(v, type.name);
}

bool isNumberType(const std::string& name) {
  return name != "string" && name != "boolean" && name != "datetime" && name != "ref" &&
         name != "char16";
}

std::string shapeName(bool isArray) {
  return isArray ? "an array" : "a single value";
}

// A single value where the type wants one, an array where it wants an array.
void requireShape(const TextValue& value, const MofType& type, const std::string& name) {
  if (value.isArray != type.isArray)
    throw TypingError(name + " is " + typeName(type) + ": give " + shapeName(type.isArray));
}

bool isWholeNumber(const std::string& t) {
  const size_t start = !t.empty() && (t[0] == '-' || t[0] == '+') ? 1 : 0;
  return start < t.size() && t.find_first_not_of("0123456789", start) == std::string::npos;
}

// Booleans and whole numbers keep their type; anything else is shown as its text.
CIMValue qualifierValue(const MofValue& v) {
  const String text(v.text.c_str());
  if (v.kind == MofValue::kBoolean) return CIMValue(Bool(text.toBool()));
  if (v.kind == MofValue::kNumber && isWholeNumber(v.text)) return CIMValue(text.toInt64());
  return CIMValue(text);
}

}  // namespace

CIMValue typedValue(const TextValue& value, const MofType& type, const MofSchema& schema,
                    const std::string& name) {
  requireShape(value, type, name);
  try {
    return convert(value, type, schema);
  } catch (const OpenWBEM::Exception& e) {
    throw TypingError("'" + (value.isArray ? std::string("{...}") : value.text) +
                      "' is not a valid " + typeName(type) + " value for " + name);
  }
}

// A property value as a CIMOM receives it over CIM-XML: an empty number reads as 0 and an
// empty boolean as no value; text that does not convert is the CIMOM's refusal, with the
// conversion's own message.
CIMValue propertyValue(const TextValue& value, const MofType& type, const MofSchema& schema,
                       const std::string& name) {
  requireShape(value, type, name);
  TextValue given = value;
  if (!value.isArray && value.text.empty() && isNumberType(type.name)) given.text = "0";
  if (!value.isArray && value.text.empty() && type.name == "boolean") return CIMValue(CIMNULL);
  try {
    return convert(given, type, schema);
  } catch (const StringConversionException& e) {
    throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::INVALID_PARAMETER,
                       e.getMessage());
  }
}

CIMValue untypedValue(const TextValue& value) {
  return makeValue<String>(value, [](const String& s) { return s; });
}

CIMQualifier toQualifier(const MofQualifier& q) {
  CIMQualifier out{CIMName(q.name.c_str())};
  if (!q.hasValue) {
    out.setValue(CIMValue(Bool(true)));
  } else if (q.isArray) {
    StringArray items;
    for (const MofValue& v : q.values) items.push_back(String(v.text.c_str()));
    out.setValue(CIMValue(items));
  } else if (q.values[0].kind != MofValue::kNull) {
    out.setValue(qualifierValue(q.values[0]));
  }
  return out;
}

}  // namespace rascim
