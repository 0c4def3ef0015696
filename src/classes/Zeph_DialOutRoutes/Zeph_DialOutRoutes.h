// Wrapper of one Zeph_DialOutRoutes instance: the association of the dial-out settings with each
// dial-out route. The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_DIALOUTROUTES_H
#define ZEPH_DIALOUTROUTES_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_DialOutRoutesInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_DialOutRoutesName[] = "Zeph_DialOutRoutes";

class Zeph_DialOutRoutes
    : public ras::ClassModel<Zeph_DialOutRoutes, Zeph_DialOutRoutesInstanceManager, 2> {
 public:
  Zeph_DialOutRoutes(const std::string& antecedentInstanceID,
                     const std::string& dependentInstanceID)
      : ClassModel({antecedentInstanceID, dependentInstanceID}) {}

  virtual int getAntecedentInstanceID(std::string& value, ras::Qualifiers&) const {
    return keyValue(0, value);
  }
  virtual int getDependentInstanceID(std::string& value, ras::Qualifiers&) const {
    return keyValue(1, value);
  }
};

#endif
