// Installed instance managers live as long as the process (their objects are never freed);
// this list keeps each one reachable so that leak checkers see them as live.
#include <vector>

#include "Zeph_InstanceProvider.h"

namespace ras {

void keepInstalledManager(const void* manager) {
  static auto* const installed = new std::vector<const void*>;
  installed->push_back(manager);
}

}  // namespace ras
