// Writing the dial-out settings: each writable property with valid values (file, journal,
// read-back), each kind of invalid value (CIM error, files untouched), and the dial-out
// restart with calls up. Rows share one appliance: resetting it would rewrite the registry
// under the module's "ModemStatus" subscription and start its callback.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

#include "DialOutFixture.h"
#include "OW_CIMException.hpp"

namespace {

using namespace OpenWBEM;
using Lines = std::vector<std::string>;

const Lines kRestartWithoutLink = {"/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ", "killall -9 chat",
                                   "/qv/etc/ppp/ppp_hup_v2k ppp"};

Lines joined(Lines head, const Lines& tail) {
  head.insert(head.end(), tail.begin(), tail.end());
  return head;
}
CIMValue text(const std::string& value) {
  return CIMValue(String(value.c_str()));
}
bool hasLine(const std::string& file, const std::string& line) {
  const Lines lines = appliance::readLines(file);
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}
// The script line `declare KEY="value"`, and the in-place edit that writes it.
std::string declare(const std::string& key, const std::string& value) {
  return "declare " + key + "=\"" + value + "\"";
}
std::string edit(const char* script, const std::string& key, const std::string& value) {
  return "/bin/sed -i '/^declare " + key + "/ c " + declare(key, value) + "' " + script;
}

using DialOutSet = DialOutTest;

// A changed number restarts the dial-out link; retries and interval only edit the script.
TEST_F(DialOutSet, ValidValuesAreWrittenAndReadBack) {
  struct Row {
    const char* property;
    CIMValue value;  // also the value read back
    const char* script;
    const char* key;
    Lines restart;
  };
  const std::string digits25 = "1234567890123456789012345";
  const std::vector<Row> rows = {
      {"DialOutNumber", text(digits25), kCallScript, "TELEPHONE_NUMBER", kRestartWithoutLink},
      {"DialOutNumber", text(""), kCallScript, "TELEPHONE_NUMBER", kRestartWithoutLink},
      {"DialRetries", CIMValue(UInt16(1)), kCallbackScript, "CALLBACK_RETRY", {}},
      {"DialRetries", CIMValue(UInt16(10)), kCallbackScript, "CALLBACK_RETRY", {}},
      {"DialInterval", CIMValue(UInt16(1)), kCallbackScript, "CALLBACK_DELAY", {}},
      {"DialInterval", CIMValue(UInt16(299)), kCallbackScript, "CALLBACK_DELAY", {}},
  };
  for (const Row& row : rows) {
    const std::string value = textOf(row.value);
    SCOPED_TRACE(std::string(row.property) + "=" + value);
    appliance::clearJournal();
    EXPECT_EQ(modify({{row.property, row.value}}), CimFailure{});
    EXPECT_TRUE(hasLine(row.script, declare(row.key, value))) << appliance::readFile(row.script);
    EXPECT_EQ(appliance::journal(), joined({edit(row.script, row.key, value)}, row.restart));
    EXPECT_EQ(appliance::regGet("ModemStatus"), "ENABLED");
    EXPECT_EQ(textOf(get().getPropertyValue(row.property)), value);
  }
}

// The user name is an index into the offered users; the options name the user itself. The
// secret is replaced in both secrets files under the user text the object caches: empty
// until a user is chosen (the script then refuses the call), the chosen index after that.
TEST_F(DialOutSet, UserNameGoesToTheOptionsAndPasswordToBothSecretsFiles) {
  const std::map<std::string, std::string> before = files();
  EXPECT_EQ(modify({{"DialOutPassword", text("first")}}), CimFailure{});
  EXPECT_EQ(files(), before);
  get();  // the user list that the user-name setter indexes
  appliance::clearJournal();
  EXPECT_EQ(modify({{"DialOutUserName", text("1")}}), CimFailure{});
  EXPECT_TRUE(hasLine(kDialOutOptions, "name backup"));
  EXPECT_EQ(
      appliance::journal(),
      joined({"/opt/etc/RasProviderScripts/setLine_dialout name backup"}, kRestartWithoutLink));
  EXPECT_EQ(appliance::regGet("ModemStatus"), "ENABLED");
  EXPECT_EQ(textOf(get().getPropertyValue("DialOutUserName")), "1");
  appliance::clearJournal();
  EXPECT_EQ(modify({{"DialOutPassword", text("s3cret")}}), CimFailure{});
  EXPECT_EQ(
      appliance::journal(),
      (Lines{"/opt/etc/RasProviderScripts/addPassword 1 first s3cret /etc/ppp/pap-secrets",
             "/opt/etc/RasProviderScripts/addPassword 1 first s3cret /etc/ppp/chap-secrets"}));
  EXPECT_TRUE(hasLine(kPapSecrets, "\"1\"\t*\t\"s3cret\"\t*"));
  EXPECT_TRUE(hasLine(kChapSecrets, "\"1\"\t*\t\"s3cret\"\t*"));
  EXPECT_EQ(textOf(get().getPropertyValue("DialOutPassword")), "s3cret");
}

TEST_F(DialOutSet, InvalidValuesAreRefusedWithTheirErrorAndChangeNothing) {
  struct Row {
    const char* property;
    CIMValue value;
    int code;
    int line;
    std::string message;
  };
  const auto tooLong = [](const char* property) {
    return std::string("The length of ") + property +
           " must be <= 32\n#CFG_000_0004,MOF_Props_Zeph_DialOutSettingData_" + property + ",32#";
  };
  const auto number = [](UInt16 value) { return CIMValue(value); };
  const int failed = CIMException::FAILED;
  const int invalid = CIMException::INVALID_PARAMETER;
  const std::vector<Row> rows = {
      {"DialOutNumber", text(std::string(26, '1')), failed, 388, "#RAS_MODEM_15#"},
      {"DialOutNumber", text(std::string(25, '1') + "x"), failed, 388, "#RAS_MODEM_15#"},
      {"DialOutNumber", text("12a"), failed, 388, "#RAS_MODEM_16#"},
      {"DialOutNumber", text("555 0199; reboot"), failed, 388, "#RAS_MODEM_16#"},
      {"DialOutNumber", text(std::string(33, '1')), invalid, 334, tooLong("DialOutNumber")},
      {"DialRetries", number(0), failed, 388, "#RAS_MODEM_2#"},
      {"DialRetries", number(11), failed, 388, "#RAS_MODEM_2#"},
      {"DialInterval", number(0), failed, 388, "#RAS_MODEM_3#"},
      {"DialInterval", number(300), failed, 388, "#RAS_MODEM_3#"},
      {"DialOutUserName", text("2"), invalid, 382,
       "The value of $prop.getName() is invalid.\n"
       "#CFG_000_0000,MOF_Props_Zeph_DialOutSettingData_$prop.getName()#"},
      {"DialOutUserName", text(std::string(33, '0')), invalid, 334, tooLong("DialOutUserName")},
      {"DialOutPassword", text(std::string(33, 'p')), invalid, 334, tooLong("DialOutPassword")},
  };
  get();  // a list of two users: index 2 names none
  const std::map<std::string, std::string> before = files();
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.property) + "=" + textOf(row.value));
    appliance::clearJournal();
    EXPECT_EQ(modify({{row.property, row.value}}),
              (CimFailure{row.code, kDialOutSource, row.line, row.message}));
    EXPECT_EQ(files(), before);
    EXPECT_EQ(appliance::journal(), Lines{});
  }
}

