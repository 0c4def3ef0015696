// Forward declarations of the CIMOM-side interfaces and the result handler typedefs.
#ifndef OW_IFCS_FWD_HPP_INCLUDE_GUARD_
#define OW_IFCS_FWD_HPP_INCLUDE_GUARD_
#include "OW_CommonFwd.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMOMHandleIFC;
typedef IntrusiveReference<CIMOMHandleIFC> CIMOMHandleIFCRef;
class RepositoryIFC;
typedef IntrusiveReference<RepositoryIFC> RepositoryIFCRef;

template <typename T>
class ResultHandlerIFC;
class CIMClass;
class CIMInstance;
class CIMObjectPath;
class CIMQualifierType;
class String;
typedef ResultHandlerIFC<CIMClass> CIMClassResultHandlerIFC;
typedef ResultHandlerIFC<CIMInstance> CIMInstanceResultHandlerIFC;
typedef ResultHandlerIFC<CIMObjectPath> CIMObjectPathResultHandlerIFC;
typedef ResultHandlerIFC<String> StringResultHandlerIFC;
typedef ResultHandlerIFC<CIMQualifierType> CIMQualifierTypeResultHandlerIFC;

}  // namespace OW_NAMESPACE

#endif
