// Inside the simulated appliance: the command lines the dial-service restarts run for each
// link and registry state, the one-shot /tmp files, the cached reads and the "ModemStatus"
// change callback.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <functional>

#include "ApplianceTest.h"
#include "LogRecorder.h"
#include "QvlStandIn.h"
#include "Zeph_PlatformAccess.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using Lines = std::vector<std::string>;
using appliance::Direction;
using ras::startModemStatusNotify;
using ras::stopModemStatusNotify;

namespace {

const char* const kDialOut = "/qv/etc/ppp/ppp_add_v2k";
const char* const kDialIn = "/qv/etc/ppp/mgetty_v2k";
const std::string kListAll = "/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ";
const std::string kKillChat = "killall -9 chat", kKillMgetty = "killall -9 mgetty";
const std::string kCallback = "DEBUG|Calling Callback Function";
const std::string kOpen = "#$IF_ENABLE_CMD", kClosed = "$IF_ENABLE_CMD";

std::string listExcept(const std::string& iface) {
  return "/sbin/ifconfig | grep \"ppp\" | grep -v \"" + iface + "\" > /tmp/ifout ";
}
std::string hangup(const std::string& iface) {
  return "/qv/etc/ppp/ppp_hup_v2k " + iface;
}
std::string gateEdit(const std::string& to, const char* script) {
  return "/bin/sed -i 's/#\\?$IF_ENABLE_CMD/" + to + "/' " + script;
}
const Lines kResumeBoth = {gateEdit(kOpen, kDialIn),  "/usr/bin/killall -s CONT mgetty_v2k",  "",
                           gateEdit(kOpen, kDialOut), "/usr/bin/killall -s CONT ppp_add_v2k", ""};
const Lines kDisableWithDialIn = {listExcept("ppp0"), gateEdit(kClosed, kDialOut), kKillChat,
                                  hangup("ppp"),      gateEdit(kClosed, kDialIn),  hangup("ppp0"),
                                  kKillMgetty};

// The gate line of a start script (kOpen or kClosed).
std::string gateLine(const char* script) {
  for (const std::string& line : appliance::readLines(script)) {
    if (line == kOpen || line == kClosed) return line;
  }
  return "";
}

void replaceInFile(const char* path, const std::string& from, const std::string& to) {
  std::string text = appliance::readFile(path);
  appliance::writeFile(path, text.replace(text.find(from), from.size(), to));
}

void dialInUp() {
  appliance::linkUp(Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2");
}
void dialOutUp(bool idle = false) {
  appliance::linkUp(Direction::DialOut, "ppp1", "10.1.0.1", "10.1.0.2", idle);
}
std::function<void()> status(const char* value) {
  return [value] { appliance::regSet("ModemStatus", value); };
}
// Both start scripts with a closed gate and the given marker line.
std::function<void()> scriptsMarked(const char* marker) {
  return [marker] {
    appliance::regSet("ModemStatus", "enabled");
    for (const char* script : {kDialIn, kDialOut}) {
      replaceInFile(script, kOpen, kClosed);
      replaceInFile(script, "#ENABLED", marker);
    }
  };
}

struct Scenario {
  const char* name;
  std::function<void()> setUp;
  Lines journal;
  std::string gates = "";  // both gate lines after the action, when checked
};

class DialServiceTest : public ApplianceTest {
 protected:
  // Runs `action` from each scenario's state and compares the journal and the gates.
  void runScenarios(const std::vector<Scenario>& scenarios, const std::function<void()>& action) {
    for (const Scenario& scenario : scenarios) {
      appliance::reset();
      scenario.setUp();
      appliance::clearJournal();
      action();
      EXPECT_THAT(appliance::journal(), ElementsAreArray(scenario.journal)) << scenario.name;
      EXPECT_FALSE(appliance::fileExists("/tmp/ifout")) << scenario.name;
      if (scenario.gates.empty()) continue;
      EXPECT_EQ(gateLine(kDialIn) + " " + gateLine(kDialOut), scenario.gates) << scenario.name;
    }
  }

  ScopedLogRecorder log_;
};

TEST_F(DialServiceTest, DialOutRestartHangsUpOnlyAnUnrecordedDialOutLink) {
  runScenarios(
      {{"dial-in on ppp0, dial-out on ppp1",
        [] { dialInUp(), dialOutUp(); },
        {listExcept("ppp0"), hangup("ppp1")}},
       {"dial-out call recorded", [] { dialOutUp(); }, {}},
       {"no marker file, no ppp interface", [] {}, {kListAll, kKillChat, hangup("ppp")}},
       {"idle dial-out interface", [] { dialOutUp(true); }, {kListAll, kKillChat, hangup("ppp1")}}},
      Restart_ppp_add_v2k);
}

TEST_F(DialServiceTest, MgettyRestartSparesADialInCall) {
  runScenarios({{"dial-in call up", dialInUp, {}},
                {"no link", [] {}, {kKillMgetty, "init q"}},
                {"dial-out call up", [] { dialOutUp(); }, {kKillMgetty, "init q"}}},
               RestartMgetty);
  // The operator's log says why mgetty went away.
  const Lines log = log_.newLines();
  EXPECT_EQ(std::count(log.begin(), log.end(), "DEBUG|Killing Mgetty"), 2);
}

TEST_F(DialServiceTest, ModemStatusBringsBothDirectionsInLine) {
  const std::string closed = kClosed + " " + kClosed;
  runScenarios(
      {{"DISABLED, no link",
        status("DISABLED"),
        {kListAll, gateEdit(kClosed, kDialOut), kKillChat, hangup("ppp"),
         gateEdit(kClosed, kDialIn), kKillMgetty},
        closed},
       {"disabled, dial-in on ppp0", [] { status("disabled")(), dialInUp(); }, kDisableWithDialIn,
        closed},
       {"DISABLED, dial-in on ppp0, dial-out on ppp1",
        [] { status("DISABLED")(), dialInUp(), dialOutUp(); },
        {listExcept("ppp0"), gateEdit(kClosed, kDialOut), kKillChat, hangup("ppp1"),
         gateEdit(kClosed, kDialIn), hangup("ppp0"), kKillMgetty}},
       {"ENABLED, #ENABLED scripts", scriptsMarked("#ENABLED"), kResumeBoth, kOpen + " " + kOpen},
       {"enabled, #DISABLED scripts",
        scriptsMarked("#DISABLED"),
        {gateEdit(kClosed, kDialIn), gateEdit(kClosed, kDialOut)},
        closed},
       {"unknown value", status("OFF"), {}},
       {"failed read", [] { appliance::regDelete("ModemStatus"); }, {}}},
      [] { remove_ppp_link(0); });
  // The unknown value and the failed read log the callback line and nothing else.
  const Lines log = log_.newLines();
  EXPECT_THAT(Lines(log.end() - 3, log.end()),
              ElementsAre(testing::Ne(kCallback), kCallback, kCallback));
}

TEST_F(DialServiceTest, ReaderDeletesEveryPathThatBeginsWithTmp) {
  std::filesystem::create_directories("/tmpfoo");  // the sandbox's own root
  for (const auto& [path, deleted] : {std::pair{"/tmp/ifout", true},
                                      {"/tmpfoo/x", true},
                                      {"/tmp/../var/lib/appliance/x", true},
                                      {"/var/lib/appliance/x", false}}) {
    for (const char* content : {"ppp3      Link encap:Point-to-Point Protocol\n", "x\n"}) {
      appliance::writeFile(path, content);
      log_.newLines();
      std::string unit;
      EXPECT_EQ(getConfigParameter(path, "ppp%s", &unit), 0);
      EXPECT_EQ(appliance::fileExists(path), !deleted) << path;
      const Lines log = log_.newLines();
      EXPECT_EQ(std::count(log.begin(), log.end(), "DEBUG|Deleted Temprory File"), deleted);
    }
  }
}

TEST_F(DialServiceTest, CachedReadsMatchPrefixesUntilTheStreamIsClosed) {
  replaceInFile(kDialOut, "#ENABLED", "#ENABLED_NOW");
  OpenFirstTime();
  std::string value;
  EXPECT_EQ(getConfigParameterEx(kDialOut, "#ENABLED%s", &value), 1);
  EXPECT_EQ(value, "_NOW");
  EXPECT_EQ(getConfigParameterEx(kDialOut, "IF_ENABLE_CMD=%s", &value), 1);
  EXPECT_EQ(value, "\"kill");
  CloseFile(kDialOut);
  CloseFile(kDialOut);  // count 1: closed at the second release
  EXPECT_EQ(getConfigParameterEx(kDialOut, "#ENABLED"), -1);
  appliance::writeFile("/tmp/passwd", "\"secret\"\n");
  log_.newLines();
  EXPECT_EQ(getConfigParameterEx("/tmp/passwd", "\"%s", &value), 1);
  EXPECT_EQ(value, "secret\"");
  EXPECT_FALSE(appliance::fileExists("/tmp/passwd"));
  EXPECT_THAT(log_.newLines(), ElementsAre("DEBUG|Deleting Temprory File", "DEBUG|/tmp/passwd"));
}

TEST_F(DialServiceTest, OutsideModemStatusChangeRunsTheCallbackOnThePlatformThread) {
  ASSERT_EQ(startModemStatusNotify(), 0);
  EXPECT_THAT(log_.newLines(), ElementsAre("DEBUG|Successful in Notify"));
  dialInUp();
  appliance::clearJournal();
  const auto qvlreg = [](const char* value) {
    EXPECT_EQ(appliance::runTool({QVLREG_PATH, "set", "SoftModem", "ModemCC", "ModemStatus", value})
                  .status,
              0);
    ASSERT_EQ(QvlNotifySync(), 0);
  };
  qvlreg("disabled");
  EXPECT_THAT(appliance::journal(), ElementsAreArray(kDisableWithDialIn));
  EXPECT_EQ(gateLine(kDialIn), kClosed);
  EXPECT_NE(log_.threadOf("Calling Callback Function"), std::thread::id());
  EXPECT_NE(log_.threadOf("Calling Callback Function"), std::this_thread::get_id());

  appliance::clearJournal();
  qvlreg("ENABLED");
  EXPECT_THAT(appliance::journal(), ElementsAreArray(kResumeBoth));
  EXPECT_EQ(gateLine(kDialIn), kOpen);

  stopModemStatusNotify();
  appliance::clearJournal();
  qvlreg("DISABLED");
  EXPECT_THAT(appliance::journal(), testing::IsEmpty());
}

}  // namespace
