// Complete type of the instance enumeration.
#ifndef OW_CIMINSTANCEENUMERATION_HPP_INCLUDE_GUARD_
#define OW_CIMINSTANCEENUMERATION_HPP_INCLUDE_GUARD_
#include "OW_CIMFwd.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_Enumeration.hpp"
#include "OW_config.h"
#endif
