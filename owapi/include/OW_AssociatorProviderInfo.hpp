// Registration record of associator providers.
#ifndef OW_ASSOCIATORPROVIDERINFO_HPP_INCLUDE_GUARD_
#define OW_ASSOCIATORPROVIDERINFO_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_ProviderInfoBase.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class AssociatorProviderInfo : public ProviderInfoBase<InstClassInfo> {
 public:
  using ProviderInfoBase<InstClassInfo>::ClassInfo;
  using ProviderInfoBase<InstClassInfo>::ClassInfoArray;
};

typedef Array<AssociatorProviderInfo> AssociatorProviderInfoArray;

}  // namespace OW_NAMESPACE

#endif
