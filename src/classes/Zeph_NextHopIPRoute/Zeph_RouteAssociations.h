// What the route table tells the association class when it creates or removes a route: the
// association of that route to the dial-out settings is made or dropped with it. The route
// class knows nothing of the association; the association class installs the two calls.
#ifndef ZEPH_ROUTEASSOCIATIONS_H
#define ZEPH_ROUTEASSOCIATIONS_H

#include <string>

namespace ras {

struct RouteAssociations {
  // Makes the association of a new route; may throw CFG_InstanceCreationFailed.
  void (*created)(const std::string& routeInstanceID) = nullptr;
  // Drops the association of a removed route, if it has one.
  void (*removed)(const std::string& routeInstanceID) = nullptr;
};

// The calls installed by the association class; empty ones until then.
RouteAssociations& routeAssociations();

}  // namespace ras

#endif  // ZEPH_ROUTEASSOCIATIONS_H
