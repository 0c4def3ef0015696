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

// The map of a manager, shared by every class: objects by key, ordered byte-wise, not owned,
// with one iteration cursor. Compiled once rather than once per class.
class ObjectMap {
 public:
  ObjectMap() = default;
  ObjectMap(const ObjectMap&) = delete;
  ObjectMap& operator=(const ObjectMap&) = delete;
  virtual ~ObjectMap();

  virtual int init();

  // Inserts or replaces the entry under the object's key.
  virtual void add(ManagedObject* object);

  // Erases the entry under the object's key; the cursor moves on if it stood there.
  virtual void remove(ManagedObject* object);

  virtual void startIteration();
  virtual bool hasNext() const;
  virtual void endIteration();

 protected:
  // The object under `key`, or at the cursor (which then moves on); CFG_NoInstance if none.
  ManagedObject* objectAt(const std::string& key) const;
  ManagedObject* objectAtCursor();

 private:
  using Objects = std::map<std::string, ManagedObject*>;
  Objects objects_;
  Objects::iterator cursor_ = objects_.end();
};

// Abstract manager of wrapper W. The base cannot create or delete objects.
template <class W>
class InstanceManager : public ObjectMap {
 public:
  using Wrapper = W;
  using KeyValues = std::vector<std::string>;

  virtual W* create(const KeyValues&) { throw CFG_InstanceCreationFailed(); }
  virtual void destroy(W*) { throw CFG_InstanceDeletionFailed(); }

  virtual W* get(const std::string& key) const { return static_cast<W*>(objectAt(key)); }
  virtual W* next() { return static_cast<W*>(objectAtCursor()); }
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
