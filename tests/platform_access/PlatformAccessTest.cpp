// The platform-access functions that run on the host: command lines and the values that may go
// into them, the configuration reader's rules, the value checks and formatting, with the exact
// lines they log.
#include <gmock/gmock.h>
#include <unistd.h>

#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "LogRecorder.h"
#include "QvlShared.h"
#include "ScopedEnv.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_RestingPlace.h"
#include "Zeph_ShellVariable.h"
#include "Zeph_ValueChecks.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using Lines = std::vector<std::string>;
using ras::ShellCommand;

namespace {

TEST(CommandRunner, ValuesLandAsTheyAreAsOneQuotedWordOrNotAtAll) {
  const char* const sed = "%s -i 's/^x=.*/x=\"%s\"/' %s";
  const char* const except = "grep -v \"%s\" > /tmp/ifout ";
  const struct {
    ShellCommand command;
    std::string text;  // "" when refused
  } rows[] = {
      {{"%s -s CONT %s\n", {"/usr/bin/killall", "ppp_add_v2k"}},
       "/usr/bin/killall -s CONT ppp_add_v2k\n"},
      {{sed, {"/bin/sed", "0,,12:a@b+=c", "/f"}}, "/bin/sed -i 's/^x=.*/x=\"0,,12:a@b+=c\"/' /f"},
      {{sed, {"/bin/sed", "1'; reboot; '", "/f"}}, ""},
      {{sed, {"/bin/sed", "1/e reboot", "/f"}}, ""},  // would end the s part
      {{sed, {"/bin/sed", "$(id)", "/f"}}, ""},       // inert to sed, not to a sourcing script
      {{sed, {"/bin/sed", "a\\", "/f"}}, ""},
      {{sed, {"/bin/sed", "255.0.0.0 ", "/f"}}, "/bin/sed -i 's/^x=.*/x=\"255.0.0.0 \"/' /f"},
      {{except, {"ppp0\\"}}, ""},  // would escape the closing quote
      {{except, {"ppp 0"}}, "grep -v \"ppp 0\" > /tmp/ifout "},
      {{except, {"ppp$(reboot)"}}, ""},
      {{"%s %s", {"/hup", "ppp0\rreboot"}}, ""},
      {{"%s %s", {"/hup", "ppp0\treboot"}}, ""},
      {{"%s %s", {"/x", "a\nb"}}, ""},
      {{"%s %s:%s", {"/set", "a", "b\n"}}, "/set a:b\n"},  // a file line's own newline
      {{"%s %s:%s ", {"/set", "a", "b\n"}}, ""},
      {{"%s %d", {"/x", "7;reboot"}}, ""},
      {{"%s %d", {"/x", "-12"}}, "/x -12"},
      {{"%s %s", {"/hup", "ppp0;reboot"}}, "/hup 'ppp0;reboot'"},
      {{"%s %s", {"/x", "it's"}}, "/x 'it'\\''s'"},
      {{"%s name %s", {"/s", ""}}, "/s name "},
      {{"\\'%s", {"a b"}}, "\\''a b'"},  // an escaped quote opens nothing
      {{"%d%% %s", {7, "x"}}, "7% x"},
      {{"%s %s", {"x"}}, ""},
      {{"%s", {"x", "y"}}, ""},
      {{"%x", {"x"}}, ""},
      {{"%s", {std::string(1023, 'a')}}, std::string(1023, 'a')},
      {{"%s", {std::string(1024, 'a')}}, ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.command.valid(), !row.text.empty()) << row.text;
    EXPECT_EQ(row.command.text(), row.text);
  }
}

// A refused command is logged and not run; a sequence with one unsafe line runs none of its
// lines (and so never reaches the runner's own refusal), a safe one runs them all.
TEST(CommandRunner, RefusedCommandsAndSequencesRunNothing) {
  ScopedLogRecorder log;
  EXPECT_EQ(ras::runCommand("exit 3; echo \"%s\"", {"`id`"}), -1);
  EXPECT_THAT(log.newLines(),
              ElementsAre("ERROR|Command not run: a value is not safe for the shell\n"));
  EXPECT_EQ(ras::runCommand("exit %d", {3}), 3 << 8);
  ras::CommandSequence refused, safe;
  refused.add("exit %d", {0}).add("echo \"%s\"", {"`id`"});
  EXPECT_FALSE(refused.valid());
  EXPECT_FALSE(refused.run());
  EXPECT_THAT(log.newLines(), testing::IsEmpty());
  safe.add("exit %d", {0}).add("exit %d", {1});
  EXPECT_TRUE(safe.run());
}

// Columns: sed text, double-quoted assignment, pppd word, address part, secret column.
TEST(RestingPlace, EachPlaceRefusesWhatWouldNotStayData) {
  const std::pair<const char*, const char*> rows[] = {
      {"255.255.255.0", "11111"},
      {"255.255.255.0 ", "11001"},
      {"a:b", "11101"},
      {"a/b", "01111"},
      {"$(id)", "00111"},
      {"`id`", "00111"},
      {"a\"b", "00000"},
      {"a\\", "00000"},
      {"a'b", "01001"},
      {"a&b", "01111"},
      {"#a", "01001"},
      {"@/etc/shadow", "01110"},
      {"a\nb", "00000"},
      {"a\tb", "00000"},
      {"", "11111"},
  };
  using ras::RestingPlace;
  const RestingPlace places[] = {RestingPlace::SedText, RestingPlace::QuotedAssignment,
                                 RestingPlace::PppdWord, RestingPlace::AddressPart,
                                 RestingPlace::SecretColumn};
  for (const auto& [value, expected] : rows) {
    std::string actual;
    for (RestingPlace place : places) actual += ras::staysData(value, place) ? "1" : "0";
    EXPECT_EQ(actual, expected) << "'" << value << "'";
    EXPECT_EQ(ras::staysData(value, {places[0], places[1], places[2], places[3], places[4]}),
              std::string(expected) == "11111")
        << value;
  }
}

TEST(RestingPlace, SettableAddressesAndMasks) {
  const struct {
    const char* value;
    bool address, mask;
  } rows[] = {
      {"10.1.0.0", true, false},
      {"10.1.2.3.4", true, false},      // IsIPValid's leniency kept
      {"255.255.255.0 ", false, true},  // inet_aton stops at the blank
      {"0xffffff00", false, true},      // a form inet_aton takes
      {"255.255.0.0 $(touch /tmp/x)", false, false},
      {"255.255.0.0 \";id;\"", false, false},
      {"255.255.0.0\nid", false, false},
      {"1.2.3.4.:5", false, false},  // would move pppd's local:remote split
      {"1.2.3.4./x", false, false},  // would end a sed `s` part
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ras::isSettableAddress(row.value), row.address) << row.value;
    EXPECT_EQ(ras::isSettableMask(row.value), row.mask) << row.value;
  }
}

