// Forward declarations of the CIM object model and its array and enumeration typedefs.
#ifndef OW_CIM_FWD_HPP_INCLUDE_GUARD_
#define OW_CIM_FWD_HPP_INCLUDE_GUARD_
#include "OW_ArrayFwd.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

template <class T>
class Enumeration;

class CIMBase;
class CIMElement;
class CIMName;
class CIMDataType;
class CIMDateTime;
class CIMValue;
class CIMQualifier;
class CIMQualifierType;
class CIMFlavor;
class CIMProperty;
class CIMMethod;
class CIMParameter;
class CIMInstance;
class CIMObjectPath;
class CIMParamValue;
class CIMClass;
struct CIMFeatures;
class CIMNameSpace;
class CIMUrl;
class CIMException;

typedef Array<CIMDataType> CIMDataTypeArray;
typedef Array<CIMDateTime> CIMDateTimeArray;
typedef Array<CIMValue> CIMValueArray;
typedef Array<CIMQualifier> CIMQualifierArray;
typedef Array<CIMQualifierType> CIMQualifierTypeArray;
typedef Array<CIMFlavor> CIMFlavorArray;
typedef Array<CIMProperty> CIMPropertyArray;
typedef Array<CIMMethod> CIMMethodArray;
typedef Array<CIMParameter> CIMParameterArray;
typedef Array<CIMInstance> CIMInstanceArray;
typedef Array<CIMObjectPath> CIMObjectPathArray;
typedef Array<CIMParamValue> CIMParamValueArray;
typedef Array<CIMClass> CIMClassArray;
typedef Array<CIMName> CIMNameArray;

typedef Enumeration<CIMInstance> CIMInstanceEnumeration;
typedef Enumeration<CIMObjectPath> CIMObjectPathEnumeration;
typedef Enumeration<CIMClass> CIMClassEnumeration;
typedef Enumeration<CIMQualifierType> CIMQualifierTypeEnumeration;

}  // namespace OW_NAMESPACE

#endif
