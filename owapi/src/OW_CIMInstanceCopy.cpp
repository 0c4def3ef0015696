// CIMInstance: qualifiers, reduced copies for a request's flags and property list, text.
#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMInstanceData.hpp"
#include "OW_CIMValue.hpp"
#include "OW_NamedLookup.hpp"

namespace OW_NAMESPACE {

using namespace WBEMFlags;

namespace {
bool listed(const StringArray* propertyList, const String& name) {
  if (propertyList == 0) {
    return true;
  }
  for (size_t i = 0; i < propertyList->size(); ++i) {
    if (name.equalsIgnoreCase((*propertyList)[i])) {
      return true;
    }
  }
  return false;
}
}  // namespace

String CIMInstance::getClassName() const {
  return m_pdata->className;
}
String CIMInstance::getLanguage() const {
  return m_pdata->language;
}
void CIMInstance::setLanguage(const String& language) {
  m_pdata->language = language;
}

CIMInstance& CIMInstance::setClassName(const CIMName& name) {
  m_pdata->className = name.toString();
  return *this;
}

CIMQualifierArray CIMInstance::getQualifiers() const {
  return m_pdata->qualifiers;
}

CIMQualifier CIMInstance::getQualifier(const CIMName& qualName) const {
  size_t i = findNamed(m_pdata->qualifiers, qualName);
  return i == kNotFound ? CIMQualifier(CIMNULL) : m_pdata->qualifiers[i];
}

CIMInstance& CIMInstance::removeQualifier(const CIMName& qualName) {
  size_t i = findNamed(m_pdata->qualifiers, qualName);
  if (i != kNotFound) {
    m_pdata->qualifiers.remove(i);
  }
  return *this;
}

CIMInstance& CIMInstance::setQualifiers(const CIMQualifierArray& quals) {
  m_pdata->qualifiers = quals;
  return *this;
}

CIMInstance& CIMInstance::setQualifier(const CIMQualifier& qual) {
  if (!qual) {
    return *this;
  }
  putNamed(m_pdata->qualifiers, qual);
  return *this;
}

CIMInstance& CIMInstance::setNameSpace(const String& ns) {
  m_pdata->nameSpace = ns;
  return *this;
}

String CIMInstance::getNameSpace() const {
  return m_pdata->nameSpace;
}

// A null property list keeps every property, an empty one none; the key list is kept.
CIMInstance CIMInstance::clone(ELocalOnlyFlag localOnly, EIncludeQualifiersFlag includeQualifiers,
                               EIncludeClassOriginFlag includeClassOrigin,
                               const StringArray* propertyList) const {
  CIMInstance copy(*this);
  CIMPropertyArray kept;
  const CIMPropertyArray& props = m_pdata->properties;
  for (size_t i = 0; i < props.size(); ++i) {
    if (!listed(propertyList, props[i].getName())) {
      continue;
    }
    CIMProperty p = props[i].filter(localOnly, includeQualifiers);
    if (p) {
      kept.push_back(p.clone(includeQualifiers, includeClassOrigin));
    }
  }
  copy.m_pdata->properties = kept;
  if (includeQualifiers == E_EXCLUDE_QUALIFIERS) {
    copy.m_pdata->qualifiers.clear();
  }
  return copy;
}

CIMInstance CIMInstance::clone(ELocalOnlyFlag localOnly, EDeepFlag,
                               EIncludeQualifiersFlag includeQualifiers,
                               EIncludeClassOriginFlag includeClassOrigin,
                               const StringArray* propertyList, const CIMClass&,
                               const CIMClass&) const {
  return clone(localOnly, includeQualifiers, includeClassOrigin, propertyList);
}

// Here an empty list means every property, unless noProps asks for none.
CIMInstance CIMInstance::clone(ELocalOnlyFlag localOnly, EIncludeQualifiersFlag includeQualifiers,
                               EIncludeClassOriginFlag includeClassOrigin,
                               const StringArray& propertyList, bool noProps) const {
  StringArray none;
  const StringArray* list = noProps ? &none : (propertyList.empty() ? 0 : &propertyList);
  return clone(localOnly, includeQualifiers, includeClassOrigin, list);
}

CIMInstance CIMInstance::filterProperties(const StringArray& propertyList,
                                          EIncludeQualifiersFlag includeQualifiers,
                                          EIncludeClassOriginFlag includeClassOrigin,
                                          bool ignorePropertyList) const {
  return clone(E_NOT_LOCAL_ONLY, includeQualifiers, includeClassOrigin,
               ignorePropertyList ? 0 : &propertyList);
}

// Without a property list the whole instance is the change; with one, only the listed
// properties are taken from this instance and the rest stay as they were.
CIMInstance CIMInstance::createModifiedInstance(const CIMInstance& previousInstance,
                                                EIncludeQualifiersFlag,
                                                const StringArray* propertyList,
                                                const CIMClass&) const {
  if (propertyList == 0) {
    return *this;
  }
  CIMInstance result(previousInstance);
  for (size_t i = 0; i < propertyList->size(); ++i) {
    CIMProperty p = getProperty((*propertyList)[i]);
    if (p) {
      result.setProperty(p);
    } else {
      result.removeProperty((*propertyList)[i]);
    }
  }
  return result;
}

String CIMInstance::getName() const {
  return m_pdata->className;
}
void CIMInstance::setName(const CIMName& name) {
  m_pdata->className = name.toString();
}
String CIMInstance::toString() const {
  return toMOF();
}

String CIMInstance::toMOF() const {
  String out;
  for (size_t i = 0; i < m_pdata->qualifiers.size(); ++i) {
    out += (i == 0 ? "[" : ", ") + m_pdata->qualifiers[i].toMOF();
  }
  out += m_pdata->qualifiers.empty() ? "" : "]\n";
  out += String("instance of ") + m_pdata->className + "\n{\n";
  for (size_t i = 0; i < m_pdata->properties.size(); ++i) {
    const CIMProperty& p = m_pdata->properties[i];
    out += p.getName() + " = " + p.getValue().toMOF() + ";\n";
  }
  return out + "};\n";
}

bool operator<(const CIMInstance& x, const CIMInstance& y) {
  return x.toMOF() < y.toMOF();
}

}  // namespace OW_NAMESPACE
