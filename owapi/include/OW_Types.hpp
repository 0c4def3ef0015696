// Fixed-size integer and floating point types used across the CIM object model.
#ifndef OW_TYPES_HPP_INCLUDE_GUARD_
#define OW_TYPES_HPP_INCLUDE_GUARD_
#include "OW_config.h"

namespace OW_NAMESPACE {

typedef unsigned char UInt8;
typedef signed char Int8;
typedef unsigned short UInt16;
typedef short Int16;
typedef unsigned int UInt32;
typedef int Int32;
typedef unsigned long UInt64;
typedef long Int64;
typedef float Real32;
typedef double Real64;

}  // namespace OW_NAMESPACE

#endif