// The read pattern and the sed line made from one description of a declared script variable.
TEST(ShellVariable, ReadPatternAndEditLineComeFromOneDescription) {
  using ras::ShellVariable;
  const struct {
    ShellVariable variable;
    ras::CommandArg value;
    const char* pattern;
    const char* line;
  } rows[] = {
      {{"/qv/etc/ppp/mgetty_v2k", "declare -r NUMBER_OF_RINGS", ShellVariable::Kind::Number},
       7,
       "declare -r NUMBER_OF_RINGS=\"%d\"",
       "/bin/sed -i '/^declare -r NUMBER_OF_RINGS/ c declare -r NUMBER_OF_RINGS=\"7\"' "
       "/qv/etc/ppp/mgetty_v2k"},
      {{"/qv/etc/ppp/ppp_call_v2k", "declare TELEPHONE_NUMBER", ShellVariable::Kind::Text},
       "0815",
       "declare TELEPHONE_NUMBER=\"%s",
       "/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare TELEPHONE_NUMBER=\"0815\"' "
       "/qv/etc/ppp/ppp_call_v2k"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.variable.readPattern(), row.pattern);
    const std::string edit = row.variable.editFormat();
    EXPECT_EQ(ShellCommand(edit.c_str(), {ras::kSed, row.value, row.variable.file}).text(),
              row.line);
    // A text value that could end the quoted expression is refused, not run.
    EXPECT_FALSE(
        ShellCommand(edit.c_str(), {ras::kSed, "1'; reboot; '", row.variable.file}).valid());
  }
}

