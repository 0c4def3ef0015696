// Forward declarations of the provider environments and their reference typedefs.
#ifndef OW_PROVIDER_FWD_HPP_INCLUDE_GUARD_
#define OW_PROVIDER_FWD_HPP_INCLUDE_GUARD_
#include "OW_ArrayFwd.hpp"
#include "OW_IntrusiveReference.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class ProviderEnvironmentIFC;
typedef IntrusiveReference<ProviderEnvironmentIFC> ProviderEnvironmentIFCRef;
class ProviderRegistrationEnvironmentIFC;
typedef IntrusiveReference<ProviderRegistrationEnvironmentIFC>
    ProviderRegistrationEnvironmentIFCRef;
class InstanceProviderInfo;
class MethodProviderInfo;
class AssociatorProviderInfo;

}  // namespace OW_NAMESPACE

#endif
