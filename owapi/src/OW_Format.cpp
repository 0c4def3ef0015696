// Format: expands %1..%9 in the pattern with the already-streamed arguments.
#include "OW_Format.hpp"

#include <ostream>

namespace OW_NAMESPACE {

Format::Format(const char* ca, const String& a) {
  m_args[m_count++] = a;
  expand(ca);
}

Format::Format(const char* ca, const String& a, const String& b) {
  m_args[m_count++] = a;
  m_args[m_count++] = b;
  expand(ca);
}

Format::Format(const char* ca, const String& a, const String& b, const String& c) {
  m_args[m_count++] = a;
  m_args[m_count++] = b;
  m_args[m_count++] = c;
  expand(ca);
}

// "%n" with n in 1..9 takes argument n; "%%" is a percent sign; other text is copied.
void Format::expand(const char* ca) {
  String out;
  for (const char* p = ca ? ca : ""; *p != '\0'; ++p) {
    if (p[0] == '%' && p[1] == '%') {
      out += '%';
      ++p;
    } else if (p[0] == '%' && p[1] >= '1' && p[1] <= '9') {
      int idx = p[1] - '1';
      if (idx < m_count) {
        out += m_args[idx];
      }
      ++p;
    } else {
      out += *p;
    }
  }
  m_result = out;
}

Format::operator String() const {
  return m_result;
}
String Format::toString() const {
  return m_result;
}
const char* Format::c_str() const {
  return m_result.c_str();
}

std::ostream& operator<<(std::ostream& os, const Format& f) {
  return os << f.toString();
}

}  // namespace OW_NAMESPACE
