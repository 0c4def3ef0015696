// String: numeric and boolean conversions, tokenizing and stream input/output.
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <istream>
#include <limits>
#include <ostream>
#include <string>

#include "OW_Array.hpp"
#include "OW_CIMDateTime.hpp"
#include "OW_Char16.hpp"
#include "OW_String.hpp"
#include "OW_StringByteBuf.hpp"

namespace OW_NAMESPACE {

namespace {
const char* const kConvertMsg = "Unable to convert \"";
const char* const kIntoMsg = "\" into ";

[[noreturn]] void throwConversion(const String& text, const char* typeName) {
  String msg = String(kConvertMsg) + text + kIntoMsg + typeName;
  OW_THROW(StringConversionException, msg.c_str());
}

// The whole text must be a number (leading blanks allowed) that fits the target type.
template <typename T>
T convertSigned(const String& text, int base, const char* typeName) {
  const char* s = text.c_str();
  char* end = 0;
  errno = 0;
  long long v = std::strtoll(s, &end, base);
  if (text.empty() || *end != '\0' || end == s || errno == ERANGE ||
      v < static_cast<long long>(std::numeric_limits<T>::min()) ||
      v > static_cast<long long>(std::numeric_limits<T>::max())) {
    throwConversion(text, typeName);
  }
  return static_cast<T>(v);
}

// strtoul semantics: a leading minus wraps, and the wrapped value must still fit.
template <typename T>
T convertUnsigned(const String& text, int base, const char* typeName) {
  const char* s = text.c_str();
  char* end = 0;
  errno = 0;
  unsigned long long v = std::strtoull(s, &end, base);
  if (text.empty() || *end != '\0' || end == s || errno == ERANGE ||
      v > static_cast<unsigned long long>(std::numeric_limits<T>::max())) {
    throwConversion(text, typeName);
  }
  return static_cast<T>(v);
}

double convertReal(const String& text, const char* typeName) {
  const char* s = text.c_str();
  char* end = 0;
  errno = 0;
  double v = std::strtod(s, &end);
  if (text.empty() || *end != '\0' || end == s || errno == ERANGE) {
    throwConversion(text, typeName);
  }
  return v;
}
}  // namespace

bool String::toBool() const {
  if (equalsIgnoreCase("true")) {
    return true;
  }
  if (equalsIgnoreCase("false")) {
    return false;
  }
  throwConversion(*this, "bool");
}

UInt8 String::toUInt8(int base) const {
  return convertUnsigned<UInt8>(*this, base, "UInt8");
}
Int8 String::toInt8(int base) const {
  return convertSigned<Int8>(*this, base, "Int8");
}
UInt16 String::toUInt16(int base) const {
  return convertUnsigned<UInt16>(*this, base, "UInt16");
}
Int16 String::toInt16(int base) const {
  return convertSigned<Int16>(*this, base, "Int16");
}
UInt32 String::toUInt32(int base) const {
  return convertUnsigned<UInt32>(*this, base, "UInt32");
}
Int32 String::toInt32(int base) const {
  return convertSigned<Int32>(*this, base, "Int32");
}
UInt64 String::toUInt64(int base) const {
  return convertUnsigned<UInt64>(*this, base, "UInt64");
}
Int64 String::toInt64(int base) const {
  return convertSigned<Int64>(*this, base, "Int64");
}
unsigned int String::toUnsignedInt(int base) const {
  return convertUnsigned<unsigned int>(*this, base, "unsigned int");
}
int String::toInt(int base) const {
  return convertSigned<int>(*this, base, "int");
}

Real32 String::toReal32() const {
  double v = convertReal(*this, "Real32");
  if (v > std::numeric_limits<Real32>::max() || v < -std::numeric_limits<Real32>::max()) {
    throwConversion(*this, "Real32");
  }
  return static_cast<Real32>(v);
}

Real64 String::toReal64() const {
  return convertReal(*this, "Real64");
}

Char16 String::toChar16() const {
  return Char16(*this);
}
CIMDateTime String::toDateTime() const {
  return CIMDateTime(*this);
}

StringArray String::tokenize(const char* delims, EReturnDelimitersFlag returnDelimitersAsTokens,
                             EEmptyTokenReturnFlag returnEmptyTokens) const {
  StringArray ra;
  if (empty()) {
    return ra;
  }
  if (delims == 0) {
    ra.append(*this);
    return ra;
  }
  bool returnDelims = returnDelimitersAsTokens == E_RETURN_DELIMITERS ||
                      returnDelimitersAsTokens == E_RETURN_TOKENS;
  bool returnEmpty = returnEmptyTokens == E_RETURN_EMPTY_TOKENS;
  const std::string& s = m_buf->str;
  size_t start = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    if (std::strchr(delims, s[i]) == 0) {
      continue;
    }
    if (i > start || returnEmpty) {
      ra.append(String(s.c_str() + start, i - start));
    }
    if (returnDelims) {
      ra.append(String(s[i]));
    }
    start = i + 1;
  }
  if (start < s.size() || returnEmpty) {
    ra.append(String(s.c_str() + start, s.size() - start));
  }
  return ra;
}

unsigned long long int String::strtoull(const char* nptr, char** endptr, int base) {
  return std::strtoull(nptr, endptr, base);
}

long long int String::strtoll(const char* nptr, char** endptr, int base) {
  return std::strtoll(nptr, endptr, base);
}

const char* String::strchr(const char* theStr, int c) {
  return std::strchr(theStr, c);
}

String String::getLine(std::istream& istr) {
  std::string line;
  std::getline(istr, line);
  return String(line.c_str(), line.size());
}

// Serialized as the decimal length, a colon and the bytes.
void String::writeObject(std::ostream& ostrm) const {
  ostrm << length() << ':';
  ostrm.write(c_str(), static_cast<std::streamsize>(length()));
}

void String::readObject(std::istream& istrm) {
  size_t len = 0;
  char colon = 0;
  if (!(istrm >> len) || !istrm.get(colon) || colon != ':') {
    OW_THROW(StringConversionException, "Failed to read String length");
  }
  std::string text(len, '\0');
  if (len > 0 && !istrm.read(&text[0], static_cast<std::streamsize>(len))) {
    OW_THROW(StringConversionException, "Failed to read String data");
  }
  m_buf = new ByteBuf(text);
}

std::ostream& operator<<(std::ostream& ostr, const String& arg) {
  return ostr.write(arg.c_str(), static_cast<std::streamsize>(arg.length()));
}

String operator+(const String& s1, const String& s2) {
  return String(s1).concat(s2);
}
String operator+(const char* p, const String& s) {
  return String(p).concat(s);
}
String operator+(const String& s, const char* p) {
  return String(s).concat(p);
}
String operator+(char c, const String& s) {
  return String(c).concat(s);
}
String operator+(const String& s, char c) {
  return String(s).concat(c);
}

}  // namespace OW_NAMESPACE
