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

CIMValue number(UInt16 value) {
  return CIMValue(value);
}

bool hasLine(const std::string& file, const std::string& line) {
  const Lines lines = appliance::readLines(file);
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

using DialOutSet = DialOutTest;

TEST_F(DialOutSet, ValidValuesAreWrittenAndReadBack) {
  struct Row {
    const char* property;
    CIMValue value;
    const char* file;
    std::string line;
    Lines journal;
    const char* readBack;
  };
  const std::string digits25 = "1234567890123456789012345";
  const char* sedNumber =
      "/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare TELEPHONE_NUMBER=\"%s\"' "
      "/qv/etc/ppp/ppp_call_v2k";
  const auto setNumber = [&](const std::string& n) {
    std::string command = sedNumber;
    return command.replace(command.find("%s"), 2, n);
  };
  const auto sedCallback = [](const char* key, const char* n) {
    return std::string("/bin/sed -i '/^declare ") + key + "/ c declare " + key + "=\"" + n +
           "\"' /qv/etc/ppp/callback_v2k";
  };
  const std::vector<Row> rows = {
      {"DialOutNumber", text(digits25), kCallScript,
       "declare TELEPHONE_NUMBER=\"" + digits25 + "\"",
       joined({setNumber(digits25)}, kRestartWithoutLink), "1234567890123456789012345"},
      {"DialOutNumber", text(""), kCallScript, "declare TELEPHONE_NUMBER=\"\"",
       joined({setNumber("")}, kRestartWithoutLink), ""},
      {"DialRetries",
       number(1),
       kCallbackScript,
       "declare CALLBACK_RETRY=\"1\"",
       {sedCallback("CALLBACK_RETRY", "1")},
       "1"},
      {"DialRetries",
       number(10),
       kCallbackScript,
       "declare CALLBACK_RETRY=\"10\"",
       {sedCallback("CALLBACK_RETRY", "10")},
       "10"},
      {"DialInterval",
       number(1),
       kCallbackScript,
       "declare CALLBACK_DELAY=\"1\"",
       {sedCallback("CALLBACK_DELAY", "1")},
       "1"},
      {"DialInterval",
       number(299),
       kCallbackScript,
       "declare CALLBACK_DELAY=\"299\"",
       {sedCallback("CALLBACK_DELAY", "299")},
       "299"},
      {"DialOutUserName", text("1"), kDialOutOptions, "name backup",
       joined({"/opt/etc/RasProviderScripts/setLine_dialout name backup"}, kRestartWithoutLink),
       "1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.property) + "=" + textOf(row.value));
    get();  // the user list that the user-name setter indexes
    appliance::clearJournal();
    EXPECT_EQ(modify({{row.property, row.value}}), CimFailure{});
    EXPECT_TRUE(hasLine(row.file, row.line)) << appliance::readFile(row.file);
    EXPECT_EQ(appliance::journal(), row.journal);
    EXPECT_EQ(appliance::regGet("ModemStatus"), "ENABLED");
    EXPECT_EQ(textOf(get().getPropertyValue(row.property)), row.readBack);
  }
}

// The secret is replaced in both secrets files under the user text the object caches: empty
// until a user is chosen (the script then refuses the call), the chosen index after that.
TEST_F(DialOutSet, PasswordGoesToBothSecretsFilesUnderTheCachedUserText) {
  const std::map<std::string, std::string> before = files();
  EXPECT_EQ(modify({{"DialOutPassword", text("first")}}), CimFailure{});
  EXPECT_EQ(files(), before);
  get();
  EXPECT_EQ(modify({{"DialOutUserName", text("1")}}), CimFailure{});
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
    const char* message;
  };
  const auto tooLong = [](const char* property) {
    return std::string("The length of ") + property +
           " must be <= 32\n#CFG_000_0004,MOF_Props_Zeph_DialOutSettingData_" + property + ",32#";
  };
  const std::string longNumber = tooLong("DialOutNumber");
  const std::string user = tooLong("DialOutUserName");
  const std::string password = tooLong("DialOutPassword");
  const int failed = CIMException::FAILED;
  const int invalid = CIMException::INVALID_PARAMETER;
  const std::vector<Row> rows = {
      {"DialOutNumber", text(std::string(26, '1')), failed, 388, "#RAS_MODEM_15#"},
      {"DialOutNumber", text(std::string(25, '1') + "x"), failed, 388, "#RAS_MODEM_15#"},
      {"DialOutNumber", text("12a"), failed, 388, "#RAS_MODEM_16#"},
      {"DialOutNumber", text("555 0199; reboot"), failed, 388, "#RAS_MODEM_16#"},
      {"DialOutNumber", text(std::string(33, '1')), invalid, 334, longNumber.c_str()},
      {"DialRetries", number(0), failed, 388, "#RAS_MODEM_2#"},
      {"DialRetries", number(11), failed, 388, "#RAS_MODEM_2#"},
      {"DialInterval", number(0), failed, 388, "#RAS_MODEM_3#"},
      {"DialInterval", number(300), failed, 388, "#RAS_MODEM_3#"},
      {"DialOutUserName", text("2"), invalid, 382,
       "The value of $prop.getName() is invalid.\n"
       "#CFG_000_0000,MOF_Props_Zeph_DialOutSettingData_$prop.getName()#"},
      {"DialOutUserName", text(std::string(33, '0')), invalid, 334, user.c_str()},
      {"DialOutPassword", text(std::string(33, 'p')), invalid, 334, password.c_str()},
  };
  get();  // a list of two users: index 2 names none
  const std::map<std::string, std::string> before = files();
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.property) + "=" + textOf(row.value));
    appliance::clearJournal();
    EXPECT_EQ(modify({{row.property, row.value}}),
              (CimFailure{row.code, kDialOutSource, row.line, std::string(row.message)}));
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
    std::vector<std::string> linksUp;
  };
  const std::vector<Row> rows = {
      {"dial-out call up",
       [] { appliance::linkUp(appliance::Direction::DialOut, "ppp0", "10.64.0.2", "10.64.0.1"); },
       {},
       {"ppp0"}},
      {"dial-in call on ppp0, dial-out link on ppp1",
       [] {
         appliance::linkUp(appliance::Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2");
         appliance::linkUp(appliance::Direction::DialOut, "ppp1", "10.64.0.2", "10.64.0.1", true);
       },
       {"/sbin/ifconfig | grep \"ppp\" | grep -v \"ppp0\" > /tmp/ifout ",
        "/qv/etc/ppp/ppp_hup_v2k ppp1"},
       {"ppp0"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    row.arrange();
    appliance::clearJournal();
    EXPECT_EQ(modify({{"DialOutNumber", text("5550123")}}), CimFailure{});
    EXPECT_EQ(appliance::journal(),
              joined({"/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare "
                      "TELEPHONE_NUMBER=\"5550123\"' /qv/etc/ppp/ppp_call_v2k"},
                     row.restart));
    const std::string links = appliance::readFile("/var/lib/appliance/links");
    for (const std::string& up : row.linksUp) EXPECT_NE(links.find(up + " "), std::string::npos);
    EXPECT_EQ(links.find("ppp1"), std::string::npos);
    for (const std::string& up : row.linksUp) appliance::linkDown(up);
  }
}

}  // namespace
