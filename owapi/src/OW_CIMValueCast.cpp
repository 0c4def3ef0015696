// Conversion of a value to a declared type through its text form.
#include "OW_CIMValueCast.hpp"

#include <vector>

#include "OW_Bool.hpp"
#include "OW_CIM.hpp"

namespace OW_NAMESPACE {

namespace {
const char* const kCastFailMsg = "Failed to convert \"";
const char* const kCastToMsg = "\" to ";

[[noreturn]] void throwCastFailed(const String& text, const CIMDataType& dt) {
  String msg = String(kCastFailMsg) + text + kCastToMsg + dt.toString();
  OW_THROWCIMMSG(CIMException::FAILED, msg.c_str());
}

// Dates and references convert only to and from strings.
bool convertible(CIMDataType::Type from, CIMDataType::Type to) {
  bool special = from == CIMDataType::DATETIME || from == CIMDataType::REFERENCE ||
                 to == CIMDataType::DATETIME || to == CIMDataType::REFERENCE;
  bool embedded = from == CIMDataType::EMBEDDEDCLASS || from == CIMDataType::EMBEDDEDINSTANCE ||
                  to == CIMDataType::EMBEDDEDCLASS || to == CIMDataType::EMBEDDEDINSTANCE;
  if (embedded) {
    return from == to;
  }
  return !special || from == CIMDataType::STRING || to == CIMDataType::STRING || from == to;
}

CIMValue parseNumber(const String& text, CIMDataType::Type to) {
  switch (to) {
    case CIMDataType::UINT8:
      return CIMValue(text.toUInt8());
    case CIMDataType::SINT8:
      return CIMValue(text.toInt8());
    case CIMDataType::UINT16:
      return CIMValue(text.toUInt16());
    case CIMDataType::SINT16:
      return CIMValue(text.toInt16());
    case CIMDataType::UINT32:
      return CIMValue(text.toUInt32());
    case CIMDataType::SINT32:
      return CIMValue(text.toInt32());
    case CIMDataType::UINT64:
      return CIMValue(text.toUInt64());
    case CIMDataType::SINT64:
      return CIMValue(text.toInt64());
    case CIMDataType::REAL32:
      return CIMValue(text.toReal32());
    default:
      return CIMValue(text.toReal64());
  }
}

// Parses one element's text into the target type; a bad text is a CIM failure.
CIMValue parseScalar(const String& text, const CIMDataType& dt) {
  CIMDataType::Type to = dt.getType();
  try {
    switch (to) {
      case CIMDataType::STRING:
        return CIMValue(text);
      case CIMDataType::BOOLEAN:
        return CIMValue(Bool(text.toBool()));
      case CIMDataType::CHAR16:
        return CIMValue(Char16(text));
      case CIMDataType::DATETIME:
        return CIMValue(CIMDateTime(text));
      case CIMDataType::REFERENCE:
        return CIMValue(CIMObjectPath::parse(text));
      default:
        return parseNumber(text, to);
    }
  } catch (const StringConversionException&) {
    throwCastFailed(text, dt);
  }
}

// Collected in a std::vector: Array<T>::push_back does not compile for the number types.
template <typename T>
Array<T> collect(const StringArray& texts, const CIMDataType& dt) {
  std::vector<T> out;
  for (size_t i = 0; i < texts.size(); ++i) {
    T x;
    parseScalar(texts[i], dt).get(x);
    out.push_back(x);
  }
  return Array<T>(out.begin(), out.end());
}

CIMValue buildArray(const StringArray& texts, const CIMDataType& dt) {
  switch (dt.getType()) {
    case CIMDataType::BOOLEAN:
      return CIMValue(collect<Bool>(texts, dt));
    case CIMDataType::CHAR16:
      return CIMValue(collect<Char16>(texts, dt));
    case CIMDataType::UINT8:
      return CIMValue(collect<UInt8>(texts, dt));
    case CIMDataType::SINT8:
      return CIMValue(collect<Int8>(texts, dt));
    case CIMDataType::UINT16:
      return CIMValue(collect<UInt16>(texts, dt));
    case CIMDataType::SINT16:
      return CIMValue(collect<Int16>(texts, dt));
    case CIMDataType::UINT32:
      return CIMValue(collect<UInt32>(texts, dt));
    case CIMDataType::SINT32:
      return CIMValue(collect<Int32>(texts, dt));
    case CIMDataType::UINT64:
      return CIMValue(collect<UInt64>(texts, dt));
    case CIMDataType::SINT64:
      return CIMValue(collect<Int64>(texts, dt));
    case CIMDataType::REAL32:
      return CIMValue(collect<Real32>(texts, dt));
    case CIMDataType::REAL64:
      return CIMValue(collect<Real64>(texts, dt));
    case CIMDataType::STRING:
      return CIMValue(texts);
    case CIMDataType::DATETIME:
      return CIMValue(collect<CIMDateTime>(texts, dt));
    default:
      return CIMValue(collect<CIMObjectPath>(texts, dt));
  }
}

template <typename T>
StringArray textsOf(const CIMValue& value) {
  Array<T> got;
  value.get(got);
  const Array<T>& items = got;  // read only: no write access, as in collect
  StringArray out;
  for (size_t i = 0; i < items.size(); ++i) {
    out.push_back(CIMValue(items[i]).toString());
  }
  return out;
}

// The element texts of a value: one for a scalar, one per element for an array.
StringArray elementTexts(const CIMValue& value) {
  switch (value.isArray() ? value.getType() : CIMDataType::CIMNULL) {
    case CIMDataType::CIMNULL:
      return StringArray(1, value.toString());
    case CIMDataType::BOOLEAN:
      return textsOf<Bool>(value);
    case CIMDataType::CHAR16:
      return textsOf<Char16>(value);
    case CIMDataType::UINT8:
      return textsOf<UInt8>(value);
    case CIMDataType::SINT8:
      return textsOf<Int8>(value);
    case CIMDataType::UINT16:
      return textsOf<UInt16>(value);
    case CIMDataType::SINT16:
      return textsOf<Int16>(value);
    case CIMDataType::UINT32:
      return textsOf<UInt32>(value);
    case CIMDataType::SINT32:
      return textsOf<Int32>(value);
    case CIMDataType::UINT64:
      return textsOf<UInt64>(value);
    case CIMDataType::SINT64:
      return textsOf<Int64>(value);
    case CIMDataType::REAL32:
      return textsOf<Real32>(value);
    case CIMDataType::REAL64:
      return textsOf<Real64>(value);
    case CIMDataType::STRING:
      return value.toStringArray();
    case CIMDataType::DATETIME:
      return textsOf<CIMDateTime>(value);
    default:
      return textsOf<CIMObjectPath>(value);
  }
}
}  // namespace

CIMValue CIMValueCast::castValueToDataType(const CIMValue& value, const CIMDataType& dataType) {
  if (!value || !dataType) {
    return value;
  }
  if (value.getType() == dataType.getType() && value.isArray() == dataType.isArrayType()) {
    return value;
  }
  if (!convertible(value.getType(), dataType.getType())) {
    throwCastFailed(value.toString(), dataType);
  }
  if (!dataType.isArrayType()) {
    if (value.isArray()) {
      throwCastFailed(value.toString(), dataType);
    }
    return parseScalar(value.toString(), dataType);
  }
  return buildArray(elementTexts(value), dataType);
}

}  // namespace OW_NAMESPACE
