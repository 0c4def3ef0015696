// Property table of Zeph_SerialPort: the properties in instance order, keys first in key order.
#include "Zeph_SerialPortProvider.h"

namespace {
using X = Zeph_SerialPort;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_SerialPortTraits::properties() {
  static const ras::PropertyTable<X> table =
      Row::joined(Row::systemElementKeys("DeviceId", &X::getDeviceId),
                  {
                      Row::writable("Name", &X::getName, &X::setName, ras::maxLength(32)),
                      Row::readonly("ElementName", &X::getElementName),
                      Row::writable("FlowControl", &X::getFlowControl, &X::setFlowControl),
                  });
  return table;
}

template class ras::InstanceProvider<Zeph_SerialPortTraits>;
