// The CIM class names the module serves, in the module's canonical class order.
#ifndef ZEPH_CLASSNAMES_H
#define ZEPH_CLASSNAMES_H

inline constexpr char Zeph_CallInSettingDataName[] = "Zeph_CallInSettingData";
inline constexpr char Zeph_DialOutSettingDataName[] = "Zeph_DialOutSettingData";
inline constexpr char Zeph_RASServiceName[] = "Zeph_RASService";
inline constexpr char Zeph_RASStaticIPAddressPoolName[] = "Zeph_RASStaticIPAddressPool";
inline constexpr char Zeph_NextHopIPRouteName[] = "Zeph_NextHopIPRoute";
inline constexpr char Zeph_RASIPProtocolEndpointName[] = "Zeph_RASIPProtocolEndpoint";
inline constexpr char Zeph_PPPProtocolEndpointName[] = "Zeph_PPPProtocolEndpoint";
inline constexpr char Zeph_SoftModemName[] = "Zeph_SoftModem";
inline constexpr char Zeph_SerialPortName[] = "Zeph_SerialPort";
inline constexpr char Zeph_DialOutRoutesName[] = "Zeph_DialOutRoutes";

#endif
