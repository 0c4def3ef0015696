// Forward declaration of the copy-on-write Array template.
#ifndef OW_ARRAY_FWD_HPP_INCLUDE_GUARD_
#define OW_ARRAY_FWD_HPP_INCLUDE_GUARD_
#include "OW_config.h"

namespace OW_NAMESPACE {
template <class T>
class Array;
}  // namespace OW_NAMESPACE

#endif
