// Tag that selects the null-handle constructor of the CIM classes.
#ifndef OW_CIMNULL_HPP_INCLUDE_GUARD_
#define OW_CIMNULL_HPP_INCLUDE_GUARD_
#include "OW_config.h"

namespace OW_NAMESPACE {
enum CIMNULL_t { CIMNULL };
}  // namespace OW_NAMESPACE

#endif
