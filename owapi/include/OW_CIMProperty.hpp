// Named, typed property with qualifiers; values are converted to the declared type.
#ifndef OW_CIMPROPERTY_HPP_INCLUDE_GUARD_
#define OW_CIMPROPERTY_HPP_INCLUDE_GUARD_
#include "OW_CIMDataType.hpp"
#include "OW_CIMElement.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_WBEMFlags.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMProperty : public CIMElement {
 public:
  struct PROPData;

  static const char* const NAME_PROPERTY;

  CIMProperty();
  explicit CIMProperty(CIMNULL_t);
  CIMProperty(const CIMProperty& arg);
  explicit CIMProperty(const CIMName& name);
  explicit CIMProperty(const char* name);
  CIMProperty(const CIMName& name, const CIMValue& value);
  CIMProperty(const CIMName& name, const CIMDataType& dt);
  ~CIMProperty();
  virtual void setNull();
  CIMProperty& operator=(const CIMProperty& arg);

  typedef COWIntrusiveReference<PROPData> CIMProperty::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  CIMQualifierArray getQualifiers() const;
  CIMProperty& setQualifiers(const CIMQualifierArray& quals);
  String getOriginClass() const;
  CIMProperty& setOriginClass(const CIMName& originCls);
  CIMProperty& setValue(const CIMValue& val);
  CIMValue getValue() const;
  CIMValue getValueT() const;
  CIMProperty& setDataType(const CIMDataType& type);
  CIMProperty& setDataType(const CIMDataType::Type& type);
  CIMDataType getDataType() const;
  Int32 getSize() const;
  CIMProperty& setDataSize(Int32 size);
  CIMProperty& setOverridingProperty(const CIMName& opname);
  String getOverridingProperty() const;
  bool isReference() const;
  CIMQualifier getQualifier(const CIMName& name) const;
  CIMQualifier getQualifierT(const CIMName& name) const;
  CIMProperty& setQualifier(const CIMQualifier& qual);
  CIMProperty& addQualifier(const CIMQualifier& qual);
  bool removeQualifier(const CIMName& name);
  CIMProperty& clearQualifiers();
  CIMProperty& clearNonKeyQualifiers();
  CIMProperty& setPropagated(bool propagated = true);
  bool getPropagated() const;
  CIMProperty clone() const;
  CIMProperty clone(WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                    WBEMFlags::EIncludeClassOriginFlag includeClassOrigin) const;
  CIMProperty filter(WBEMFlags::ELocalOnlyFlag localOnly,
                     WBEMFlags::EIncludeQualifiersFlag includeQualifiers) const;
  bool isKey() const;
  bool hasTrueQualifier(const CIMName& name) const;
  virtual String getName() const;
  virtual void setName(const CIMName& name);
  virtual String toString() const;
  virtual String toMOF() const;

  friend bool operator<(const CIMProperty& x, const CIMProperty& y);

 private:
  COWIntrusiveReference<PROPData> m_pdata;
};

bool operator<(const CIMProperty& x, const CIMProperty& y);

}  // namespace OW_NAMESPACE

#endif
