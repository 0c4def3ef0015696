// Exception thrown when a property asked for by name is absent.
#ifndef OW_NOSUCHPROPERTYEXCEPTION_HPP_INCLUDE_GUARD_
#define OW_NOSUCHPROPERTYEXCEPTION_HPP_INCLUDE_GUARD_
#include "OW_Exception.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {
OW_DECLARE_APIEXCEPTION(NoSuchProperty, OW_COMMON_API)
}  // namespace OW_NAMESPACE

#endif
