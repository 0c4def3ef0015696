// CIMClass: name, superclass, qualifiers and properties; instances built from it.
#include "OW_CIMClass.hpp"

#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_NamedLookup.hpp"

namespace OW_NAMESPACE {

struct CIMClass::CLSData : public COWIntrusiveCountableBase {
  String name;
  String parentClassName;
  CIMQualifierArray qualifiers;
  CIMPropertyArray properties;
};

namespace {
const char* const kDuplicatePropertyMsg = "Property already exists: ";
const char* const kDuplicateQualifierMsg = "Qualifier already exists: ";
}  // namespace

CIMClass::CIMClass() : m_pdata(new CLSData) {}
CIMClass::CIMClass(CIMNULL_t) : m_pdata(0) {}
CIMClass::CIMClass(const CIMClass& x) : CIMElement(), m_pdata(x.m_pdata) {}
CIMClass::CIMClass(const CIMName& name) : m_pdata(new CLSData) {
  m_pdata->name = name.toString();
}
CIMClass::CIMClass(const char* name) : CIMClass(CIMName(name)) {}
CIMClass::~CIMClass() {}

CIMClass& CIMClass::operator=(const CIMClass& x) {
  m_pdata = x.m_pdata;
  return *this;
}

void CIMClass::setNull() {
  m_pdata = 0;
}
CIMClass::operator safe_bool() const {
  return m_pdata ? &CIMClass::m_pdata : 0;
}
bool CIMClass::operator!() const {
  return !m_pdata;
}
String CIMClass::getSuperClass() const {
  return m_pdata->parentClassName;
}

CIMClass& CIMClass::setSuperClass(const CIMName& pname) {
  m_pdata->parentClassName = pname.toString();
  return *this;
}

bool CIMClass::isKeyed() const {
  return !getKeys().empty();
}

bool CIMClass::isAssociation() const {
  CIMQualifier q = getQualifier(CIMQualifier::CIM_QUAL_ASSOCIATION);
  return q && q.isAssociationQualifier();
}

CIMPropertyArray CIMClass::getKeys() const {
  CIMPropertyArray keys;
  for (size_t i = 0; i < m_pdata->properties.size(); ++i) {
    if (m_pdata->properties[i].isKey()) {
      keys.push_back(m_pdata->properties[i]);
    }
  }
  return keys;
}

CIMQualifier CIMClass::getQualifier(const CIMName& name) const {
  size_t i = findNamed(m_pdata->qualifiers, name);
  return i == kNotFound ? CIMQualifier(CIMNULL) : m_pdata->qualifiers[i];
}

CIMProperty CIMClass::getProperty(const CIMName& name) const {
  size_t i = findNamed(m_pdata->properties, name);
  return i == kNotFound ? CIMProperty(CIMNULL) : m_pdata->properties[i];
}

CIMPropertyArray CIMClass::getAllProperties() const {
  return m_pdata->properties;
}
CIMQualifierArray CIMClass::getQualifiers() const {
  return m_pdata->qualifiers;
}

CIMClass& CIMClass::addProperty(const CIMProperty& prop) {
  if (findNamed(m_pdata->properties, prop.getName()) != kNotFound) {
    String msg = String(kDuplicatePropertyMsg) + prop.getName();
    OW_THROWCIMMSG(CIMException::ALREADY_EXISTS, msg.c_str());
  }
  m_pdata->properties.push_back(prop);
  return *this;
}

CIMClass& CIMClass::addQualifier(const CIMQualifier& qual) {
  if (findNamed(m_pdata->qualifiers, qual.getName()) != kNotFound) {
    String msg = String(kDuplicateQualifierMsg) + qual.getName();
    OW_THROWCIMMSG(CIMException::ALREADY_EXISTS, msg.c_str());
  }
  m_pdata->qualifiers.push_back(qual);
  return *this;
}

// Every class property with its qualifiers and default value; the key list is built.
CIMInstance CIMClass::newInstance() const {
  CIMInstance inst(CIMName(m_pdata->name));
  inst.setProperties(m_pdata->properties);
  return inst;
}

String CIMClass::getName() const {
  return m_pdata->name;
}
void CIMClass::setName(const CIMName& name) {
  m_pdata->name = name.toString();
}
String CIMClass::toString() const {
  return toMOF();
}

String CIMClass::toMOF() const {
  String out;
  for (size_t i = 0; i < m_pdata->qualifiers.size(); ++i) {
    out += (i == 0 ? "[" : ", ") + m_pdata->qualifiers[i].toMOF();
  }
  out += m_pdata->qualifiers.empty() ? "" : "]\n";
  out += String("class ") + m_pdata->name;
  if (!m_pdata->parentClassName.empty()) {
    out += String(" : ") + m_pdata->parentClassName;
  }
  out += "\n{\n";
  for (size_t i = 0; i < m_pdata->properties.size(); ++i) {
    out += m_pdata->properties[i].toMOF();
  }
  return out + "};\n";
}

bool operator<(const CIMClass& x, const CIMClass& y) {
  return x.getName().compareToIgnoreCase(y.getName()) < 0;
}

// Keeps the class's properties only, in the class's types and with its qualifiers.
CIMInstance& CIMInstance::syncWithClass(const CIMClass& cc,
                                        WBEMFlags::EIncludeQualifiersFlag includeQualifiers) {
  if (!cc) {
    return *this;
  }
  CIMPropertyArray classProps = cc.getAllProperties();
  CIMPropertyArray synced;
  for (size_t i = 0; i < classProps.size(); ++i) {
    CIMProperty p = classProps[i];
    CIMProperty mine = getProperty(p.getName());
    if (mine) {
      p.setValue(mine.getValue());
    }
    if (includeQualifiers == WBEMFlags::E_EXCLUDE_QUALIFIERS) {
      p.clearNonKeyQualifiers();
    }
    synced.push_back(p);
  }
  return setProperties(synced);
}

}  // namespace OW_NAMESPACE
