// CIMProperty: keys, copies with fewer details, and text forms.
#include "OW_Bool.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"

namespace OW_NAMESPACE {

// Copies are values already; the data is duplicated on the first change.
CIMProperty CIMProperty::clone() const {
  return *this;
}

CIMProperty CIMProperty::clone(WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                               WBEMFlags::EIncludeClassOriginFlag includeClassOrigin) const {
  CIMProperty copy = clone();
  if (includeQualifiers == WBEMFlags::E_EXCLUDE_QUALIFIERS) {
    copy.clearQualifiers();
  }
  if (includeClassOrigin == WBEMFlags::E_EXCLUDE_CLASS_ORIGIN) {
    copy.setOriginClass(CIMName());
  }
  return copy;
}

// A propagated property is dropped (null) when only local ones are wanted.
CIMProperty CIMProperty::filter(WBEMFlags::ELocalOnlyFlag localOnly,
                                WBEMFlags::EIncludeQualifiersFlag includeQualifiers) const {
  if (localOnly == WBEMFlags::E_LOCAL_ONLY && getPropagated()) {
    return CIMProperty(CIMNULL);
  }
  return clone(includeQualifiers, WBEMFlags::E_INCLUDE_CLASS_ORIGIN);
}

bool CIMProperty::isKey() const {
  return isReference() || hasTrueQualifier(CIMQualifier::CIM_QUAL_KEY);
}

bool CIMProperty::hasTrueQualifier(const CIMName& name) const {
  CIMQualifier q = getQualifier(name);
  if (!q) {
    return false;
  }
  CIMValue v = q.getValue();
  return v && v.getType() == CIMDataType::BOOLEAN && !v.isArray() && v.toBool();
}

String CIMProperty::toString() const {
  return getName() + "=" + getValue().toString();
}

String CIMProperty::toMOF() const {
  String out;
  CIMQualifierArray quals = getQualifiers();
  if (quals.size() > 0) {
    out += "[";
    for (size_t i = 0; i < quals.size(); ++i) {
      out += (i > 0 ? ", " : "") + quals[i].toMOF();
    }
    out += "]\n";
  }
  CIMDataType dt = getDataType();
  out += dt.toMOF() + " " + getName() + dt.getArrayMOF();
  if (getValue()) {
    out += String(" = ") + getValue().toMOF();
  }
  return out + ";\n";
}

bool operator<(const CIMProperty& x, const CIMProperty& y) {
  return x.getName().compareToIgnoreCase(y.getName()) < 0;
}

}  // namespace OW_NAMESPACE
