// The two PPP endpoints of the appliance, dial-in and dial-out: the pppd options of each link
// (compression, LCP limits, idle time-out, MRU/MTU), the authentication protocols demanded or
// refused, and the control of each direction's service and link.
#ifndef ZEPH_PPPPROTOCOLENDPOINTIMPL_H
#define ZEPH_PPPPROTOCOLENDPOINTIMPL_H

#include <array>
#include <string>

#include "Zeph_InstanceManager.h"
#include "Zeph_PPPProtocolEndpoint.h"

// Results of the last ConnectLink and DisconnectLink of a PPP endpoint.
extern int ConnectLinkReturn;
extern int DisconnectLinkReturn;

namespace ras {

// What an endpoint's Name selects: its files, scripts and processes. An unknown Name selects
// empty files and the unsuffixed setLine script.
struct PPPLink {
  const char* name;
  bool dialIn;                // also edits the call-back link's options
  bool dialOut;               // restarts the dial-out service after a change
  const char* options;        // the pppd options file
  const char* setLineSuffix;  // appended to the setLine script
  const char* controlFile;    // the service's start script
  const char* process;        // the start script's process, resumed on enable
  const char* markerKey;      // its line in the marker file while the link is up
  const char* interfaceLog;   // log text before the link's interface
};

const PPPLink& pppLinkNamed(const std::string& name);
// The two endpoints, dial-in first.
const std::array<PPPLink, 2>& pppLinks();

}  // namespace ras

class Zeph_PPPProtocolEndpointImpl : public Zeph_PPPProtocolEndpoint {
 public:
  Zeph_PPPProtocolEndpointImpl(const std::string& systemCreationClassName,
                               const std::string& systemName, const std::string& creationClassName,
                               const std::string& name);

  int getElementName(std::string& value, ras::Qualifiers&) const override;

  // Link control.
  int getIfName(std::string& value, ras::Qualifiers&) const override;
  int getIfStatus(bool& value, ras::Qualifiers&) const override;
  int setIfStatus(bool value) override;
  int getConnectionStatus(unsigned char& value, ras::Qualifiers&) const override;
  int getConnectButton(bool& value, ras::Qualifiers& qualifiers) const override;
  int setConnectButton(bool value) override;
  int getDisconnectButton(bool& value, ras::Qualifiers& qualifiers) const override;
  int setDisconnectButton(bool value) override;

  // Options.
  int getIPHeaderComp(bool& value, ras::Qualifiers& qualifiers) const override;
  int setIPHeaderComp(bool value) override;
  int getSoftwareComp(bool& value, ras::Qualifiers& qualifiers) const override;
  int setSoftwareComp(bool value) override;
  int getIdleTimeout(unsigned short& value, ras::Qualifiers& qualifiers) const override;
  int setIdleTimeout(unsigned short value) override;
  int getMRU(unsigned short& value, ras::Qualifiers& qualifiers) const override;
  int setMRU(unsigned short value) override;
  int getMTU(unsigned short& value, ras::Qualifiers& qualifiers) const override;
  int setMTU(unsigned short value) override;
  int getmaxConfigureNak(unsigned short& value, ras::Qualifiers& qualifiers) const override;
  int setmaxConfigureNak(unsigned short value) override;
  int getmaxConfigureRequest(unsigned short& value, ras::Qualifiers& qualifiers) const override;
  int setmaxConfigureRequest(unsigned short value) override;
  int getmaxTerminateReq(unsigned short& value, ras::Qualifiers& qualifiers) const override;
  int setmaxTerminateReq(unsigned short value) override;

  // Authentication.
  int getPapStatus(bool& value, ras::Qualifiers&) const override;
  int setPapStatus(bool value) override;
  int getchapStatus(bool& value, ras::Qualifiers&) const override;
  int setchapStatus(bool value) override;
  int getMschapStatus(bool& value, ras::Qualifiers&) const override;
  int setMschapStatus(bool value) override;
  int getMschapv2Status(bool& value, ras::Qualifiers&) const override;
  int setMschapv2Status(bool value) override;
  int getauthLevel(unsigned char& value, ras::Qualifiers&) const override;
  int setauthLevel(unsigned char value) override;
  int getcsAuth(bool& value, ras::Qualifiers&) const override;
  int setcsAuth(bool value) override;

  int ConnectLink() override;
  int DisconnectLink() override;

  // Level and clean-up edits of the authentication lines; no property calls them.
  int setAuthenticationToFile_DialIn(unsigned char level);
  int setAuthenticationToFile_DialOut(unsigned char level);
  int unsetAuthenticationFromFile_dialIn(unsigned char);
  int unsetAuthenticationFromFile_dialOut(unsigned char);
  // Clears each status whose flag (PAP, CHAP, MS-CHAP, MS-CHAPv2) is set, then sets all four.
  void CheckSingleSelection(bool* flags);

 private:
  const ras::PPPLink& link() const;
  // Runs a sed edit "%s -i '...' %s" on the link's options file.
  void editOptions(const char* format) const;
  void restartIfDialOut() const;

  void ReadNewAuthenticationDialIn();
  void ReadNewAuthenticationDialOut();
  void Initialize_Parameters();
  void readHeaderComp(const char* options);
  void readSoftwareComp(const char* options);
  void readNumbers(const char* options);

  int setLcpLimit(const char* keyword, unsigned short value, unsigned short maximum, int status,
                  unsigned short& field);
  int setUnitSize(const char* keyword, const char* callbackEdit, unsigned short value, int status,
                  unsigned short& field);

  std::string elementName_;
  bool ipHeaderComp_ = false;
  bool softwareComp_ = false;
  unsigned short maxConfigureRequest_ = 0;
  unsigned short maxConfigureNak_ = 0;
  unsigned short maxTerminateReq_ = 0;
  unsigned short idleTimeout_ = 0;
  unsigned short mru_ = 0;
  unsigned short mtu_ = 0;
  unsigned char authLevel_ = 0;
  bool papStatus_ = false;
  bool chapStatus_ = false;
  bool mschapStatus_ = false;
  bool mschapv2Status_ = false;
  bool csAuth_ = false;
  bool ifStatus_ = false;
};

// Builds the two endpoints, dial-in first.
class Zeph_PPPProtocolEndpointImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_PPPProtocolEndpointInstanceManager,
                                      Zeph_PPPProtocolEndpointImpl> {
 public:
  int init() override;
};

#endif
