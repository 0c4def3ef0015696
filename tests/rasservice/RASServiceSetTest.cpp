// Sets of modemStatus through the dispatcher: the order of the stop steps and the registry
// write, the dial-out resume, and a failed registry write.
#include <cstdlib>

#include "CimFailure.h"
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
const Lines kStopsWithoutLink = {gateEdit(kClosed, kDialIn),  kKillMgetty, kListAll,
                                 gateEdit(kClosed, kDialOut), kKillChat,   hangup("ppp")};

void disabledFromOutside() {
  appliance::regSet("ModemStatus", "DISABLED");
  ASSERT_EQ(QvlNotifySync(), 0);
}

// The stops come first and the registry is written last: both hang-ups still saw "ENABLED".
TEST_F(ServiceTest, DisablingDuringADialInCallStopsEverythingBeforeTheRegistrySaysSo) {
  dialInUp();
  dialOutUp();
  appliance::writeFile(kHangupScript, kRecordingHangup);
  appliance::clearJournal();
  newLog();

  setModemStatus(OpenWBEM::CIMValue(false));

  const Lines bySet = {gateEdit(kClosed, kDialIn),  hangup("ppp0"), kKillMgetty,
                       gateEdit(kClosed, kDialOut), kKillChat,      hangup("ppp1")};
  EXPECT_THAT(appliance::journal(), ElementsAreArray(joined({bySet, kCallbackDisables})));
  EXPECT_THAT(appliance::readLines(kHangupRecord),
              ElementsAre("ppp0 ENABLED", "ppp1 ENABLED", "ppp DISABLED"));
  EXPECT_EQ(appliance::regGet("ModemStatus"), "DISABLED");
  EXPECT_EQ(gateLine(kDialIn) + " " + gateLine(kDialOut), kClosed + " " + kClosed);
  EXPECT_EQ(appliance::processState("mgetty"), "");
  const Lines log = newLog();
  EXPECT_EQ(log.front(), "DEBUG|Zeph_RASServiceImpl::setmodemStatus\n");
  EXPECT_TRUE(containsInOrder(
      log, {"DEBUG|Interface for DialIn  is", "DEBUG|ppp0", "DEBUG|ProcessCmd is",
            "DEBUG|" + hangup("ppp0"), "DEBUG|ProcessCmd1 is", "DEBUG|" + kKillMgetty,
            "DEBUG|Interface for DialOut  is", "DEBUG|ppp1", "DEBUG|ProcessCmd is",
            "DEBUG|" + hangup("ppp1"), "DEBUG|Calling Callback Function"}))
      << listed(log);
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
  const std::string open = kOpen + " " + kOpen, closed = kClosed + " " + kClosed;
  const Lines resumeOut = resume(kDialOut, "ppp_add_v2k");
  const std::vector<SetCase> cases = {
      {"true, already enabled", [] {}, true, resumeOut, {}, open},
      {"true after disabled, #ENABLED scripts", disabledFromOutside, true, resumeOut,
       joined({resume(kDialIn, "mgetty_v2k"), resumeOut}), open},
      {"true after disabled, #DISABLED scripts",
       [] {
         disabledFromOutside();
         for (const char* script : {kDialIn, kDialOut}) {
           replaceInFile(script, "#ENABLED", "#DISABLED");
         }
       },
       true,
       {gateEdit(kClosed, kDialOut)},
       {gateEdit(kClosed, kDialIn), gateEdit(kClosed, kDialOut)},
       closed},
      {"false, no link", [] {}, false, kStopsWithoutLink, kCallbackDisables, closed},
  };
  for (const SetCase& c : cases) {
    pristine();
    c.setUp();
    appliance::clearJournal();
    appliance::clearCalls();
    setModemStatus(OpenWBEM::CIMValue(c.value));
    const Lines journal = appliance::journal();
    EXPECT_TRUE(isInterleaving(journal, c.bySet, c.byCallback)) << c.name << listed(journal);
    EXPECT_EQ(gateLine(kDialIn) + " " + gateLine(kDialOut), c.gates) << c.name;
    EXPECT_EQ(appliance::regGet("ModemStatus"), c.value ? "ENABLED" : "DISABLED") << c.name;
    const Lines calls = appliance::calls();
    const bool signalled = std::any_of(calls.begin(), calls.end(), [](const std::string& call) {
      return call.find("-s CONT") != std::string::npos;
    });
    EXPECT_EQ(signalled, c.gates == open) << c.name;
  }
}

struct FailedWriteCase {
  bool value;
  Lines journal;
};

// A registry that cannot be written: status 100 reaches the client; what ran stays done.
TEST_F(ServiceTest, AFailedRegistryWriteIsReportedAndNotUndone) {
  const std::vector<FailedWriteCase> cases = {
      {false, kStopsWithoutLink},
      {true, resume(kDialOut, "ppp_add_v2k")},
  };
  for (const FailedWriteCase& c : cases) {
    pristine();
    newLog();
    setenv("QVL_REGISTRY", "/nonexistent/registry", 1);
    const CimFailure failure = cimFailureOf([&] { setModemStatus(OpenWBEM::CIMValue(c.value)); });
    unsetenv("QVL_REGISTRY");
    EXPECT_EQ(failure,
              (CimFailure{OpenWBEM::CIMException::FAILED, kSource, 388, "#RAS_MODEM_100#"}))
        << c.value;
    EXPECT_THAT(appliance::journal(), ElementsAreArray(c.journal)) << c.value;
    EXPECT_EQ(appliance::regGet("ModemStatus"), "ENABLED") << c.value;
    const Lines log = newLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "ERROR|Error in QVL Operation\n"), 1) << c.value;
  }
}

}  // namespace
