// Umbrella header for writing a C++ provider.
#ifndef OW_CPPPROVIDERINCLUDES_HPP_INCLUDE_GUARD_
#define OW_CPPPROVIDERINCLUDES_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_Assertion.hpp"
#include "OW_CIM.hpp"
#include "OW_CIMOMHandleIFC.hpp"
#include "OW_CppAssociatorProviderIFC.hpp"
#include "OW_CppInstanceProviderIFC.hpp"
#include "OW_CppMethodProviderIFC.hpp"
#include "OW_CppProviderBaseIFC.hpp"
#include "OW_DateTime.hpp"
#include "OW_Enumeration.hpp"
#include "OW_Format.hpp"
#include "OW_Logger.hpp"
#include "OW_OperationContext.hpp"
#include "OW_ResultHandlerIFC.hpp"
#include "OW_String.hpp"
#include "OW_StringStream.hpp"
#include "OW_config.h"
#endif
