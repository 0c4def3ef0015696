// Base of the named CIM elements; their == and != compare names only.
#ifndef OW_CIMELEMENT_HPP_INCLUDE_GUARD_
#define OW_CIMELEMENT_HPP_INCLUDE_GUARD_
#include "OW_CIMBase.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMElement : public CIMBase {
 public:
  virtual ~CIMElement();
  virtual String getName() const = 0;
  virtual void setName(const CIMName& name) = 0;
  bool operator<(const CIMElement& arg) const;
  bool operator==(const CIMElement& arg);
  bool operator!=(const CIMElement& arg) { return !(*this == arg); }
};

}  // namespace OW_NAMESPACE

#endif
