// CIMOMHandleIFC: array and enumeration forms of the association and query operations.
#include "OW_CIM.hpp"
#include "OW_CIMOMHandleIFC.hpp"
#include "OW_Enumeration.hpp"
#include "OW_ResultHandlers.hpp"

namespace OW_NAMESPACE {

using namespace WBEMFlags;

CIMObjectPathEnumeration CIMOMHandleIFC::associatorNamesE(
    const String& ns, const CIMObjectPath& objectName, const String& assocClass,
    const String& resultClass, const String& role, const String& resultRole) {
  CIMObjectPathEnumeration result;
  CIMObjectPathEnumBuilder handler(result);
  associatorNames(ns, objectName, handler, assocClass, resultClass, role, resultRole);
  return result;
}

CIMObjectPathArray CIMOMHandleIFC::associatorNamesA(const String& ns,
                                                    const CIMObjectPath& objectName,
                                                    const String& assocClass,
                                                    const String& resultClass, const String& role,
                                                    const String& resultRole) {
  CIMObjectPathArray result;
  CIMObjectPathArrayBuilder handler(result);
  associatorNames(ns, objectName, handler, assocClass, resultClass, role, resultRole);
  return result;
}

CIMInstanceEnumeration CIMOMHandleIFC::associatorsE(const String& ns, const CIMObjectPath& path,
                                                    const String& assocClass,
                                                    const String& resultClass, const String& role,
                                                    const String& resultRole,
                                                    EIncludeQualifiersFlag includeQualifiers,
                                                    EIncludeClassOriginFlag includeClassOrigin,
                                                    const StringArray* propertyList) {
  CIMInstanceEnumeration result;
  CIMInstanceEnumBuilder handler(result);
  associators(ns, path, handler, assocClass, resultClass, role, resultRole, includeQualifiers,
              includeClassOrigin, propertyList);
  return result;
}

CIMInstanceArray CIMOMHandleIFC::associatorsA(const String& ns, const CIMObjectPath& path,
                                              const String& assocClass, const String& resultClass,
                                              const String& role, const String& resultRole,
                                              EIncludeQualifiersFlag includeQualifiers,
                                              EIncludeClassOriginFlag includeClassOrigin,
                                              const StringArray* propertyList) {
  CIMInstanceArray result;
  CIMInstanceArrayBuilder handler(result);
  associators(ns, path, handler, assocClass, resultClass, role, resultRole, includeQualifiers,
              includeClassOrigin, propertyList);
  return result;
}

CIMClassEnumeration CIMOMHandleIFC::associatorsClassesE(
    const String& ns, const CIMObjectPath& path, const String& assocClass,
    const String& resultClass, const String& role, const String& resultRole,
    EIncludeQualifiersFlag includeQualifiers, EIncludeClassOriginFlag includeClassOrigin,
    const StringArray* propertyList) {
  CIMClassEnumeration result;
  CIMClassEnumBuilder handler(result);
  associatorsClasses(ns, path, handler, assocClass, resultClass, role, resultRole,
                     includeQualifiers, includeClassOrigin, propertyList);
  return result;
}

CIMClassArray CIMOMHandleIFC::associatorsClassesA(const String& ns, const CIMObjectPath& path,
                                                  const String& assocClass,
                                                  const String& resultClass, const String& role,
                                                  const String& resultRole,
                                                  EIncludeQualifiersFlag includeQualifiers,
                                                  EIncludeClassOriginFlag includeClassOrigin,
                                                  const StringArray* propertyList) {
  CIMClassArray result;
  CIMClassArrayBuilder handler(result);
  associatorsClasses(ns, path, handler, assocClass, resultClass, role, resultRole,
                     includeQualifiers, includeClassOrigin, propertyList);
  return result;
}

CIMObjectPathEnumeration CIMOMHandleIFC::referenceNamesE(const String& ns,
                                                         const CIMObjectPath& path,
                                                         const String& resultClass,
                                                         const String& role) {
  CIMObjectPathEnumeration result;
  CIMObjectPathEnumBuilder handler(result);
  referenceNames(ns, path, handler, resultClass, role);
  return result;
}

CIMObjectPathArray CIMOMHandleIFC::referenceNamesA(const String& ns, const CIMObjectPath& path,
                                                   const String& resultClass, const String& role) {
  CIMObjectPathArray result;
  CIMObjectPathArrayBuilder handler(result);
  referenceNames(ns, path, handler, resultClass, role);
  return result;
}

CIMInstanceEnumeration CIMOMHandleIFC::referencesE(const String& ns, const CIMObjectPath& path,
                                                   const String& resultClass, const String& role,
                                                   EIncludeQualifiersFlag includeQualifiers,
                                                   EIncludeClassOriginFlag includeClassOrigin,
                                                   const StringArray* propertyList) {
  CIMInstanceEnumeration result;
  CIMInstanceEnumBuilder handler(result);
  references(ns, path, handler, resultClass, role, includeQualifiers, includeClassOrigin,
             propertyList);
  return result;
}

CIMInstanceArray CIMOMHandleIFC::referencesA(const String& ns, const CIMObjectPath& path,
                                             const String& resultClass, const String& role,
                                             EIncludeQualifiersFlag includeQualifiers,
                                             EIncludeClassOriginFlag includeClassOrigin,
                                             const StringArray* propertyList) {
  CIMInstanceArray result;
  CIMInstanceArrayBuilder handler(result);
  references(ns, path, handler, resultClass, role, includeQualifiers, includeClassOrigin,
             propertyList);
  return result;
}

CIMClassEnumeration CIMOMHandleIFC::referencesClassesE(const String& ns, const CIMObjectPath& path,
                                                       const String& resultClass,
                                                       const String& role,
                                                       EIncludeQualifiersFlag includeQualifiers,
                                                       EIncludeClassOriginFlag includeClassOrigin,
                                                       const StringArray* propertyList) {
  CIMClassEnumeration result;
  CIMClassEnumBuilder handler(result);
  referencesClasses(ns, path, handler, resultClass, role, includeQualifiers, includeClassOrigin,
                    propertyList);
  return result;
}

CIMClassArray CIMOMHandleIFC::referencesClassesA(const String& ns, const CIMObjectPath& path,
                                                 const String& resultClass, const String& role,
                                                 EIncludeQualifiersFlag includeQualifiers,
                                                 EIncludeClassOriginFlag includeClassOrigin,
                                                 const StringArray* propertyList) {
  CIMClassArray result;
  CIMClassArrayBuilder handler(result);
  referencesClasses(ns, path, handler, resultClass, role, includeQualifiers, includeClassOrigin,
                    propertyList);
  return result;
}

CIMInstanceEnumeration CIMOMHandleIFC::execQueryE(const String& ns, const String& query,
                                                  const String& queryLanguage) {
  CIMInstanceEnumeration result;
  CIMInstanceEnumBuilder handler(result);
  execQuery(ns, handler, query, queryLanguage);
  return result;
}

CIMInstanceArray CIMOMHandleIFC::execQueryA(const String& ns, const String& query,
                                            const String& queryLanguage) {
  CIMInstanceArray result;
  CIMInstanceArrayBuilder handler(result);
  execQuery(ns, handler, query, queryLanguage);
  return result;
}

}  // namespace OW_NAMESPACE
