// Qualifier flavor (override, propagation and translation rules).
#ifndef OW_CIMFLAVOR_HPP_INCLUDE_GUARD_
#define OW_CIMFLAVOR_HPP_INCLUDE_GUARD_
#include "OW_CIMBase.hpp"
#include "OW_Types.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMFlavor : public CIMBase {
 public:
  enum Flavor {
    INVALID = 0,
    ENABLEOVERRIDE = 1,
    DISABLEOVERRIDE = 2,
    RESTRICTED = 4,
    TOSUBCLASS = 8,
    TRANSLATE = 16,
    LAST_VALUE = 16
  };

  CIMFlavor(Flavor flavor);
  CIMFlavor();
  virtual void setNull();
  bool isValid() const;
  Int32 getFlavor() const;
  virtual String toString() const;
  virtual String toMOF() const;
  bool equals(const CIMFlavor& arg) const;
  bool operator==(const CIMFlavor& arg) const;
  bool operator!=(const CIMFlavor& arg) const;
  friend bool operator<(const CIMFlavor& x, const CIMFlavor& y) { return x.m_flavor < y.m_flavor; }

 private:
  Int32 m_flavor;
};

}  // namespace OW_NAMESPACE

#endif