// Files of a scratch directory outside /tmp (the reader deletes files under /tmp, and a
// checkout may itself lie under /tmp).
class ScratchTest : public ::testing::Test {
 protected:
  void SetUp() override { std::filesystem::create_directories(dir_); }
  void TearDown() override { std::filesystem::remove_all(dir_); }
  std::string write(const std::string& content) {
    std::ofstream(dir_ + "/f", std::ios::binary) << content;
    return dir_ + "/f";
  }
  const std::string dir_ = "/var/tmp/platform_access_scratch." + std::to_string(::getpid());
  ScopedLogRecorder log_;
};
using ConfigReader = ScratchTest;
using ValueChecks = ScratchTest;

TEST_F(ConfigReader, MarkerTestMatchesWholeLinesOnly) {
  const std::string compared = "DEBUG|Compared", exact = "DEBUG|Setting value true for PPPP",
                    differs = "DEBUG|Compared false";
  const struct {
    std::string content;
    int result;
    int cachedResult;  // getConfigParameterEx: any line that begins with the key
    Lines log;
  } rows[] = {
      {"ADDO\n", 1, 1, {compared, exact}},
      {"ppp1\nADDO", 0, 1, {compared, differs}},  // the last character is always cut
      {"ADDO\nADDO_X\n", 1, 1, {compared, exact, compared, differs}},
      {"DIN\nppp0\n", 0, 0, {}},
  };
  for (const auto& row : rows) {
    const std::string file = write(row.content);
    log_.newLines();
    EXPECT_EQ(getConfigParameter(file.c_str(), "ADDO"), row.result) << row.content;
    EXPECT_THAT(log_.newLines(), ElementsAreArray(row.log)) << row.content;
    EXPECT_EQ(getConfigParameterEx(file.c_str(), "ADDO"), row.cachedResult) << row.content;
  }
}

TEST_F(ConfigReader, FirstMatchingLineIsScannedIntoTheOutput) {
  const std::string longValue(200, 'v');
  const struct {
    std::string content;
    const char* format;
    std::string text;
  } rows[] = {
      {"#x\ndeclare TELEPHONE_NUMBER=\"0123\"\n", "declare TELEPHONE_NUMBER=\"%s", "0123\""},
      {"name \n", "name %s", ""},  // a failed scan still assigns
      {"ppp1\nppp2\n", "ppp%s", "1"},
      {"ppp" + longValue + "\n", "ppp%s", longValue.substr(0, 79)},
      {std::string(1023, 'x') + "ppp7\n", "ppp%s", "7"},  // the continuation is a line
      {"sabc def\n", "%s", "sabc"},                       // "%s" has the key "s"
      {"nothing here\n", "ppp%s", "untouched"},
  };
  for (const auto& row : rows) {
    std::string text = "untouched";
    getConfigParameter(write(row.content).c_str(), row.format, &text);
    EXPECT_EQ(text, row.text) << row.content;
  }
  for (const auto& [content, expected] : {std::pair{"4", 4}, {"x", 77}}) {
    int number = 77;
    getConfigParameter(
        write("declare -r NUMBER_OF_RINGS=\"" + std::string(content) + "\"\n").c_str(),
        "declare -r NUMBER_OF_RINGS=\"%d\"", &number);
    EXPECT_EQ(number, expected) << content;
  }
}

