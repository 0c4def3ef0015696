// A loaded shared library, kept alive by references to what it created.
#ifndef OW_SHAREDLIBRARY_HPP_INCLUDE_GUARD_
#define OW_SHAREDLIBRARY_HPP_INCLUDE_GUARD_
#include "OW_IntrusiveCountableBase.hpp"
#include "OW_IntrusiveReference.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class SharedLibrary : public IntrusiveCountableBase {
 public:
  virtual ~SharedLibrary();
};
typedef IntrusiveReference<SharedLibrary> SharedLibraryRef;

}  // namespace OW_NAMESPACE

#endif
