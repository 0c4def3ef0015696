// Complete type of the object path enumeration.
#ifndef OW_CIMOBJECTPATHENUMERATION_HPP_INCLUDE_GUARD_
#define OW_CIMOBJECTPATHENUMERATION_HPP_INCLUDE_GUARD_
#include "OW_CIMFwd.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_Enumeration.hpp"
#include "OW_config.h"
#endif
