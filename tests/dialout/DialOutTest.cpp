// Dial-out settings as a client sees them: the number, retries and interval in the dial-out
// scripts, the user offered from the CIMOM's accounts that may dial out, its secret in both
// secrets files, and the values refused.
#include "DialOutFixture.h"
#include "SettingsTest.h"

namespace {

using namespace settings;
using client::text;
using client::u16;

const char kClass[] = "Zeph_DialOutSettingData";
const char kCall[] = "/qv/etc/ppp/ppp_call_v2k";
const char kCallback[] = "/qv/etc/ppp/callback_v2k";
const char kOptions[] = "/qv/etc/ppp/options_dialout";

std::string declare(const std::string& key, const std::string& value) {
  return "declare " + key + "=\"" + value + "\"";
}
Lines edit(const char* script, const std::string& key, const std::string& value,
           const Lines& restart = {}) {
  return joined(
      {{"/bin/sed -i '/^declare " + key + "/ c " + declare(key, value) + "' " + script}, restart});
}

class DialOut : public SettingsTest {
 protected:
  TestEnvRef makeEnvironment() const override { return new AccountEnvironment; }
  Lines state() override {
    Lines all;
    for (const char* file :
         {kCall, kCallback, kOptions, "/etc/ppp/pap-secrets", "/etc/ppp/chap-secrets"})
      all = joined({all, appliance::readLines(file)});
    return all;
  }
  std::string user() { return shown(get(kDialOut).getProperty("DialOutUserName")); }
};

TEST_F(DialOut, GetShowsTheScriptValuesTheOfferedUsersAndTheWarningOnTheNumber) {
  EXPECT_EQ(count(initJournal_, "grep \"\\\"\\<\\>\" /etc/ppp/pap-secrets | cut -f3 > /tmp/passwd"),
            1);
  EXPECT_FALSE(appliance::fileExists("/tmp/passwd"));
  for (const char* line :
       {"DialOutNumber =5550199\n", "Config DialInterval =30\n", "Dial iRetries =3\n"})
    EXPECT_TRUE(wasLogged(line)) << line;
  Lines values = {"InstanceID=Velmar:Zeph_DialOutSettingData", "ElementName=Dial-Out Settings",
                  "DialOutNumber=5550199", "DialRetries=3", "DialInterval=30",
                  // The password is loaded for the user cached at start, which is empty.
                  "DialOutUserName=0 [ValueMap=0,1] [Values=dialer,backup]", "DialOutPassword="};
  EXPECT_EQ(shown(kDialOut), values);
  DialOutConnectionStatus = true;
  check_key = "DialOutEndpoint";
  values[2] +=
      " [ImpactWarning=Dial-Out Session is in Progress.Change will take effect for Next "
      "Dial-Out Session]";
  EXPECT_EQ(shown(kDialOut), values);
}

// Offered: the accounts whose user holds the dial-out privilege, in the CIMOM's order; the
// value is the index of the options' "name" user, "0" when it is not offered. The setter
// indexes the list of the latest get only.
TEST_F(DialOut, UserNameIsTheIndexOfTheDialOutUserAmongPrivilegedAccounts) {
  client::replaceLine(kOptions, "name dialer", "name backup");
  EXPECT_EQ(user(), "1 [ValueMap=0,1] [Values=dialer,backup]");
  appliance::grantPrivilege(502);
  EXPECT_EQ(user(), "1 [ValueMap=0,1,2] [Values=dialer,backup,operator]");
  for (int id : {500, 501, 502}) appliance::revokePrivilege(id);
  EXPECT_EQ(user(), "0 [ValueMap=] [Values=]");
  appliance::grantPrivilege(501);
  EXPECT_EQ(user(), "0 [ValueMap=0] [Values=backup]");
  runSets({refused(kDialOut, "DialOutUserName", text("1"), notValid(kClass))});
  const Lines log = logged();
  EXPECT_EQ(count(log, "Reading Zeph_Account"), 4);
  EXPECT_EQ(count(log, "Zeph_DialOutAccountImpl::getDialOutUserName\n"), 4);
  EXPECT_EQ(count(log, "Out Value in get Number of Users is 1"), 1);
}

// A number change restarts the dial-out link; retries and interval only edit the script. The
// secret is replaced in both secrets files under the user the object caches: empty until a
// user is chosen (the script then refuses the call), the chosen index after that.
TEST_F(DialOut, SetsEditTheirFilesOrFailWithTheirError) {
  const std::string digits25(25, '1'), add = "/opt/etc/RasProviderScripts/addPassword ";
  const auto number = [](const std::string& value) {
    return valid(kDialOut, "DialOutNumber", text(value),
                 edit(kCall, "TELEPHONE_NUMBER", value, kDialOutRestart),
                 {declare("TELEPHONE_NUMBER", value)});
  };
  const auto callback = [](const char* property, const char* key, int value) {
    const std::string n = std::to_string(value);
    return valid(kDialOut, property, u16(value), edit(kCallback, key, n), {declare(key, n)});
  };
  const auto refuse = [](const char* property, CIMValue value, CimFailure failure) {
    return refused(kDialOut, property, value, failure);
  };
  get(kDialOut);  // the list of two users the user-name setter indexes
  runSets({
      number(digits25),
      number(""),
      callback("DialRetries", "CALLBACK_RETRY", 1),
      callback("DialRetries", "CALLBACK_RETRY", 10),
      callback("DialInterval", "CALLBACK_DELAY", 1),
      callback("DialInterval", "CALLBACK_DELAY", 299),
      valid(kDialOut, "DialOutPassword", text("first"),
            {add + "  first /etc/ppp/pap-secrets", add + "  first /etc/ppp/chap-secrets"}),
      valid(kDialOut, "DialOutUserName", text("1"),
            joined({{"/opt/etc/RasProviderScripts/setLine_dialout name backup"}, kDialOutRestart}),
            {"name backup"}),
      valid(kDialOut, "DialOutPassword", text("s3cret"),
            {add + "1 first s3cret /etc/ppp/pap-secrets",
             add + "1 first s3cret /etc/ppp/chap-secrets"},
            {"\"1\"\t*\t\"s3cret\"\t*", "\"1\"\t*\t\"s3cret\"\t*"}),
      refuse("DialOutNumber", text(digits25 + "1"), status(kClass, 15)),
      refuse("DialOutNumber", text(digits25 + "x"), status(kClass, 15)),
      refuse("DialOutNumber", text("12a"), status(kClass, 16)),
      refuse("DialOutNumber", text(std::string(33, '1')), tooLong(kClass, "DialOutNumber")),
      refuse("DialRetries", u16(0), status(kClass, 2)),
      refuse("DialRetries", u16(11), status(kClass, 2)),
      refuse("DialInterval", u16(0), status(kClass, 3)),
      refuse("DialInterval", u16(300), status(kClass, 3)),
      refuse("DialOutUserName", text("2"), notValid(kClass)),
      refuse("DialOutUserName", text(std::string(33, '0')), tooLong(kClass, "DialOutUserName")),
      refuse("DialOutPassword", text(std::string(33, 'p')), tooLong(kClass, "DialOutPassword")),
  });
}

}  // namespace
