// Reading the dial-out settings: every property with its value and qualifiers, the account
// list offered with the user name, and the impact warning on the number.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "DialOutFixture.h"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "Zeph_DialOutSettingDataImpl.h"
#include "Zeph_ModuleGlobals.h"

namespace {

using namespace OpenWBEM;

// Every qualifier of a property as "NAME=VALUE" (array values joined with "|").
std::vector<std::string> qualifiersOf(const CIMProperty& property) {
  std::vector<std::string> out;
  for (const CIMQualifier& q : property.getQualifiers()) {
    const CIMValue value = q.getValue();
    std::string text;
    if (value && value.isArray()) {
      for (const std::string& item : textsOf(value)) text += (text.empty() ? "" : "|") + item;
    } else {
      text = textOf(value);
    }
    out.push_back(std::string(q.getName().c_str()) + "=" + text);
  }
  return out;
}

struct PropertyRow {
  const char* name;
  const char* value;
  std::vector<std::string> qualifiers;
};

using DialOutGet = DialOutTest;

TEST_F(DialOutGet, ShowsEveryPropertyInOrderWithItsValueAndQualifiers) {
  const std::vector<PropertyRow> rows = {
      {"InstanceID", kDialOutID, {}},
      {"ElementName", "Dial-Out Settings", {}},
      {"DialOutNumber", "5550199", {}},
      {"DialRetries", "3", {}},
      {"DialInterval", "30", {}},
      {"DialOutUserName", "0", {"ValueMap=0|1", "Values=dialer|backup"}},
      // Loaded with the user name cached at start, which is empty: no secrets line matches.
      {"DialOutPassword", "", {}},
  };
  const CIMPropertyArray properties = get().getProperties();
  ASSERT_EQ(properties.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(rows[i].name);
    EXPECT_EQ(properties[i].getName(), String(rows[i].name));
    EXPECT_EQ(textOf(properties[i].getValue()), rows[i].value);
    EXPECT_EQ(qualifiersOf(properties[i]), rows[i].qualifiers);
  }
}

TEST_F(DialOutGet, LoadsFromTheScriptsAndLogsWhatItRead) {
  const std::vector<std::string> journal = appliance::journal();
  EXPECT_NE(std::find(journal.begin(), journal.end(),
                      "grep \"\\\"\\<\\>\" /etc/ppp/pap-secrets | cut -f3 > /tmp/passwd"),
            journal.end());
  EXPECT_FALSE(appliance::fileExists("/tmp/passwd"));
  const std::vector<std::string> log = logged();
  const std::vector<std::string> loading = {"DialOutNumber =5550199\n", "Config DialInterval =30\n",
                                            "Dial iRetries =3\n"};
  auto at = log.begin();
  for (const std::string& line : loading) {
    at = std::find(at, log.end(), line);
    EXPECT_NE(at, log.end()) << line;
  }
}

// Which accounts are offered: those whose user holds the dial-out privilege, in the CIMOM's
// order; the value is the index of the dial-out options' "name" user, "0" when not listed.
TEST_F(DialOutGet, UserNameIsTheIndexOfTheDialOutUserAmongPrivilegedAccounts) {
  struct Row {
    const char* what;
    std::function<void()> arrange;
    const char* value;
    std::vector<std::string> qualifiers;
  };
  const auto nameLine = [](const char* user) {
    return [user] {
      std::string options = appliance::readFile(kDialOutOptions);
      options.replace(options.find("name dialer"), 11, std::string("name ") + user);
      appliance::writeFile(kDialOutOptions, options);
    };
  };
  const std::vector<Row> rows = {
      {"second of two", nameLine("backup"), "1", {"ValueMap=0|1", "Values=dialer|backup"}},
      {"user without the privilege",
       nameLine("operator"),
       "0",
       {"ValueMap=0|1", "Values=dialer|backup"}},
      {"privilege granted",
       [] { appliance::grantPrivilege(502); },
       "0",
       {"ValueMap=0|1|2", "Values=dialer|backup|operator"}},
      {"no privileged account",
       [] {
         appliance::revokePrivilege(500);
         appliance::revokePrivilege(501);
       },
       "0",
       {"ValueMap=", "Values="}},
      {"account added",
       [] { appliance::addAccount("503", "night"); },
       "0",
       {"ValueMap=0|1", "Values=dialer|backup"}},
  };
  // Rows undo their changes instead of resetting the appliance, which would rewrite the
  // registry under the module's "ModemStatus" subscription.
  const std::string options = appliance::readFile(kDialOutOptions);
  const std::string accounts = appliance::readFile(kAccountsFile);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    row.arrange();
    const CIMProperty user = get().getProperty("DialOutUserName");
    EXPECT_EQ(textOf(user.getValue()), row.value);
    EXPECT_EQ(qualifiersOf(user), row.qualifiers);
    appliance::writeFile(kDialOutOptions, options);
    appliance::writeFile(kAccountsFile, accounts);
    appliance::grantPrivilege(500);
    appliance::grantPrivilege(501);
    appliance::revokePrivilege(502);
  }
}

TEST_F(DialOutGet, EachGetPutsTheLatestAccountListInFrontOfTheSettersList) {
  UserNames.clear();
  get();
  appliance::removeAccount("500");
  const CIMProperty user = get().getProperty("DialOutUserName");
  EXPECT_EQ(UserNames, (std::vector<std::string>{"backup", "dialer", "backup"}));
  EXPECT_EQ(qualifiersOf(user), (std::vector<std::string>{"ValueMap=0", "Values=backup"}));
  const std::vector<std::string> log = logged();
  EXPECT_EQ(std::count(log.begin(), log.end(), "Reading Zeph_Account"), 2);
  EXPECT_EQ(std::count(log.begin(), log.end(), "Zeph_DialOutAccountImpl::getDialOutUserName\n"), 2);
  EXPECT_NE(std::find(log.begin(), log.end(), "Out Value in get Number of Users is 1"), log.end());
}

// The number carries the impact warning of the session found up by the last status reading.
TEST_F(DialOutGet, NumberWarnsWhileADialSessionIsUp) {
  struct Row {
    appliance::Direction direction;
    bool dialIn;
    bool dialOut;
    const char* key;
    std::vector<std::string> warnings;
  };
  const std::vector<Row> rows = {
      {appliance::Direction::DialOut,
       false,
       true,
       "DialOutEndpoint",
       {"ImpactWarning=Dial-Out Session is in Progress.Change will take effect for Next Dial-Out "
        "Session"}},
      {appliance::Direction::DialIn,
       true,
       false,
       "DialInEndpoint",
       {"ImpactWarning=Dial-In Session is in Progress.Change will take effect for Next Dial-In "
        "Session"}},
      {appliance::Direction::DialIn, true, false, "DialOutEndpoint", {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.key);
    appliance::linkUp(row.direction, "ppp0", "10.64.0.2", "10.64.0.1");
    ConnectionStatus = row.dialIn;
    DialOutConnectionStatus = row.dialOut;
    check_key = row.key;
    const CIMInstance instance = get();
    EXPECT_EQ(qualifiersOf(instance.getProperty("DialOutNumber")), row.warnings);
    EXPECT_TRUE(qualifiersOf(instance.getProperty("DialRetries")).empty());
    appliance::linkDown("ppp0");
  }
}

}  // namespace
