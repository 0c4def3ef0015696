// CIM element name; compares case-insensitively.
#ifndef OW_CIMNAME_HPP_INCLUDE_GUARD_
#define OW_CIMNAME_HPP_INCLUDE_GUARD_
#include <iosfwd>

#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMName {
 private:
  typedef String CIMName::*safe_bool;

 public:
  CIMName();
  CIMName(const String& name);
  CIMName(const char* name);
  CIMName& operator=(const String& name);
  CIMName& operator=(const char* name);
  String toString() const;
  bool isValid() const;
  operator safe_bool() const { return isValid() ? &CIMName::m_name : 0; }
  bool operator!() const { return !isValid(); }
  void readObject(std::istream& istrm);
  void writeObject(std::ostream& ostrm) const;
  size_t hashCode() const;

  friend bool operator<(const CIMName& x, const CIMName& y);
  friend bool operator==(const CIMName& x, const CIMName& y);

 private:
  String m_name;
};

bool operator<(const CIMName& x, const CIMName& y);
bool operator==(const CIMName& x, const CIMName& y);
bool operator<=(const CIMName& x, const CIMName& y);
bool operator>(const CIMName& x, const CIMName& y);
bool operator>=(const CIMName& x, const CIMName& y);
bool operator!=(const CIMName& x, const CIMName& y);
std::ostream& operator<<(std::ostream& ostr, const CIMName& name);

}  // namespace OW_NAMESPACE

#endif