TEST_F(ConfigReader, ParameterFromFileKeepsTheLastMatchingLine) {
  const struct {
    std::string content;
    const char* format;
    const char* prefix;
    std::string value;
  } rows[] = {
      {"#$IF_ENABLE_CMD\n", "%s", "#$IF_ENABLE_CMD", "#$IF_ENABLE_CMD"},
      {"$IF_ENABLE_CMD\n", "%s", "#$IF_ENABLE_CMD", "unchanged"},
      {"name a\nname b\n", "name %s", "name ", "b"},
      {"name a\nname \n", "name %s", "name ", "a"},  // nothing converted: previous value stays
      {"k" + std::string(1500, 'w') + "\n", "%s", "k", "k" + std::string(1022, 'w')},
  };
  for (const auto& row : rows) {
    std::string value = "unchanged";
    EXPECT_EQ(getParameterFromFile(write(row.content).c_str(), row.format, row.prefix, value), 0);
    EXPECT_EQ(value, row.value) << row.content;
  }
  std::string value;
  log_.newLines();
  getParameterFromFile(write("other\nname a\n").c_str(), "name %s", "name ", value);
  EXPECT_THAT(log_.newLines(), ElementsAre("DEBUG|LINE: ", "DEBUG|name a\n", "DEBUG|a"));
}

TEST_F(ConfigReader, AddressLineKeepsTheNewlineInTheSecondPart) {
  const std::pair<std::string, std::string> rows[] = {
      {"10.0.0.1:10.0.0.2\n", "10.0.0.1|10.0.0.2\n"},
      {":10.0.0.2\n", "|10.0.0.2\n"},
      {"10.0.0.1:\n", "10.0.0.1|\n"},
      {"  #10.0.0.1:10.0.0.2\n", "|"},
      {"mtu 1500\n\nnoauth\n", "|"},
      {"1.1.1.1:2.2.2.2\n:3.3.3.3\n", "1.1.1.1|3.3.3.3\n"},
  };
  for (const auto& [content, expected] : rows) {
    std::string first = "stale", second = "stale";
    EXPECT_EQ(getIPFromFile(write(content).c_str(), nullptr, ":", first, second), 0);
    EXPECT_EQ(first + "|" + second, expected) << content;
  }
}

TEST_F(ConfigReader, MissingFilesAreReportedAtErrorLevel) {
  const std::string absent = dir_ + "/absent";
  std::string value = "keep", first = "x", second = "y";
  EXPECT_EQ(getConfigParameter(absent.c_str(), "ppp%s", &value), -1);
  EXPECT_EQ(getParameterFromFile(absent.c_str(), "%s", "#", value), -1);
  EXPECT_EQ(getIPFromFile(absent.c_str(), nullptr, ":", first, second), -1);
  EXPECT_EQ(value + first + second, "keep");
  const std::string noFile = "ERROR|No such file or directory";
  EXPECT_THAT(log_.newLines(),
              ElementsAre("ERROR|Error:\n", noFile, "ERROR|" + absent, "ERROR|Error:\n", noFile,
                          "ERROR|Invalid File\n", "ERROR|" + absent, "ERROR|Invalid File\n"));
}

