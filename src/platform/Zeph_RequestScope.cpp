// The request lock and the per-thread current CIMOM handle behind `hdl`.
#include "Zeph_RequestScope.h"

#include <chrono>
#include <stdexcept>
#include <thread>

#include "Zeph_CommandRunner.h"

namespace ras {
namespace {

std::recursive_mutex requestLock;
std::atomic<int> subscriptionsEnding{0};

// How long a waiting callback sleeps between looks at whether its subscription is ending.
constexpr std::chrono::milliseconds kCallbackRetry{5};

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
  // What the module read of the appliance's files before this request may be stale now.
  newFileEpoch();
}

RequestScope::~RequestScope() {
  currentHandle = previous_;
}

CallbackScope::CallbackScope() : lock_(requestLock, std::defer_lock) {
  // A polling try_lock rather than a timed wait: the same behaviour, and every lock and
  // unlock stays visible to ThreadSanitizer, which does not see pthread_mutex_clocklock.
  while (!lock_.try_lock()) {
    if (subscriptionsEnding.load() > 0) return;
    std::this_thread::sleep_for(kCallbackRetry);
  }
}

SubscriptionEnding::SubscriptionEnding() {
  ++subscriptionsEnding;
}

SubscriptionEnding::~SubscriptionEnding() {
  --subscriptionsEnding;
}

}  // namespace ras

ras::CurrentCIMOMHandle hdl;
