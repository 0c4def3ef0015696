// The dispatcher's failure paths: message texts, logging through the request's environment,
// and the CIM errors with the dispatcher's source name and fixed lines.
#include "Zeph_DispatchGuard.h"

#include <string>

#include "OW_Logger.hpp"
#include "Zeph_PlatformLog.h"
#include "Zeph_ProviderErrors.h"

namespace ras {
namespace {

constexpr char kSource[] = "../src/Zeph_RASProvider";
constexpr char kStdExceptionHead[] = "Unknown std::exception caught in Zeph_RASProvider\n";
constexpr char kUnknownThrowHead[] = "Unknown throw caught in Zeph_RASProvider\n";
constexpr char kLineEnd[] = "\n";

[[noreturn]] void logAndFail(const OpenWBEM::ProviderEnvironmentIFCRef& env, int line,
                             const std::string& message) {
  env->getLogger(kLogComponent)->logError(OpenWBEM::String(message.c_str(), message.size()));
  throwProviderError({kSource, line}, OpenWBEM::CIMException::FAILED, message);
}

std::string describe(const char* head, const Operation& op, const OpenWBEM::String& className) {
  return head + std::string(op.fragment) + className.c_str() + kLineEnd;
}

}  // namespace

void failConfiguration(const OpenWBEM::ProviderEnvironmentIFCRef& env, const Operation& op,
                       const OpenWBEM::String& className, const CFG_Exception& error) {
  const bool readError = dynamic_cast<const CFG_ReadError*>(&error) != nullptr;
  const bool writeError = dynamic_cast<const CFG_WriteError*>(&error) != nullptr;
  if (readError && op.caught != ConfigErrors::Write) {
    throwProviderError({kSource, op.readErrorLine}, OpenWBEM::CIMException::FAILED, "");
  }
  if (writeError && op.caught != ConfigErrors::Read) {
    throwProviderError({kSource, op.writeErrorLine}, OpenWBEM::CIMException::FAILED, "");
  }
  failStdException(env, op, className, error);
}

void failStdException(const OpenWBEM::ProviderEnvironmentIFCRef& env, const Operation& op,
                      const OpenWBEM::String& className, const std::exception& error) {
  logAndFail(env, op.stdExceptionLine,
             describe(kStdExceptionHead, op, className) + error.what() + kLineEnd);
}

void failUnknownThrow(const OpenWBEM::ProviderEnvironmentIFCRef& env, const Operation& op,
                      const OpenWBEM::String& className) {
  logAndFail(env, op.unknownThrowLine, describe(kUnknownThrowHead, op, className));
}

void failUnknownClass(const Operation& op) {
  throwWithoutMessage({kSource, op.unknownClassLine}, OpenWBEM::CIMException::INVALID_CLASS);
}

}  // namespace ras
