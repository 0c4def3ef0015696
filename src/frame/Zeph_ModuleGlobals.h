// Every global the module keeps, each declared by the layer that owns it, gathered in one
// include for the tests and tools that reset or inspect them: the CIMOM's logger and the
// current request's CIMOM handle (platform), the reader's file cache and the "ModemStatus"
// subscription (platform), the session flags the impact warnings read (model), the link
// methods' results (PPP endpoint) and the account lists (dial-out settings).
#ifndef ZEPH_MODULEGLOBALS_H
#define ZEPH_MODULEGLOBALS_H

#include "Zeph_ConfigReader.h"
#include "Zeph_DialOutSettingDataImpl.h"
#include "Zeph_DialService.h"
#include "Zeph_ImpactWarning.h"
#include "Zeph_PPPProtocolEndpointImpl.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_RequestScope.h"

#endif
