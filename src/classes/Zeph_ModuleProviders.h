// The module's ten per-class providers in canonical class order, written once: the class
// table is built from this list, and the tests' typed suites take it too.
#ifndef ZEPH_MODULEPROVIDERS_H
#define ZEPH_MODULEPROVIDERS_H

#include "Zeph_CallInSettingDataProvider.h"
#include "Zeph_DialOutRoutesProvider.h"
#include "Zeph_DialOutSettingDataProvider.h"
#include "Zeph_NextHopIPRouteProvider.h"
#include "Zeph_PPPProtocolEndpointProvider.h"
#include "Zeph_RASIPProtocolEndpointProvider.h"
#include "Zeph_RASServiceProvider.h"
#include "Zeph_RASStaticIPAddressPoolProvider.h"
#include "Zeph_SerialPortProvider.h"
#include "Zeph_SoftModemProvider.h"

namespace ras {

// `List<P...>` over the providers, in canonical class order.
template <template <class...> class List>
using WithModuleProviders = List<Zeph_CallInSettingDataProvider,       //
                                 Zeph_DialOutSettingDataProvider,      //
                                 Zeph_RASServiceProvider,              //
                                 Zeph_RASStaticIPAddressPoolProvider,  //
                                 Zeph_NextHopIPRouteProvider,          //
                                 Zeph_RASIPProtocolEndpointProvider,   //
                                 Zeph_PPPProtocolEndpointProvider,     //
                                 Zeph_SoftModemProvider,               //
                                 Zeph_SerialPortProvider,              //
                                 Zeph_DialOutRoutesProvider>;

}  // namespace ras

#endif  // ZEPH_MODULEPROVIDERS_H
