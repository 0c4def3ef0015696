// Reading the call-in settings: every property with its value and qualifiers, which values
// are read live and which are kept from initialisation, registry failures, impact warnings.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "CallInFixture.h"

namespace callin {
namespace {

using appliance::Direction;
using Lines = std::vector<std::string>;

const char* const kQvlError = "ERROR|Error in QVL Operation\n";
const char* const kQvlErrorUpper = "DEBUG|Error IN QVL Operation\n";

std::function<void()> set(const char* name, const char* value) {
  return [name, value] { appliance::regSet(name, value); };
}
std::function<void()> deleted(const char* name) {
  return [name] { appliance::regDelete(name); };
}
std::function<void()> ringsInScript(const std::string& rings) {
  return [rings] {
    std::string text = appliance::readFile(kMgettyScript);
    const std::string line = "declare -r NUMBER_OF_RINGS=\"";
    const std::size_t at = text.find(line) + line.size();
    appliance::writeFile(kMgettyScript, text.replace(at, text.find('"', at) - at, rings));
  };
}

// The lines of `all` that are in `wanted`, in their order.
Lines only(const Lines& all, const Lines& wanted) {
  Lines kept;
  for (const std::string& line : all) {
    if (std::find(wanted.begin(), wanted.end(), line) != wanted.end()) kept.push_back(line);
  }
  return kept;
}

TEST_F(CallInTest, GetShowsEveryPropertyFromTheScriptAndTheRegistry) {
  EXPECT_EQ(
      getAsMof(),
      (Lines{"string InstanceID = \"Velmar:Zeph_CallInSettingData\";\n",
             "string ElementName = \"Dial-In Configuration\";\n", "uint16 LineToAnswer = 1;\n",
             "uint16 RingsBeforeAnswer = 2;\n", "uint16 AutoDisableTimer = 10;\n",
             "boolean AutoDisableFlag = false;\n", "string DNNumber = \"5550142\";\n"}));
  const OpenWBEM::CIMObjectPathArray paths = enumNames(kClass);
  ASSERT_EQ(paths.size(), 1u);
  EXPECT_EQ(paths[0].getKeyValue("InstanceID").toString(), kInstanceID);
  EXPECT_TRUE(appliance::journal().empty());
}

TEST_F(CallInTest, InitialisationLogsTheValuesItKeeps) {
  const Lines expected = {"DEBUG|RingsBeforeAnswer =2\n", "DEBUG|Line To Answer is 1",
                          "DEBUG|Auto Disable timer value = 10", "DEBUG|AutoDisable Flag is Off\n"};
  EXPECT_EQ(only(logged(), expected), expected);
}

struct OutsideChange {
  const char* name;
  std::function<void()> change;
  const char* property;
  const char* beforeReinitialising;
  const char* afterReinitialising;
  std::function<void()> setUp = nullptr;
};

const char* const kDN = "5559999 ext 2";
const std::vector<OutsideChange> kOutsideChanges = {
    {"Line", set("LineToAnswer", "5"), "LineToAnswer", "5", "5"},
    {"NoLine", set("LineToAnswer", "none"), "LineToAnswer", "0", "0"},
    {"DNNumber", set("modemdn", kDN), "DNNumber", kDN, kDN},
    {"Rings", ringsInScript("7"), "RingsBeforeAnswer", "2", "7"},
    {"NoRingsLine", [] { appliance::writeFile(kMgettyScript, "#!/bin/sh\n"); }, "RingsBeforeAnswer",
     "2", "0"},
    {"Timer", set("AutoDisableTimer", "25"), "AutoDisableTimer", "10", "25"},
    {"FlagInLowerCase", set("AutoDisableFlag", "on"), "AutoDisableFlag", "false", "true"},
    {"FlagOtherText", set("AutoDisableFlag", "yes"), "AutoDisableFlag", "false", "false"},
};

using LiveOrKept = CallInRowTest<OutsideChange>;

// LineToAnswer and DNNumber are read at every get; the others only when the module starts.
TEST_P(LiveOrKept, AnOutsideChangeShowsAtOnceOrAfterReinitialising) {
  const OutsideChange& row = GetParam();
  row.change();
  EXPECT_EQ(value(row.property), row.beforeReinitialising);
  initialize();
  EXPECT_EQ(value(row.property), row.afterReinitialising);
}
INSTANTIATE_TEST_SUITE_P(CallIn, LiveOrKept, ::testing::ValuesIn(kOutsideChanges), RowName());

struct RegistryFailure {
  const char* name;
  std::function<void()> setUp;
  const char* missingAfterARead;  // deleted after one get, when not before starting
  const char* property;
  const char* value;
  const char* logLine;
};

const std::vector<RegistryFailure> kRegistryFailures = {
    {"LineLive", {}, "LineToAnswer", "LineToAnswer", "0", kQvlError},
    {"LineAtStart", deleted("LineToAnswer"), nullptr, "LineToAnswer", "0", kQvlError},
    {"DNNumberKeepsTheLastRead", {}, "modemdn", "DNNumber", "5550142", kQvlError},
    {"DNNumberNeverRead", deleted("modemdn"), nullptr, "DNNumber", "", kQvlError},
    {"Timer", deleted("AutoDisableTimer"), nullptr, "AutoDisableTimer", "0", kQvlErrorUpper},
    {"Flag", deleted("AutoDisableFlag"), nullptr, "AutoDisableFlag", "false", kQvlError},
};

using MissingValue = CallInRowTest<RegistryFailure>;

TEST_P(MissingValue, IsLoggedWithItsOwnTextAndLeavesTheLastOrDefaultValue) {
  const RegistryFailure& row = GetParam();
  value(row.property);
  if (row.missingAfterARead) appliance::regDelete(row.missingAfterARead);
  EXPECT_EQ(value(row.property), row.value);
  const Lines errors = only(logged(), {kQvlError, kQvlErrorUpper});
  EXPECT_FALSE(errors.empty());
  EXPECT_EQ(std::count(errors.begin(), errors.end(), row.logLine), errors.size());
}
INSTANTIATE_TEST_SUITE_P(CallIn, MissingValue, ::testing::ValuesIn(kRegistryFailures), RowName());

struct SessionState {
  const char* name;
  std::function<void()> setUp;
  bool dialIn;
  const char* lastEndpoint;
  const char* warnedSession;  // "Dial-In", "Dial-Out" or none
};

std::function<void()> linkUp(Direction direction) {
  return [direction] { appliance::linkUp(direction, "ppp0", "10.0.0.1", "10.0.0.2"); };
}

const std::vector<SessionState> kSessions = {
    {"DialIn", linkUp(Direction::DialIn), true, "DialInEndpoint", "Dial-In"},
    {"DialOut", linkUp(Direction::DialOut), false, "DialOutEndpoint", "Dial-Out"},
    {"DialInReadLastForTheOtherEndpoint", linkUp(Direction::DialIn), true, "DialOutEndpoint", ""},
};

using LiveSession = CallInRowTest<SessionState>;

// The PPP endpoint's status reading leaves the session flags that the warnings follow.
TEST_P(LiveSession, PutsTheImpactWarningOnRingsBeforeAnswerOnly) {
  const SessionState& row = GetParam();
  const std::string session = row.warnedSession;
  ConnectionStatus = row.dialIn;
  DialOutConnectionStatus = !row.dialIn;
  check_key = row.lastEndpoint;
  const Lines mof = getAsMof();
  ASSERT_EQ(mof.size(), 7u);
  const std::string warning = "[ImpactWarning(\"" + session +
                              " Session is in Progress.Change will take effect for Next " +
                              session + " Session\")]\n";
  EXPECT_EQ(mof[3], (session.empty() ? "" : warning) + "uint16 RingsBeforeAnswer = 2;\n");
  for (std::size_t i = 0; i < mof.size(); ++i) {
    EXPECT_TRUE(i == 3 || mof[i].find('[') == std::string::npos) << mof[i];
  }
}
INSTANTIATE_TEST_SUITE_P(CallIn, LiveSession, ::testing::ValuesIn(kSessions), RowName());

}  // namespace
}  // namespace callin
