// Cimom.hpp: a CIMOM in miniature around one provider module. It creates the provider as
// OpenWBEM does (a first object only asked for its roles, then the one that is initialised
// and serves requests) and performs each CIM operation with what a CIMOM adds around the
// provider call: the previous instance for a modify, the instance check and the pre-sized
// out-parameters for a method, one associator call per association class.
#ifndef RAS_HOST_CIMOM_HPP
#define RAS_HOST_CIMOM_HPP

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "CallEnvironment.hpp"
#include "ModuleLibrary.hpp"
#include "MofSchema.hpp"
#include "OW_Array.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMValue.hpp"
#include "OW_CppProviderBaseIFC.hpp"
#include "OW_ProviderEnvironmentIFC.hpp"

namespace rascim {

// The filters of the association operations; an absent class means "every association
// class of the schema that refers to the object's class".
struct AssociationFilter {
  std::optional<std::string> assocClass;
  std::string resultClass;
  std::string role;
  std::string resultRole;
};

class Cimom {
 public:
  using String = OpenWBEM::String;
  using Path = OpenWBEM::CIMObjectPath;

  // Creates and initialises the provider; a CIMException from initialize propagates.
  Cimom(const ModuleLibrary& library, OpenWBEM::ProviderEnvironmentIFCRef env,
        std::shared_ptr<const MofSchema> schema);

  OpenWBEM::CIMInstanceArray enumInstances(const String& ns, const String& className);
  OpenWBEM::CIMObjectPathArray enumInstanceNames(const String& ns, const String& className);
  OpenWBEM::CIMInstance getInstance(const String& ns, const Path& path);
  Path createInstance(const String& ns, const OpenWBEM::CIMInstance& instance);
  // `propertyList` null: every property of `modified` (what wbemcli sends).
  void modifyInstance(const String& ns, const Path& path, const OpenWBEM::CIMInstance& modified,
                      const OpenWBEM::StringArray* propertyList);
  void deleteInstance(const String& ns, const Path& path);
  // `in` and `out` arrive arranged as a CIMOM arranges them (see buildMethodParams).
  OpenWBEM::CIMValue invokeMethod(const String& ns, const Path& path, const String& method,
                                  const OpenWBEM::CIMParamValueArray& in,
                                  OpenWBEM::CIMParamValueArray& out);
  OpenWBEM::CIMInstanceArray associators(const String& ns, const Path& path,
                                         const AssociationFilter& f);
  OpenWBEM::CIMObjectPathArray associatorNames(const String& ns, const Path& path,
                                               const AssociationFilter& f);
  OpenWBEM::CIMInstanceArray references(const String& ns, const Path& path,
                                        const AssociationFilter& f);
  OpenWBEM::CIMObjectPathArray referenceNames(const String& ns, const Path& path,
                                              const AssociationFilter& f);

 private:
  OpenWBEM::CppInstanceProviderIFC& instances() const;
  OpenWBEM::CppMethodProviderIFC& methods() const;
  OpenWBEM::CppAssociatorProviderIFC& associations() const;
  std::vector<std::string> associationClasses(const Path& path, const AssociationFilter& f) const;
  // One provider call's environment; used as a temporary, the call lasts until the end of
  // the full expression that makes it, and its CIMOM handle dies with it.
  ProviderCall call() const { return ProviderCall(env_); }

  OpenWBEM::ProviderEnvironmentIFCRef env_;
  std::shared_ptr<const MofSchema> schema_;
  OpenWBEM::IntrusiveReference<OpenWBEM::CppProviderBaseIFC> provider_;
};

}  // namespace rascim

#endif
