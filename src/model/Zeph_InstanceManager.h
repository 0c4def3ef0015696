// The collection of a class's live objects: key map, one iteration cursor, lookups, and the
// factory slots that the implementation manager fills in.
#ifndef ZEPH_INSTANCEMANAGER_H
#define ZEPH_INSTANCEMANAGER_H

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "CFG_Exception.h"
#include "Zeph_ClassModel.h"

namespace ras {

// Abstract manager of wrapper W. The base cannot create or delete objects; it keeps the map
// ordered by key (byte-wise) and does not own its entries.
template <class W>
class InstanceManager {
 public:
  using Wrapper = W;
  using KeyValues = std::vector<std::string>;

  InstanceManager() = default;
  InstanceManager(const InstanceManager&) = delete;
  InstanceManager& operator=(const InstanceManager&) = delete;
  virtual ~InstanceManager() = default;

  virtual int init() { return kStatusOk; }
  virtual W* create(const KeyValues&) { throw CFG_InstanceCreationFailed(); }
  virtual void destroy(W*) { throw CFG_InstanceDeletionFailed(); }

  // Inserts or replaces the entry under the object's key.
  virtual void add(ManagedObject* object) { objects_[object->managerKey()] = object; }

  // Erases the entry under the object's key; the cursor moves on if it stood there.
  virtual void remove(ManagedObject* object) {
    const auto found = objects_.find(object->managerKey());
    if (found == objects_.end()) return;
    if (found == cursor_) ++cursor_;
    objects_.erase(found);
  }

  virtual W* get(const std::string& key) const {
    const auto found = objects_.find(std::string() + key);
    if (found == objects_.end() || found->second == nullptr) throw CFG_NoInstance();
    return static_cast<W*>(found->second);
  }

  virtual void startIteration() { cursor_ = objects_.begin(); }
  virtual bool hasNext() const { return cursor_ != objects_.end(); }

  virtual W* next() {
    if (cursor_ == objects_.end() || cursor_->second == nullptr) throw CFG_NoInstance();
    W* object = static_cast<W*>(cursor_->second);
    ++cursor_;
    return object;
  }

  virtual void endIteration() { cursor_ = objects_.end(); }

 private:
  using ObjectMap = std::map<std::string, ManagedObject*>;
  ObjectMap objects_;
  typename ObjectMap::iterator cursor_ = objects_.end();
};

// Manager that builds objects of the implementation class Impl; `Base` is the class's named
// abstract manager. A class's own implementation manager derives from this and adds init().
template <class Base, class Impl>
class ImplInstanceManager : public Base {
 public:
  using Wrapper = typename Base::Wrapper;
  using KeyValues = typename Base::KeyValues;

  // The new object takes the key. An object this manager built earlier under the same key
  // could no longer be reached by any request: it is freed first (which erases its entry)
  // rather than left behind on every such create.
  Wrapper* create(const KeyValues& keys) override {
    std::string key;
    for (const std::string& value : keys) key += value;
    try {
      delete InstanceManager<Wrapper>::get(key);
    } catch (const CFG_NoInstance&) {
    }
    return construct(keys, std::make_index_sequence<Wrapper::kKeyCount>{});
  }

  void destroy(Wrapper* object) override { delete object; }

 private:
  template <std::size_t... I>
  static Wrapper* construct(const KeyValues& keys, std::index_sequence<I...>) {
    return new Impl(keys.at(I)...);
  }
};

}  // namespace ras

#endif
