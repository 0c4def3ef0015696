// The dial-out settings instance with a CIMOM handle that serves the appliance's Zeph_Account
// instances, as the CIMOM on the appliance does (also the hostile tests' fixture).
#ifndef DIALOUT_DIALOUTFIXTURE_H
#define DIALOUT_DIALOUTFIXTURE_H

#include <vector>

#include "ClientFixture.h"
#include "TestEnvironment.h"

inline const client::Target kDialOut =
    client::settingData("Zeph_DialOutSettingData", "Velmar:Zeph_DialOutSettingData");

using client::Change;

class DialOutTest : public client::ClientTest {
 protected:
  TestEnvRef makeEnvironment() const override { return new AccountEnvironment; }
  OpenWBEM::CIMInstance get() { return ClientTest::get(kDialOut); }
  CimFailure modify(const std::vector<Change>& changes) {
    return ClientTest::modify(kDialOut, changes);
  }
};

#endif
