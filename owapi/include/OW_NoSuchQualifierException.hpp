// Exception thrown when a qualifier asked for by name is absent.
#ifndef OW_NOSUCHQUALIFIEREXCEPTION_HPP_INCLUDE_GUARD_
#define OW_NOSUCHQUALIFIEREXCEPTION_HPP_INCLUDE_GUARD_
#include "OW_Exception.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {
OW_DECLARE_APIEXCEPTION(NoSuchQualifier, OW_COMMON_API)
}  // namespace OW_NAMESPACE

#endif
