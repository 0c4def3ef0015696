// CallEnvironment.h: the environment of one call into a provider, with the lifetime a
// real OpenWBEM gives it. The CIMOM handle it hands out refers to the call's operation
// context: it works while the call runs and fails, as OpenWBEM's does with "NULL
// COWReference dereferenced", once the call has returned. A provider that keeps a handle
// past its request is caught on its next use.
#ifndef RAS_TESTS_CALLENVIRONMENT_HPP
#define RAS_TESTS_CALLENVIRONMENT_HPP

#include <atomic>
#include <memory>

#include "OW_CIMOMHandleIFC.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"

namespace harness {

// Opens a call on `base` for the life of the object; `env()` is what the provider gets.
class ProviderCall {
 public:
  explicit ProviderCall(const OpenWBEM::ProviderEnvironmentIFCRef& base);
  ~ProviderCall();
  ProviderCall(const ProviderCall&) = delete;
  ProviderCall& operator=(const ProviderCall&) = delete;

  const OpenWBEM::ProviderEnvironmentIFCRef& env() const { return env_; }

 private:
  std::shared_ptr<std::atomic<bool>> open_;
  OpenWBEM::ProviderEnvironmentIFCRef env_;
};

// Runs `call` with the environment of one call on `base`.
template <class Call>
decltype(auto) withCall(const OpenWBEM::ProviderEnvironmentIFCRef& base, Call call) {
  ProviderCall scope(base);
  return call(scope.env());
}

}  // namespace harness

#endif
