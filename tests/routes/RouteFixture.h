// The dial-out routes as a client sees them: create, delete and modify a route, list the
// routes, follow the association, and read the route file's array lines and count.
#ifndef ROUTES_ROUTEFIXTURE_H
#define ROUTES_ROUTEFIXTURE_H

#include <optional>
#include <string>
#include <vector>

#include "ClientFixture.h"

using client::Lines;
using client::textOf;

inline constexpr char kRouteFile[] = "/qv/etc/ppp/ip_up_add_v2k";
inline constexpr char kSettingsID[] = "Velmar:Zeph_DialOutSettingData";

inline client::Target route(const std::string& address) {
  return client::settingData("Zeph_NextHopIPRoute", address.c_str());
}
inline client::Target settings() {
  return client::settingData("Zeph_DialOutSettingData", kSettingsID);
}

// The count line and every array element line of the route file, in file order.
inline Lines routeArrayLines() {
  Lines lines;
  for (const std::string& line : appliance::readLines(kRouteFile)) {
    if (line.rfind("declare -r NUMBER_OF_ROUTES=", 0) == 0 || line.rfind("\tROUTES[", 0) == 0 ||
        line.rfind("\tNETMASK[", 0) == 0 || line.rfind("\tMETRIC[", 0) == 0) {
      lines.push_back(line);
    }
  }
  return lines;
}

class RouteTest : public client::ClientTest {
 public:
  using ClientTest::modify;

  CimFailure create(const std::string& address, std::optional<std::string> mask = std::nullopt,
                    std::optional<unsigned short> metric = std::nullopt) {
    OpenWBEM::CIMInstance instance("Zeph_NextHopIPRoute");
    instance.setProperty("InstanceID", client::text(address));
    instance.setProperty("DestinationAddress", client::text(address));
    if (mask) instance.setProperty("DestinationMask", client::text(*mask));
    if (metric) instance.setProperty("RouteMetric", client::u16(*metric));
    return cimFailureOf(
        [&] { call([&](const auto& env) { provider_->createInstance(env, kNs, instance); }); });
  }

  CimFailure remove(const client::Target& target) {
    return cimFailureOf([&] {
      call([&](const auto& env) { provider_->deleteInstance(env, kNs, target.path()); });
    });
  }

  // The InstanceIDs of the routes, in enumeration order.
  Lines routeIds() {
    Lines ids;
    for (const auto& path : enumNames("Zeph_NextHopIPRoute"))
      ids.push_back(textOf(path.getKeyValue("InstanceID")));
    return ids;
  }

 protected:
  // associatorNames from `source`: "class:InstanceID" of each result.
  Lines associatedNames(const OpenWBEM::CIMObjectPath& source, const char* role = "",
                        const char* resultRole = "", const char* resultClass = "") {
    OpenWBEM::CIMObjectPathArray paths;
    OpenWBEM::CIMObjectPathArrayBuilder result(paths);
    call([&](const auto& env) {
      provider_->associatorNames(env, result, kNs, source, "Zeph_DialOutRoutes", resultClass, role,
                                 resultRole);
    });
    Lines names;
    for (const auto& path : paths)
      names.push_back(std::string(path.getClassName().c_str()) + ":" +
                      textOf(path.getKeyValue("InstanceID")));
    return names;
  }
};

#endif
