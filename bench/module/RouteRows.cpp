// The route table's series: create, modify, delete the last and delete the first route of
// a table of 1, 10, 100 and 1000 routes. Each row starts from a route file holding that
// many routes, written before the module is initialised, and puts the table back after each
// measured run (not measured). Prescribed counts, with no dial-out link up:
//   create, sent with a mask and a metric: the continuation sed and setRoute, setNumRoute
//     (3); for each of mask and metric the continuation sed, the set script, addRoute and
//     the dial-out restart (6 each);
//   modify the mask of the last route: the in-place sed, addRoute, dial-out restart (5);
//   delete the last of several: three del scripts, three _removebackslash scripts,
//     setNumRoute and the route file itself (8); delete the only route: three delfirst
//     scripts, setNumRoute, the route file (5);
//   delete the first of several: three del scripts, setNumRoute, the route file (5), after
//     one read of the route file for every later route (which the design prescribes).
#include <deque>
#include <memory>
#include <sstream>

#include "Appliance.h"
#include "OW_CIMException.hpp"
#include "OW_Types.hpp"
#include "Operation.h"

using OpenWBEM::CIMValue;
using OpenWBEM::UInt16;

namespace bench {
namespace {

constexpr char kClass[] = "Zeph_NextHopIPRoute";
constexpr char kRouteFile[] = "/qv/etc/ppp/ip_up_add_v2k";
constexpr char kMask[] = "255.255.255.0";
constexpr char kExtraRoute[] = "10.250.0.0";
constexpr int kSizes[] = {1, 10, 100, 1000};

std::string addressOf(int i) {
  return "10." + std::to_string(1 + i / 250) + "." + std::to_string(i % 250) + ".0";
}

Target route(const std::string& address) {
  return {kClass, {{"InstanceID", address}}};
}

std::vector<Change> routeValues(const std::string& address) {
  return {{"DestinationAddress", text(address.c_str())},
          {"DestinationMask", text(kMask)},
          {"RouteMetric", CIMValue(UInt16(1))}};
}

// One array of the route file: its elements, each but the last continued with " \".
void writeArray(std::ostringstream& out, const char* name, int count, std::string (*value)(int)) {
  out << "declare -a " << name << "\n";
  for (int i = 0; i < count; ++i)
    out << "\t" << name << "[" << i << "]=\"" << value(i) << "\"" << (i + 1 < count ? " \\" : "")
        << "\n";
}

// Replaces the count line and the three arrays of the pristine route file by `count` routes.
void writeRouteFile(int count) {
  std::ostringstream out;
  bool inTable = false;
  for (const std::string& line : appliance::readLines(kRouteFile)) {
    if (line.rfind("declare -r NUMBER_OF_ROUTES", 0) == 0) {
      inTable = true;
      out << "declare -r NUMBER_OF_ROUTES=\"" << count << "\"\n";
      writeArray(out, "ROUTES", count, addressOf);
      writeArray(out, "NETMASK", count, [](int) { return std::string(kMask); });
      writeArray(out, "METRIC", count, [](int) { return std::string("1"); });
    } else if (inTable && (line.rfind("declare -a", 0) == 0 || line.rfind("\t", 0) == 0)) {
      continue;
    } else {
      inTable = false;
      out << line << "\n";
    }
  }
  appliance::writeFile(kRouteFile, out.str());
}

// The routes in file order, as the rows move them about.
using Order = std::shared_ptr<std::deque<std::string>>;

Operation seriesRow(const char* what, int size, long prescribed, const Order& order) {
  Operation row;
  row.name = std::string(kClass) + "/" + what + "/" + std::to_string(size);
  row.prescribed = prescribed;
  row.setUp = [size, order](BenchClient&) {
    writeRouteFile(size);
    order->clear();
    for (int i = 0; i < size; ++i) order->push_back(addressOf(i));
  };
  return row;
}

std::vector<Operation> series(int size) {
  std::vector<Operation> rows;

  Order order = std::make_shared<std::deque<std::string>>();
  Operation create = seriesRow("create", size, 3 + 6 + 6, order);
  create.action = [](BenchClient& c) { c.create(route(kExtraRoute), routeValues(kExtraRoute)); };
  create.after = [](BenchClient& c) { c.remove(route(kExtraRoute)); };
  rows.push_back(create);

  Operation modify = seriesRow("modify", size, 5, order);
  modify.action = [order](BenchClient& c) {
    c.modify(route(order->back()), {{"DestinationMask", text("255.255.0.0")}});
  };
  rows.push_back(modify);

  Operation last = seriesRow("delete-last", size, size == 1 ? 5 : 8, order);
  last.action = [order](BenchClient& c) { c.remove(route(order->back())); };
  last.after = [order](BenchClient& c) {
    c.create(route(order->back()), routeValues(order->back()));
  };
  rows.push_back(last);

  if (size > 1) {
    Operation first = seriesRow("delete-first", size, 5, order);
    first.action = [order](BenchClient& c) { c.remove(route(order->front())); };
    first.after = [order](BenchClient& c) {
      order->push_back(order->front());
      order->pop_front();
      c.create(route(order->back()), routeValues(order->back()));
    };
    rows.push_back(first);
  }
  return rows;
}

// Whether the route table has an implementation yet: a create is refused without one.
bool routesImplemented() {
  appliance::reset();
  BenchClient client;
  client.initialize();
  try {
    client.create(route(kExtraRoute), routeValues(kExtraRoute));
    return true;
  } catch (const OpenWBEM::CIMException&) {
    return false;
  }
}

}  // namespace

std::vector<Operation> routeRows() {
  std::vector<Operation> rows;
  if (!routesImplemented()) return rows;
  for (int size : kSizes) {
    for (Operation& row : series(size)) rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace bench
