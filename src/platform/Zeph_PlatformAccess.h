// The platform-access free functions every class goes through, in one include: the
// configuration reader, the address lines, the value checks, the registry and the dial
// service control.
#ifndef ZEPH_PLATFORMACCESS_H
#define ZEPH_PLATFORMACCESS_H

#include "Zeph_AddressLine.h"
#include "Zeph_ApplianceFiles.h"
#include "Zeph_ConfigReader.h"
#include "Zeph_DialService.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_Registry.h"
#include "Zeph_RequestScope.h"
#include "Zeph_ValueChecks.h"

#endif  // ZEPH_PLATFORMACCESS_H
