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

void setRingsInScript(const std::string& rings) {
  std::string text = appliance::readFile(kMgettyScript);
  const std::string line = "declare -r NUMBER_OF_RINGS=\"";
  const std::size_t at = text.find(line) + line.size();
  appliance::writeFile(kMgettyScript, text.replace(at, text.find('"', at) - at, rings));
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
  OpenWBEM::CIMObjectPathArray paths;
  OpenWBEM::CIMObjectPathArrayBuilder result(paths);
  provider_->enumInstanceNames(TestEnvironment::make(), kNs, kClass, result, kNoClass);
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
  std::function<void()> setUp;
  std::function<void()> change;
  const char* property;
  const char* beforeReinitialising;
  const char* afterReinitialising;
};

const std::vector<OutsideChange> kOutsideChanges = {
    {"Line", {}, [] { appliance::regSet("LineToAnswer", "5"); }, "LineToAnswer", "5", "5"},
    {"NoLine", {}, [] { appliance::regSet("LineToAnswer", "none"); }, "LineToAnswer", "0", "0"},
    {"DNNumber",
     {},
     [] { appliance::regSet("modemdn", "5559999 ext 2"); },
     "DNNumber",
     "5559999 ext 2",
     "5559999 ext 2"},
    {"Rings", {}, [] { setRingsInScript("7"); }, "RingsBeforeAnswer", "2", "7"},
    {"NoRingsLine",
     {},
     [] { appliance::writeFile(kMgettyScript, "#!/bin/sh\n"); },
     "RingsBeforeAnswer",
     "2",
     "0"},
    {"Timer",
     {},
     [] { appliance::regSet("AutoDisableTimer", "25"); },
     "AutoDisableTimer",
     "10",
     "25"},
    {"FlagInLowerCase",
     {},
     [] { appliance::regSet("AutoDisableFlag", "on"); },
     "AutoDisableFlag",
     "false",
     "true"},
    {"FlagOtherText",
     {},
     [] { appliance::regSet("AutoDisableFlag", "yes"); },
     "AutoDisableFlag",
     "false",
     "false"},
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

std::function<void()> deleted(const char* name) {
  return [name] { appliance::regDelete(name); };
}

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
  bool dialOut;
  const char* lastEndpoint;
  const char* rings;  // RingsBeforeAnswer in MOF form
};

const char* const kRingsDialInWarning =
    "[ImpactWarning(\"Dial-In Session is in Progress.Change will take effect for Next Dial-In "
    "Session\")]\nuint16 RingsBeforeAnswer = 2;\n";
const char* const kRingsDialOutWarning =
    "[ImpactWarning(\"Dial-Out Session is in Progress.Change will take effect for Next Dial-Out "
    "Session\")]\nuint16 RingsBeforeAnswer = 2;\n";
const char* const kRingsPlain = "uint16 RingsBeforeAnswer = 2;\n";

std::function<void()> linkUp(Direction direction) {
  return [direction] { appliance::linkUp(direction, "ppp0", "10.0.0.1", "10.0.0.2"); };
}

const std::vector<SessionState> kSessions = {
    {"DialIn", linkUp(Direction::DialIn), true, false, "DialInEndpoint", kRingsDialInWarning},
    {"DialOut", linkUp(Direction::DialOut), false, true, "DialOutEndpoint", kRingsDialOutWarning},
    {"DialInReadLastForTheOtherEndpoint", linkUp(Direction::DialIn), true, false, "DialOutEndpoint",
     kRingsPlain},
};

using LiveSession = CallInRowTest<SessionState>;

// The PPP endpoint's status reading leaves the session flags that the warnings follow.
TEST_P(LiveSession, PutsTheImpactWarningOnRingsBeforeAnswerOnly) {
  const SessionState& row = GetParam();
  ConnectionStatus = row.dialIn;
  DialOutConnectionStatus = row.dialOut;
  check_key = row.lastEndpoint;
  const Lines mof = getAsMof();
  ASSERT_EQ(mof.size(), 7u);
  EXPECT_EQ(mof[3], row.rings);
  for (std::size_t i = 0; i < mof.size(); ++i) {
    if (i == 3) continue;
    EXPECT_EQ(mof[i].find('['), std::string::npos) << mof[i];
  }
}
INSTANTIATE_TEST_SUITE_P(CallIn, LiveSession, ::testing::ValuesIn(kSessions), RowName());

}  // namespace
}  // namespace callin
