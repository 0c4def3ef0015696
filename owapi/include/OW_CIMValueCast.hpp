// Conversion of a CIM value to another data type, and the exception for a wrong-type read.
#ifndef OW_CIMVALUECAST_HPP_INCLUDE_GUARD_
#define OW_CIMVALUECAST_HPP_INCLUDE_GUARD_
#include "OW_CIMFwd.hpp"
#include "OW_Exception.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

OW_DECLARE_APIEXCEPTION(ValueCast, OW_COMMON_API)

namespace CIMValueCast {
CIMValue castValueToDataType(const CIMValue& value, const CIMDataType& dataType);
}  // namespace CIMValueCast

}  // namespace OW_NAMESPACE

#endif
