// Iteration over the associations of one end: the selection is taken when the iteration
// starts and walked by manager key, so it names the objects and not only their positions.
#include "Zeph_DialOutRoutesInstanceManager.h"

#include "Zeph_DialOutRoutes.h"
#include "Zeph_DialOutSettingData.h"
#include "Zeph_NextHopIPRoute.h"

void Zeph_DialOutRoutesInstanceManager::select(End end, const std::string& instanceID) {
  std::vector<std::string> keys;
  for (Base::startIteration(); Base::hasNext();) {
    const Zeph_DialOutRoutes* association = Base::next();
    std::string id;
    ras::Qualifiers unused;
    if (end == End::Antecedent) {
      association->getAntecedentInstanceID(id, unused);
    } else {
      association->getDependentInstanceID(id, unused);
    }
    if (id == instanceID) keys.push_back(association->managerKey());
  }
  Base::endIteration();
  selected_ = std::move(keys);
  position_ = 0;
  selecting_ = true;
}

void Zeph_DialOutRoutesInstanceManager::startIterationForAntecedent(const std::string& id) {
  select(End::Antecedent, id);
}

void Zeph_DialOutRoutesInstanceManager::startIterationForDependent(const std::string& id) {
  select(End::Dependent, id);
}

Zeph_DialOutSettingData* Zeph_DialOutRoutesInstanceManager::nextAntecedent() {
  std::string id;
  ras::Qualifiers unused;
  next()->getAntecedentInstanceID(id, unused);
  return Zeph_DialOutSettingData::getInstanceManager()->get(id);
}

Zeph_NextHopIPRoute* Zeph_DialOutRoutesInstanceManager::nextDependent() {
  std::string id;
  ras::Qualifiers unused;
  next()->getDependentInstanceID(id, unused);
  return Zeph_NextHopIPRoute::getInstanceManager()->get(id);
}

void Zeph_DialOutRoutesInstanceManager::startIteration() {
  selecting_ = false;
  Base::startIteration();
}

bool Zeph_DialOutRoutesInstanceManager::hasNext() const {
  return selecting_ ? position_ < selected_.size() : Base::hasNext();
}

Zeph_DialOutRoutes* Zeph_DialOutRoutesInstanceManager::next() {
  if (!selecting_) return Base::next();
  if (position_ >= selected_.size()) throw CFG_NoInstance();
  return get(selected_[position_++]);
}

void Zeph_DialOutRoutesInstanceManager::endIteration() {
  selecting_ = false;
  selected_.clear();
  Base::endIteration();
}
