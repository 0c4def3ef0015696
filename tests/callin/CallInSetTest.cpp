// Setting the call-in settings: each writable property with valid values (registry, script,
// journal and the value read back) and with each kind of invalid value (CIM error, and
// nothing touched).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <optional>

#include "CallInFixture.h"

namespace callin {
namespace {

using appliance::Direction;
using Lines = std::vector<std::string>;
using OpenWBEM::CIMException;

constexpr char kSource[] = "../src/Zeph_CallInSettingDataProvider";
constexpr int kLineAboveMaximum = 334;
constexpr int kLineBelowMinimum = 342;
constexpr int kLineSetterStatus = 388;

std::function<void()> dialInUp() {
  return [] { appliance::linkUp(Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2"); };
}
// Without MinLine and MaxLine a line is checked against the fixed range 1 to 268.
std::function<void()> noLineBounds() {
  return [] {
    appliance::regDelete("MinLine");
    appliance::regDelete("MaxLine");
  };
}

std::string ringsEdit(int rings) {
  return "/bin/sed -i '/^declare -r NUMBER_OF_RINGS/ c declare -r NUMBER_OF_RINGS=\"" +
         std::to_string(rings) + "\"' /qv/etc/ppp/mgetty_v2k";
}
std::string ringsLine(int rings) {
  return "declare -r NUMBER_OF_RINGS=\"" + std::to_string(rings) + "\"";
}
bool hasLine(const char* path, const std::string& wanted) {
  for (const std::string& line : appliance::readLines(path)) {
    if (line == wanted) return true;
  }
  return false;
}
CimFailure failure(int code, const std::string& message, int line) {
  return {code, kSource, line, message};
}

struct ValidSet {
  const char* name;
  std::function<void()> setUp;
  const char* property;
  OpenWBEM::CIMValue value;
  const char* registryName;  // the registry value written, when one is
  const char* registryValue;
  std::optional<int> ringsInScript;
  Lines journal;
  const char* readBack;
  const char* logLine;
};

const Lines kRestartMgetty = {"killall -9 mgetty", "init q"};

const std::vector<ValidSet> kValidSets = {
    {"Line3",
     {},
     "LineToAnswer",
     u16(3),
     "LineToAnswer",
     "3",
     {},
     {},
     "3",
     "DEBUG|Line to Answer  3\n"},
    {"Line8",
     {},
     "LineToAnswer",
     u16(8),
     "LineToAnswer",
     "8",
     {},
     {},
     "8",
     "DEBUG|Line to Answer  8\n"},
    {"Line0IsNone",
     {},
     "LineToAnswer",
     u16(0),
     "LineToAnswer",
     "NONE",
     {},
     {},
     "0",
     "DEBUG|Line to Answer  0\n"},
    {"Line268WithoutBounds",
     noLineBounds(),
     "LineToAnswer",
     u16(268),
     "LineToAnswer",
     "268",
     {},
     {},
     "268",
     "DEBUG|Line to Answer  268\n"},
    {"Rings20",
     {},
     "RingsBeforeAnswer",
     u16(20),
     nullptr,
     nullptr,
     20,
     {ringsEdit(20), kRestartMgetty[0], kRestartMgetty[1]},
     "20",
     "DEBUG|Killing Mgetty"},
    {"Rings1",
     {},
     "RingsBeforeAnswer",
     u16(1),
     nullptr,
     nullptr,
     1,
     {ringsEdit(1), kRestartMgetty[0], kRestartMgetty[1]},
     "1",
     "DEBUG|Killing Mgetty"},
    // A dial-in call in progress is never cut: the script changes, mgetty is left alone.
    {"Rings5WithADialInCall",
     dialInUp(),
     "RingsBeforeAnswer",
     u16(5),
     nullptr,
     nullptr,
     5,
     {ringsEdit(5)},
     "5",
     "DEBUG|Zeph_CallInSettingDataImpl::setRingsBeforeAnswer\n"},
    {"Timer30",
     {},
     "AutoDisableTimer",
     u16(30),
     "AutoDisableTimer",
     "30",
     {},
     {},
     "30",
     "DEBUG|Setting AutoDisable Timer value 30\n"},
    {"Timer0",
     {},
     "AutoDisableTimer",
     u16(0),
     "AutoDisableTimer",
     "0",
     {},
     {},
     "0",
     "DEBUG|Setting AutoDisable Timer value 0\n"},
    {"FlagOn",
     {},
     "AutoDisableFlag",
     flag(true),
     "AutoDisableFlag",
     "ON",
     {},
     {},
     "true",
     "DEBUG|Setting the AutoDisable FLag to 1\n"},
    {"FlagOff",
     {},
     "AutoDisableFlag",
     flag(false),
     "AutoDisableFlag",
     "OFF",
     {},
     {},
     "false",
     "DEBUG|Setting the AutoDisable FLag to 0\n"},
};

using ValidValue = CallInRowTest<ValidSet>;

TEST_P(ValidValue, ReachesTheRegistryOrTheScriptAndReadsBack) {
  const ValidSet& row = GetParam();
  const std::string script = appliance::readFile(kMgettyScript);
  const std::string mgetty = appliance::processState("mgetty");
  EXPECT_EQ(modify({{row.property, row.value}}), CimFailure{});
  EXPECT_EQ(appliance::journal(), row.journal);
  if (row.registryName) {
    EXPECT_EQ(appliance::regGet(row.registryName), std::string(row.registryValue));
  }
  if (row.ringsInScript) {
    EXPECT_TRUE(hasLine(kMgettyScript, ringsLine(*row.ringsInScript)));
  } else {
    EXPECT_EQ(appliance::readFile(kMgettyScript), script);
  }
  EXPECT_EQ(appliance::processState("mgetty"), mgetty);
  EXPECT_EQ(value(row.property), row.readBack);
  const Lines log = logged();
  EXPECT_NE(std::find(log.begin(), log.end(), row.logLine), log.end());
}
INSTANTIATE_TEST_SUITE_P(CallIn, ValidValue, ::testing::ValuesIn(kValidSets), RowName());

struct InvalidSet {
  const char* name;
  std::function<void()> setUp;
  const char* property;
  OpenWBEM::CIMValue value;
  int code;
  std::string message;
  int line;
};

const auto kFailed = CIMException::FAILED;
const auto kInvalid = CIMException::INVALID_PARAMETER;

const std::vector<InvalidSet> kInvalidSets = {
    {"Line10000", {}, "LineToAnswer", u16(10000), kFailed, "#RAS_MODEM_13#", kLineSetterStatus},
    {"Line65535", {}, "LineToAnswer", u16(65535), kFailed, "#RAS_MODEM_13#", kLineSetterStatus},
    {"Line9AboveMaxLine", {}, "LineToAnswer", u16(9), kFailed, "#RAS_MODEM_18#", kLineSetterStatus},
    {"Line269WithoutBounds", noLineBounds(), "LineToAnswer", u16(269), kFailed, "#RAS_MODEM_18#",
     kLineSetterStatus},
    {"Rings21",
     {},
     "RingsBeforeAnswer",
     u16(21),
     kInvalid,
     "The value of RingsBeforeAnswer must be <= 20\n"
     "#CFG_000_0003,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,20#",
     kLineAboveMaximum},
    {"Rings0",
     {},
     "RingsBeforeAnswer",
     u16(0),
     kInvalid,
     "The value of RingsBeforeAnswer must be >= 1\n"
     "#CFG_000_0002,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,1#",
     kLineBelowMinimum},
    {"Timer31", {}, "AutoDisableTimer", u16(31), kFailed, "#RAS_MODEM_14#", kLineSetterStatus},
};

using InvalidValue = CallInRowTest<InvalidSet>;

TEST_P(InvalidValue, FailsWithItsErrorAndTouchesNothing) {
  const InvalidSet& row = GetParam();
  const std::string registry = appliance::readFile(kRegistry);
  const std::string script = appliance::readFile(kMgettyScript);
  EXPECT_EQ(modify({{row.property, row.value}}), failure(row.code, row.message, row.line));
  EXPECT_EQ(appliance::readFile(kRegistry), registry);
  EXPECT_EQ(appliance::readFile(kMgettyScript), script);
  EXPECT_TRUE(appliance::journal().empty());
}
INSTANTIATE_TEST_SUITE_P(CallIn, InvalidValue, ::testing::ValuesIn(kInvalidSets), RowName());

// A registry that cannot be written: every registry setter reports status 100.
TEST_F(CallInTest, AFailedRegistryWriteIsStatus100) {
  const std::vector<std::pair<const char*, OpenWBEM::CIMValue>> rows = {
      {"LineToAnswer", u16(3)}, {"AutoDisableTimer", u16(5)}, {"AutoDisableFlag", flag(true)}};
  const std::string registry = appliance::readFile(kRegistry);
  ASSERT_EQ(setenv("QVL_REGISTRY", "/nonexistent/registry", 1), 0);
  for (const auto& [property, value] : rows) {
    clearLog();
    EXPECT_EQ(modify({{property, value}}), failure(kFailed, "#RAS_MODEM_100#", kLineSetterStatus))
        << property;
    const Lines log = logged();
    EXPECT_NE(std::find(log.begin(), log.end(), "ERROR|Error in QVL Operation\n"), log.end())
        << property;
  }
  unsetenv("QVL_REGISTRY");
  EXPECT_EQ(appliance::readFile(kRegistry), registry);
  EXPECT_EQ(value("AutoDisableTimer"), "10");
  EXPECT_EQ(value("AutoDisableFlag"), "false");
}

}  // namespace
}  // namespace callin
