// Property table of Zeph_SoftModem: the properties in instance order, keys first in key order.
#include "Zeph_SoftModemProvider.h"

namespace {
using X = Zeph_SoftModem;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_SoftModemTraits::properties() {
  static const ras::PropertyTable<X> table =
      Row::joined(Row::systemElementKeys("DeviceID", &X::getDeviceID),
                  {
                      Row::readonly("Name", &X::getName),
                      Row::readonly("ElementName", &X::getElementName),
                      Row::writable("ErrorControl", &X::getErrorControl, &X::setErrorControl),
                      Row::writable("CallSpeed", &X::getCallSpeed, &X::setCallSpeed),
                      Row::writable("Compression", &X::getCompression, &X::setCompression),
                  });
  return table;
}

template class ras::InstanceProvider<Zeph_SoftModemTraits>;
