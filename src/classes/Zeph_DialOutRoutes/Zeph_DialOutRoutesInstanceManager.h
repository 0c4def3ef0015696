// The collection of Zeph_DialOutRoutes objects, with iterations over the associations of one
// dial-out settings instance or one route; this abstract manager refuses to create or delete
// them.
#ifndef ZEPH_DIALOUTROUTESINSTANCEMANAGER_H
#define ZEPH_DIALOUTROUTESINSTANCEMANAGER_H

#include <cstddef>
#include <string>
#include <vector>

#include "Zeph_InstanceManager.h"

class Zeph_DialOutRoutes;
class Zeph_DialOutSettingData;
class Zeph_NextHopIPRoute;

class Zeph_DialOutRoutesInstanceManager : public ras::InstanceManager<Zeph_DialOutRoutes> {
 public:
  virtual Zeph_DialOutRoutes* createZeph_DialOutRoutes(const std::string& antecedentInstanceID,
                                                       const std::string& dependentInstanceID) {
    return create({antecedentInstanceID, dependentInstanceID});
  }
  virtual void destroyZeph_DialOutRoutes(Zeph_DialOutRoutes* object) { destroy(object); }

  // Iterate only over the associations whose antecedent (dependent) has `instanceID`;
  // hasNext and next then walk that selection until the next startIteration.
  void startIterationForAntecedent(const std::string& instanceID);
  void startIterationForDependent(const std::string& instanceID);
  // The dial-out settings (the route) of the next selected association.
  Zeph_DialOutSettingData* nextAntecedent();
  Zeph_NextHopIPRoute* nextDependent();

  void startIteration() override;
  bool hasNext() const override;
  Zeph_DialOutRoutes* next() override;
  void endIteration() override;

 private:
  using Base = ras::InstanceManager<Zeph_DialOutRoutes>;
  enum class End { Antecedent, Dependent };

  void select(End end, const std::string& instanceID);

  bool selecting_ = false;
  std::vector<std::string> selected_;  // manager keys of the selected associations
  std::size_t position_ = 0;
};

#endif
