// CIMProperty: name, declared type, value converted to that type, and qualifiers.
#include "OW_CIMProperty.hpp"

#include "OW_CIMException.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "OW_CIMValueCast.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_NULLValueException.hpp"
#include "OW_NamedLookup.hpp"
#include "OW_NoSuchQualifierException.hpp"

namespace OW_NAMESPACE {

struct CIMProperty::PROPData : public COWIntrusiveCountableBase {
  String name;
  CIMQualifierArray qualifiers;
  CIMDataType dataType;
  Int32 sizeDataType = -1;
  String overridingProperty;
  String originClass;
  CIMValue value = CIMValue(CIMNULL);
  bool propagated = false;
};

const char* const CIMProperty::NAME_PROPERTY = "Name";

namespace {
const char* const kDuplicateQualifierMsg = "Qualifier already exists: ";
const char* const kNullPropertyValueMsg = "Property has no value: ";
const char* const kNoSuchQualifierMsg = "No such qualifier: ";
}  // namespace

CIMProperty::CIMProperty() : m_pdata(new PROPData) {}
CIMProperty::CIMProperty(CIMNULL_t) : m_pdata(0) {}
CIMProperty::CIMProperty(const CIMProperty& arg) : CIMElement(), m_pdata(arg.m_pdata) {}
CIMProperty::CIMProperty(const CIMName& name) : m_pdata(new PROPData) {
  m_pdata->name = name.toString();
}
CIMProperty::CIMProperty(const char* name) : CIMProperty(CIMName(name)) {}

// The declared type comes from the value, which therefore must not be null.
CIMProperty::CIMProperty(const CIMName& name, const CIMValue& value) : m_pdata(new PROPData) {
  m_pdata->name = name.toString();
  m_pdata->dataType = value.getCIMDataType();
  m_pdata->value = value;
}

CIMProperty::CIMProperty(const CIMName& name, const CIMDataType& dt) : m_pdata(new PROPData) {
  m_pdata->name = name.toString();
  m_pdata->dataType = dt;
}

CIMProperty::~CIMProperty() {}
void CIMProperty::setNull() {
  m_pdata = 0;
}

CIMProperty& CIMProperty::operator=(const CIMProperty& arg) {
  m_pdata = arg.m_pdata;
  return *this;
}

CIMProperty::operator safe_bool() const {
  return m_pdata ? &CIMProperty::m_pdata : 0;
}
bool CIMProperty::operator!() const {
  return !m_pdata;
}
CIMQualifierArray CIMProperty::getQualifiers() const {
  return m_pdata->qualifiers;
}

CIMProperty& CIMProperty::setQualifiers(const CIMQualifierArray& quals) {
  m_pdata->qualifiers = quals;
  return *this;
}

String CIMProperty::getOriginClass() const {
  return m_pdata->originClass;
}

CIMProperty& CIMProperty::setOriginClass(const CIMName& originCls) {
  m_pdata->originClass = originCls.toString();
  return *this;
}

// A value of another type than the declared one is converted to the declared type;
// an untyped property takes the value's type.
CIMProperty& CIMProperty::setValue(const CIMValue& val) {
  PROPData& d = *m_pdata;
  if (d.dataType && val &&
      (val.getType() != d.dataType.getType() || val.isArray() != d.dataType.isArrayType())) {
    d.value = CIMValueCast::castValueToDataType(val, d.dataType);
  } else {
    d.value = val;
  }
  if (!d.dataType && d.value) {
    d.dataType = d.value.getCIMDataType();
  }
  return *this;
}

CIMValue CIMProperty::getValue() const {
  return m_pdata->value;
}

CIMValue CIMProperty::getValueT() const {
  if (!m_pdata->value) {
    String msg = String(kNullPropertyValueMsg) + m_pdata->name;
    OW_THROW(NULLValueException, msg.c_str());
  }
  return m_pdata->value;
}

CIMProperty& CIMProperty::setDataType(const CIMDataType& type) {
  m_pdata->dataType = type;
  if (m_pdata->value && type) {
    m_pdata->value = CIMValueCast::castValueToDataType(m_pdata->value, type);
  }
  return *this;
}

CIMProperty& CIMProperty::setDataType(const CIMDataType::Type& type) {
  return setDataType(CIMDataType(type));
}

CIMDataType CIMProperty::getDataType() const {
  return m_pdata->dataType;
}
Int32 CIMProperty::getSize() const {
  return m_pdata->sizeDataType;
}

CIMProperty& CIMProperty::setDataSize(Int32 size) {
  m_pdata->sizeDataType = size;
  return *this;
}

CIMProperty& CIMProperty::setOverridingProperty(const CIMName& opname) {
  m_pdata->overridingProperty = opname.toString();
  return *this;
}

String CIMProperty::getOverridingProperty() const {
  return m_pdata->overridingProperty;
}
bool CIMProperty::isReference() const {
  return m_pdata->dataType.isReferenceType();
}

CIMQualifier CIMProperty::getQualifier(const CIMName& name) const {
  size_t i = findNamed(m_pdata->qualifiers, name);
  return i == kNotFound ? CIMQualifier(CIMNULL) : m_pdata->qualifiers[i];
}

CIMQualifier CIMProperty::getQualifierT(const CIMName& name) const {
  CIMQualifier q = getQualifier(name);
  if (!q) {
    String msg = String(kNoSuchQualifierMsg) + name.toString();
    OW_THROW(NoSuchQualifierException, msg.c_str());
  }
  return q;
}

CIMProperty& CIMProperty::setQualifier(const CIMQualifier& qual) {
  if (!qual) {
    return *this;
  }
  putNamed(m_pdata->qualifiers, qual);
  return *this;
}

CIMProperty& CIMProperty::addQualifier(const CIMQualifier& qual) {
  if (findNamed(m_pdata->qualifiers, qual.getName()) != kNotFound) {
    String msg = String(kDuplicateQualifierMsg) + qual.getName();
    OW_THROWCIMMSG(CIMException::ALREADY_EXISTS, msg.c_str());
  }
  m_pdata->qualifiers.push_back(qual);
  return *this;
}

bool CIMProperty::removeQualifier(const CIMName& name) {
  size_t i = findNamed(m_pdata->qualifiers, name);
  if (i == kNotFound) {
    return false;
  }
  m_pdata->qualifiers.remove(i);
  return true;
}

CIMProperty& CIMProperty::clearQualifiers() {
  m_pdata->qualifiers.clear();
  return *this;
}

CIMProperty& CIMProperty::clearNonKeyQualifiers() {
  CIMQualifier key = getQualifier(CIMQualifier::CIM_QUAL_KEY);
  m_pdata->qualifiers.clear();
  if (key) {
    m_pdata->qualifiers.push_back(key);
  }
  return *this;
}

CIMProperty& CIMProperty::setPropagated(bool propagated) {
  m_pdata->propagated = propagated;
  return *this;
}

bool CIMProperty::getPropagated() const {
  return m_pdata->propagated;
}
String CIMProperty::getName() const {
  return m_pdata->name;
}
void CIMProperty::setName(const CIMName& name) {
  m_pdata->name = name.toString();
}

}  // namespace OW_NAMESPACE
