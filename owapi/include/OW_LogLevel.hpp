// Severity levels of the logger, from none to everything.
#ifndef OW_LOG_LEVEL_HPP_INCLUDE_GUARD_
#define OW_LOG_LEVEL_HPP_INCLUDE_GUARD_
#include "OW_config.h"

namespace OW_NAMESPACE {

enum ELogLevel {
  E_NONE_LEVEL = 0,
  E_FATAL_ERROR_LEVEL = 1,
  E_ERROR_LEVEL = 2,
  E_INFO_LEVEL = 3,
  E_DEBUG_LEVEL = 4,
  E_ALL_LEVEL = 5
};

}  // namespace OW_NAMESPACE

#endif
