// Association provider of Zeph_DialOutRoutes: associator and reference traversal between the
// dial-out settings and the dial-out routes; instance requests go to its instance base.
#ifndef ZEPH_DIALOUTROUTESPROVIDER_H
#define ZEPH_DIALOUTROUTESPROVIDER_H

#include "OW_CppAssociatorProviderIFC.hpp"
#include "Zeph_DialOutRoutesInstProvider.h"

class Zeph_DialOutRoutesProvider : public Zeph_DialOutRoutesInstProvider,
                                   public OpenWBEM::CppAssociatorProviderIFC {
 public:
  void associators(const OpenWBEM::ProviderEnvironmentIFCRef& env,
                   OpenWBEM::CIMInstanceResultHandlerIFC& result, const OpenWBEM::String& ns,
                   const OpenWBEM::CIMObjectPath& objectName, const OpenWBEM::String& assocClass,
                   const OpenWBEM::String& resultClass, const OpenWBEM::String& role,
                   const OpenWBEM::String& resultRole,
                   OpenWBEM::WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                   OpenWBEM::WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                   const OpenWBEM::StringArray* propertyList) override;
  void associatorNames(const OpenWBEM::ProviderEnvironmentIFCRef& env,
                       OpenWBEM::CIMObjectPathResultHandlerIFC& result, const OpenWBEM::String& ns,
                       const OpenWBEM::CIMObjectPath& objectName,
                       const OpenWBEM::String& assocClass, const OpenWBEM::String& resultClass,
                       const OpenWBEM::String& role, const OpenWBEM::String& resultRole) override;
  void references(const OpenWBEM::ProviderEnvironmentIFCRef& env,
                  OpenWBEM::CIMInstanceResultHandlerIFC& result, const OpenWBEM::String& ns,
                  const OpenWBEM::CIMObjectPath& objectName, const OpenWBEM::String& resultClass,
                  const OpenWBEM::String& role,
                  OpenWBEM::WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                  OpenWBEM::WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                  const OpenWBEM::StringArray* propertyList) override;
  void referenceNames(const OpenWBEM::ProviderEnvironmentIFCRef& env,
                      OpenWBEM::CIMObjectPathResultHandlerIFC& result, const OpenWBEM::String& ns,
                      const OpenWBEM::CIMObjectPath& objectName,
                      const OpenWBEM::String& resultClass, const OpenWBEM::String& role) override;
};

#endif
