// ModuleLibrary.hpp: loads a C++ provider library the way OpenWBEM's C++ provider interface
// does: dlopen, the provider id from the file name (lib<id>.so), getOWVersion() compared
// with the interface version, and the factory createProvider<id>().
#ifndef RAS_HOST_MODULELIBRARY_HPP
#define RAS_HOST_MODULELIBRARY_HPP

#include <stdexcept>
#include <string>

#include "OW_CppProviderBaseIFC.hpp"

namespace rascim {

// The provider interface version ras-cim stands in for.
extern const char kProviderInterfaceVersion[];

class ModuleError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class ModuleLibrary {
 public:
  // Throws ModuleError when the library cannot be loaded, has another version or no factory.
  explicit ModuleLibrary(const std::string& path);
  // The library stays loaded for the life of the process, as providers that may still have
  // threads of their own (the registry notifier) must.
  ~ModuleLibrary() = default;
  ModuleLibrary(const ModuleLibrary&) = delete;
  ModuleLibrary& operator=(const ModuleLibrary&) = delete;

  const std::string& providerId() const { return id_; }
  // A new provider object, owned by the caller through an intrusive reference.
  OpenWBEM::CppProviderBaseIFC* createProvider() const;

 private:
  using Factory = OpenWBEM::CppProviderBaseIFC* (*)();
  std::string id_;
  Factory factory_ = nullptr;
};

}  // namespace rascim

#endif
