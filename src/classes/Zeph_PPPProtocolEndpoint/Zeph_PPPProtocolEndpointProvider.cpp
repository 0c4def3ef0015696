// Property table of Zeph_PPPProtocolEndpoint (the properties in instance order, keys first in key
// order) and its two methods.
#include "Zeph_PPPProtocolEndpointProvider.h"

namespace {
using X = Zeph_PPPProtocolEndpoint;
using Row = ras::Rows<X>;

const char* const kConnectLink = "ConnectLink";
const char* const kDisconnectLink = "DisconnectLink";
}  // namespace

const ras::PropertyTable<X>& Zeph_PPPProtocolEndpointTraits::properties() {
  static const ras::PropertyTable<X> table = Row::joined(
      Row::systemElementKeys("Name", &X::getName),
      {
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
          Row::writable("maxConfigureRequest", &X::getmaxConfigureRequest,
                        &X::setmaxConfigureRequest),
          Row::writable("maxTerminateReq", &X::getmaxTerminateReq, &X::setmaxTerminateReq),
      });
  return table;
}

template class ras::InstanceProvider<Zeph_PPPProtocolEndpointTraits>;

OpenWBEM::CIMValue Zeph_PPPProtocolEndpointProvider::invokeMethod(
    const EnvRef& env, const String& ns, const CIMObjectPath& path, const String& methodName,
    const OpenWBEM::CIMParamValueArray& in, OpenWBEM::CIMParamValueArray& out) {
  int (X::*method)() = nullptr;
  if (methodName.equals(kConnectLink)) method = &X::ConnectLink;
  if (methodName.equals(kDisconnectLink)) method = &X::DisconnectLink;
  if (method == nullptr) return InstanceProvider::invokeMethod(env, ns, path, methodName, in, out);
  const int result = (lookup(path)->*method)();
  return OpenWBEM::CIMValue(OpenWBEM::UInt32(result));
}
