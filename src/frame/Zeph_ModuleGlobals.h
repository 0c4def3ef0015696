// Module-wide state, every global the module keeps: the CIMOM's logger kept by initialize,
// the current request's CIMOM handle, the session flags that the PPP connection-status reader
// writes and the impact warnings read, the reader's file cache, the "ModemStatus"
// subscription and the account lists of the dial-out settings.
#ifndef ZEPH_MODULEGLOBALS_H
#define ZEPH_MODULEGLOBALS_H

#include <string>
#include <vector>

#include "OW_IntrusiveReference.hpp"
#include "OW_Logger.hpp"
#include "OW_String.hpp"
#include "Zeph_CachedConfigFile.h"
#include "Zeph_RequestScope.h"

namespace ras {
// The log component the module asks its CIMOM's loggers for.
inline constexpr char kLogComponent[] = "Zeph_RASProvider";
}  // namespace ras

extern OpenWBEM::IntrusiveReference<OpenWBEM::Logger> logger;
// The CIMOM handle of the request being served on this thread; empty between requests.
extern ras::CurrentCIMOMHandle hdl;

// True after the last connection-status reading found the dial-in link up.
extern bool ConnectionStatus;
// True after the last connection-status reading found the dial-out link up.
extern bool DialOutConnectionStatus;
// Name of the PPP endpoint ("DialInEndpoint" or "DialOutEndpoint") read last.
extern std::string check_key;

// Results of the last ConnectLink and DisconnectLink of a PPP endpoint.
extern int ConnectLinkReturn;
extern int DisconnectLinkReturn;

// The configuration files kept open for the cached reads.
extern ras::CachedConfigFile FileList[ras::kFileListSize];
// Stream of the last file that IsOpen opened outside FileList.
extern FILE* file_tmp;

// Notification handle of the "ModemStatus" subscription; -1 while there is none.
extern int handle;

// The account list of the last user-name get: the user names found and their indices as
// text (both cleared after each get), and the list that the user-name setter indexes,
// replaced by each get (it is the latest list, never older entries behind it). Requests run
// one at a time, so one request's get never sees another's half-built list.
extern OpenWBEM::StringArray vUserName;
extern OpenWBEM::StringArray UserValueMap;
extern std::vector<std::string> UserNames;

#endif
