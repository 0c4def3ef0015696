// Boolean wrapper used by CIM values ("true"/"false" as text).
#ifndef OW_BOOL_HPP_INCLUDE_GUARD_
#define OW_BOOL_HPP_INCLUDE_GUARD_
#include <iosfwd>

#include "OW_config.h"

namespace OW_NAMESPACE {

class String;

class Bool {
 public:
  Bool() : m_val(false) {}
  Bool(bool val) : m_val(val) {}
  Bool(const Bool& arg) : m_val(arg.m_val) {}
  Bool& operator=(const Bool& arg) {
    m_val = arg.m_val;
    return *this;
  }
  bool operator==(const bool arg) const { return m_val == arg; }
  bool operator==(const Bool& arg) const { return m_val == arg.m_val; }
  bool operator!=(const bool arg) const { return m_val != arg; }
  bool operator!=(const Bool& arg) const { return m_val != arg.m_val; }
  operator bool() const { return m_val; }
  bool operator!() const { return !m_val; }
  String toString() const;
  void writeObject(std::ostream& ostrm) const;
  void readObject(std::istream& istrm);
  friend bool operator<(const Bool& b1, const Bool& b2) { return b1.m_val < b2.m_val; }

 private:
  // Keep pointers from silently turning into a Bool.
  Bool(const void*);
  Bool(void*);
  Bool(volatile const void*);
  Bool(volatile void*);
  bool m_val;
};

// Mirrors the released API, which answers "less than" here; prefer Bool != bool.
inline bool operator!=(bool b1, Bool b2) {
  return b1 < static_cast<bool>(b2);
}
std::ostream& operator<<(std::ostream& ostrm, const Bool& arg);

}  // namespace OW_NAMESPACE

#endif
