// CIMQualifierType and CIMFlavor: the declaration side of qualifiers.
#include "OW_CIMQualifierType.hpp"

#include "OW_CIMFlavor.hpp"
#include "OW_CIMValue.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"

namespace OW_NAMESPACE {

struct CIMQualifierType::QUALTData : public COWIntrusiveCountableBase {
  String name;
  CIMDataType dataType;
  CIMValue defaultValue = CIMValue(CIMNULL);
  CIMFlavorArray flavors;
};

CIMQualifierType::CIMQualifierType() : m_pdata(new QUALTData) {}
CIMQualifierType::CIMQualifierType(CIMNULL_t) : m_pdata(0) {}
CIMQualifierType::CIMQualifierType(const CIMName& name) : m_pdata(new QUALTData) {
  m_pdata->name = name.toString();
}
CIMQualifierType::CIMQualifierType(const char* name) : CIMQualifierType(CIMName(name)) {}
CIMQualifierType::CIMQualifierType(const CIMQualifierType& x) : CIMElement(), m_pdata(x.m_pdata) {}
CIMQualifierType::~CIMQualifierType() {}

CIMQualifierType& CIMQualifierType::operator=(const CIMQualifierType& x) {
  m_pdata = x.m_pdata;
  return *this;
}

CIMQualifierType::operator safe_bool() const {
  return m_pdata ? &CIMQualifierType::m_pdata : 0;
}
bool CIMQualifierType::operator!() const {
  return !m_pdata;
}
void CIMQualifierType::setNull() {
  m_pdata = 0;
}
CIMDataType CIMQualifierType::getDataType() const {
  return m_pdata->dataType;
}
Int32 CIMQualifierType::getDataSize() const {
  return m_pdata->dataType.getSize();
}

CIMQualifierType& CIMQualifierType::setDataType(const CIMDataType& dataType) {
  m_pdata->dataType = dataType;
  return *this;
}

CIMQualifierType& CIMQualifierType::setDataType(const CIMDataType::Type& dataType) {
  return setDataType(CIMDataType(dataType));
}

CIMValue CIMQualifierType::getDefaultValue() const {
  return m_pdata->defaultValue;
}

CIMQualifierType& CIMQualifierType::setDefaultValue(const CIMValue& defValue) {
  m_pdata->defaultValue = defValue;
  return *this;
}

bool CIMQualifierType::hasDefaultValue() const {
  return bool(m_pdata->defaultValue);
}
CIMFlavorArray CIMQualifierType::getFlavors() const {
  return m_pdata->flavors;
}

CIMQualifierType& CIMQualifierType::addFlavor(const CIMFlavor& newFlavor) {
  if (newFlavor.isValid() && !hasFlavor(newFlavor)) {
    m_pdata->flavors.push_back(newFlavor);
  }
  return *this;
}

CIMQualifierType& CIMQualifierType::removeFlavor(const Int32 flavor) {
  for (size_t i = 0; i < m_pdata->flavors.size(); ++i) {
    if (m_pdata->flavors[i].getFlavor() == flavor) {
      m_pdata->flavors.remove(i);
      break;
    }
  }
  return *this;
}

bool CIMQualifierType::hasFlavor(const CIMFlavor& flavorToFind) const {
  for (size_t i = 0; i < m_pdata->flavors.size(); ++i) {
    if (m_pdata->flavors[i].getFlavor() == flavorToFind.getFlavor()) {
      return true;
    }
  }
  return false;
}

String CIMQualifierType::getName() const {
  return m_pdata->name;
}
void CIMQualifierType::setName(const CIMName& name) {
  m_pdata->name = name.toString();
}
String CIMQualifierType::toString() const {
  return toMOF();
}

String CIMQualifierType::toMOF() const {
  String out = String("Qualifier ") + m_pdata->name + " : " + m_pdata->dataType.toMOF();
  if (m_pdata->defaultValue) {
    out += String(" = ") + m_pdata->defaultValue.toMOF();
  }
  return out + ";";
}

namespace {
const char* const kFlavorNames[] = {"EnableOverride", "DisableOverride", "Restricted", "ToSubclass",
                                    "Translatable"};
}  // namespace

CIMFlavor::CIMFlavor(Flavor flavor) : m_flavor(flavor) {}
CIMFlavor::CIMFlavor() : m_flavor(INVALID) {}
void CIMFlavor::setNull() {
  m_flavor = INVALID;
}

bool CIMFlavor::isValid() const {
  return m_flavor == ENABLEOVERRIDE || m_flavor == DISABLEOVERRIDE || m_flavor == RESTRICTED ||
         m_flavor == TOSUBCLASS || m_flavor == TRANSLATE;
}

Int32 CIMFlavor::getFlavor() const {
  return m_flavor;
}

String CIMFlavor::toString() const {
  for (int bit = 0; bit < 5; ++bit) {
    if (m_flavor == (1 << bit)) {
      return String(kFlavorNames[bit]);
    }
  }
  return String("BAD FLAVOR");
}

String CIMFlavor::toMOF() const {
  return toString();
}
bool CIMFlavor::equals(const CIMFlavor& arg) const {
  return m_flavor == arg.m_flavor;
}
bool CIMFlavor::operator==(const CIMFlavor& arg) const {
  return equals(arg);
}
bool CIMFlavor::operator!=(const CIMFlavor& arg) const {
  return !equals(arg);
}

}  // namespace OW_NAMESPACE
