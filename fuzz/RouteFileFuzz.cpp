// Fuzzes the route table's loader: the input becomes the route file, a fresh route table
// loads it, and every loaded route must carry a valid address as its key and an index below
// the file's route count. The loader runs no command; the table is emptied after each run.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "FuzzLogger.h"
#include "OW_CIMException.hpp"
#include "Zeph_ApplianceFiles.h"
#include "Zeph_NextHopIPRouteImpl.h"
#include "Zeph_ValueChecks.h"

namespace {

void writeRouteFile(const std::uint8_t* data, std::size_t size) {
  FILE* file = std::fopen(ras::kRouteScript, "w");
  if (file == nullptr) std::abort();
  if (size > 0 && std::fwrite(data, 1, size, file) != size) std::abort();
  std::fclose(file);
}

// The loaded routes, each checked, then deleted (which takes them out of the table).
void checkAndEmpty(Zeph_NextHopIPRouteImplInstanceManager& table, int count) {
  std::vector<Zeph_NextHopIPRouteImpl*> routes;
  for (table.startIteration(); table.hasNext();)
    routes.push_back(static_cast<Zeph_NextHopIPRouteImpl*>(table.next()));
  table.endIteration();
  for (Zeph_NextHopIPRouteImpl* route : routes) {
    std::string id;
    ras::Qualifiers unused;
    route->getInstanceID(id, unused);
    std::vector<char> text(id.begin(), id.end());
    text.push_back('\0');
    if (IsIPValid(text.data()) != 1) std::abort();
    if (route->GetRouteIndex() < 0 || route->GetRouteIndex() >= count) std::abort();
    delete route;
  }
  table.startIteration();
  if (table.hasNext()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  rasfuzz::installLogger();
  writeRouteFile(data, size);
  Zeph_NextHopIPRouteImplInstanceManager table;
  try {
    Zeph_NextHopIPRoute::SetInstanceManager(&table);
  } catch (const OpenWBEM::CIMException&) {
    // A malformed element stops the load; what was loaded before it stays.
  }
  checkAndEmpty(table, table.routeCount());
  Zeph_NextHopIPRoute::ClearInstanceManager();
  return 0;
}
