// The two entry points a CIMOM looks for in the module library: the provider-interface
// version and the factory of the one provider object.
#include "Zeph_RASProvider.h"

namespace {

constexpr char kProviderInterfaceVersion[] = "3.0.3";

}  // namespace

extern "C" {

OpenWBEM::CppProviderBaseIFC* createProviderZeph_RASProvider() {
  return new Zeph_RASProvider;
}

const char* getOWVersion() {
  return kProviderInterfaceVersion;
}
}
