// Registration record of instance providers.
#ifndef OW_INSTANCEPROVIDERINFO_HPP_INCLUDE_GUARD_
#define OW_INSTANCEPROVIDERINFO_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_ProviderInfoBase.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class InstanceProviderInfo : public ProviderInfoBase<InstClassInfo> {
 public:
  using ProviderInfoBase<InstClassInfo>::ClassInfo;
  using ProviderInfoBase<InstClassInfo>::ClassInfoArray;
};

typedef Array<InstanceProviderInfo> InstanceProviderInfoArray;

}  // namespace OW_NAMESPACE

#endif
