// The per-class instance provider, written once: enumeration, get, create with roll-back,
// delete, and the modify sequence, driven by the class's traits and property table.
#ifndef ZEPH_INSTANCEPROVIDER_H
#define ZEPH_INSTANCEPROVIDER_H

#include <array>
#include <string>
#include <tuple>

#include "CFG_Exception.h"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CppInstanceProviderIFC.hpp"
#include "OW_CppMethodProviderIFC.hpp"
#include "Zeph_PropertyAccess.h"
#include "Zeph_ProviderCore.h"
#include "Zeph_ProviderLines.h"

namespace ras {

// Keeps a manager reachable for the life of the process: installed managers are never freed.
void keepInstalledManager(const void* manager);

template <class TraitsT>
class InstanceProvider : public virtual OpenWBEM::CppInstanceProviderIFC,
                         public OpenWBEM::CppMethodProviderIFC {
 public:
  using Traits = TraitsT;
  using W = typename Traits::Wrapper;
  using M = typename Traits::Manager;
  using EnvRef = OpenWBEM::ProviderEnvironmentIFCRef;
  using String = OpenWBEM::String;
  using CIMInstance = OpenWBEM::CIMInstance;
  using CIMObjectPath = OpenWBEM::CIMObjectPath;

  // Installs a fresh manager of the class; its init builds the fixed instances.
  void initialize(const EnvRef&) override {
    auto* manager = new typename Traits::ImplManager;
    keepInstalledManager(manager);
    W::SetInstanceManager(manager);
  }

  void cleanup() {}

  void enumInstanceNames(const EnvRef&, const String& ns, const String& className,
                         OpenWBEM::CIMObjectPathResultHandlerIFC& result,
                         const OpenWBEM::CIMClass&) override {
    CIMObjectPath path(OpenWBEM::CIMName(className), ns);
    M* manager = W::getInstanceManager();
    for (manager->startIteration(); manager->hasNext();) {
      toObjectPath(*manager->next(), path);
      result.handle(path);
    }
    manager->endIteration();
  }

  void enumInstances(const EnvRef&, const String& ns, const String&,
                     OpenWBEM::CIMInstanceResultHandlerIFC& result,
                     OpenWBEM::WBEMFlags::ELocalOnlyFlag, OpenWBEM::WBEMFlags::EDeepFlag,
                     OpenWBEM::WBEMFlags::EIncludeQualifiersFlag,
                     OpenWBEM::WBEMFlags::EIncludeClassOriginFlag, const OpenWBEM::StringArray*,
                     const OpenWBEM::CIMClass&, const OpenWBEM::CIMClass&) override {
    CIMInstance instance(Traits::kClass);
    M* manager = W::getInstanceManager();
    for (manager->startIteration(); manager->hasNext();) {
      toInstance(ns, *manager->next(), instance);
      result.handle(instance);
    }
    manager->endIteration();
  }

  CIMInstance getInstance(const EnvRef&, const String& ns, const CIMObjectPath& instanceName,
                          OpenWBEM::WBEMFlags::ELocalOnlyFlag,
                          OpenWBEM::WBEMFlags::EIncludeQualifiersFlag,
                          OpenWBEM::WBEMFlags::EIncludeClassOriginFlag,
                          const OpenWBEM::StringArray*, const OpenWBEM::CIMClass&) override {
    W* object = lookup(instanceName);
    CIMInstance instance(Traits::kClass);
    toInstance(ns, *object, instance);
    return instance;
  }

  CIMObjectPath createInstance(const EnvRef&, const String& ns,
                               const CIMInstance& newInstance) override {
    ras::refuseUnacceptable(ops(), newInstance);
    W* object = createFrom(newInstance);
    try {
      modifyInstance(*object, newInstance);
    } catch (const OpenWBEM::CIMException& failure) {
      destroyQuietly(object);
      throw OpenWBEM::CIMException(failure);
    }
    CIMObjectPath path(OpenWBEM::CIMName(Traits::kClass), ns);
    toObjectPath(*object, path);
    return path;
  }

  void deleteInstance(const EnvRef&, const String&, const CIMObjectPath& cop) override {
    W* object = lookup(cop);
    try {
      (W::getInstanceManager()->*Traits::kDestroy)(object);
    } catch (const CFG_InstanceDeletionFailed&) {
      throwProviderError(at(lines().deleteRefused), OpenWBEM::CIMException::NOT_SUPPORTED,
                         cannotDeleteMessage());
    }
  }

  void modifyInstance(const EnvRef&, const String&, const CIMInstance& modifiedInstance,
                      const CIMInstance&, OpenWBEM::WBEMFlags::EIncludeQualifiersFlag,
                      const OpenWBEM::StringArray*, const OpenWBEM::CIMClass&) override {
    modifyInstance(*lookup(modifiedInstance), modifiedInstance);
  }

  OpenWBEM::CIMValue invokeMethod(const EnvRef&, const String&, const CIMObjectPath&, const String&,
                                  const OpenWBEM::CIMParamValueArray&,
                                  OpenWBEM::CIMParamValueArray&) override {
    throwWithoutMessage(at(lines().methodNotFound), OpenWBEM::CIMException::METHOD_NOT_FOUND);
  }

  // The change sequence: startChange, each writable property in the instance's order
  // (checks, then setter), endChange. A failure stops it; earlier properties stay applied.
  void modifyInstance(W& object, const CIMInstance& instance) {
    runChange(ops(), object, instance);
  }

  // The conversions, shared with the association whose end the class is.
  // Fills `instance` with every property whose getter succeeds, in table order, and names
  // it by its key properties, so that the CIMOM derives the same path as enumInstanceNames
  // (the properties themselves carry only the getters' qualifiers).
  static void toInstance(const String& ns, const W& object, CIMInstance& instance) {
    buildInstance(ops(), ns, object, instance);
  }

  // Sets the key(s) of `path`; an unreadable key means the object cannot be named.
  static void toObjectPath(const W& object, CIMObjectPath& path) {
    buildObjectPath(ops(), object, path);
  }

 protected:
  // A path with keys the class does not have names no instance of it.
  W* lookup(const CIMObjectPath& path) const {
    if (path.getKeys().size() > W::kKeyCount) {
      throwWithoutMessage(at(lines().pathNoInstance), OpenWBEM::CIMException::NOT_FOUND);
    }
    return find(
        [](const void* source, const char* name) {
          return static_cast<const CIMObjectPath*>(source)->getKey(name);
        },
        &path, {lines().pathKeyMissing, lines().pathKeyNull, lines().pathNoInstance});
  }

  W* lookup(const CIMInstance& instance) const {
    return find(
        [](const void* source, const char* name) {
          return static_cast<const CIMInstance*>(source)->getProperty(name);
        },
        &instance,
        {lines().instanceKeyMissing, lines().instanceKeyNull, lines().instanceNoInstance});
  }

  // Creates the object named by the new instance's keys (absent or null keys are empty).
  // A class whose objects are not named by their keys at creation overrides this.
  virtual W* createFrom(const CIMInstance& newInstance) const {
    std::array<std::string, W::kKeyCount> keys;
    const std::vector<std::string> texts = creationKeys(ops(), newInstance);
    for (std::size_t index = 0; index < texts.size(); ++index) keys.at(index) = texts[index];
    try {
      return std::apply(
          [](const auto&... key) { return (W::getInstanceManager()->*Traits::kCreate)(key...); },
          keys);
    } catch (const CFG_InstanceCreationFailed&) {
      refuseCreate();
    }
  }

  [[noreturn]] void refuseCreate() const {
    throwProviderError(at(lines().createRefused), OpenWBEM::CIMException::NOT_SUPPORTED,
                       cannotCreateMessage());
  }

 private:
  static constexpr const ProviderLines& lines() { return Traits::kLines; }
  static ErrorSite at(int line) { return {Traits::kSource, line}; }

  // The class's rows and typed accessors for the shared provider code (ProviderCore).
  static const ClassOps& ops() {
    static const ClassOps classOps = {{Traits::kClass, Traits::kSource, Traits::kLines},
                                      &rowCount,
                                      &rowAt,
                                      &readRow,
                                      &writeRow,
                                      &acceptRow};
    return classOps;
  }
  static std::size_t rowCount() { return Traits::properties().size(); }
  static RowInfo rowAt(std::size_t i) {
    const Property<W>& row = Traits::properties()[i];
    return {row.name, row.role, row.type};
  }
  static int readRow(std::size_t i, const ManagedObject& object, const String& ns,
                     Qualifiers& qualifiers, OpenWBEM::CIMValue& out) {
    return readValue(Traits::properties()[i], static_cast<const W&>(object), ns, qualifiers, out);
  }
  static int writeRow(std::size_t i, ManagedObject& object, const OpenWBEM::CIMValue& value) {
    const Property<W>& row = Traits::properties()[i];
    return writeValue(row, static_cast<W&>(object), value, [&](const auto& typed) {
      checkLimits(ops().site, row.name, row.limits, typed);
    });
  }
  static int acceptRow(std::size_t i, const OpenWBEM::CIMValue& value) {
    const Property<W>& row = Traits::properties()[i];
    return acceptValue(row, value, [&](const auto& typed) {
      checkLimits(ops().site, row.name, row.limits, typed);
    });
  }

  // Concatenates the key values in key order and asks the current manager for the object.
  W* find(KeySource keyOf, const void* source, LookupLines where) const {
    const std::string key = lookupKey(ops(), where, keyOf, source);
    try {
      return W::getInstanceManager()->get(key);
    } catch (const CFG_NoInstance&) {
      throwWithoutMessage(at(where.noInstance), OpenWBEM::CIMException::NOT_FOUND);
    }
  }

  // Roll-back of a failed create: a failure of the destruction itself is not reported.
  static bool destroyQuietly(W* object) {
    try {
      (W::getInstanceManager()->*Traits::kDestroy)(object);
      return true;
    } catch (const OpenWBEM::CIMException&) {
      return false;
    } catch (const CFG_Exception&) {
      return false;
    }
  }
};

}  // namespace ras

#endif
