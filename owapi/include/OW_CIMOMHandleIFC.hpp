// Client interface to the CIMOM that providers use to reach other classes.
#ifndef OW_CIMOMHANDLEIFC_HPP_INCLUDE_GUARD_
#define OW_CIMOMHANDLEIFC_HPP_INCLUDE_GUARD_
#include "OW_CIMFwd.hpp"
#include "OW_IfcsFwd.hpp"
#include "OW_IntrusiveCountableBase.hpp"
#include "OW_String.hpp"
#include "OW_WBEMFlags.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMOMHandleIFC : public IntrusiveCountableBase {
 public:
  virtual ~CIMOMHandleIFC();
  virtual void close() = 0;

  virtual void enumClass(
      const String& ns, const String& className, CIMClassResultHandlerIFC& result,
      WBEMFlags::EDeepFlag deep = WBEMFlags::E_SHALLOW,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_INCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin =
          WBEMFlags::E_INCLUDE_CLASS_ORIGIN) = 0;
  virtual CIMClassEnumeration enumClassE(
      const String& ns, const String& className, WBEMFlags::EDeepFlag deep = WBEMFlags::E_SHALLOW,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_INCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_INCLUDE_CLASS_ORIGIN);
  virtual CIMClassArray enumClassA(
      const String& ns, const String& className, WBEMFlags::EDeepFlag deep = WBEMFlags::E_SHALLOW,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_INCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_INCLUDE_CLASS_ORIGIN);

  virtual void enumClassNames(const String& ns, const String& className,
                              StringResultHandlerIFC& result,
                              WBEMFlags::EDeepFlag deep = WBEMFlags::E_DEEP) = 0;
  virtual StringEnumeration enumClassNamesE(const String& ns, const String& className,
                                            WBEMFlags::EDeepFlag deep = WBEMFlags::E_DEEP);
  virtual StringArray enumClassNamesA(const String& ns, const String& className,
                                      WBEMFlags::EDeepFlag deep = WBEMFlags::E_DEEP);

  virtual void enumInstances(
      const String& ns, const String& className, CIMInstanceResultHandlerIFC& result,
      WBEMFlags::EDeepFlag deep = WBEMFlags::E_DEEP,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0) = 0;
  virtual CIMInstanceEnumeration enumInstancesE(
      const String& ns, const String& className, WBEMFlags::EDeepFlag deep = WBEMFlags::E_DEEP,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);
  virtual CIMInstanceArray enumInstancesA(
      const String& ns, const String& className, WBEMFlags::EDeepFlag deep = WBEMFlags::E_DEEP,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);

  virtual void enumInstanceNames(const String& ns, const String& className,
                                 CIMObjectPathResultHandlerIFC& result) = 0;
  virtual CIMObjectPathEnumeration enumInstanceNamesE(const String& ns, const String& className);
  virtual CIMObjectPathArray enumInstanceNamesA(const String& ns, const String& className);

  virtual CIMClass getClass(
      const String& ns, const String& className,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_INCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_INCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0) = 0;
  virtual CIMInstance getInstance(
      const String& ns, const CIMObjectPath& instanceName,
      WBEMFlags::ELocalOnlyFlag localOnly = WBEMFlags::E_NOT_LOCAL_ONLY,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0) = 0;
  virtual CIMValue invokeMethod(const String& ns, const CIMObjectPath& path,
                                const String& methodName, const CIMParamValueArray& inParams,
                                CIMParamValueArray& outParams) = 0;
  virtual CIMQualifierType getQualifierType(const String& ns, const String& qualifierName) = 0;
  virtual void setQualifierType(const String& ns, const CIMQualifierType& qualifierType) = 0;
  virtual void deleteQualifierType(const String& ns, const String& qualName) = 0;
  virtual void enumQualifierTypes(const String& ns, CIMQualifierTypeResultHandlerIFC& result) = 0;
  virtual CIMQualifierTypeEnumeration enumQualifierTypesE(const String& ns);
  virtual CIMQualifierTypeArray enumQualifierTypesA(const String& ns);
  virtual void modifyClass(const String& ns, const CIMClass& cimClass) = 0;
  virtual void createClass(const String& ns, const CIMClass& cimClass) = 0;
  virtual void deleteClass(const String& ns, const String& className) = 0;
  virtual void modifyInstance(
      const String& ns, const CIMInstance& modifiedInstance,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_INCLUDE_QUALIFIERS,
      const StringArray* propertyList = 0) = 0;
  virtual CIMObjectPath createInstance(const String& ns, const CIMInstance& instance) = 0;
  virtual void deleteInstance(const String& ns, const CIMObjectPath& path) = 0;
  virtual void setProperty(const String& ns, const CIMObjectPath& instanceName,
                           const String& propertyName, const CIMValue& newValue) = 0;
  virtual CIMValue getProperty(const String& ns, const CIMObjectPath& instanceName,
                               const String& propertyName) = 0;

  virtual void associatorNames(const String& ns, const CIMObjectPath& objectName,
                               CIMObjectPathResultHandlerIFC& result,
                               const String& assocClass = String(),
                               const String& resultClass = String(), const String& role = String(),
                               const String& resultRole = String()) = 0;
  virtual CIMObjectPathEnumeration associatorNamesE(const String& ns,
                                                    const CIMObjectPath& objectName,
                                                    const String& assocClass = String(),
                                                    const String& resultClass = String(),
                                                    const String& role = String(),
                                                    const String& resultRole = String());
  virtual CIMObjectPathArray associatorNamesA(const String& ns, const CIMObjectPath& objectName,
                                              const String& assocClass = String(),
                                              const String& resultClass = String(),
                                              const String& role = String(),
                                              const String& resultRole = String());
  virtual void associators(
      const String& ns, const CIMObjectPath& path, CIMInstanceResultHandlerIFC& result,
      const String& assocClass = String(), const String& resultClass = String(),
      const String& role = String(), const String& resultRole = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0) = 0;
  virtual CIMInstanceEnumeration associatorsE(
      const String& ns, const CIMObjectPath& path, const String& assocClass = String(),
      const String& resultClass = String(), const String& role = String(),
      const String& resultRole = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);
  virtual CIMInstanceArray associatorsA(
      const String& ns, const CIMObjectPath& path, const String& assocClass = String(),
      const String& resultClass = String(), const String& role = String(),
      const String& resultRole = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);
  virtual void associatorsClasses(
      const String& ns, const CIMObjectPath& path, CIMClassResultHandlerIFC& result,
      const String& assocClass = String(), const String& resultClass = String(),
      const String& role = String(), const String& resultRole = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0) = 0;
  virtual CIMClassEnumeration associatorsClassesE(
      const String& ns, const CIMObjectPath& path, const String& assocClass = String(),
      const String& resultClass = String(), const String& role = String(),
      const String& resultRole = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);
  virtual CIMClassArray associatorsClassesA(
      const String& ns, const CIMObjectPath& path, const String& assocClass = String(),
      const String& resultClass = String(), const String& role = String(),
      const String& resultRole = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);

  virtual void referenceNames(const String& ns, const CIMObjectPath& path,
                              CIMObjectPathResultHandlerIFC& result,
                              const String& resultClass = String(),
                              const String& role = String()) = 0;
  virtual CIMObjectPathEnumeration referenceNamesE(const String& ns, const CIMObjectPath& path,
                                                   const String& resultClass = String(),
                                                   const String& role = String());
  virtual CIMObjectPathArray referenceNamesA(const String& ns, const CIMObjectPath& path,
                                             const String& resultClass = String(),
                                             const String& role = String());
  virtual void references(
      const String& ns, const CIMObjectPath& path, CIMInstanceResultHandlerIFC& result,
      const String& resultClass = String(), const String& role = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0) = 0;
  virtual CIMInstanceEnumeration referencesE(
      const String& ns, const CIMObjectPath& path, const String& resultClass = String(),
      const String& role = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);
  virtual CIMInstanceArray referencesA(
      const String& ns, const CIMObjectPath& path, const String& resultClass = String(),
      const String& role = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);
  virtual void referencesClasses(
      const String& ns, const CIMObjectPath& path, CIMClassResultHandlerIFC& result,
      const String& resultClass = String(), const String& role = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0) = 0;
  virtual CIMClassEnumeration referencesClassesE(
      const String& ns, const CIMObjectPath& path, const String& resultClass = String(),
      const String& role = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);
  virtual CIMClassArray referencesClassesA(
      const String& ns, const CIMObjectPath& path, const String& resultClass = String(),
      const String& role = String(),
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::EIncludeClassOriginFlag includeClassOrigin = WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
      const StringArray* propertyList = 0);

  virtual void execQuery(const String& ns, CIMInstanceResultHandlerIFC& result, const String& query,
                         const String& queryLanguage) = 0;
  virtual CIMInstanceEnumeration execQueryE(const String& ns, const String& query,
                                            const String& queryLanguage);
  virtual CIMInstanceArray execQueryA(const String& ns, const String& query,
                                      const String& queryLanguage);

  virtual CIMFeatures getServerFeatures();
  virtual void exportIndication(const CIMInstance& instance, const String& instNS);
};

}  // namespace OW_NAMESPACE

#endif
