// Umbrella header for the whole CIM object model.
#ifndef OW_CIM_HPP_INCLUDE_GUARD_
#define OW_CIM_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMDataType.hpp"
#include "OW_CIMDateTime.hpp"
#include "OW_CIMElement.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMFlavor.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_CIMValue.hpp"
#include "OW_Char16.hpp"
#include "OW_Exception.hpp"
#include "OW_String.hpp"
#include "OW_config.h"
#endif
