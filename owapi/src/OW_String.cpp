// String: construction, comparison, search and editing over a shared buffer.
#include "OW_String.hpp"

#include <strings.h>

#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <istream>
#include <ostream>
#include <string>

#include "OW_Array.hpp"
#include "OW_Bool.hpp"
#include "OW_CIMDateTime.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_Char16.hpp"
#include "OW_StringByteBuf.hpp"

namespace OW_NAMESPACE {

namespace {
String fromPrintf(const char* fmt, ...) __attribute__((format(printf, 1, 2)));
String fromPrintf(const char* fmt, ...) {
  char buf[64];
  va_list ap;
  va_start(ap, fmt);
  std::vsnprintf(buf, sizeof(buf), fmt, ap);
  va_end(ap);
  return String(buf);
}
}  // namespace

const size_t String::npos;

String::String() : m_buf(new ByteBuf) {}
String::String(Int32 val) : String(fromPrintf("%d", val)) {}
String::String(UInt32 val) : String(fromPrintf("%u", val)) {}
String::String(Int64 val) : String(fromPrintf("%ld", val)) {}
String::String(UInt64 val) : String(fromPrintf("%lu", val)) {}
String::String(Real32 val) : String(fromPrintf("%.*g", 7, static_cast<double>(val))) {}
String::String(Real64 val) : String(fromPrintf("%.*g", 16, val)) {}
String::String(Bool parm) : String(parm ? "true" : "false") {}
String::String(const Char16& parm) : String(static_cast<char>(parm.getValue())) {}
String::String(const CIMDateTime& parm) : String(parm.toString()) {}
String::String(const CIMObjectPath& parm) : String(parm.toString()) {}

String::String(const Char16Array& ra) : m_buf(new ByteBuf) {
  for (size_t i = 0; i < ra.size(); ++i) {
    m_buf->str += static_cast<char>(ra[i].getValue());
  }
}

String::String(ETakeOwnershipFlag, char* allocatedMemory, size_t len)
    : m_buf(new ByteBuf(std::string(allocatedMemory, len))) {
  delete[] allocatedMemory;
}

String::String(const char* str) : m_buf(new ByteBuf(str != 0 ? str : "")) {}
String::String(const char* str, size_t len) : m_buf(new ByteBuf(std::string(str, len))) {}
String::String(const String& arg) : m_buf(arg.m_buf) {}
String::String(char c) : m_buf(new ByteBuf(c != '\0' ? std::string(1, c) : std::string())) {}
String::~String() {}

String& String::operator=(const String& arg) {
  m_buf = arg.m_buf;
  return *this;
}

void String::swap(String& x) {
  m_buf.swap(x.m_buf);
}

char* String::allocateCString() const {
  char* p = new char[length() + 1];
  std::memcpy(p, c_str(), length() + 1);
  return p;
}

size_t String::length() const {
  return m_buf->str.size();
}

size_t String::UTF8Length() const {
  size_t count = 0;
  for (char c : m_buf->str) {
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
      ++count;
    }
  }
  return count;
}

int String::format(const char* fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  va_list copy;
  va_copy(copy, ap);
  int len = std::vsnprintf(0, 0, fmt, copy);
  va_end(copy);
  std::string text(len > 0 ? len : 0, '\0');
  if (len > 0) {
    std::vsnprintf(&text[0], text.size() + 1, fmt, ap);
  }
  va_end(ap);
  m_buf = new ByteBuf(text);
  return static_cast<int>(length());
}

const char* String::c_str() const {
  return m_buf->str.c_str();
}

char String::charAt(size_t ndx) const {
  return ndx < length() ? m_buf->str[ndx] : '\0';
}

int String::compareTo(const String& arg) const {
  return std::strcmp(c_str(), arg.c_str());
}
int String::compareTo(const char* arg) const {
  return std::strcmp(c_str(), arg ? arg : "");
}
int String::compareToIgnoreCase(const String& arg) const {
  return ::strcasecmp(c_str(), arg.c_str());
}
int String::compareToIgnoreCase(const char* arg) const {
  return ::strcasecmp(c_str(), arg ? arg : "");
}
bool String::equals(const String& arg) const {
  return compareTo(arg) == 0;
}
bool String::equals(const char* arg) const {
  return compareTo(arg) == 0;
}
bool String::equalsIgnoreCase(const String& arg) const {
  return compareToIgnoreCase(arg) == 0;
}
bool String::equalsIgnoreCase(const char* arg) const {
  return compareToIgnoreCase(arg) == 0;
}

