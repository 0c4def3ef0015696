// Exception thrown when a value that must be present is null.
#ifndef OW_NULLVALUEEXCEPTION_HPP_INCLUDE_GUARD_
#define OW_NULLVALUEEXCEPTION_HPP_INCLUDE_GUARD_
#include "OW_Exception.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {
OW_DECLARE_APIEXCEPTION(NULLValue, OW_COMMON_API)
}  // namespace OW_NAMESPACE

#endif
