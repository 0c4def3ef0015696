// The dial-out settings instance as a client sees it: the module's dispatcher initialised
// inside a fresh appliance with a CIMOM handle that serves the appliance's Zeph_Account
// instances, and helpers to get the instance and to modify it.
#ifndef DIALOUT_DIALOUTFIXTURE_H
#define DIALOUT_DIALOUTFIXTURE_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "ApplianceTest.h"
#include "CimFailure.h"
#include "OW_CIMInstance.hpp"
#include "OW_CIMValue.hpp"
#include "TestEnvironment.h"
#include "Zeph_RASProvider.h"

// The test environment whose CIMOM handle serves Zeph_Account in root/cimv2 from the
// appliance's account list, as the CIMOM on the appliance does.
class AccountEnvironment : public TestEnvironment {
 public:
  AccountEnvironment();
  static OpenWBEM::IntrusiveReference<AccountEnvironment> make() { return new AccountEnvironment; }

  OpenWBEM::CIMOMHandleIFCRef getCIMOMHandle() const override { return accounts_; }
  OpenWBEM::CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override { return accounts_; }
  OpenWBEM::ProviderEnvironmentIFCRef clone() const override { return new AccountEnvironment; }

 private:
  OpenWBEM::CIMOMHandleIFCRef accounts_;
};

inline constexpr char kDialOutClass[] = "Zeph_DialOutSettingData";
inline constexpr char kDialOutID[] = "Velmar:Zeph_DialOutSettingData";
inline constexpr char kDialOutSource[] = "../src/Zeph_DialOutSettingDataProvider";

// The files the class reads and writes.
inline constexpr char kCallScript[] = "/qv/etc/ppp/ppp_call_v2k";
inline constexpr char kCallbackScript[] = "/qv/etc/ppp/callback_v2k";
inline constexpr char kDialOutOptions[] = "/qv/etc/ppp/options_dialout";
inline constexpr char kPapSecrets[] = "/etc/ppp/pap-secrets";
inline constexpr char kChapSecrets[] = "/etc/ppp/chap-secrets";
inline constexpr char kAccountsFile[] = "/var/lib/appliance/accounts";
inline const std::vector<std::string> kDialOutFiles = {kCallScript, kCallbackScript,
                                                       kDialOutOptions, kPapSecrets, kChapSecrets};

using Change = std::pair<std::string, OpenWBEM::CIMValue>;

class DialOutTest : public ApplianceTest {
 protected:
  void SetUp() override;

  // Loads the module afresh (the instance reads its files when it is built).
  void initializeModule();

  OpenWBEM::CIMObjectPath path() const;
  OpenWBEM::CIMInstance get();
  // Modifies the instance with the given properties in order; the CIM error, if any.
  CimFailure modify(const std::vector<Change>& changes);

  // Every dial-out file's content, by path.
  static std::map<std::string, std::string> files();
  // Texts logged since the module was initialised.
  std::vector<std::string> logged() const;

  OpenWBEM::IntrusiveReference<AccountEnvironment> env_;
  OpenWBEM::IntrusiveReference<OpenWBEM::CppProviderBaseIFC> module_;
  Zeph_RASProvider* dispatcher_ = nullptr;
};

std::string textOf(const OpenWBEM::CIMValue& value);
std::vector<std::string> textsOf(const OpenWBEM::CIMValue& value);

#endif
