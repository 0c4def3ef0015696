// Association traversal of Zeph_DialOutRoutes: from the dial-out settings to its routes and
// from a route to the dial-out settings, as instances, names or the associations themselves.
#include "Zeph_DialOutRoutesProvider.h"

#include <string>

#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"
#include "Zeph_DialOutSettingDataProvider.h"
#include "Zeph_NextHopIPRouteProvider.h"

using namespace OpenWBEM;

namespace {

const char* const kSource = "../src/Zeph_DialOutRoutesProvider";
constexpr int kLine = 0;  // no line is fixed for these errors
const char* const kAntecedent = "Antecedent";
const char* const kDependent = "Dependent";
const char* const kInstanceID = "InstanceID";
const char* const kKeyNotSent = "Property InstanceID is not sent";
const char* const kKeyNull = "Property InstanceID has null value";
const char* const kNoReference =
    "No Reference of class specified in objectPath exists in this association";

[[noreturn]] void fail(CIMException::ErrNoType code) {
  ras::throwWithoutMessage({kSource, kLine}, code);
}

[[noreturn]] void fail(CIMException::ErrNoType code, const char* text) {
  ras::throwProviderError({kSource, kLine}, code, text);
}

std::string text(const String& value) {
  return std::string(value.c_str(), value.length());
}

std::string ObjectNameToRole(const CIMObjectPath& path) {
  const String className = path.getClassName();
  if (className.equals(Zeph_DialOutSettingDataName)) return kAntecedent;
  if (className.equals(Zeph_NextHopIPRouteName)) return kDependent;
  fail(CIMException::TYPE_MISMATCH);
}

std::string RoleToOtherRole(const std::string& role) {
  return role == kAntecedent ? kDependent : kAntecedent;
}

struct Roles {
  std::string role;
  std::string resultRole;
  std::string resultClass;
};

// Fills the empty ones of role, result role and result class, in that order.
Roles CheckRolesAndResults(const CIMObjectPath& path, const String& role, const String& resultRole,
                           const String& resultClass) {
  Roles roles{text(role), text(resultRole), text(resultClass)};
  if (roles.role.empty()) roles.role = ObjectNameToRole(path);
  if (roles.resultRole.empty()) {
    if (roles.resultClass == Zeph_DialOutSettingDataName) {
      roles.resultRole = kAntecedent;
    } else if (roles.resultClass == Zeph_NextHopIPRouteName) {
      roles.resultRole = kDependent;
    } else {
      roles.resultRole = RoleToOtherRole(roles.role);
    }
  }
  if (roles.resultClass.empty()) {
    if (roles.resultRole == kAntecedent) {
      roles.resultClass = Zeph_DialOutSettingDataName;
    } else if (roles.resultRole == kDependent) {
      roles.resultClass = Zeph_NextHopIPRouteName;
    } else {
      fail(CIMException::INVALID_PARAMETER);
    }
  }
  return roles;
}

// Starts the iteration over the associations whose `role` end is the object of `path`.
Zeph_DialOutRoutesInstanceManager& startIterationFrom(const CIMObjectPath& path,
                                                      const std::string& role) {
  if (role != kAntecedent && role != kDependent) fail(CIMException::NOT_SUPPORTED, kNoReference);
  const CIMProperty key = path.getKey(kInstanceID);
  if (!key) fail(CIMException::FAILED, kKeyNotSent);
  const CIMValue value = key.getValue();
  if (!value) fail(CIMException::FAILED, kKeyNull);
  Zeph_DialOutRoutesInstanceManager& manager = *Zeph_DialOutRoutes::getInstanceManager();
  if (role == kAntecedent) {
    manager.startIterationForAntecedent(text(value.toString()));
  } else {
    manager.startIterationForDependent(text(value.toString()));
  }
  return manager;
}

// Each end as an instance or a name, converted as its own provider does it.
const char* classOf(const Zeph_DialOutSettingData&) {
  return Zeph_DialOutSettingDataName;
}
const char* classOf(const Zeph_NextHopIPRoute&) {
  return Zeph_NextHopIPRouteName;
}

void fill(const String& ns, const Zeph_DialOutSettingData& end, CIMInstance& instance) {
  Zeph_DialOutSettingDataProvider::toInstance(ns, end, instance);
}
void fill(const String&, const Zeph_DialOutSettingData& end, CIMObjectPath& path) {
  Zeph_DialOutSettingDataProvider::toObjectPath(end, path);
}
void fill(const String& ns, const Zeph_NextHopIPRoute& end, CIMInstance& instance) {
  Zeph_NextHopIPRouteProvider::toInstance(ns, end, instance);
}
void fill(const String&, const Zeph_NextHopIPRoute& end, CIMObjectPath& path) {
  Zeph_NextHopIPRouteProvider::toObjectPath(end, path);
}

// Hands the far end of every association of the started iteration to `emit`.
template <class Emit>
void walkFarEnds(Zeph_DialOutRoutesInstanceManager& manager, const Roles& roles, Emit emit) {
  if (roles.resultRole != kAntecedent && roles.resultRole != kDependent) {
    fail(CIMException::NOT_SUPPORTED);
  }
  while (manager.hasNext()) {
    if (roles.resultRole == kAntecedent) {
      emit(*manager.nextAntecedent());
    } else {
      emit(*manager.nextDependent());
    }
  }
  manager.endIteration();
}

}  // namespace

