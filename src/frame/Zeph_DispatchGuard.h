// The dispatcher's handler set, written once for every operation: configuration errors,
// CIM errors passed through, and any other exception turned into a logged CIM error.
#ifndef ZEPH_DISPATCHGUARD_H
#define ZEPH_DISPATCHGUARD_H

#include <exception>

#include "CFG_Exception.h"
#include "OW_CIMException.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"
#include "Zeph_RequestScope.h"

namespace ras {

using EnvRef = OpenWBEM::ProviderEnvironmentIFCRef;

// Which configuration error an operation turns into an empty CIM_ERR_FAILED.
enum class ConfigErrors { Read, Write, ReadThenWrite };

// One dispatching operation: its message fragment, the errors it maps, and the fixed lines
// of its throw sites.
struct Operation {
  const char* fragment;
  ConfigErrors caught;
  int readErrorLine;
  int writeErrorLine;
  int stdExceptionLine;
  int unknownThrowLine;
  int unknownClassLine;
};

[[noreturn]] void failConfiguration(const OpenWBEM::ProviderEnvironmentIFCRef& env,
                                    const Operation& op, const OpenWBEM::String& className,
                                    const CFG_Exception& error);
[[noreturn]] void failStdException(const OpenWBEM::ProviderEnvironmentIFCRef& env,
                                   const Operation& op, const OpenWBEM::String& className,
                                   const std::exception& error);
[[noreturn]] void failUnknownThrow(const OpenWBEM::ProviderEnvironmentIFCRef& env,
                                   const Operation& op, const OpenWBEM::String& className);
[[noreturn]] void failUnknownClass(const Operation& op);

// Runs `call` as one request inside the handler set. `call` returns true when a provider
// served the class; if none did, the class is unknown, which is reported outside the
// handler set.
template <class Call>
void guarded(const OpenWBEM::ProviderEnvironmentIFCRef& env, const Operation& op,
             const OpenWBEM::String& className, Call call) {
  RequestScope request(env);
  bool served = false;
  try {
    served = call();
  } catch (const CFG_Exception& error) {
    failConfiguration(env, op, className, error);
  } catch (const OpenWBEM::CIMException&) {
    throw;
  } catch (const std::exception& error) {
    failStdException(env, op, className, error);
  } catch (...) {
    failUnknownThrow(env, op, className);
  }
  if (!served) failUnknownClass(op);
}

}  // namespace ras

#endif
