// Reading the dial-out settings: every property with its value and qualifiers, the account
// list offered with the user name, and the impact warning on the number.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "DialOutFixture.h"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "Zeph_DialOutSettingDataImpl.h"

namespace {

using namespace OpenWBEM;
using Texts = std::vector<std::string>;

// Every qualifier of a property as "NAME=VALUE" (array values joined with "|").
Texts qualifiersOf(const CIMProperty& property) {
  Texts out;
  for (const CIMQualifier& q : property.getQualifiers()) {
    const CIMValue value = q.getValue();
    std::string text;
    if (value && value.isArray()) {
      StringArray items;
      value.get(items);
      for (const String& item : items)
        text += (text.empty() ? "" : "|") + std::string(item.c_str());
    } else {
      text = textOf(value);
    }
    out.push_back(std::string(q.getName().c_str()) + "=" + text);
  }
  return out;
}

// The user name's qualifiers: the offered indexes and user names, each joined with "|".
Texts offered(const std::string& indexes, const std::string& users) {
  return {"ValueMap=" + indexes, "Values=" + users};
}
const Texts kTwoUsers = offered("0|1", "dialer|backup");

using DialOutGet = DialOutTest;

TEST_F(DialOutGet, ShowsEveryPropertyInOrderWithItsValueAndQualifiers) {
  struct Row {
    const char* name;
    const char* value;
    Texts qualifiers;
  };
  const std::vector<Row> rows = {
      {"InstanceID", kDialOutID, {}},
      {"ElementName", "Dial-Out Settings", {}},
      {"DialOutNumber", "5550199", {}},
      {"DialRetries", "3", {}},
      {"DialInterval", "30", {}},
      {"DialOutUserName", "0", kTwoUsers},
      // Loaded with the user name cached at start, which is empty: no secrets line matches.
      {"DialOutPassword", "", {}},
  };
  const CIMInstance instance = get();
  // Named by its key, as a CIMOM names it to clients; no property gains a Key qualifier.
  EXPECT_EQ(CIMObjectPath("", instance).modelPath(),
            String("Zeph_DialOutSettingData.InstanceID=\"Velmar:Zeph_DialOutSettingData\""));
  const CIMPropertyArray properties = instance.getProperties();
  ASSERT_EQ(properties.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(rows[i].name);
    EXPECT_EQ(properties[i].getName(), String(rows[i].name));
    EXPECT_EQ(textOf(properties[i].getValue()), rows[i].value);
    EXPECT_EQ(qualifiersOf(properties[i]), rows[i].qualifiers);
  }
}

TEST_F(DialOutGet, LoadsFromTheScriptsAndLogsWhatItRead) {
  EXPECT_NE(std::find(initJournal_.begin(), initJournal_.end(),
                      "grep \"\\\"\\<\\>\" /etc/ppp/pap-secrets | cut -f3 > /tmp/passwd"),
            initJournal_.end());
  EXPECT_FALSE(appliance::fileExists("/tmp/passwd"));
  const Texts log = logged();
  auto at = log.begin();
  for (const char* line :
       {"DialOutNumber =5550199\n", "Config DialInterval =30\n", "Dial iRetries =3\n"}) {
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
    Texts qualifiers;
  };
  const auto nameLine = [](const char* user) {
    return [user] {
      std::string options = appliance::readFile(kDialOutOptions);
      options.replace(options.find("name dialer"), 11, std::string("name ") + user);
      appliance::writeFile(kDialOutOptions, options);
    };
  };
  const auto noPrivilege = [] {
    appliance::revokePrivilege(500);
    appliance::revokePrivilege(501);
  };
  const std::vector<Row> rows = {
      {"second of two", nameLine("backup"), "1", kTwoUsers},
      {"user without the privilege", nameLine("operator"), "0", kTwoUsers},
      {"privilege granted", [] { appliance::grantPrivilege(502); }, "0",
       offered("0|1|2", "dialer|backup|operator")},
      {"no privileged account", noPrivilege, "0", offered("", "")},
      {"account added", [] { appliance::addAccount("503", "night"); }, "0", kTwoUsers},
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

// The setter indexes the list of the latest get only: an index that named an account in an
// earlier, longer list names none after the list shrank.
TEST_F(DialOutGet, EachGetReplacesTheSettersListWithTheLatestAccounts) {
  get();
  appliance::removeAccount("500");
  const CIMProperty user = get().getProperty("DialOutUserName");
  EXPECT_EQ(UserNames, (Texts{"backup"}));
  EXPECT_EQ(qualifiersOf(user), offered("0", "backup"));
  EXPECT_EQ(modify({{"DialOutUserName", CIMValue(String("1"))}}).code,
            CIMException::INVALID_PARAMETER);
  const Texts log = logged();
  EXPECT_EQ(std::count(log.begin(), log.end(), "Reading Zeph_Account"), 2);
  EXPECT_EQ(std::count(log.begin(), log.end(), "Zeph_DialOutAccountImpl::getDialOutUserName\n"), 2);
  EXPECT_NE(std::find(log.begin(), log.end(), "Out Value in get Number of Users is 1"), log.end());
}

// The number carries the impact warning of the session found up by the last status reading.
TEST_F(DialOutGet, NumberWarnsWhileADialSessionIsUp) {
  struct Row {
    appliance::Direction direction;  // also which session flag is up
    const char* key;
    std::string warnedSession;  // none when the last reading was of the other endpoint
  };
  const std::vector<Row> rows = {
      {appliance::Direction::DialOut, "DialOutEndpoint", "Dial-Out"},
      {appliance::Direction::DialIn, "DialInEndpoint", "Dial-In"},
      {appliance::Direction::DialIn, "DialOutEndpoint", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.key);
    appliance::linkUp(row.direction, "ppp0", "10.64.0.2", "10.64.0.1");
    ConnectionStatus = row.direction == appliance::Direction::DialIn;
    DialOutConnectionStatus = !ConnectionStatus;
    check_key = row.key;
    const CIMInstance instance = get();
    const Texts warning = {"ImpactWarning=" + row.warnedSession +
                           " Session is in Progress.Change will take effect for Next " +
                           row.warnedSession + " Session"};
    EXPECT_EQ(qualifiersOf(instance.getProperty("DialOutNumber")),
              row.warnedSession.empty() ? Texts{} : warning);
    EXPECT_TRUE(qualifiersOf(instance.getProperty("DialRetries")).empty());
    appliance::linkDown("ppp0");
  }
}

}  // namespace
