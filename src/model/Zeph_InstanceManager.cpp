// The map every class's manager keeps its objects in.
#include "Zeph_InstanceManager.h"

namespace ras {

ObjectMap::~ObjectMap() = default;

int ObjectMap::init() {
  return kStatusOk;
}

void ObjectMap::add(ManagedObject* object) {
  objects_[object->managerKey()] = object;
}

void ObjectMap::remove(ManagedObject* object) {
  const auto found = objects_.find(object->managerKey());
  if (found == objects_.end()) return;
  if (found == cursor_) ++cursor_;
  objects_.erase(found);
}

void ObjectMap::startIteration() {
  cursor_ = objects_.begin();
}

bool ObjectMap::hasNext() const {
  return cursor_ != objects_.end();
}

void ObjectMap::endIteration() {
  cursor_ = objects_.end();
}

ManagedObject* ObjectMap::objectAt(const std::string& key) const {
  const auto found = objects_.find(std::string() + key);
  if (found == objects_.end() || found->second == nullptr) throw CFG_NoInstance();
  return found->second;
}

ManagedObject* ObjectMap::objectAtCursor() {
  if (cursor_ == objects_.end() || cursor_->second == nullptr) throw CFG_NoInstance();
  ManagedObject* object = cursor_->second;
  ++cursor_;
  return object;
}

}  // namespace ras