String& String::concat(const char* arg) {
  if (arg != 0 && *arg != '\0') {
    m_buf->str += arg;
  }
  return *this;
}

String& String::concat(char arg) {
  m_buf->str += arg;
  return *this;
}

bool String::endsWith(const char* arg, EIgnoreCaseFlag ignoreCase) const {
  if (arg == 0) {
    return false;
  }
  size_t n = std::strlen(arg);
  if (n > length()) {
    return false;
  }
  const char* tail = c_str() + length() - n;
  return ignoreCase == E_CASE_INSENSITIVE ? ::strcasecmp(tail, arg) == 0
                                          : std::strcmp(tail, arg) == 0;
}

bool String::endsWith(char arg) const {
  return length() > 0 && m_buf->str.back() == arg;
}

bool String::startsWith(const char* arg, EIgnoreCaseFlag ignoreCase) const {
  if (arg == 0) {
    return false;
  }
  size_t n = std::strlen(arg);
  return ignoreCase == E_CASE_INSENSITIVE ? ::strncasecmp(c_str(), arg, n) == 0
                                          : std::strncmp(c_str(), arg, n) == 0;
}

bool String::startsWith(char arg) const {
  return length() > 0 && m_buf->str[0] == arg;
}

UInt32 String::hashCode() const {
  UInt32 hash = 0;
  for (char c : m_buf->str) {
    hash = hash * 31 + static_cast<unsigned char>(c);
  }
  return hash;
}

size_t String::indexOf(char ch, size_t fromIndex) const {
  return m_buf->str.find(ch, fromIndex);
}

size_t String::indexOf(const char* arg, size_t fromIndex) const {
  if (fromIndex > length()) {
    return npos;
  }
  return m_buf->str.find(arg ? arg : "", fromIndex);
}

size_t String::lastIndexOf(char ch, size_t fromIndex) const {
  return m_buf->str.rfind(ch, fromIndex);
}

size_t String::lastIndexOf(const char* arg, size_t fromIndex) const {
  return m_buf->str.rfind(arg ? arg : "", fromIndex);
}

String String::substring(size_t beginIndex, size_t len) const {
  if (beginIndex >= length()) {
    return String();
  }
  return String(m_buf->str.substr(beginIndex, len).c_str());
}

bool String::isSpaces() const {
  for (char c : m_buf->str) {
    if (!std::isspace(static_cast<unsigned char>(c))) {
      return false;
    }
  }
  return true;
}

String& String::toLowerCase() {
  for (char& c : m_buf->str) {
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return *this;
}

String& String::toUpperCase() {
  for (char& c : m_buf->str) {
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  return *this;
}

String& String::ltrim() {
  const std::string& s = m_buf->str;
  size_t i = 0;
  while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i]))) {
    ++i;
  }
  if (i > 0) {
    m_buf->str.erase(0, i);
  }
  return *this;
}

String& String::rtrim() {
  const std::string& s = m_buf->str;
  size_t n = s.size();
  while (n > 0 && std::isspace(static_cast<unsigned char>(s[n - 1]))) {
    --n;
  }
  if (n < s.size()) {
    m_buf->str.erase(n);
  }
  return *this;
}

String& String::trim() {
  return ltrim().rtrim();
}

String& String::erase() {
  m_buf = new ByteBuf;
  return *this;
}

String& String::erase(size_t idx, size_t len) {
  if (idx < length()) {
    m_buf->str.erase(idx, len);
  }
  return *this;
}

const char& String::operator[](size_t ndx) const {
  throwArrayOutOfBoundsIfNecessary(ndx, length() + 1);
  return m_buf->str.c_str()[ndx];
}

char& String::operator[](size_t ndx) {
  throwArrayOutOfBoundsIfNecessary(ndx, length());
  return m_buf->str[ndx];
}

String String::toString() const {
  return *this;
}

}  // namespace OW_NAMESPACE
