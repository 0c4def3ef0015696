// The request lock and the per-thread current CIMOM handle behind `hdl`.
#include "Zeph_RequestScope.h"

#include <stdexcept>

namespace ras {
namespace {

std::recursive_mutex requestLock;

// A plain pointer, so that no thread-exit destructor pins the module in memory; the
// reference that keeps the handle alive is the RequestScope's.
thread_local OpenWBEM::CIMOMHandleIFC* currentHandle = nullptr;

constexpr char kNoRequest[] = "no CIMOM handle outside a request";

}  // namespace

OpenWBEM::CIMOMHandleIFC* CurrentCIMOMHandle::operator->() const {
  if (currentHandle == nullptr) throw std::logic_error(kNoRequest);
  return currentHandle;
}

CurrentCIMOMHandle::operator bool() const {
  return currentHandle != nullptr;
}

RequestScope::RequestScope(const OpenWBEM::ProviderEnvironmentIFCRef& env)
    : lock_(requestLock), handle_(env->getCIMOMHandle()), previous_(currentHandle) {
  currentHandle = handle_.getPtr();
}

RequestScope::~RequestScope() {
  currentHandle = previous_;
}

}  // namespace ras
