// Logging for the platform-access functions: one message per call to the module's logger,
// which may still be empty before the provider is initialised.
#ifndef ZEPH_PLATFORMLOG_H
#define ZEPH_PLATFORMLOG_H

#include <string>

#include "OW_IntrusiveReference.hpp"
#include "OW_Logger.hpp"
#include "OW_String.hpp"

namespace ras {
// The log component the module asks its CIMOM's loggers for.
inline constexpr char kLogComponent[] = "Zeph_RASProvider";
}  // namespace ras

// The CIMOM's logger, kept by initialize; empty before it.
extern OpenWBEM::IntrusiveReference<OpenWBEM::Logger> logger;

namespace ras {

// The logger drops a message below its level: the message is not even copied then.
inline void platformLogDebug(const std::string& message) {
  if (logger && logger->getLogLevel() >= OpenWBEM::E_DEBUG_LEVEL) {
    logger->logDebug(OpenWBEM::String(message.c_str()));
  }
}

inline void platformLogError(const std::string& message) {
  if (logger && logger->getLogLevel() >= OpenWBEM::E_ERROR_LEVEL) {
    logger->logError(OpenWBEM::String(message.c_str()));
  }
}

}  // namespace ras

#endif  // ZEPH_PLATFORMLOG_H