void Zeph_DialOutRoutesProvider::associators(
    const ProviderEnvironmentIFCRef&, CIMInstanceResultHandlerIFC& result, const String& ns,
    const CIMObjectPath& objectName, const String&, const String& resultClass, const String& role,
    const String& resultRole, WBEMFlags::EIncludeQualifiersFlag, WBEMFlags::EIncludeClassOriginFlag,
    const StringArray*) {
  const Roles roles = CheckRolesAndResults(objectName, role, resultRole, resultClass);
  walkFarEnds(startIterationFrom(objectName, roles.role), roles, [&](const auto& end) {
    CIMInstance instance(classOf(end));
    fill(ns, end, instance);
    result.handle(instance);
  });
}

void Zeph_DialOutRoutesProvider::associatorNames(const ProviderEnvironmentIFCRef&,
                                                 CIMObjectPathResultHandlerIFC& result,
                                                 const String& ns, const CIMObjectPath& objectName,
                                                 const String&, const String& resultClass,
                                                 const String& role, const String& resultRole) {
  const Roles roles = CheckRolesAndResults(objectName, role, resultRole, resultClass);
  walkFarEnds(startIterationFrom(objectName, roles.role), roles, [&](const auto& end) {
    CIMObjectPath path(CIMName(classOf(end)), ns);
    fill(ns, end, path);
    result.handle(path);
  });
}

void Zeph_DialOutRoutesProvider::references(
    const ProviderEnvironmentIFCRef&, CIMInstanceResultHandlerIFC& result, const String& ns,
    const CIMObjectPath& objectName, const String& resultClass, const String& role,
    WBEMFlags::EIncludeQualifiersFlag, WBEMFlags::EIncludeClassOriginFlag, const StringArray*) {
  const Roles roles = CheckRolesAndResults(objectName, role, String(), resultClass);
  Zeph_DialOutRoutesInstanceManager& manager = startIterationFrom(objectName, roles.role);
  while (manager.hasNext()) {
    CIMInstance instance(Zeph_DialOutRoutesName);
    Zeph_DialOutRoutesToCIMInstance(ns, *manager.next(), instance);
    result.handle(instance);
  }
  manager.endIteration();
}

void Zeph_DialOutRoutesProvider::referenceNames(const ProviderEnvironmentIFCRef&,
                                                CIMObjectPathResultHandlerIFC& result,
                                                const String& ns, const CIMObjectPath& objectName,
                                                const String& resultClass, const String& role) {
  const Roles roles = CheckRolesAndResults(objectName, role, String(), resultClass);
  Zeph_DialOutRoutesInstanceManager& manager = startIterationFrom(objectName, roles.role);
  while (manager.hasNext()) {
    CIMObjectPath path(CIMName(Zeph_DialOutRoutesName), ns);
    Zeph_DialOutRoutesToCIMObjectPath(*manager.next(), path);
    result.handle(path);
  }
  manager.endIteration();
}
