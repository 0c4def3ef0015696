// Property table of Zeph_RASService: the properties in instance order, keys first in key order.
#include "Zeph_RASServiceProvider.h"

namespace {
using X = Zeph_RASService;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_RASServiceTraits::properties() {
  static const ras::PropertyTable<X> table =
      Row::joined(Row::systemElementKeys("Name", &X::getName),
                  {
                      Row::readonly("ElementName", &X::getElementName),
                      Row::writable("modemStatus", &X::getmodemStatus, &X::setmodemStatus),
                  });
  return table;
}

template class ras::InstanceProvider<Zeph_RASServiceTraits>;
