// Named qualifier with an optional value, attached to instances and properties.
#ifndef OW_CIMQUALIFIER_HPP_INCLUDE_GUARD_
#define OW_CIMQUALIFIER_HPP_INCLUDE_GUARD_
#include "OW_CIMElement.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMQualifier : public CIMElement {
 public:
  struct QUALData;

  static const char* const CIM_QUAL_ASSOCIATION;
  static const char* const CIM_QUAL_ABSTRACT;
  static const char* const CIM_QUAL_AGGREGATE;
  static const char* const CIM_QUAL_AGGREGATION;
  static const char* const CIM_QUAL_DESCRIPTION;
  static const char* const CIM_QUAL_IN;
  static const char* const CIM_QUAL_INDICATION;
  static const char* const CIM_QUAL_KEY;
  static const char* const CIM_QUAL_OUT;
  static const char* const CIM_QUAL_OVERRIDE;
  static const char* const CIM_QUAL_PROVIDER;
  static const char* const CIM_QUAL_REQUIRED;
  static const char* const CIM_QUAL_STATIC;
  static const char* const CIM_QUAL_UNITS;
  static const char* const CIM_QUAL_VALUEMAP;
  static const char* const CIM_QUAL_VALUES;
  static const char* const CIM_QUAL_WRITE;

  static CIMQualifier createKeyQualifier();

  CIMQualifier();
  explicit CIMQualifier(CIMNULL_t);
  CIMQualifier(const CIMName& name);
  CIMQualifier(const char* name);
  CIMQualifier(const CIMQualifierType& cgt);
  CIMQualifier(const CIMQualifier& x);
  ~CIMQualifier();
  CIMQualifier& operator=(const CIMQualifier& x);

  typedef COWIntrusiveReference<QUALData> CIMQualifier::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  virtual void setNull();
  bool isKeyQualifier() const;
  bool isAssociationQualifier() const;
  CIMValue getValue() const;
  CIMValue getValueT() const;
  CIMQualifier& setValue(const CIMValue& value);
  CIMQualifier& setDefaults(const CIMQualifierType& qtype);
  CIMQualifierType getDefaults() const;
  bool hasFlavor(const CIMFlavor& flavor) const;
  CIMQualifier& addFlavor(const CIMFlavor& flavor);
  CIMQualifier& removeFlavor(Int32 flavor);
  bool hasValue() const;
  bool equals(const CIMQualifier& arg) const;
  CIMFlavorArray getFlavor() const;
  CIMQualifier& setPropagated(bool propagated = true);
  bool getPropagated() const;
  CIMQualifier& setLanguage(const String& language);
  String getLanguage() const;
  virtual String getName() const;
  virtual void setName(const CIMName& name);
  virtual String toString() const;
  virtual String toMOF() const;

  friend bool operator<(const CIMQualifier& x, const CIMQualifier& y);

 private:
  COWIntrusiveReference<QUALData> m_pdata;
};

bool operator<(const CIMQualifier& x, const CIMQualifier& y);

}  // namespace OW_NAMESPACE

#endif
