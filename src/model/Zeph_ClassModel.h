// The wrapper side of every class: stored key values, registration in the class's current
// instance manager, and the per-class manager slot (default, current, set, clear).
#ifndef ZEPH_CLASSMODEL_H
#define ZEPH_CLASSMODEL_H

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "OW_Array.hpp"
#include "OW_CIMQualifier.hpp"
#include "Zeph_ProviderErrors.h"

namespace ras {

// The system every device, service and endpoint of the module belongs to (their
// SystemCreationClassName and SystemName keys).
inline constexpr char kSystemCreationClassName[] = "Zeph_System";
inline constexpr char kSystemName[] = "Zeph";

// The warning array every getter receives (impact warnings, "Write", "Applicable", ...).
using Qualifiers = OpenWBEM::Array<OpenWBEM::CIMQualifier>;

// One CIM instance as the providers see it: its keys and the accessors every class has.
class ManagedObject {
 public:
  ManagedObject(const ManagedObject&) = delete;
  ManagedObject& operator=(const ManagedObject&) = delete;
  virtual ~ManagedObject() = default;

  virtual int startChange() { return kStatusOk; }
  virtual int endChange() { return kStatusOk; }
  virtual int getElementName(std::string&, Qualifiers&) const { return kStatusNotProvided; }

  // The key the object is kept under: its key values concatenated in key order.
  std::string managerKey() const {
    std::string key;
    for (const std::string& value : keys_) key += value;
    return key;
  }

 protected:
  explicit ManagedObject(std::vector<std::string> keys) : keys_(std::move(keys)) {}

  int keyValue(std::size_t index, std::string& value) const {
    value = keys_.at(index);
    return kStatusOk;
  }

 private:
  std::vector<std::string> keys_;
};

// Binds wrapper W to its abstract manager M: the object enters the current manager when it
// is built and leaves it when destroyed; the map does not own it.
template <class W, class M, std::size_t N>
class ClassModel : public ManagedObject {
 public:
  static constexpr std::size_t kKeyCount = N;

  static M* getInstanceManager() { return theInstanceManager; }

  // Installs `manager` and runs its init, which builds the class's fixed instances.
  static int SetInstanceManager(M* manager) {
    theInstanceManager = manager;
    return manager->init();
  }

  static void ClearInstanceManager() { theInstanceManager = &defaultInstanceManager; }

  ~ClassModel() override { theInstanceManager->remove(this); }

 protected:
  explicit ClassModel(const std::array<std::string, N>& keys)
      : ManagedObject(std::vector<std::string>(keys.begin(), keys.end())) {
    theInstanceManager->add(this);
  }

 private:
  static M defaultInstanceManager;
  static M* theInstanceManager;
};

template <class W, class M, std::size_t N>
M ClassModel<W, M, N>::defaultInstanceManager;

template <class W, class M, std::size_t N>
M* ClassModel<W, M, N>::theInstanceManager = &ClassModel<W, M, N>::defaultInstanceManager;

// Classes keyed by InstanceID alone.
template <class W, class M>
class InstanceIdKeyed : public ClassModel<W, M, 1> {
 public:
  virtual int getInstanceID(std::string& value, Qualifiers&) const {
    return this->keyValue(0, value);
  }

 protected:
  explicit InstanceIdKeyed(const std::string& instanceID) : ClassModel<W, M, 1>({instanceID}) {}
};

// Classes keyed like a CIM system element: SystemCreationClassName, SystemName,
// CreationClassName, then the class's own identity key (Name or DeviceID), in that order.
template <class W, class M>
class SystemElementKeyed : public ClassModel<W, M, 4> {
 public:
  virtual int getSystemCreationClassName(std::string& value, Qualifiers&) const {
    return this->keyValue(0, value);
  }
  virtual int getSystemName(std::string& value, Qualifiers&) const {
    return this->keyValue(1, value);
  }
  virtual int getCreationClassName(std::string& value, Qualifiers&) const {
    return this->keyValue(2, value);
  }

  SystemElementKeyed(const std::string& systemCreationClassName, const std::string& systemName,
                     const std::string& creationClassName, const std::string& identity)
      : ClassModel<W, M, 4>({systemCreationClassName, systemName, creationClassName, identity}) {}

 protected:
  int identityKey(std::string& value) const { return this->keyValue(3, value); }
};

}  // namespace ras

#endif
