// CIMOMHandleIFC: the array and enumeration forms, each collecting from the handler form.
#include "OW_CIMOMHandleIFC.hpp"

#include "OW_CIM.hpp"
#include "OW_CIMFeatures.hpp"
#include "OW_Enumeration.hpp"
#include "OW_ResultHandlers.hpp"

namespace OW_NAMESPACE {

using namespace WBEMFlags;

namespace {
const char* const kExportNotSupported = "exportIndication is not supported";
}  // namespace

CIMOMHandleIFC::~CIMOMHandleIFC() {}

CIMClassEnumeration CIMOMHandleIFC::enumClassE(const String& ns, const String& className,
                                               EDeepFlag deep, ELocalOnlyFlag localOnly,
                                               EIncludeQualifiersFlag includeQualifiers,
                                               EIncludeClassOriginFlag includeClassOrigin) {
  CIMClassEnumeration result;
  CIMClassEnumBuilder handler(result);
  enumClass(ns, className, handler, deep, localOnly, includeQualifiers, includeClassOrigin);
  return result;
}

CIMClassArray CIMOMHandleIFC::enumClassA(const String& ns, const String& className, EDeepFlag deep,
                                         ELocalOnlyFlag localOnly,
                                         EIncludeQualifiersFlag includeQualifiers,
                                         EIncludeClassOriginFlag includeClassOrigin) {
  CIMClassArray result;
  CIMClassArrayBuilder handler(result);
  enumClass(ns, className, handler, deep, localOnly, includeQualifiers, includeClassOrigin);
  return result;
}

StringEnumeration CIMOMHandleIFC::enumClassNamesE(const String& ns, const String& className,
                                                  EDeepFlag deep) {
  StringEnumeration result;
  StringEnumBuilder handler(result);
  enumClassNames(ns, className, handler, deep);
  return result;
}

StringArray CIMOMHandleIFC::enumClassNamesA(const String& ns, const String& className,
                                            EDeepFlag deep) {
  StringArray result;
  StringArrayBuilder handler(result);
  enumClassNames(ns, className, handler, deep);
  return result;
}

CIMInstanceEnumeration CIMOMHandleIFC::enumInstancesE(const String& ns, const String& className,
                                                      EDeepFlag deep, ELocalOnlyFlag localOnly,
                                                      EIncludeQualifiersFlag includeQualifiers,
                                                      EIncludeClassOriginFlag includeClassOrigin,
                                                      const StringArray* propertyList) {
  CIMInstanceEnumeration result;
  CIMInstanceEnumBuilder handler(result);
  enumInstances(ns, className, handler, deep, localOnly, includeQualifiers, includeClassOrigin,
                propertyList);
  return result;
}

CIMInstanceArray CIMOMHandleIFC::enumInstancesA(const String& ns, const String& className,
                                                EDeepFlag deep, ELocalOnlyFlag localOnly,
                                                EIncludeQualifiersFlag includeQualifiers,
                                                EIncludeClassOriginFlag includeClassOrigin,
                                                const StringArray* propertyList) {
  CIMInstanceArray result;
  CIMInstanceArrayBuilder handler(result);
  enumInstances(ns, className, handler, deep, localOnly, includeQualifiers, includeClassOrigin,
                propertyList);
  return result;
}

CIMObjectPathEnumeration CIMOMHandleIFC::enumInstanceNamesE(const String& ns,
                                                            const String& className) {
  CIMObjectPathEnumeration result;
  CIMObjectPathEnumBuilder handler(result);
  enumInstanceNames(ns, className, handler);
  return result;
}

CIMObjectPathArray CIMOMHandleIFC::enumInstanceNamesA(const String& ns, const String& className) {
  CIMObjectPathArray result;
  CIMObjectPathArrayBuilder handler(result);
  enumInstanceNames(ns, className, handler);
  return result;
}

CIMQualifierTypeEnumeration CIMOMHandleIFC::enumQualifierTypesE(const String& ns) {
  CIMQualifierTypeEnumeration result;
  CIMQualifierTypeEnumBuilder handler(result);
  enumQualifierTypes(ns, handler);
  return result;
}

CIMQualifierTypeArray CIMOMHandleIFC::enumQualifierTypesA(const String& ns) {
  CIMQualifierTypeArray result;
  CIMQualifierTypeArrayBuilder handler(result);
  enumQualifierTypes(ns, handler);
  return result;
}

CIMFeatures CIMOMHandleIFC::getServerFeatures() {
  return CIMFeatures();
}

void CIMOMHandleIFC::exportIndication(const CIMInstance&, const String&) {
  OW_THROWCIMMSG(CIMException::FAILED, kExportNotSupported);
}

}  // namespace OW_NAMESPACE
