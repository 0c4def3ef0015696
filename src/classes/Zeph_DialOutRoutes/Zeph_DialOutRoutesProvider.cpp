// Association traversal of Zeph_DialOutRoutes. The association is derived from the route
// table, which has no implementation yet: there are no associations to hand over.
#include "Zeph_DialOutRoutesProvider.h"

void Zeph_DialOutRoutesProvider::associators(
    const OpenWBEM::ProviderEnvironmentIFCRef&, OpenWBEM::CIMInstanceResultHandlerIFC&,
    const OpenWBEM::String&, const OpenWBEM::CIMObjectPath&, const OpenWBEM::String&,
    const OpenWBEM::String&, const OpenWBEM::String&, const OpenWBEM::String&,
    OpenWBEM::WBEMFlags::EIncludeQualifiersFlag, OpenWBEM::WBEMFlags::EIncludeClassOriginFlag,
    const OpenWBEM::StringArray*) {}

void Zeph_DialOutRoutesProvider::associatorNames(const OpenWBEM::ProviderEnvironmentIFCRef&,
                                                 OpenWBEM::CIMObjectPathResultHandlerIFC&,
                                                 const OpenWBEM::String&,
                                                 const OpenWBEM::CIMObjectPath&,
                                                 const OpenWBEM::String&, const OpenWBEM::String&,
                                                 const OpenWBEM::String&, const OpenWBEM::String&) {
}

void Zeph_DialOutRoutesProvider::references(const OpenWBEM::ProviderEnvironmentIFCRef&,
                                            OpenWBEM::CIMInstanceResultHandlerIFC&,
                                            const OpenWBEM::String&, const OpenWBEM::CIMObjectPath&,
                                            const OpenWBEM::String&, const OpenWBEM::String&,
                                            OpenWBEM::WBEMFlags::EIncludeQualifiersFlag,
                                            OpenWBEM::WBEMFlags::EIncludeClassOriginFlag,
                                            const OpenWBEM::StringArray*) {}

void Zeph_DialOutRoutesProvider::referenceNames(const OpenWBEM::ProviderEnvironmentIFCRef&,
                                                OpenWBEM::CIMObjectPathResultHandlerIFC&,
                                                const OpenWBEM::String&,
                                                const OpenWBEM::CIMObjectPath&,
                                                const OpenWBEM::String&, const OpenWBEM::String&) {}
