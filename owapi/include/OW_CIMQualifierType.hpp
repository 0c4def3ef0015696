// Declaration of a qualifier: its type, default value and flavors.
#ifndef OW_CIMQUALIFIERTYPE_HPP_INCLUDE_GUARD_
#define OW_CIMQUALIFIERTYPE_HPP_INCLUDE_GUARD_
#include "OW_CIMDataType.hpp"
#include "OW_CIMElement.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMQualifierType : public CIMElement {
 public:
  struct QUALTData;

  CIMQualifierType();
  explicit CIMQualifierType(CIMNULL_t);
  explicit CIMQualifierType(const CIMName& name);
  explicit CIMQualifierType(const char* name);
  CIMQualifierType(const CIMQualifierType& x);
  ~CIMQualifierType();
  CIMQualifierType& operator=(const CIMQualifierType& x);

  typedef COWIntrusiveReference<QUALTData> CIMQualifierType::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  virtual void setNull();
  CIMDataType getDataType() const;
  Int32 getDataSize() const;
  CIMQualifierType& setDataType(const CIMDataType& dataType);
  CIMQualifierType& setDataType(const CIMDataType::Type& dataType);
  CIMValue getDefaultValue() const;
  CIMQualifierType& setDefaultValue(const CIMValue& defValue);
  bool hasDefaultValue() const;
  CIMFlavorArray getFlavors() const;
  CIMQualifierType& addFlavor(const CIMFlavor& newFlavor);
  CIMQualifierType& removeFlavor(const Int32 flavor);
  bool hasFlavor(const CIMFlavor& flavorToFind) const;
  virtual String getName() const;
  virtual void setName(const CIMName& name);
  virtual String toString() const;
  virtual String toMOF() const;

 private:
  COWIntrusiveReference<QUALTData> m_pdata;
};

}  // namespace OW_NAMESPACE

#endif
