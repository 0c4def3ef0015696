// Module-wide state: the CIMOM's logger kept by initialize, the current request's CIMOM
// handle, and the session flags that the PPP connection-status reader writes and the
// impact warnings read.
#ifndef ZEPH_MODULEGLOBALS_H
#define ZEPH_MODULEGLOBALS_H

#include <string>

#include "OW_IntrusiveReference.hpp"
#include "OW_Logger.hpp"
#include "Zeph_RequestScope.h"

extern OpenWBEM::IntrusiveReference<OpenWBEM::Logger> logger;
// The CIMOM handle of the request being served on this thread; empty between requests.
extern ras::CurrentCIMOMHandle hdl;

// True after the last connection-status reading found the dial-in link up.
extern bool ConnectionStatus;
// True after the last connection-status reading found the dial-out link up.
extern bool DialOutConnectionStatus;
// Name of the PPP endpoint ("DialInEndpoint" or "DialOutEndpoint") read last.
extern std::string check_key;

#endif
