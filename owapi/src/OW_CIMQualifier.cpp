// CIMQualifier: a name, a value stored as given, flavors and an optional declaration.
#include "OW_CIMQualifier.hpp"

#include "OW_Bool.hpp"
#include "OW_CIMFlavor.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_CIMValue.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_NULLValueException.hpp"

namespace OW_NAMESPACE {

struct CIMQualifier::QUALData : public COWIntrusiveCountableBase {
  String name;
  CIMValue value = CIMValue(CIMNULL);
  CIMQualifierType qualifierType = CIMQualifierType(CIMNULL);
  bool propagated = false;
  CIMFlavorArray flavors;
  String language;
};

const char* const CIMQualifier::CIM_QUAL_ASSOCIATION = "Association";
const char* const CIMQualifier::CIM_QUAL_ABSTRACT = "Abstract";
const char* const CIMQualifier::CIM_QUAL_AGGREGATE = "Aggregate";
const char* const CIMQualifier::CIM_QUAL_AGGREGATION = "Aggregation";
const char* const CIMQualifier::CIM_QUAL_DESCRIPTION = "Description";
const char* const CIMQualifier::CIM_QUAL_IN = "In";
const char* const CIMQualifier::CIM_QUAL_INDICATION = "Indication";
const char* const CIMQualifier::CIM_QUAL_KEY = "Key";
const char* const CIMQualifier::CIM_QUAL_OUT = "Out";
const char* const CIMQualifier::CIM_QUAL_OVERRIDE = "Override";
const char* const CIMQualifier::CIM_QUAL_PROVIDER = "Provider";
const char* const CIMQualifier::CIM_QUAL_REQUIRED = "Required";
const char* const CIMQualifier::CIM_QUAL_STATIC = "Static";
const char* const CIMQualifier::CIM_QUAL_UNITS = "Units";
const char* const CIMQualifier::CIM_QUAL_VALUEMAP = "ValueMap";
const char* const CIMQualifier::CIM_QUAL_VALUES = "Values";
const char* const CIMQualifier::CIM_QUAL_WRITE = "Write";

namespace {
const char* const kNullQualifierValueMsg = "Qualifier has no value: ";

bool isTrue(const CIMValue& v) {
  return v && v.getType() == CIMDataType::BOOLEAN && !v.isArray() && v.toBool();
}
}  // namespace

CIMQualifier CIMQualifier::createKeyQualifier() {
  CIMQualifier key(CIM_QUAL_KEY);
  key.setValue(CIMValue(Bool(true)));
  return key;
}

CIMQualifier::CIMQualifier() : m_pdata(new QUALData) {}
CIMQualifier::CIMQualifier(CIMNULL_t) : m_pdata(0) {}
CIMQualifier::CIMQualifier(const CIMName& name) : m_pdata(new QUALData) {
  m_pdata->name = name.toString();
}
CIMQualifier::CIMQualifier(const char* name) : CIMQualifier(CIMName(name)) {}

CIMQualifier::CIMQualifier(const CIMQualifierType& cgt) : m_pdata(new QUALData) {
  m_pdata->name = cgt.getName();
  m_pdata->qualifierType = cgt;
  m_pdata->value = cgt.getDefaultValue();
  m_pdata->flavors = cgt.getFlavors();
}

CIMQualifier::CIMQualifier(const CIMQualifier& x) : CIMElement(), m_pdata(x.m_pdata) {}
CIMQualifier::~CIMQualifier() {}

CIMQualifier& CIMQualifier::operator=(const CIMQualifier& x) {
  m_pdata = x.m_pdata;
  return *this;
}

CIMQualifier::operator safe_bool() const {
  return m_pdata ? &CIMQualifier::m_pdata : 0;
}
bool CIMQualifier::operator!() const {
  return !m_pdata;
}
void CIMQualifier::setNull() {
  m_pdata = 0;
}

bool CIMQualifier::isKeyQualifier() const {
  return m_pdata->name.equalsIgnoreCase(CIM_QUAL_KEY) && isTrue(m_pdata->value);
}

bool CIMQualifier::isAssociationQualifier() const {
  return m_pdata->name.equalsIgnoreCase(CIM_QUAL_ASSOCIATION) && isTrue(m_pdata->value);
}

CIMValue CIMQualifier::getValue() const {
  return m_pdata->value;
}

CIMValue CIMQualifier::getValueT() const {
  if (!m_pdata->value) {
    String msg = String(kNullQualifierValueMsg) + m_pdata->name;
    OW_THROW(NULLValueException, msg.c_str());
  }
  return m_pdata->value;
}

CIMQualifier& CIMQualifier::setValue(const CIMValue& value) {
  m_pdata->value = value;
  return *this;
}

CIMQualifier& CIMQualifier::setDefaults(const CIMQualifierType& qtype) {
  m_pdata->qualifierType = qtype;
  if (!m_pdata->value) {
    m_pdata->value = qtype.getDefaultValue();
  }
  return *this;
}

CIMQualifierType CIMQualifier::getDefaults() const {
  return m_pdata->qualifierType;
}

bool CIMQualifier::hasFlavor(const CIMFlavor& flavor) const {
  for (size_t i = 0; i < m_pdata->flavors.size(); ++i) {
    if (m_pdata->flavors[i].getFlavor() == flavor.getFlavor()) {
      return true;
    }
  }
  return false;
}

CIMQualifier& CIMQualifier::addFlavor(const CIMFlavor& flavor) {
  if (flavor.isValid() && !hasFlavor(flavor)) {
    m_pdata->flavors.push_back(flavor);
  }
  return *this;
}

CIMQualifier& CIMQualifier::removeFlavor(Int32 flavor) {
  CIMFlavorArray& flavors = m_pdata->flavors;
  for (size_t i = 0; i < flavors.size(); ++i) {
    if (flavors[i].getFlavor() == flavor) {
      flavors.remove(i);
      break;
    }
  }
  return *this;
}

bool CIMQualifier::hasValue() const {
  return bool(m_pdata->value);
}

bool CIMQualifier::equals(const CIMQualifier& arg) const {
  return m_pdata->name.equalsIgnoreCase(arg.getName());
}

CIMFlavorArray CIMQualifier::getFlavor() const {
  return m_pdata->flavors;
}

CIMQualifier& CIMQualifier::setPropagated(bool propagated) {
  m_pdata->propagated = propagated;
  return *this;
}

bool CIMQualifier::getPropagated() const {
  return m_pdata->propagated;
}

CIMQualifier& CIMQualifier::setLanguage(const String& language) {
  m_pdata->language = language;
  return *this;
}

String CIMQualifier::getLanguage() const {
  return m_pdata->language;
}
String CIMQualifier::getName() const {
  return m_pdata->name;
}
void CIMQualifier::setName(const CIMName& name) {
  m_pdata->name = name.toString();
}
String CIMQualifier::toString() const {
  return toMOF();
}

String CIMQualifier::toMOF() const {
  String out = m_pdata->name;
  if (m_pdata->value && !isTrue(m_pdata->value)) {
    out += m_pdata->value.isArray() ? String() : String("(");
    out += m_pdata->value.toMOF();
    out += m_pdata->value.isArray() ? String() : String(")");
  }
  return out;
}

bool operator<(const CIMQualifier& x, const CIMQualifier& y) {
  return x.getName().compareToIgnoreCase(y.getName()) < 0;
}

}  // namespace OW_NAMESPACE
