// Sets of modemStatus through the dispatcher: the order of the stop steps and the registry
// write, the dial-out resume, and a failed registry write.
#include <cstdlib>

#include "ScopedEnv.h"
#include "ServiceFixture.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using namespace service;

namespace {

const char* const kHangupScript = "/qv/etc/ppp/ppp_hup_v2k";
const char* const kHangupRecord = "/var/lib/appliance/hangups";
// The appliance's hang-up script, also noting the registry value at the moment it runs.
const char* const kRecordingHangup =
    "#!/bin/sh\n"
    "echo \"$1 $(appliance-ctl reg get ModemStatus)\" >> /var/lib/appliance/hangups\n"
    "exec appliance-ctl hangup \"$@\"\n";

// What the change callback runs once the registry says "DISABLED" and no link is left.
const Lines kCallbackDisables = {kListAll,      gateEdit(kClosed, kDialOut), kKillChat,
                                 hangup("ppp"), gateEdit(kClosed, kDialIn),  kKillMgetty};
const Lines kResumeDialOut = resume(kDialOut, "ppp_add_v2k");

// The stops come first and the registry is written last: both hang-ups still saw "ENABLED".
TEST_F(ServiceTest, DisablingDuringADialInCallStopsEverythingBeforeTheRegistrySaysSo) {
  dialInUp();
  appliance::linkUp(appliance::Direction::DialOut, "ppp1", "10.1.0.1", "10.1.0.2");
  appliance::writeFile(kHangupScript, kRecordingHangup);
  appliance::clearJournal();
  newLog();

  EXPECT_EQ(setModemStatus(false), CimFailure{});

  const Lines bySet = {gateEdit(kClosed, kDialIn),  hangup("ppp0"), kKillMgetty,
                       gateEdit(kClosed, kDialOut), kKillChat,      hangup("ppp1")};
  EXPECT_THAT(appliance::journal(), ElementsAreArray(joined({bySet, kCallbackDisables})));
  EXPECT_THAT(appliance::readLines(kHangupRecord),
              ElementsAre("ppp0 ENABLED", "ppp1 ENABLED", "ppp DISABLED"));
  EXPECT_EQ(appliance::regGet("ModemStatus"), "DISABLED");
  EXPECT_EQ(gates(), kBothClosed);
  EXPECT_EQ(appliance::processState("mgetty"), "");
  const Lines log = newLog();
  EXPECT_EQ(log.front(), "DEBUG|Zeph_RASServiceImpl::setmodemStatus\n");
  EXPECT_TRUE(containsInOrder(
      log, {"DEBUG|Interface for DialIn  is", "DEBUG|ppp0", "DEBUG|ProcessCmd is",
            "DEBUG|" + hangup("ppp0"), "DEBUG|ProcessCmd1 is", "DEBUG|" + kKillMgetty,
            "DEBUG|Interface for DialOut  is", "DEBUG|ppp1", "DEBUG|ProcessCmd is",
            "DEBUG|" + hangup("ppp1"), "DEBUG|Calling Callback Function"}))
      << ::testing::PrintToString(log);
}

struct SetCase {
  const char* name;
  std::function<void()> setUp;
  bool value;
  Lines bySet;       // the set's own commands
  Lines byCallback;  // the change callback's, which may run while the set goes on
  std::string gates;
};

TEST_F(ServiceTest, SettingTheSwitchWritesTheRegistryAndBringsTheScriptsInLine) {
  const auto disabled = [] { changeFromOutside("DISABLED"); };
  const auto disabledScripts = [] {
    changeFromOutside("DISABLED");
    for (const char* script : {kDialIn, kDialOut}) {
      std::string text = appliance::readFile(script);
      appliance::writeFile(script, text.replace(text.find("#ENABLED"), 8, "#DISABLED"));
    }
  };
  const Lines resumeBoth = joined({resume(kDialIn, "mgetty_v2k"), kResumeDialOut});
  const Lines closeBoth = {gateEdit(kClosed, kDialIn), gateEdit(kClosed, kDialOut)};
  const std::vector<SetCase> cases = {
      {"true, already enabled", [] {}, true, kResumeDialOut, {}, kBothOpen},
      {"true after disabled, #ENABLED scripts", disabled, true, kResumeDialOut, resumeBoth,
       kBothOpen},
      {"true after disabled, #DISABLED scripts",
       disabledScripts,
       true,
       {gateEdit(kClosed, kDialOut)},
       closeBoth,
       kBothClosed},
      {"false, no link", [] {}, false, kStopsWithoutLink, kCallbackDisables, kBothClosed},
  };
  for (const SetCase& c : cases) {
    pristine();
    c.setUp();
    appliance::clearJournal();
    appliance::clearCalls();
    EXPECT_EQ(setModemStatus(c.value), CimFailure{}) << c.name;
    const Lines journal = appliance::journal();
    EXPECT_TRUE(isInterleaving(journal, c.bySet, c.byCallback))
        << c.name << ::testing::PrintToString(journal);
    EXPECT_EQ(gates(), c.gates) << c.name;
    EXPECT_EQ(appliance::regGet("ModemStatus"), c.value ? "ENABLED" : "DISABLED") << c.name;
    const Lines calls = appliance::calls();
    const bool signalled = std::any_of(calls.begin(), calls.end(), [](const std::string& call) {
      return call.find("-s CONT") != std::string::npos;
    });
    EXPECT_EQ(signalled, c.gates == kBothOpen) << c.name;
  }
}

// A registry that cannot be written: status 100 reaches the client; what ran stays done.
TEST_F(ServiceTest, AFailedRegistryWriteIsReportedAndNotUndone) {
  for (const auto& [value, journal] :
       {std::pair{false, kStopsWithoutLink}, {true, kResumeDialOut}}) {
    pristine();
    newLog();
    const CimFailure failure = [&] {
      const appliance::ScopedEnv broken("QVL_REGISTRY", "/nonexistent/registry");
      return setModemStatus(value);
    }();
    EXPECT_EQ(failure,
              (CimFailure{OpenWBEM::CIMException::FAILED, kSource, 388, "#RAS_MODEM_100#"}))
        << value;
    EXPECT_THAT(appliance::journal(), ElementsAreArray(journal)) << value;
    EXPECT_EQ(appliance::regGet("ModemStatus"), "ENABLED") << value;
    const Lines log = newLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "ERROR|Error in QVL Operation\n"), 1) << value;
  }
}

}  // namespace
