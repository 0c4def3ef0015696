// The dial-out settings instance as a client sees it: the module's dispatcher initialised
// inside a fresh appliance with a CIMOM handle that serves the appliance's Zeph_Account
// instances, and helpers to get the instance and to modify it. Each call gets its own
// environment whose CIMOM handle dies when the call returns, as in OpenWBEM.
#ifndef DIALOUT_DIALOUTFIXTURE_H
#define DIALOUT_DIALOUTFIXTURE_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "AccountHandle.h"
#include "ClientFixture.h"
#include "TestEnvironment.h"

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
inline const client::Target kDialOut = client::settingData(kDialOutClass, kDialOutID);
inline const std::vector<std::string> kDialOutFiles = {kCallScript, kCallbackScript,
                                                       kDialOutOptions, kPapSecrets, kChapSecrets};

// The test environment whose CIMOM handle serves Zeph_Account in root/cimv2 from the
// appliance's account list, as the CIMOM on the appliance does.
class AccountEnvironment : public TestEnvironment {
 public:
  static OpenWBEM::IntrusiveReference<AccountEnvironment> make() { return new AccountEnvironment; }

  OpenWBEM::CIMOMHandleIFCRef getCIMOMHandle() const override { return accounts_; }
  OpenWBEM::CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override { return accounts_; }
  OpenWBEM::ProviderEnvironmentIFCRef clone() const override { return new AccountEnvironment; }

 private:
  OpenWBEM::CIMOMHandleIFCRef accounts_{new harness::AccountHandle(kAccountsFile)};
};

using client::Change;
using client::textOf;

class DialOutTest : public client::ClientTest {
 protected:
  TestEnvRef makeEnvironment() const override { return AccountEnvironment::make(); }

  OpenWBEM::CIMInstance get() { return ClientTest::get(kDialOut); }

  // Modifies the instance with the given properties in order; the CIM error, if any.
  CimFailure modify(const std::vector<Change>& changes) {
    return ClientTest::modify(kDialOut, changes);
  }

  // Every dial-out file's content, by path.
  static std::map<std::string, std::string> files() {
    std::map<std::string, std::string> content;
    for (const std::string& file : kDialOutFiles) content[file] = appliance::readFile(file);
    return content;
  }
};

#endif
