// The RAS service's modemStatus switch: what a get of each registry state shows and stops, the
// order of a set's stops and its registry write, and the registry changes of other programs
// that the service's subscription acts on until the service is deleted.
#include "ScopedEnv.h"
#include "SettingsTest.h"

namespace {

using namespace settings;

const Target kService = client::systemElement("Zeph_RASService", "Name", "RASService");
const char kDialIn[] = "/qv/etc/ppp/mgetty_v2k";
const char kDialOut[] = "/qv/etc/ppp/ppp_add_v2k";
const std::string kOpen = "#$IF_ENABLE_CMD", kClosed = "$IF_ENABLE_CMD";
const Lines kBothOpen = {kOpen, kOpen}, kBothClosed = {kClosed, kClosed};

std::string hangup(const std::string& iface) {
  return "/qv/etc/ppp/ppp_hup_v2k " + iface;
}
std::string gate(const std::string& to, const char* script) {
  return "/bin/sed -i 's/#\\?$IF_ENABLE_CMD/" + to + "/' " + script;
}
// A side resumed: its gate opened, its start script continued (an empty line ends the command).
Lines resume(const char* script, const std::string& process) {
  return {gate(kOpen, script), "/usr/bin/killall -s CONT " + process, ""};
}
const Lines kResumeOut = resume(kDialOut, "ppp_add_v2k");
const Lines kResumeBoth = joined({resume(kDialIn, "mgetty_v2k"), kResumeOut});
// Dial-in and dial-out stopped with no link up, by a set and by the change callback.
const Lines kStopIn = {gate(kClosed, kDialIn), "killall -9 mgetty"};
const Lines kStopOut = joined({{kDialOutRestart[0], gate(kClosed, kDialOut)},
                               Lines(kDialOutRestart.begin() + 1, kDialOutRestart.end())});
const Lines kStops = joined({kStopIn, kStopOut}), kCallbackStops = joined({kStopOut, kStopIn});

void dialInUp() {
  appliance::linkUp(appliance::Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2");
}
class Service : public SettingsTest {
 protected:
  // The gate lines of the dial-in and the dial-out start script.
  Lines state() override {
    Lines gates;
    for (const char* script : {kDialIn, kDialOut})
      for (const std::string& line : appliance::readLines(script))
        if (line == kOpen || line == kClosed) gates.push_back(line);
    return gates;
  }
  // The pristine appliance again once the callbacks of earlier changes and of its registry
  // rewrite are done, changed by `setUp`, with the journal and the log emptied.
  void pristine(const std::function<void()>& setUp = [] {}) {
    QvlNotifySync();
    appliance::reset();
    QvlNotifySync();
    setUp();
    appliance::clearJournal();
    env_->log().clear();
  }
  // A registry change made by another program, once the module's callback has acted on it.
  static void fromOutside(const char* value) {
    appliance::regSet("ModemStatus", value);
    QvlNotifySync();
  }
  // A set of modemStatus, once the callback its registry write causes is done.
  CimFailure setStatus(bool value) {
    const CimFailure failure = modify(kService, {{"modemStatus", client::flag(value)}});
    QvlNotifySync();
    return failure;
  }
};

// A disabled service is stopped again at every get.
TEST_F(Service, GetShowsTheSwitchAndStopsADisabledService) {
  const std::vector<std::tuple<const char*, const char*, Lines, Lines>> cases = {
      // registry value (none: no entry), modemStatus, commands, log lines
      {"enabled", "true", Lines{}, Lines{}},
      {"disabled", "false", kStops,
       Lines{"Interface for DialIn  is", "ProcessCmd1 is", "Interface for DialOut  is"}},
      {"OFF", "false", Lines{}, Lines{"ERROR:modemStatus is not properly update in the PDR.. \n"}},
      {nullptr, "false", Lines{}, Lines{"Error IN QVL Operation\n"}},
  };
  for (const auto& [registry, shows, journal, logs] : cases) {
    pristine([registry = registry] {
      registry ? fromOutside(registry) : appliance::regDelete("ModemStatus"), QvlNotifySync();
    });
    EXPECT_EQ(valueOf(kService, "modemStatus"), shows);
    EXPECT_EQ(appliance::journal(), journal);
    EXPECT_EQ(logged().front(), "Zeph_RASServiceImpl::getmodemStatus\n");
    for (const std::string& log : logs) EXPECT_TRUE(wasLogged(log)) << log;
  }
}

// The stops come first and the registry is written last: both hang-ups still saw "ENABLED".
TEST_F(Service, DisablingDuringCallsStopsEverythingBeforeTheRegistrySaysSo) {
  pristine([] {
    dialInUp();
    appliance::linkUp(appliance::Direction::DialOut, "ppp1", "10.1.0.1", "10.1.0.2");
    appliance::writeFile("/qv/etc/ppp/ppp_hup_v2k",
                         "#!/bin/sh\necho \"$1 $(appliance-ctl reg get ModemStatus)\" >> "
                         "/var/lib/appliance/hangups\nexec appliance-ctl hangup \"$@\"\n");
  });
  EXPECT_EQ(setStatus(false), CimFailure{});
  EXPECT_EQ(appliance::journal(),
            joined({{gate(kClosed, kDialIn), hangup("ppp0"), "killall -9 mgetty",
                     gate(kClosed, kDialOut), "killall -9 chat", hangup("ppp1")},
                    kCallbackStops}));
  EXPECT_EQ(appliance::readLines("/var/lib/appliance/hangups"),
            (Lines{"ppp0 ENABLED", "ppp1 ENABLED", "ppp DISABLED"}));
  EXPECT_EQ(appliance::regGet("ModemStatus"), "DISABLED");
  EXPECT_EQ(state(), kBothClosed);
  EXPECT_EQ(appliance::processState("mgetty"), "");
  EXPECT_EQ(logged().front(), "Zeph_RASServiceImpl::setmodemStatus\n");
  EXPECT_TRUE(wasLogged("Calling Callback Function"));
}

// The set's stops run before its registry write, the change callback's after it. A failed
// registry write reaches the client as status 100; what ran stays done.
TEST_F(Service, SettingTheSwitchWritesTheRegistryAndBringsTheScriptsInLine) {
  for (const auto& [value, journal, gates] :
       {std::tuple{true, kResumeOut, kBothOpen},
        {false, joined({kStops, kCallbackStops}), kBothClosed}}) {
    pristine();
    EXPECT_EQ(setStatus(value), CimFailure{});
    EXPECT_EQ(appliance::journal(), journal);
    EXPECT_EQ(state(), gates);
    EXPECT_EQ(appliance::regGet("ModemStatus"), value ? "ENABLED" : "DISABLED");
  }
  for (const auto& [value, journal] : {std::pair{false, kStops}, {true, kResumeOut}}) {
    pristine();
    const appliance::ScopedEnv broken("QVL_REGISTRY", "/nonexistent/registry");
    EXPECT_EQ(setStatus(value), status("Zeph_RASService", 100));
    EXPECT_EQ(appliance::journal(), journal);
    EXPECT_EQ(count(loggedWithCategory(), "ERROR|Error in QVL Operation\n"), 1);
  }
  EXPECT_EQ(appliance::regGet("ModemStatus"), "ENABLED");
}

TEST_F(Service, OutsideChangesActUntilTheServiceIsDeleted) {
  EXPECT_TRUE(wasLogged("Successful in Notify"));
  fromOutside("disabled");
  EXPECT_EQ(appliance::journal(), kCallbackStops);
  EXPECT_EQ(state(), kBothClosed);
  appliance::clearJournal();
  fromOutside("ENABLED");
  EXPECT_EQ(appliance::journal(), kResumeBoth);
  call([&](const auto& env) { provider_->deleteInstance(env, kNs, kService.path()); });
  appliance::clearJournal();
  fromOutside("DISABLED");
  EXPECT_TRUE(appliance::journal().empty());
  EXPECT_EQ(state(), kBothOpen);
}

}  // namespace
