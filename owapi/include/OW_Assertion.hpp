// Debug-build assertions; they compile to nothing unless OW_DEBUG is defined.
#ifndef OW_ASSERTION_HPP_INCLUDE_GUARD_
#define OW_ASSERTION_HPP_INCLUDE_GUARD_
#include "OW_Exception.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {
OW_DECLARE_APIEXCEPTION(Assertion, OW_COMMON_API)
}  // namespace OW_NAMESPACE

#define OW_ASSERT(CON)
#define OW_ASSERTMSG(CON, MSG)

#endif
