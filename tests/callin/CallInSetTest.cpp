// Setting the call-in settings: each writable property with valid values (registry, script,
// journal and the value read back) and with each kind of invalid value (CIM error, and
// nothing touched).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>

#include "CallInFixture.h"
#include "ScopedEnv.h"

namespace callin {
namespace {

using Lines = std::vector<std::string>;
using OpenWBEM::CIMException;

constexpr char kRegistry[] = "/var/lib/qvl/registry";
constexpr char kSource[] = "../src/Zeph_CallInSettingDataProvider";
constexpr int kLineAboveMaximum = 334;
constexpr int kLineBelowMinimum = 342;
constexpr int kLineSetterStatus = 388;
const auto kFailed = CIMException::FAILED;
const auto kInvalid = CIMException::INVALID_PARAMETER;

void dialInUp() {
  appliance::linkUp(appliance::Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2");
}
// Without MinLine and MaxLine a line is checked against the fixed range 1 to 268.
void noLineBounds() {
  appliance::regDelete("MinLine");
  appliance::regDelete("MaxLine");
}

std::string ringsLine(const std::string& rings) {
  return "declare -r NUMBER_OF_RINGS=\"" + rings + "\"";
}
// The script edit for `rings`, then mgetty's restart unless a dial-in call is up.
Lines ringsSet(int rings, bool restart) {
  Lines journal = {"/bin/sed -i '/^declare -r NUMBER_OF_RINGS/ c " +
                   ringsLine(std::to_string(rings)) + "' /qv/etc/ppp/mgetty_v2k"};
  if (restart) journal.insert(journal.end(), {"killall -9 mgetty", "init q"});
  return journal;
}
CimFailure failure(int code, const std::string& message, int line) {
  return {code, kSource, line, message};
}

struct ValidSet {
  const char* name;
  const char* property;
  OpenWBEM::CIMValue value;   // also the value read back
  const char* registryValue;  // the property's registry value; none for the script's rings
  Lines journal;
  const char* logLine;
  std::function<void()> setUp = nullptr;
};

const char* const kKilling = "DEBUG|Killing Mgetty";
const Lines kNothing;

const std::vector<ValidSet> kValidSets = {
    {"Line3", "LineToAnswer", u16(3), "3", kNothing, "DEBUG|Line to Answer  3\n"},
    {"Line8", "LineToAnswer", u16(8), "8", kNothing, "DEBUG|Line to Answer  8\n"},
    {"Line0IsNone", "LineToAnswer", u16(0), "NONE", kNothing, "DEBUG|Line to Answer  0\n"},
    {"Line268WithoutBounds", "LineToAnswer", u16(268), "268", kNothing,
     "DEBUG|Line to Answer  268\n", noLineBounds},
    {"Rings20", "RingsBeforeAnswer", u16(20), nullptr, ringsSet(20, true), kKilling},
    {"Rings1", "RingsBeforeAnswer", u16(1), nullptr, ringsSet(1, true), kKilling},
    // A dial-in call in progress is never cut: the script changes, mgetty is left alone.
    {"Rings5WithADialInCall", "RingsBeforeAnswer", u16(5), nullptr, ringsSet(5, false),
     "DEBUG|Zeph_CallInSettingDataImpl::setRingsBeforeAnswer\n", dialInUp},
    {"Timer30", "AutoDisableTimer", u16(30), "30", kNothing,
     "DEBUG|Setting AutoDisable Timer value 30\n"},
    {"Timer0", "AutoDisableTimer", u16(0), "0", kNothing,
     "DEBUG|Setting AutoDisable Timer value 0\n"},
    {"FlagOn", "AutoDisableFlag", flag(true), "ON", kNothing,
     "DEBUG|Setting the AutoDisable FLag to 1\n"},
    {"FlagOff", "AutoDisableFlag", flag(false), "OFF", kNothing,
     "DEBUG|Setting the AutoDisable FLag to 0\n"},
};

using ValidValue = CallInRowTest<ValidSet>;

TEST_P(ValidValue, ReachesTheRegistryOrTheScriptAndReadsBack) {
  const ValidSet& row = GetParam();
  const std::string script = appliance::readFile(kMgettyScript);
  const std::string mgetty = appliance::processState("mgetty");
  EXPECT_EQ(modify({{row.property, row.value}}), CimFailure{});
  EXPECT_EQ(appliance::journal(), row.journal);
  const std::string text = row.value.toString().c_str();
  if (row.registryValue) {
    EXPECT_EQ(appliance::regGet(row.property), std::string(row.registryValue));
    EXPECT_EQ(appliance::readFile(kMgettyScript), script);
  } else {
    const Lines lines = appliance::readLines(kMgettyScript);
    EXPECT_NE(std::find(lines.begin(), lines.end(), ringsLine(text)), lines.end());
  }
  EXPECT_EQ(appliance::processState("mgetty"), mgetty);
  EXPECT_EQ(value(row.property), text);
  const Lines log = logged();
  EXPECT_NE(std::find(log.begin(), log.end(), row.logLine), log.end());
}
INSTANTIATE_TEST_SUITE_P(CallIn, ValidValue, ::testing::ValuesIn(kValidSets), RowName());

struct InvalidSet {
  const char* name;
  const char* property;
  OpenWBEM::CIMValue value;
  int code;
  std::string message;
  int line;
  std::function<void()> setUp = nullptr;
};

// The text of a rings value outside its range: `relation` is "<=" or ">=".
std::string ringsOutside(const char* relation, const char* error, int limit) {
  const std::string bound = std::to_string(limit);
  return std::string("The value of RingsBeforeAnswer must be ") + relation + " " + bound + "\n#" +
         error + ",MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer," + bound + "#";
}

const std::vector<InvalidSet> kInvalidSets = {
    {"Line10000", "LineToAnswer", u16(10000), kFailed, "#RAS_MODEM_13#", kLineSetterStatus},
    {"Line65535", "LineToAnswer", u16(65535), kFailed, "#RAS_MODEM_13#", kLineSetterStatus},
    {"Line9AboveMaxLine", "LineToAnswer", u16(9), kFailed, "#RAS_MODEM_18#", kLineSetterStatus},
    {"Line269WithoutBounds", "LineToAnswer", u16(269), kFailed, "#RAS_MODEM_18#", kLineSetterStatus,
     noLineBounds},
    {"Rings21", "RingsBeforeAnswer", u16(21), kInvalid, ringsOutside("<=", "CFG_000_0003", 20),
     kLineAboveMaximum},
    {"Rings0", "RingsBeforeAnswer", u16(0), kInvalid, ringsOutside(">=", "CFG_000_0002", 1),
     kLineBelowMinimum},
    {"Timer31", "AutoDisableTimer", u16(31), kFailed, "#RAS_MODEM_14#", kLineSetterStatus},
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
  const Properties rows = {
      {"LineToAnswer", u16(3)}, {"AutoDisableTimer", u16(5)}, {"AutoDisableFlag", flag(true)}};
  const std::string registry = appliance::readFile(kRegistry);
  {
    const appliance::ScopedEnv broken("QVL_REGISTRY", "/nonexistent/registry");
    for (const auto& [property, value] : rows) {
      env_->log().clear();
      EXPECT_EQ(modify({{property, value}}), failure(kFailed, "#RAS_MODEM_100#", kLineSetterStatus))
          << property;
      const Lines log = logged();
      EXPECT_NE(std::find(log.begin(), log.end(), "ERROR|Error in QVL Operation\n"), log.end())
          << property;
    }
  }
  EXPECT_EQ(appliance::readFile(kRegistry), registry);
  EXPECT_EQ(value("AutoDisableTimer"), "10");
  EXPECT_EQ(value("AutoDisableFlag"), "false");
}

}  // namespace
}  // namespace callin
