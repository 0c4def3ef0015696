// One static route of the dial-out link, kept as element `index` of the ROUTES, NETMASK and
// METRIC arrays of the route file; and the route table that loads, creates and deletes them.
#ifndef ZEPH_NEXTHOPIPROUTEIMPL_H
#define ZEPH_NEXTHOPIPROUTEIMPL_H

#include <string>

#include "Zeph_InstanceManager.h"
#include "Zeph_NextHopIPRoute.h"

class Zeph_NextHopIPRouteImpl : public Zeph_NextHopIPRoute {
 public:
  // A route read from the file at load.
  explicit Zeph_NextHopIPRouteImpl(const std::string& destination);
  // A new route appended as element `index` of ROUTES.
  Zeph_NextHopIPRouteImpl(const std::string& destination, int index);

  int getElementName(std::string& value, ras::Qualifiers&) const override;
  int getDestinationAddress(std::string& value, ras::Qualifiers& qualifiers) const override;
  int getDestinationMask(std::string& value, ras::Qualifiers&) const override;
  int setDestinationMask(std::string value) override;
  int getRouteMetric(unsigned short& value, ras::Qualifiers&) const override;
  int setRouteMetric(unsigned short value) override;
  int getIfName(std::string& value, ras::Qualifiers&) const override;

  void SetRouteIndex(int index) { index_ = index; }
  int GetRouteIndex() const { return index_; }

 private:
  std::string destinationAddress_;
  std::string destinationMask_;
  std::string ifName_;
  unsigned short routeMetric_ = 0;
  int index_ = 0;
};

// The route table: the routes of the file, its route count, and the element readers.
class Zeph_NextHopIPRouteImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_NextHopIPRouteInstanceManager, Zeph_NextHopIPRouteImpl> {
 public:
  int init() override;
  Zeph_NextHopIPRoute* createZeph_NextHopIPRoute(const std::string& destination) override;
  void destroyZeph_NextHopIPRoute(Zeph_NextHopIPRoute* route) override;

  // Element `index` of ROUTES, NETMASK, METRIC; empty when the file has none.
  int getRoute(int index, std::string& out) const;
  int getMask(int index, std::string& out) const;
  int getMetric(int index, std::string& out) const;

  // The count of the route file, as loaded and kept by creations and deletions.
  int routeCount() const { return routeCount_; }

 private:
  void renumberFollowing(int index, int count);

  int routeCount_ = 0;
};

#endif
