// The configuration reader's rules: which lines match, which line wins, what is scanned out
// and what is logged, on files of a scratch directory.
#include <gmock/gmock.h>

#include "TestSupport.h"
#include "Zeph_PlatformAccess.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using Lines = std::vector<std::string>;

namespace {

class ConfigReaderTest : public ScratchTest {};

TEST_F(ConfigReaderTest, MarkerTestMatchesWholeLinesOnly) {
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
      {"ADDO_X\n", 0, 1, {compared, differs}},
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

TEST_F(ConfigReaderTest, FirstMatchingLineIsScannedIntoTheOutput) {
  const std::string longValue(200, 'v');
  const struct {
    std::string content;
    const char* format;
    std::string text;
  } rows[] = {
      {"ppp0\n", "ppp%s", "0"},
      {"pppd\n", "ppp%s", "d"},
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
  const char* const rings = "declare -r NUMBER_OF_RINGS=\"%d\"";
  for (const auto& [content, expected] : {std::pair{"declare -r NUMBER_OF_RINGS=\"4\"\n", 4},
                                          {"declare -r NUMBER_OF_RINGS=\"x\"\n", 77}}) {
    int number = 77;
    getConfigParameter(write(content).c_str(), rings, &number);
    EXPECT_EQ(number, expected) << content;
  }
}

TEST_F(ConfigReaderTest, ParameterFromFileKeepsTheLastMatchingLine) {
  const struct {
    std::string content;
    const char* format;
    const char* prefix;
    std::string value;
  } rows[] = {
      {"#$IF_ENABLE_CMD\n", "%s", "#$IF_ENABLE_CMD", "#$IF_ENABLE_CMD"},
      {"$IF_ENABLE_CMD\n", "%s", "#$IF_ENABLE_CMD", "unchanged"},
      {"#ENABLED by setup\n", "%s", "#ENABLED", "#ENABLED"},
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

TEST_F(ConfigReaderTest, AddressLineKeepsTheNewlineInTheSecondPart) {
  const struct {
    std::string content;
    std::string first;
    std::string second;
  } rows[] = {
      {"10.0.0.1:10.0.0.2\n", "10.0.0.1", "10.0.0.2\n"},
      {":10.0.0.2\n", "", "10.0.0.2\n"},
      {"10.0.0.1:\n", "10.0.0.1", "\n"},
      {"  #10.0.0.1:10.0.0.2\n", "", ""},
      {"mtu 1500\n\nnoauth\n", "", ""},
      {"1.1.1.1:2.2.2.2\n:3.3.3.3\n", "1.1.1.1", "3.3.3.3\n"},
  };
  for (const auto& row : rows) {
    std::string first = "stale", second = "stale";
    EXPECT_EQ(getIPFromFile(write(row.content).c_str(), nullptr, ":", first, second), 0);
    EXPECT_EQ(first + "|" + second, row.first + "|" + row.second) << row.content;
  }
}

TEST_F(ConfigReaderTest, MissingFilesAreReportedAtErrorLevel) {
  const std::string absent = path("absent");
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

}  // namespace