// A changed number reaches the next dial-out call: an idle or absent link is hung up, an
// established dial-out call and a dial-in call are left alone.
TEST_F(DialOutSet, NumberChangeHangsUpOnlyADialOutLinkThatIsNotInACall) {
  struct Row {
    const char* what;
    std::function<void()> arrange;
    Lines restart;
  };
  const std::vector<Row> rows = {
      {"dial-out call up",
       [] { appliance::linkUp(appliance::Direction::DialOut, "ppp0", "10.64.0.2", "10.64.0.1"); },
       {}},
      {"dial-in call on ppp0, dial-out link on ppp1",
       [] {
         appliance::linkUp(appliance::Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2");
         appliance::linkUp(appliance::Direction::DialOut, "ppp1", "10.64.0.2", "10.64.0.1", true);
       },
       {"/sbin/ifconfig | grep \"ppp\" | grep -v \"ppp0\" > /tmp/ifout ",
        "/qv/etc/ppp/ppp_hup_v2k ppp1"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    row.arrange();
    appliance::clearJournal();
    EXPECT_EQ(modify({{"DialOutNumber", text("5550123")}}), CimFailure{});
    EXPECT_EQ(appliance::journal(),
              joined({edit(kCallScript, "TELEPHONE_NUMBER", "5550123")}, row.restart));
    const std::string links = appliance::readFile("/var/lib/appliance/links");
    EXPECT_NE(links.find("ppp0 "), std::string::npos);
    EXPECT_EQ(links.find("ppp1"), std::string::npos);
    appliance::linkDown("ppp0");
  }
}

}  // namespace
