// The dial-out settings instance as a client sees it: the module's dispatcher initialised
// inside a fresh appliance with a CIMOM handle that serves the appliance's Zeph_Account
// instances, and helpers to get the instance and to modify it. Each call gets its own
// environment whose CIMOM handle dies when the call returns, as in OpenWBEM.
#ifndef DIALOUT_DIALOUTFIXTURE_H
#define DIALOUT_DIALOUTFIXTURE_H

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "AccountHandle.hpp"
#include "ApplianceTest.h"
#include "CallEnvironment.hpp"
#include "CimFailure.h"
#include "MofSchema.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMValue.hpp"
#include "TestEnvironment.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_RASProvider.h"

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

// The test environment whose CIMOM handle serves Zeph_Account in root/cimv2 from the
// appliance's account list, as the CIMOM on the appliance does.
class AccountEnvironment : public TestEnvironment {
 public:
  static OpenWBEM::IntrusiveReference<AccountEnvironment> make() { return new AccountEnvironment; }

  OpenWBEM::CIMOMHandleIFCRef getCIMOMHandle() const override { return accounts_; }
  OpenWBEM::CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override { return accounts_; }
  OpenWBEM::ProviderEnvironmentIFCRef clone() const override { return new AccountEnvironment; }

 private:
  static std::shared_ptr<const rascim::MofSchema> schema() {
    static const auto loaded = [] {
      auto mof = std::make_shared<rascim::MofSchema>();
      mof->load(RAS_MOF_DIR);
      return std::shared_ptr<const rascim::MofSchema>(mof);
    }();
    return loaded;
  }
  OpenWBEM::CIMOMHandleIFCRef accounts_{new rascim::AccountHandle(kAccountsFile, schema())};
};

using Change = std::pair<std::string, OpenWBEM::CIMValue>;

class DialOutTest : public ApplianceTest {
 protected:
  // Loads the module into the fresh appliance (the instance reads its files when it is built).
  void SetUp() override {
    ApplianceTest::SetUp();
    ConnectionStatus = DialOutConnectionStatus = false;
    check_key.clear();
    env_ = AccountEnvironment::make();
    rascim::withCall(env_, [&](const auto& call) { provider_->initialize(call); });
  }

  OpenWBEM::CIMInstance get() {
    OpenWBEM::CIMObjectPath path(OpenWBEM::CIMName(kDialOutClass), kNs);
    path.setKeyValue("InstanceID", OpenWBEM::CIMValue(OpenWBEM::String(kDialOutID)));
    return rascim::withCall(env_, [&](const auto& call) {
      return provider_->getInstance(call, kNs, path, OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
                                    OpenWBEM::WBEMFlags::E_INCLUDE_QUALIFIERS,
                                    OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
    });
  }

  // Modifies the instance with the given properties in order; the CIM error, if any.
  CimFailure modify(const std::vector<Change>& changes) {
    OpenWBEM::CIMInstance instance(kDialOutClass);
    instance.setProperty("InstanceID", OpenWBEM::CIMValue(OpenWBEM::String(kDialOutID)));
    for (const auto& [name, value] : changes) instance.setProperty(name.c_str(), value);
    return cimFailureOf([&] {
      rascim::withCall(env_, [&](const auto& call) {
        provider_->modifyInstance(call, kNs, instance, instance,
                                  OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
      });
    });
  }

  // Every dial-out file's content, by path.
  static std::map<std::string, std::string> files() {
    std::map<std::string, std::string> content;
    for (const std::string& file : kDialOutFiles) content[file] = appliance::readFile(file);
    return content;
  }

  // Texts logged since the module was initialised.
  std::vector<std::string> logged() const {
    std::vector<std::string> texts;
    for (const LogLine& line : env_->logged()) texts.push_back(line.text);
    return texts;
  }

  const OpenWBEM::String kNs{"root/cimv2"};
  const OpenWBEM::CIMClass kNoClass{OpenWBEM::CIMNULL};
  OpenWBEM::IntrusiveReference<AccountEnvironment> env_;
  OpenWBEM::IntrusiveReference<Zeph_RASProvider> provider_{new Zeph_RASProvider};
};

inline std::string textOf(const OpenWBEM::CIMValue& value) {
  return value ? value.toString().c_str() : "<null>";
}

#endif
