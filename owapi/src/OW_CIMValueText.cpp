// CIMValue: text forms and equality.
#include "OW_CIMValue.hpp"
#include "OW_CIMValueImpl.hpp"

namespace OW_NAMESPACE {

namespace {
const char* const kNullText = "(null)";

String scalarText(const Bool& v) {
  return v.toString();
}
String scalarText(const Char16& v) {
  return v.toString();
}
String scalarText(UInt8 v) {
  return String(UInt32(v));
}
String scalarText(Int8 v) {
  return String(Int32(v));
}
String scalarText(UInt16 v) {
  return String(UInt32(v));
}
String scalarText(Int16 v) {
  return String(Int32(v));
}
String scalarText(UInt32 v) {
  return String(v);
}
String scalarText(Int32 v) {
  return String(v);
}
String scalarText(UInt64 v) {
  return String(v);
}
String scalarText(Int64 v) {
  return String(v);
}
String scalarText(Real32 v) {
  return String(v);
}
String scalarText(Real64 v) {
  return String(v);
}
String scalarText(const String& v) {
  return v;
}
String scalarText(const CIMDateTime& v) {
  return v.toString();
}
String scalarText(const CIMObjectPath& v) {
  return v.toString();
}
String scalarText(const CIMClass& v) {
  return v.toMOF();
}
String scalarText(const CIMInstance& v) {
  return v.toMOF();
}

// Arrays are joined with commas and no blanks.
template <typename T>
String valueText(const T& v) {
  if constexpr (kIsArray<T>) {
    String out;
    for (size_t i = 0; i < v.size(); ++i) {
      if (i > 0) {
        out += ',';
      }
      out += scalarText(v[i]);
    }
    return out;
  } else {
    return scalarText(v);
  }
}

// Classes and instances have no value equality of their own; their text stands in.
template <typename T>
bool sameScalar(const T& a, const T& b) {
  if constexpr (std::is_same<T, CIMClass>::value || std::is_same<T, CIMInstance>::value) {
    return a.toMOF().equals(b.toMOF());
  } else {
    return a == b;
  }
}

template <typename T>
bool sameValue(const T& a, const T& b) {
  if constexpr (kIsArray<T>) {
    if (a.size() != b.size()) {
      return false;
    }
    for (size_t i = 0; i < a.size(); ++i) {
      if (!sameScalar(a[i], b[i])) {
        return false;
      }
    }
    return true;
  } else {
    return sameScalar(a, b);
  }
}

String quoted(const String& s) {
  String out("\"");
  for (size_t i = 0; i < s.length(); ++i) {
    char c = s.charAt(i);
    if (c == '"' || c == '\\') {
      out += '\\';
    }
    out += c;
  }
  return out + "\"";
}

String scalarMOF(CIMDataType::Type type, const String& text) {
  switch (type) {
    case CIMDataType::STRING:
    case CIMDataType::DATETIME:
    case CIMDataType::REFERENCE:
      return quoted(text);
    case CIMDataType::CHAR16:
      return String("'") + text + "'";
    default:
      return text;
  }
}

// MOF form: strings, dates and references quoted, arrays in braces.
template <typename T>
String valueMOF(CIMDataType::Type type, const T& v) {
  if constexpr (kIsArray<T>) {
    String out("{");
    for (size_t i = 0; i < v.size(); ++i) {
      out += (i > 0 ? ", " : "") + scalarMOF(type, scalarText(v[i]));
    }
    return out + "}";
  } else {
    return scalarMOF(type, scalarText(v));
  }
}
}  // namespace

String CIMValue::toString() const {
  if (!m_impl) {
    return String(kNullText);
  }
  return std::visit([](const auto& v) { return valueText(v); }, m_impl->value);
}

String CIMValue::toMOF() const {
  if (!m_impl) {
    return String("NULL");
  }
  CIMDataType::Type type = m_impl->type();
  return std::visit([type](const auto& v) { return valueMOF(type, v); }, m_impl->value);
}

bool CIMValue::equal(const CIMValue& x) const {
  if (!m_impl || !x.m_impl) {
    return !m_impl && !x.m_impl;
  }
  if (m_impl->value.index() != x.m_impl->value.index()) {
    return false;
  }
  return std::visit(
      [&x](const auto& a) {
        using T = std::decay_t<decltype(a)>;
        return sameValue(a, std::get<T>(x.m_impl->value));
      },
      m_impl->value);
}

bool CIMValue::operator==(const CIMValue& x) const {
  return equal(x);
}
bool CIMValue::operator!=(const CIMValue& x) const {
  return !equal(x);
}

// Ordering: null first, then by type, then by text.
bool CIMValue::operator<(const CIMValue& x) const {
  if (!m_impl || !x.m_impl) {
    return !m_impl && x.m_impl;
  }
  if (m_impl->value.index() != x.m_impl->value.index()) {
    return m_impl->value.index() < x.m_impl->value.index();
  }
  return toString() < x.toString();
}

bool CIMValue::operator<=(const CIMValue& x) const {
  return !(x < *this);
}
bool CIMValue::operator>=(const CIMValue& x) const {
  return !(*this < x);
}
bool CIMValue::operator>(const CIMValue& x) const {
  return x < *this;
}

}  // namespace OW_NAMESPACE
