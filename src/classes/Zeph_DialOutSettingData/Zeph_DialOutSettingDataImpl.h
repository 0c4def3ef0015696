// Dial-out settings of the appliance: the number that the dial-out link dials, the call-back
// retries and interval, and the account it logs in with, chosen among the CIMOM's accounts
// that may dial out.
#ifndef ZEPH_DIALOUTSETTINGDATAIMPL_H
#define ZEPH_DIALOUTSETTINGDATAIMPL_H

#include <string>
#include <vector>

#include "OW_String.hpp"
#include "Zeph_DialOutSettingData.h"
#include "Zeph_InstanceManager.h"

// The account list of the last user-name get: the user names found and their indices as
// text (both cleared after each get), and the list that the user-name setter indexes,
// replaced by each get (it is the latest list, never older entries behind it). Requests run
// one at a time, so one request's get never sees another's half-built list.
extern OpenWBEM::StringArray vUserName;
extern OpenWBEM::StringArray UserValueMap;
extern std::vector<std::string> UserNames;

class Zeph_DialOutSettingDataImpl : public Zeph_DialOutSettingData {
 public:
  explicit Zeph_DialOutSettingDataImpl(const std::string& instanceID);

  int getElementName(std::string& value, ras::Qualifiers&) const override;
  int getDialOutNumber(std::string& value, ras::Qualifiers& qualifiers) const override;
  int setDialOutNumber(std::string value) override;
  int getDialRetries(unsigned short& value, ras::Qualifiers&) const override;
  int setDialRetries(unsigned short value) override;
  int getDialInterval(unsigned short& value, ras::Qualifiers&) const override;
  int setDialInterval(unsigned short value) override;
  int getDialOutUserName(std::string& value, ras::Qualifiers& qualifiers) const override;
  int setDialOutUserName(std::string value) override;
  int getDialOutPassword(std::string& value, ras::Qualifiers&) const override;
  int setDialOutPassword(std::string value) override;

 private:
  // Fills the cached values from the dial-out scripts and the PAP secrets.
  void Initialize_Parameters();
  void initializePassword();

  std::string dialOutNumber_;
  unsigned short dialRetries_ = 0;
  unsigned short dialInterval_ = 0;
  std::string userName_;  // the index text last set, not a name
  std::string password_;
};

// Builds the class's single instance.
class Zeph_DialOutSettingDataImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_DialOutSettingDataInstanceManager,
                                      Zeph_DialOutSettingDataImpl> {
 public:
  int init() override;
};

#endif
