// CIMObjectPath: namespace, class and keys; equality ignores case and key order.
#include "OW_CIMObjectPath.hpp"

#include <cctype>

#include "OW_CIMInstance.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_NamedLookup.hpp"
#include "OW_NoSuchPropertyException.hpp"

namespace OW_NAMESPACE {

struct CIMObjectPath::OPData : public COWIntrusiveCountableBase {
  String host;
  String nameSpace;
  String className;
  CIMPropertyArray keys;
};

namespace {
const char* const kNoSuchKeyMsg = "No such key: ";

// Keys travel without qualifiers.
CIMPropertyArray stripped(const CIMPropertyArray& keys) {
  CIMPropertyArray out;
  for (size_t i = 0; i < keys.size(); ++i) {
    CIMProperty k(keys[i]);
    k.clearQualifiers();
    out.push_back(k);
  }
  return out;
}

bool sameKeys(const CIMPropertyArray& a, const CIMPropertyArray& b) {
  if (a.size() != b.size()) {
    return false;
  }
  for (size_t i = 0; i < a.size(); ++i) {
    size_t j = findNamed(b, a[i].getName());
    if (j == kNotFound || !a[i].getValue().equal(b[j].getValue())) {
      return false;
    }
  }
  return true;
}
}  // namespace

CIMObjectPath::CIMObjectPath() : m_pdata(new OPData) {}
CIMObjectPath::CIMObjectPath(CIMNULL_t) : m_pdata(0) {}
CIMObjectPath::CIMObjectPath(const char* className) : CIMObjectPath(CIMName(className)) {}
CIMObjectPath::CIMObjectPath(const CIMName& className) : m_pdata(new OPData) {
  m_pdata->className = className.toString();
}

CIMObjectPath::CIMObjectPath(const CIMName& className, const String& nspace)
    : CIMObjectPath(className) {
  setNameSpace(nspace);
}

CIMObjectPath::CIMObjectPath(const CIMName& className, const CIMPropertyArray& keys)
    : CIMObjectPath(className) {
  setKeys(keys);
}

CIMObjectPath::CIMObjectPath(const String& ns, const CIMInstance& inst)
    : CIMObjectPath(CIMName(inst.getClassName())) {
  setNameSpace(ns);
  setKeys(inst.getKeyValuePairs());
}

CIMObjectPath::CIMObjectPath(const CIMObjectPath& arg) : CIMBase(), m_pdata(arg.m_pdata) {}
CIMObjectPath::~CIMObjectPath() {}
void CIMObjectPath::setNull() {
  m_pdata = 0;
}

CIMObjectPath& CIMObjectPath::operator=(const CIMObjectPath& x) {
  m_pdata = x.m_pdata;
  return *this;
}

CIMObjectPath::operator safe_bool() const {
  return m_pdata ? &CIMObjectPath::m_pdata : 0;
}
bool CIMObjectPath::operator!() const {
  return !m_pdata;
}

// Appends even when a key of that name exists already.
CIMObjectPath& CIMObjectPath::addKey(const CIMName& keyname, const CIMValue& value) {
  if (value) {
    m_pdata->keys.push_back(CIMProperty(keyname, value));
  }
  return *this;
}

CIMObjectPath& CIMObjectPath::addKey(const CIMProperty& key) {
  if (key.getValue()) {
    m_pdata->keys.push_back(key);
  }
  return *this;
}

CIMPropertyArray CIMObjectPath::getKeys() const {
  return m_pdata->keys;
}

CIMProperty CIMObjectPath::getKey(const CIMName& keyName) const {
  size_t i = findNamed(m_pdata->keys, keyName);
  return i == kNotFound ? CIMProperty(CIMNULL) : m_pdata->keys[i];
}

CIMProperty CIMObjectPath::getKeyT(const CIMName& keyName) const {
  CIMProperty p = getKey(keyName);
  if (!p) {
    String msg = String(kNoSuchKeyMsg) + keyName.toString();
    OW_THROW(NoSuchPropertyException, msg.c_str());
  }
  return p;
}

CIMValue CIMObjectPath::getKeyValue(const CIMName& name) const {
  CIMProperty p = getKey(name);
  return p ? p.getValue() : CIMValue(CIMNULL);
}

bool CIMObjectPath::keyHasValue(const CIMName& name) const {
  return bool(getKeyValue(name));
}

CIMObjectPath& CIMObjectPath::setKeys(const CIMPropertyArray& newKeys) {
  m_pdata->keys = stripped(newKeys);
  return *this;
}

CIMObjectPath& CIMObjectPath::setKeys(const CIMInstance& instance) {
  return setKeys(instance.getKeyValuePairs());
}

// Updates an existing key (converting to its type) or appends one; the value must be set.
CIMObjectPath& CIMObjectPath::setKeyValue(const CIMName& name, const CIMValue& value) {
  if (!value) {
    COWIntrusiveReferenceHelpers::throwNULLException();
  }
  size_t i = findNamed(m_pdata->keys, name);
  if (i == kNotFound) {
    m_pdata->keys.push_back(CIMProperty(name, value));
  } else {
    m_pdata->keys[i].setValue(value);
  }
  return *this;
}

String CIMObjectPath::getNameSpace() const {
  return m_pdata->nameSpace;
}
String CIMObjectPath::getHost() const {
  return m_pdata->host;
}
String CIMObjectPath::getClassName() const {
  return m_pdata->className;
}
String CIMObjectPath::getObjectName() const {
  return m_pdata->className;
}

CIMObjectPath& CIMObjectPath::setHost(const String& host) {
  m_pdata->host = host;
  return *this;
}

CIMObjectPath& CIMObjectPath::setNameSpace(const String& ns) {
  String tmp(ns);
  tmp.trim();
  size_t start = 0;
  while (start < tmp.length() && (tmp.charAt(start) == '/' ||
                                  std::isspace(static_cast<unsigned char>(tmp.charAt(start))))) {
    ++start;
  }
  m_pdata->nameSpace = tmp.substring(start);
  return *this;
}

CIMObjectPath& CIMObjectPath::setClassName(const CIMName& className) {
  m_pdata->className = className.toString();
  return *this;
}

CIMObjectPath& CIMObjectPath::setObjectName(const CIMName& className) {
  return setClassName(className);
}

// Two null paths are equal; comparing a null with a non-null path hits the null check.
bool CIMObjectPath::equals(const CIMObjectPath& op) const {
  if (!m_pdata && !op.m_pdata) {
    return true;
  }
  const OPData& a = *m_pdata;
  const OPData& b = *op.m_pdata;
  return a.nameSpace.equalsIgnoreCase(b.nameSpace) && a.className.equalsIgnoreCase(b.className) &&
         sameKeys(a.keys, b.keys);
}

bool CIMObjectPath::isClassPath() const {
  return m_pdata->keys.empty();
}
bool CIMObjectPath::isInstancePath() const {
  return !m_pdata->keys.empty();
}

bool operator<(const CIMObjectPath& lhs, const CIMObjectPath& rhs) {
  return lhs.toString().compareToIgnoreCase(rhs.toString()) < 0;
}

}  // namespace OW_NAMESPACE
