// The CIMOM's repository, known to providers only through a reference.
#ifndef OW_REPOSITORYIFC_HPP_INCLUDE_GUARD_
#define OW_REPOSITORYIFC_HPP_INCLUDE_GUARD_
#include "OW_IfcsFwd.hpp"
#include "OW_IntrusiveCountableBase.hpp"
#include "OW_IntrusiveReference.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class RepositoryIFC : public IntrusiveCountableBase {
 public:
  virtual ~RepositoryIFC();
};

}  // namespace OW_NAMESPACE

#endif
