// Common base of the CIM value classes: text forms and reset to null.
#ifndef OW_CIMBASE_HPP_INCLUDE_GUARD_
#define OW_CIMBASE_HPP_INCLUDE_GUARD_
#include <iosfwd>

#include "OW_CommonFwd.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMBase {
 public:
  virtual ~CIMBase();
  virtual void setNull() = 0;
  virtual String toString() const = 0;
  virtual String toMOF() const = 0;
};

std::ostream& operator<<(std::ostream& ostr, const CIMBase& cb);

}  // namespace OW_NAMESPACE

#endif
