// CIMInstance: properties by name and the implicit key list.
#include "OW_CIMInstance.hpp"

#include "OW_CIMInstanceData.hpp"
#include "OW_CIMValue.hpp"
#include "OW_NamedLookup.hpp"
#include "OW_NoSuchPropertyException.hpp"

namespace OW_NAMESPACE {

namespace {
const char* const kNoSuchPropertyMsg = "No such property: ";
}  // namespace

CIMInstance::CIMInstance() : m_pdata(new INSTData) {}
CIMInstance::CIMInstance(CIMNULL_t) : m_pdata(0) {}
CIMInstance::CIMInstance(const CIMInstance& x) : CIMElement(), m_pdata(x.m_pdata) {}
CIMInstance::CIMInstance(const CIMName& name) : m_pdata(new INSTData) {
  m_pdata->className = name.toString();
}
CIMInstance::CIMInstance(const char* name) : CIMInstance(CIMName(name)) {}
CIMInstance::~CIMInstance() {}

CIMInstance& CIMInstance::operator=(const CIMInstance& x) {
  m_pdata = x.m_pdata;
  return *this;
}

void CIMInstance::setNull() {
  m_pdata = 0;
}
CIMInstance::operator safe_bool() const {
  return m_pdata ? &CIMInstance::m_pdata : 0;
}
bool CIMInstance::operator!() const {
  return !m_pdata;
}

CIMInstance& CIMInstance::setKeys(const CIMPropertyArray& keys) {
  m_pdata->keys = keys;
  return *this;
}

void CIMInstance::rebuildKeys() {
  CIMPropertyArray keys;
  const CIMPropertyArray& props = m_pdata->properties;
  for (size_t i = 0; i < props.size(); ++i) {
    if (props[i].isKey()) {
      keys.push_back(props[i]);
    }
  }
  m_pdata->keys = keys;
}

CIMPropertyArray CIMInstance::getKeyValuePairs() const {
  return m_pdata->keys;
}

CIMPropertyArray CIMInstance::getProperties(Int32 valueDataType) const {
  if (valueDataType == CIMDataType::INVALID) {
    return m_pdata->properties;
  }
  CIMPropertyArray out;
  const CIMPropertyArray& props = m_pdata->properties;
  for (size_t i = 0; i < props.size(); ++i) {
    if (props[i].getDataType().getType() == valueDataType) {
      out.push_back(props[i]);
    }
  }
  return out;
}

CIMInstance& CIMInstance::setProperties(const CIMPropertyArray& props) {
  m_pdata->properties = props;
  rebuildKeys();
  return *this;
}

CIMProperty CIMInstance::getProperty(const CIMName& name, const CIMName& originClass) const {
  const CIMPropertyArray& props = m_pdata->properties;
  for (size_t i = 0; i < props.size(); ++i) {
    if (CIMName(props[i].getName()) == name && CIMName(props[i].getOriginClass()) == originClass) {
      return props[i];
    }
  }
  return CIMProperty(CIMNULL);
}

CIMProperty CIMInstance::getProperty(const CIMName& name) const {
  size_t i = findNamed(m_pdata->properties, name);
  return i == kNotFound ? CIMProperty(CIMNULL) : m_pdata->properties[i];
}

CIMProperty CIMInstance::getPropertyT(const CIMName& name) const {
  CIMProperty p = getProperty(name);
  if (!p) {
    String msg = String(kNoSuchPropertyMsg) + name.toString();
    OW_THROW_ERR(NoSuchPropertyException, msg.c_str(), E_INSTANCE_HAS_NO_SUCH_PROPERTY);
  }
  return p;
}

CIMValue CIMInstance::getPropertyValue(const CIMName& name) const {
  CIMProperty p = getProperty(name);
  return p ? p.getValue() : CIMValue(CIMNULL);
}

bool CIMInstance::propertyHasValue(const CIMName& name) const {
  return bool(getPropertyValue(name));
}

CIMInstance& CIMInstance::updatePropertyValues(const CIMPropertyArray& props) {
  for (size_t i = 0; i < props.size(); ++i) {
    updatePropertyValue(props[i]);
  }
  return *this;
}

CIMInstance& CIMInstance::updatePropertyValue(const CIMProperty& prop) {
  return updatePropertyValue(prop.getName(), prop.getValue());
}

// Changes an existing property only; the value must not be null.
CIMInstance& CIMInstance::updatePropertyValue(const CIMName& name, const CIMValue& cv) {
  if (!cv) {
    COWIntrusiveReferenceHelpers::throwNULLException();
  }
  size_t i = findNamed(m_pdata->properties, name);
  if (i != kNotFound) {
    m_pdata->properties[i].setValue(cv);
    if (m_pdata->properties[i].isKey()) {
      rebuildKeys();
    }
  }
  return *this;
}

// An existing property keeps its type (the value is converted); a new one takes the
// value's type and no qualifiers, so it never joins the key list here.
CIMInstance& CIMInstance::setProperty(const CIMName& name, const CIMValue& cv) {
  size_t i = findNamed(m_pdata->properties, name);
  if (i != kNotFound) {
    m_pdata->properties[i].setValue(cv);
    if (m_pdata->properties[i].isKey()) {
      rebuildKeys();
    }
  } else if (cv) {
    m_pdata->properties.push_back(CIMProperty(name, cv));
  } else {
    m_pdata->properties.push_back(CIMProperty(name));
  }
  return *this;
}

CIMInstance& CIMInstance::setProperty(const CIMProperty& prop) {
  size_t i = findNamed(m_pdata->properties, prop.getName());
  bool wasKey = false;
  if (i != kNotFound) {
    wasKey = m_pdata->properties[i].isKey();
    m_pdata->properties[i] = prop;
  } else {
    m_pdata->properties.push_back(prop);
  }
  if (wasKey || prop.isKey()) {
    rebuildKeys();
  }
  return *this;
}

CIMInstance& CIMInstance::removeProperty(const CIMName& propName) {
  size_t i = findNamed(m_pdata->properties, propName);
  if (i != kNotFound) {
    bool wasKey = m_pdata->properties[i].isKey();
    m_pdata->properties.remove(i);
    if (wasKey) {
      rebuildKeys();
    }
  }
  return *this;
}

bool CIMInstance::propertiesAreEqualTo(const CIMInstance& other) const {
  const CIMPropertyArray& mine = m_pdata->properties;
  if (mine.size() != other.m_pdata->properties.size()) {
    return false;
  }
  for (size_t i = 0; i < mine.size(); ++i) {
    CIMProperty theirs = other.getProperty(mine[i].getName());
    if (!theirs || !mine[i].getValue().equal(theirs.getValue())) {
      return false;
    }
  }
  return true;
}

}  // namespace OW_NAMESPACE
