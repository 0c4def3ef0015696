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
    refuseUnacceptable(newInstance);
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
    const int started = object.startChange();
    if (started != kStatusOk) {
      throwProviderError(at(lines().changeNotStarted), OpenWBEM::CIMException::FAILED,
                         changeNotStartedMessage(started));
    }
    const OpenWBEM::CIMPropertyArray properties = instance.getProperties();
    for (const OpenWBEM::CIMProperty& property : properties) applyIfWritable(object, property);
    const int ended = object.endChange();
    if (ended == kStatusInvalidValue || ended == kStatusInvalidValues) {
      throwProviderError(at(lines().valuesInvalid), OpenWBEM::CIMException::INVALID_PARAMETER,
                         valuesInvalidMessage(Traits::kClass));
    }
    if (ended != kStatusOk) {
      throwProviderError(at(lines().changeNotCommitted), OpenWBEM::CIMException::FAILED,
                         statusMessage(ended));
    }
  }

  // The conversions, shared with the association whose end the class is.
  // Fills `instance` with every property whose getter succeeds, in table order, and names
  // it by its key properties, so that the CIMOM derives the same path as enumInstanceNames
  // (the properties themselves carry only the getters' qualifiers).
  static void toInstance(const String& ns, const W& object, CIMInstance& instance) {
    Qualifiers qualifiers;
    OpenWBEM::CIMPropertyArray keys;
    for (const Property<W>& row : Traits::properties()) {
      qualifiers.clear();
      OpenWBEM::CIMValue value(OpenWBEM::CIMNULL);
      if (readValue(row, object, ns, qualifiers, value) != kStatusOk) continue;
      OpenWBEM::CIMProperty property(row.name, value);
      if (row.role == Role::Key) keys.push_back(property);
      property.setQualifiers(qualifiers);
      instance.setProperty(property);
    }
    instance.setKeys(keys);
  }

  // Sets the key(s) of `path`; an unreadable key means the object cannot be named.
  static void toObjectPath(const W& object, CIMObjectPath& path) {
    Qualifiers scratch;
    for (const Property<W>& row : Traits::properties()) {
      if (row.role != Role::Key) continue;
      OpenWBEM::CIMValue value(OpenWBEM::CIMNULL);
      if (readValue(row, object, path.getNameSpace(), scratch, value) != kStatusOk) {
        throwWithoutMessage(at(lines().keyNotReadable), OpenWBEM::CIMException::NOT_FOUND);
      }
      path.setKeyValue(row.name, value);
    }
  }

 protected:
  // A path with keys the class does not have names no instance of it.
  W* lookup(const CIMObjectPath& path) const {
    if (path.getKeys().size() > W::kKeyCount) {
      throwWithoutMessage(at(lines().pathNoInstance), OpenWBEM::CIMException::NOT_FOUND);
    }
    return find([&](const char* name) { return path.getKey(name); },
                {lines().pathKeyMissing, lines().pathKeyNull, lines().pathNoInstance});
  }

  W* lookup(const CIMInstance& instance) const {
    return find([&](const char* name) { return instance.getProperty(name); },
                {lines().instanceKeyMissing, lines().instanceKeyNull, lines().instanceNoInstance});
  }

  // Creates the object named by the new instance's keys (absent or null keys are empty).
  // A class whose objects are not named by their keys at creation overrides this.
  virtual W* createFrom(const CIMInstance& newInstance) const {
    std::array<std::string, W::kKeyCount> keys;
    std::size_t index = 0;
    for (const Property<W>& row : Traits::properties()) {
      if (row.role != Role::Key) continue;
      keys.at(index++) = keyText(row, newInstance.getPropertyValue(row.name)).value_or("");
    }
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
  struct LookupLines {
    int missing;
    int null;
    int noInstance;
  };

  static constexpr const ProviderLines& lines() { return Traits::kLines; }
  static ErrorSite at(int line) { return {Traits::kSource, line}; }

  // Concatenates the key values in key order and asks the current manager for the object.
  template <class KeySource>
  W* find(KeySource keyProperty, LookupLines where) const {
    std::string key;
    for (const Property<W>& row : Traits::properties()) {
      if (row.role != Role::Key) continue;
      const OpenWBEM::CIMProperty property = keyProperty(row.name);
      if (!property) throwWithoutMessage(at(where.missing), OpenWBEM::CIMException::NOT_FOUND);
      const std::optional<std::string> text = keyText(row, property.getValue());
      if (!text) throwWithoutMessage(at(where.null), OpenWBEM::CIMException::NOT_FOUND);
      key += *text;
    }
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

  static const Property<W>* writableRow(const String& name) {
    for (const Property<W>& row : Traits::properties()) {
      if (row.role == Role::Writable && name.equals(row.name)) return &row;
    }
    return nullptr;
  }

  void applyIfWritable(W& object, const OpenWBEM::CIMProperty& property) const {
    const Property<W>* row = writableRow(property.getName());
    const OpenWBEM::CIMValue value = property.getValue();
    if (row != nullptr && value) apply(object, *row, value);
  }

  // The checks of the change sequence, run over a new instance before its object exists: a
  // value the sequence would refuse is refused with the same error, before anything runs.
  void refuseUnacceptable(const CIMInstance& instance) const {
    const OpenWBEM::CIMPropertyArray properties = instance.getProperties();
    for (const OpenWBEM::CIMProperty& property : properties) {
      const Property<W>* row = writableRow(property.getName());
      const OpenWBEM::CIMValue value = property.getValue();
      if (row == nullptr || !value) continue;
      raise(hasRowType(*row, value)
                ? acceptValue(*row, value, [&](const auto& typed) { check(*row, typed); })
                : kStatusInvalidValue);
    }
  }

  void apply(W& object, const Property<W>& row, const OpenWBEM::CIMValue& value) const {
    raise(hasRowType(row, value)
              ? writeValue(row, object, value, [&](const auto& typed) { check(row, typed); })
              : kStatusInvalidValue);
  }

  // The error of a setter status other than success.
  void raise(int status) const {
    if (status == kStatusInvalidValue) {
      throwProviderError(at(lines().invalidValue), OpenWBEM::CIMException::INVALID_PARAMETER,
                         invalidValueMessage(Traits::kClass));
    }
    if (status != kStatusOk) {
      throwProviderError(at(lines().setterFailed), OpenWBEM::CIMException::FAILED,
                         statusMessage(status));
    }
  }

  template <class T>
  void check(const Property<W>& row, const T& value) const {
    const Limits& limits = row.limits;
    const auto code = OpenWBEM::CIMException::INVALID_PARAMETER;
    if constexpr (std::is_same_v<T, std::string>) {
      if (limits.maximumLength && utf8Length(value) > *limits.maximumLength) {
        throwProviderError(at(lines().tooLong), code,
                           tooLongMessage(Traits::kClass, row.name, *limits.maximumLength));
      }
    } else if constexpr (!std::is_same_v<T, bool>) {
      if (limits.maximum && value > *limits.maximum) {
        throwProviderError(at(lines().aboveMaximum), code,
                           aboveMaximumMessage(Traits::kClass, row.name, *limits.maximum));
      }
      if (limits.minimum && value < *limits.minimum) {
        throwProviderError(at(lines().belowMinimum), code,
                           belowMinimumMessage(Traits::kClass, row.name, *limits.minimum));
      }
    }
  }
};

}  // namespace ras

#endif
