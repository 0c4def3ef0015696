// Property table of Zeph_PPPProtocolEndpoint and the named helpers of its provider.
#include "Zeph_PPPProtocolEndpointProvider.h"

namespace {
using X = Zeph_PPPProtocolEndpoint;
using Row = ras::Rows<X>;
}  // namespace

const ras::PropertyTable<X>& Zeph_PPPProtocolEndpointTraits::properties() {
  static const ras::PropertyTable<X> table = {
      Row::key("SystemCreationClassName", &X::getSystemCreationClassName),
      Row::key("SystemName", &X::getSystemName),
      Row::key("CreationClassName", &X::getCreationClassName),
      Row::key("Name", &X::getName),
      Row::readonly("ElementName", &X::getElementName),
      Row::readonly("IfName", &X::getIfName),
      Row::writable("IfStatus", &X::getIfStatus, &X::setIfStatus),
      Row::readonly("ConnectionStatus", &X::getConnectionStatus),
      Row::writable("ConnectButton", &X::getConnectButton, &X::setConnectButton),
      Row::writable("DisconnectButton", &X::getDisconnectButton, &X::setDisconnectButton),
      Row::writable("IPHeaderComp", &X::getIPHeaderComp, &X::setIPHeaderComp),
      Row::writable("SoftwareComp", &X::getSoftwareComp, &X::setSoftwareComp),
      Row::writable("IdleTimeout", &X::getIdleTimeout, &X::setIdleTimeout),
      Row::writable("MRU", &X::getMRU, &X::setMRU),
      Row::writable("MTU", &X::getMTU, &X::setMTU),
      Row::writable("PapStatus", &X::getPapStatus, &X::setPapStatus),
      Row::writable("chapStatus", &X::getchapStatus, &X::setchapStatus),
      Row::writable("MschapStatus", &X::getMschapStatus, &X::setMschapStatus),
      Row::writable("Mschapv2Status", &X::getMschapv2Status, &X::setMschapv2Status),
      Row::writable("authLevel", &X::getauthLevel, &X::setauthLevel),
      Row::writable("csAuth", &X::getcsAuth, &X::setcsAuth),
      Row::writable("maxConfigureNak", &X::getmaxConfigureNak, &X::setmaxConfigureNak),
      Row::writable("maxConfigureRequest", &X::getmaxConfigureRequest, &X::setmaxConfigureRequest),
      Row::writable("maxTerminateReq", &X::getmaxTerminateReq, &X::setmaxTerminateReq)};
  return table;
}

template class ras::InstanceProvider<Zeph_PPPProtocolEndpointTraits>;

void Zeph_PPPProtocolEndpointProvider::Zeph_PPPProtocolEndpointToCIMInstance(
    const OpenWBEM::String& ns, const X& object, OpenWBEM::CIMInstance& instance) const {
  toInstance(ns, object, instance);
}
void Zeph_PPPProtocolEndpointProvider::Zeph_PPPProtocolEndpointToCIMObjectPath(
    const X& object, OpenWBEM::CIMObjectPath& path) const {
  toObjectPath(object, path);
}
X* Zeph_PPPProtocolEndpointProvider::getZeph_PPPProtocolEndpointWithCIMObjectPath(
    const OpenWBEM::CIMObjectPath& path) const {
  return lookup(path);
}
X* Zeph_PPPProtocolEndpointProvider::getZeph_PPPProtocolEndpointWithCIMInstance(
    const OpenWBEM::CIMInstance& instance) const {
  return lookup(instance);
}
