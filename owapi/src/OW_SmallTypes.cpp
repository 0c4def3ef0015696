// Bool, Char16 and CIMName: text forms and comparisons.
#include <istream>
#include <ostream>

#include "OW_Bool.hpp"
#include "OW_CIMName.hpp"
#include "OW_Char16.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

String Bool::toString() const {
  return String(m_val ? "true" : "false");
}
void Bool::writeObject(std::ostream& ostrm) const {
  ostrm.put(m_val ? '\1' : '\0');
}
void Bool::readObject(std::istream& istrm) {
  char c = 0;
  istrm.get(c);
  m_val = c != '\0';
}
std::ostream& operator<<(std::ostream& ostrm, const Bool& arg) {
  return ostrm << arg.toString();
}

Char16::Char16(const String& x) : m_value(static_cast<UInt8>(x.charAt(0))) {}
String Char16::toString() const {
  return String(static_cast<char>(m_value));
}
void Char16::writeObject(std::ostream& ostrm) const {
  ostrm.put(static_cast<char>(m_value >> 8)).put(static_cast<char>(m_value & 0xFF));
}
void Char16::readObject(std::istream& istrm) {
  char hi = 0;
  char lo = 0;
  istrm.get(hi).get(lo);
  m_value = static_cast<UInt16>((static_cast<UInt8>(hi) << 8) | static_cast<UInt8>(lo));
}
std::ostream& operator<<(std::ostream& ostrm, const Char16& arg) {
  return ostrm << static_cast<char>(arg.getValue());
}

CIMName::CIMName() {}
CIMName::CIMName(const String& name) : m_name(name) {}
CIMName::CIMName(const char* name) : m_name(name) {}
CIMName& CIMName::operator=(const String& name) {
  m_name = name;
  return *this;
}
CIMName& CIMName::operator=(const char* name) {
  m_name = name;
  return *this;
}
String CIMName::toString() const {
  return m_name;
}
bool CIMName::isValid() const {
  return !m_name.empty();
}
void CIMName::readObject(std::istream& istrm) {
  m_name.readObject(istrm);
}
void CIMName::writeObject(std::ostream& ostrm) const {
  m_name.writeObject(ostrm);
}
size_t CIMName::hashCode() const {
  return String(m_name).toLowerCase().hashCode();
}

bool operator<(const CIMName& x, const CIMName& y) {
  return x.m_name.compareToIgnoreCase(y.m_name) < 0;
}
bool operator==(const CIMName& x, const CIMName& y) {
  return x.m_name.equalsIgnoreCase(y.m_name);
}
bool operator<=(const CIMName& x, const CIMName& y) {
  return !(y < x);
}
bool operator>(const CIMName& x, const CIMName& y) {
  return y < x;
}
bool operator>=(const CIMName& x, const CIMName& y) {
  return !(x < y);
}
bool operator!=(const CIMName& x, const CIMName& y) {
  return !(x == y);
}
std::ostream& operator<<(std::ostream& ostr, const CIMName& name) {
  return ostr << name.toString();
}

}  // namespace OW_NAMESPACE
