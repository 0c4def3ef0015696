// What a request may hold while it runs inside the module: the module's request lock and
// the CIMOM handle of its own environment, reachable as `hdl` on the serving thread.
//
// A CIMOM handle from a provider environment belongs to the request that supplied it: in
// OpenWBEM it refers to that request's operation context, which dies with the request. So
// `hdl` is never kept between requests; it names the current request's handle and is
// empty outside a request. Requests are served one at a time, so the per-class managers'
// cursors and the module's shared lists are never used by two requests at once.
//
// The platform library's "ModemStatus" callback takes the same lock: it reads `logger`, edits
// the dial scripts and shares the "/tmp/ifout" scratch file with the requests' restarts. A
// request may end the subscription while it holds the lock, and ending it waits for a running
// callback, so a callback that waits for the lock gives up once the subscription is ending.
#ifndef ZEPH_REQUESTSCOPE_H
#define ZEPH_REQUESTSCOPE_H

#include <atomic>
#include <mutex>

#include "OW_CIMOMHandleIFC.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"

namespace ras {

// The CIMOM handle of the request running on the calling thread.
class CurrentCIMOMHandle {
 public:
  // The handle; throws std::logic_error outside a request.
  OpenWBEM::CIMOMHandleIFC* operator->() const;
  explicit operator bool() const;
};

// Serves one request: holds the module's request lock and makes the environment's CIMOM
// handle the thread's current one, restoring the previous state when it ends. Nested
// scopes on one thread (a request that reaches the module again through its CIMOM) are
// allowed.
class RequestScope {
 public:
  explicit RequestScope(const OpenWBEM::ProviderEnvironmentIFCRef& env);
  ~RequestScope();
  RequestScope(const RequestScope&) = delete;
  RequestScope& operator=(const RequestScope&) = delete;

 private:
  std::unique_lock<std::recursive_mutex> lock_;
  OpenWBEM::CIMOMHandleIFCRef handle_;
  OpenWBEM::CIMOMHandleIFC* previous_;
};

// Runs one change callback under the request lock, unless the subscription ends first.
class CallbackScope {
 public:
  CallbackScope();
  CallbackScope(const CallbackScope&) = delete;
  CallbackScope& operator=(const CallbackScope&) = delete;
  // False when the subscription began ending before the lock was free: skip the callback.
  bool entered() const { return lock_.owns_lock(); }

 private:
  std::unique_lock<std::recursive_mutex> lock_;
};

// Marks the subscription as ending for its lifetime, so that no callback waits for the lock
// while its thread is being stopped.
class SubscriptionEnding {
 public:
  SubscriptionEnding();
  ~SubscriptionEnding();
  SubscriptionEnding(const SubscriptionEnding&) = delete;
  SubscriptionEnding& operator=(const SubscriptionEnding&) = delete;
};

}  // namespace ras

// The CIMOM handle of the request being served on this thread; empty between requests.
extern ras::CurrentCIMOMHandle hdl;

#endif
