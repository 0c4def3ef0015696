// RefusingHandle.cpp: every CIMOM operation refused with CIM_ERR_NOT_SUPPORTED.
#include "RefusingHandle.h"

#include "OW_Array.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_CIMValue.hpp"

using namespace OpenWBEM;

namespace harness {

using S = const String&;
using R = RefusingHandle;

void R::refuse() const {
  throw CIMException(file_, line_, CIMException::NOT_SUPPORTED, message_);
}

void R::enumClass(S, S, Classes&, Deep, LocalOnly, Qualifiers, ClassOrigin) {
  refuse();
}
void R::enumClassNames(S, S, StringResultHandlerIFC&, Deep) {
  refuse();
}
void R::enumInstances(S, S, Instances&, Deep, LocalOnly, Qualifiers, ClassOrigin, PropertyList) {
  refuse();
}
void R::enumInstanceNames(S, S, Names&) {
  refuse();
}
CIMClass R::getClass(S, S, LocalOnly, Qualifiers, ClassOrigin, PropertyList) {
  refuse();
}
CIMInstance R::getInstance(S, const Path&, LocalOnly, Qualifiers, ClassOrigin, PropertyList) {
  refuse();
}
CIMValue R::invokeMethod(S, const Path&, S, const CIMParamValueArray&, CIMParamValueArray&) {
  refuse();
}
CIMQualifierType R::getQualifierType(S, S) {
  refuse();
}
void R::setQualifierType(S, const CIMQualifierType&) {
  refuse();
}
void R::deleteQualifierType(S, S) {
  refuse();
}
void R::enumQualifierTypes(S, CIMQualifierTypeResultHandlerIFC&) {
  refuse();
}
void R::modifyClass(S, const CIMClass&) {
  refuse();
}
void R::createClass(S, const CIMClass&) {
  refuse();
}
void R::deleteClass(S, S) {
  refuse();
}
void R::modifyInstance(S, const CIMInstance&, Qualifiers, PropertyList) {
  refuse();
}
CIMObjectPath R::createInstance(S, const CIMInstance&) {
  refuse();
}
void R::deleteInstance(S, const Path&) {
  refuse();
}
void R::setProperty(S, const Path&, S, const CIMValue&) {
  refuse();
}
CIMValue R::getProperty(S, const Path&, S) {
  refuse();
}
void R::associatorNames(S, const Path&, Names&, S, S, S, S) {
  refuse();
}
void R::associators(S, const Path&, Instances&, S, S, S, S, Qualifiers, ClassOrigin, PropertyList) {
  refuse();
}
void R::associatorsClasses(S, const Path&, Classes&, S, S, S, S, Qualifiers, ClassOrigin,
                           PropertyList) {
  refuse();
}
void R::referenceNames(S, const Path&, Names&, S, S) {
  refuse();
}
void R::references(S, const Path&, Instances&, S, S, Qualifiers, ClassOrigin, PropertyList) {
  refuse();
}
void R::referencesClasses(S, const Path&, Classes&, S, S, Qualifiers, ClassOrigin, PropertyList) {
  refuse();
}
void R::execQuery(S, Instances&, S, S) {
  refuse();
}

}  // namespace harness
