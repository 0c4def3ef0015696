// ModuleLibrary.cpp: dlopen, version check and factory lookup.
#include "ModuleLibrary.hpp"

#include <dlfcn.h>

#include <cstring>

namespace rascim {

const char kProviderInterfaceVersion[] = "3.0.3";

namespace {

const char kVersionSymbol[] = "getOWVersion";
const char kFactoryPrefix[] = "createProvider";
const char kLibraryPrefix[] = "lib";
const char kLibrarySuffix[] = ".so";

using VersionFunction = const char* (*)();

// "/x/libZeph_RASProvider.so" gives "Zeph_RASProvider".
std::string providerIdOf(const std::string& path) {
  const std::string file = path.substr(path.rfind('/') + 1);
  const size_t prefix = sizeof kLibraryPrefix - 1, suffix = sizeof kLibrarySuffix - 1;
  if (file.size() <= prefix + suffix || file.compare(0, prefix, kLibraryPrefix) != 0 ||
      file.compare(file.size() - suffix, suffix, kLibrarySuffix) != 0)
    throw ModuleError(path + ": a provider library is named lib<id>.so");
  return file.substr(prefix, file.size() - prefix - suffix);
}

void* symbol(void* library, const std::string& name, const std::string& path) {
  void* address = dlsym(library, name.c_str());
  if (!address) throw ModuleError(path + ": no symbol " + name);
  return address;
}

}  // namespace

ModuleLibrary::ModuleLibrary(const std::string& path) : id_(providerIdOf(path)) {
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL);
  if (!library) throw ModuleError(dlerror());
  const auto version = reinterpret_cast<VersionFunction>(symbol(library, kVersionSymbol, path))();
  if (!version || std::strcmp(version, kProviderInterfaceVersion) != 0)
    throw ModuleError(path + ": provider interface version " + (version ? version : "(none)") +
                      ", expected " + kProviderInterfaceVersion);
  factory_ = reinterpret_cast<Factory>(symbol(library, kFactoryPrefix + id_, path));
}

OpenWBEM::CppProviderBaseIFC* ModuleLibrary::createProvider() const {
  return factory_();
}

}  // namespace rascim
