// Provider errors: the implementation statuses, the client-visible texts and message
// identifiers, and the one place that builds "text#ID,params#" and throws it.
#ifndef ZEPH_PROVIDERERRORS_H
#define ZEPH_PROVIDERERRORS_H

#include <string>

#include "OW_CIMException.hpp"

namespace ras {

// Statuses returned by implementation getters, setters and startChange/endChange.
inline constexpr int kStatusOk = 0;
inline constexpr int kStatusNotProvided = 100;  // wrapper default of every getter
inline constexpr int kStatusNotWritable = 101;  // wrapper default of every setter
inline constexpr int kStatusInvalidValue = 301;
inline constexpr int kStatusInvalidValues = 302;  // from startChange/endChange only

// Where a CIMException is raised: the provider's source name and the fixed line.
struct ErrorSite {
  const char* file;
  int line;
};

using CimCode = OpenWBEM::CIMException::ErrNoType;

// Throws a CIMException carrying `message` (which may be empty) at `site`.
[[noreturn]] void throwProviderError(ErrorSite site, CimCode code, const std::string& message);

// Throws a CIMException that has no message at all.
[[noreturn]] void throwWithoutMessage(ErrorSite site, CimCode code);

// Message builders; each returns the human text followed by its identifier block.
std::string changeNotStartedMessage(int status);
std::string valuesInvalidMessage(const std::string& className);
std::string invalidValueMessage(const std::string& className);
std::string statusMessage(int status);
std::string aboveMaximumMessage(const std::string& className, const std::string& property,
                                unsigned maximum);
std::string belowMinimumMessage(const std::string& className, const std::string& property,
                                unsigned minimum);
std::string tooLongMessage(const std::string& className, const std::string& property,
                           unsigned maximumLength);
std::string cannotCreateMessage();
std::string cannotDeleteMessage();

}  // namespace ras

#endif
