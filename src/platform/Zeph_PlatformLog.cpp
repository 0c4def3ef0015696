// The module's logger, shared by every layer above the platform.
#include "Zeph_PlatformLog.h"

OpenWBEM::IntrusiveReference<OpenWBEM::Logger> logger;