// Each check's accept/reject table with the exact lines it logs.
TEST_F(ValueChecks, AddressAndMaskChecksLogEveryReason) {
  const std::string digit = "DEBUG|Character is not a digit at ", few = "DEBUG|Not Enough Tokens\n",
                    range = "DEBUG|Less than 0 and greater than 255 ",
                    length = "DEBUG|Length is grater than 3 ";
  const struct {
    int (*check)(char*);
    std::string input;
    int result;
    Lines log;
  } rows[] = {
      {IsIPValid, "192.168.1.1", 1, {}},
      {IsIPValid, "10..1.2.3", 1, {}},
      {IsIPValid, ".10.1.2.3.", 1, {}},
      {IsIPValid, "192.168.1", 0, {few}},
      {IsIPValid, "192.168.1.1a", 0, {digit + "3 2\n"}},
      {IsIPValid, "ab1.1.1.1", 0, {digit + "0 1\n", digit + "0 2\n"}},
      {IsIPValid, "1x.2", 0, {digit + "0 2\n", few}},
      {IsIPValid, "256.1.1.1", 0, {range + "0 3\n"}},
      {IsIPValid, "-1.0.0.0", 0, {digit + "0 1\n", range + "0 2\n"}},
      {IsIPValid, "1234.1.1.1", 0, {length + "0\n", range + "0 0\n"}},
      {IsIPValid, "1.1.1.99999999999", 0, {length + "3\n", range + "3 0\n"}},
      {IsMaskValid, "255.255.255.0", 1, {}},
      {IsMaskValid, "0.0.0.0", 1, {}},
      {IsMaskValid, "255.255.255.255", 1, {}},
      {IsMaskValid, "0xfffffffe", 1, {}},  // every form inet_aton takes
      {IsMaskValid, "255.255.0.255", 0, {}},
      {IsMaskValid, "255.255", 0, {}},  // 255.0.0.255
      {IsMaskValid, "", 0, {"DEBUG|Blank Mask\n"}},
      {IsMaskValid, "mask", 0, {"DEBUG|inet_aton failed\n"}},
  };
  for (const auto& row : rows) {
    std::string input = row.input;
    log_.newLines();
    EXPECT_EQ(row.check(input.data()), row.result) << row.input;
    EXPECT_THAT(log_.newLines(), ElementsAreArray(row.log)) << row.input;
  }
}

TEST_F(ValueChecks, LineNumberRangeComesFromTheRegistryOrFallsBack) {
  const appliance::ScopedEnv registry("QVL_REGISTRY", dir_ + "/registry");
  const std::string outside = "DEBUG|Not Valid Line Number",
                    fallback = "DEBUG|Condition is True for 0";
  const struct {
    const char *minLine, *maxLine;  // nullptr: no entry
    int line;
    Lines log;  // empty: valid
  } rows[] = {
      {"1", "8", 1, {}},
      {"1", "8", 8, {}},
      {"1", "8", 0, {outside}},
      {"1", "8", 9, {outside}},
      {nullptr, nullptr, 268, {}},
      {nullptr, nullptr, 269, {fallback}},
      {"5", nullptr, 0, {fallback}},
      {"5", nullptr, 1, {}},
  };
  for (const auto& row : rows) {
    std::filesystem::remove(dir_ + "/registry");
    for (const auto& [name, value] :
         {std::pair{"MinLine", row.minLine}, {"MaxLine", row.maxLine}}) {
      EXPECT_TRUE(!value || QvlSetRegEntryString("SoftModem", "ModemCC", name, value) == 0);
    }
    log_.newLines();
    EXPECT_EQ(IsLineNumberValid(row.line), row.log.empty() ? 1 : 0) << row.line;
    EXPECT_THAT(log_.newLines(), ElementsAreArray(row.log)) << row.line;
  }
}

// Seconds become the minutes and seconds of a datetime; integers become decimal text.
TEST_F(ValueChecks, DatetimeAndNumberFormatting) {
  for (const auto& [seconds, expected] : {std::pair{0, "00000101000000.000000+000"},
                                          {630, "00000101001030.000000+000"},
                                          {5999, "00000101009959.000000+000"},
                                          {-30, "00000101000-30.000000+000"},
                                          {6000, "unchanged"},
                                          {INT_MAX, "unchanged"}}) {
    std::string out = "unchanged";
    timeTodatetimeFormat(out, seconds);
    EXPECT_EQ(out, expected) << seconds;
  }
  EXPECT_THAT(log_.newLines(), ElementsAreArray(Lines(2, "ERROR|Invalid time value\n")));
  for (const auto& [value, expected] :
       {std::pair{-45, "-45"}, {0, "0"}, {INT_MIN, "-2147483648"}}) {
    char text[12] = "garbage";
    EXPECT_EQ(itoa(value, text), static_cast<int>(std::strlen(expected)));
    EXPECT_STREQ(text, expected);
  }
}

}  // namespace
