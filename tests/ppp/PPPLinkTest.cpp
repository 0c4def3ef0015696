// Link control of both endpoints: IfStatus read from and written to the start scripts (with
// and without a link up, and with the modem disabled), ConnectionStatus and the impact
// warnings that follow it, the buttons' "Applicable" qualifier, and the two methods.
#include <gtest/gtest.h>

#include "OW_CIMException.hpp"
#include "PPPFixture.h"

namespace {

using namespace ppp;
using appliance::Direction;
using OpenWBEM::CIMException;

const std::string kListPpp = "/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ";
const char* const kDialOutWarning =
    "Dial-Out Session is in Progress.Change will take effect for Next Dial-Out Session";
const char* const kDialInWarning =
    "Dial-In Session is in Progress.Change will take effect for Next Dial-In Session";

void dialOutUp() {
  appliance::linkUp(Direction::DialOut, "ppp1", "10.0.0.1", "10.0.0.2");
}
void dialInUp() {
  appliance::linkUp(Direction::DialIn, "ppp0", "192.168.200.1", "192.168.200.2");
}

std::string sed(const std::string& expression, const char* file) {
  return "/bin/sed -i '" + expression + "' " + file;
}

struct SwitchRow {
  const char* name;
  std::function<void()> setUp;
  const char* endpoint;
  bool value;
  Lines journal;
  const char* gateLine;  // the control file's gate line afterwards
};

class IfStatusSet : public PPPRowTest<SwitchRow> {};

const char* const kCloseGate = "s/#\\?$IF_ENABLE_CMD/$IF_ENABLE_CMD/";
const char* const kOpenGate = "s/#\\?$IF_ENABLE_CMD/#$IF_ENABLE_CMD/";

const SwitchRow kSwitchRows[] = {
    {"DialInOffWithoutLink",
     nullptr,
     kDialIn,
     false,
     {sed(kCloseGate, kMgettyScript), sed("s/#\\?ENABLED/#DISABLED/", kMgettyScript)},
     "$IF_ENABLE_CMD"},
    {"DialInOffWithLinkUp",
     dialInUp,
     kDialIn,
     false,
     {sed(kCloseGate, kMgettyScript), sed("s/#\\?ENABLED/#DISABLED/", kMgettyScript),
      "killall -9 chat >> /tmp/chatlog", "/qv/etc/ppp/ppp_hup_v2k ppp0", "killall -9 mgetty"},
     "$IF_ENABLE_CMD"},
    {"DialOutOffWithLinkUp",
     dialOutUp,
     kDialOut,
     false,
     {sed(kCloseGate, kDialOutScript), sed("s/#\\?ENABLED/#DISABLED/", kDialOutScript),
      "killall -9 chat >> /tmp/chatlog", "/qv/etc/ppp/ppp_hup_v2k ppp1"},
     "$IF_ENABLE_CMD"},
    {"DialOutOn",
     [] { replaceLine(kDialOutScript, "#$IF_ENABLE_CMD", "$IF_ENABLE_CMD"); },
     kDialOut,
     true,
     {kListPpp, sed(kOpenGate, kDialOutScript), sed("s/#\\?DISABLED/#ENABLED/", kDialOutScript),
      "/usr/bin/killall -s CONT ppp_add_v2k", ""},
     "#$IF_ENABLE_CMD"},
    {"ModemDisabledInLowerCase",
     [] {
       appliance::regSet("ModemStatus", "disabled");
       dialInUp();
     },
     kDialIn,
     false,
     {},
     "#$IF_ENABLE_CMD"},
};

TEST_P(IfStatusSet, SwitchesTheServiceAndHangsUpALinkThatIsUp) {
  const SwitchRow& row = GetParam();
  const char* script = row.endpoint == kDialIn ? kMgettyScript : kDialOutScript;
  const std::string before = appliance::readFile(script);
  EXPECT_EQ(modify(row.endpoint, {{"IfStatus", flag(row.value)}}), CimFailure{});
  EXPECT_EQ(appliance::journal(), row.journal);
  EXPECT_TRUE(hasLine(script, row.gateLine)) << appliance::readFile(script);
  if (row.journal.empty()) {
    EXPECT_EQ(appliance::readFile(script), before);
  }
}

INSTANTIATE_TEST_SUITE_P(PPP, IfStatusSet, ::testing::ValuesIn(kSwitchRows), RowName());

using Link = PPPTest;

TEST_F(Link, IfStatusFollowsTheGateLineAndNeedsOne) {
  EXPECT_EQ(value(kDialIn, "IfStatus"), "true");
  replaceLine(kMgettyScript, "#$IF_ENABLE_CMD", "$IF_ENABLE_CMD");
  EXPECT_EQ(value(kDialIn, "IfStatus"), "false");
  replaceLine(kMgettyScript, "$IF_ENABLE_CMD", "");
  EXPECT_EQ(getFailure(kDialIn),
            (CimFailure{CIMException::INVALID_PARAMETER, "../src/Zeph_PPPProtocolEndpointImpl", 0,
                        "Invalid configuration in the config File"}));
}

struct StatusRow {
  const char* name;
  std::function<void()> setUp;
  const char* endpoint;
  const char* ifName;
  const char* status;
  Lines warnings;  // on MRU, read after ConnectionStatus in the same instance
};

class ConnectionStatusRead : public PPPRowTest<StatusRow> {};

const StatusRow kStatusRows[] = {
    {"DialOutUp", dialOutUp, kDialOut, "ppp1", "0", {kDialOutWarning}},
    {"DialOutDown", nullptr, kDialOut, "", "1", {}},
    {"DialInUp", dialInUp, kDialIn, "ppp0", "0", {kDialInWarning}},
    {"DialOutBesideADialInCall",
     [] {
       dialInUp();
       appliance::linkUp(Direction::DialOut, "ppp1", "10.0.0.1", "10.0.0.2", true);
     },
     kDialOut,
     "ppp1",
     "1",
     {}},
};

TEST_P(ConnectionStatusRead, ReportsTheLinkAndWarnsAboutChanges) {
  const StatusRow& row = GetParam();
  const OpenWBEM::CIMInstance instance = get(row.endpoint);
  EXPECT_EQ(std::string(instance.getPropertyValue("IfName").toString().c_str()), row.ifName);
  EXPECT_EQ(std::string(instance.getPropertyValue("ConnectionStatus").toString().c_str()),
            row.status);
  EXPECT_EQ(qualifierValues(instance, "MRU", "ImpactWarning"), row.warnings);
  EXPECT_EQ(check_key, row.endpoint);
}

INSTANTIATE_TEST_SUITE_P(PPP, ConnectionStatusRead, ::testing::ValuesIn(kStatusRows), RowName());

struct ButtonRow {
  const char* name;
  std::function<void()> setUp;
  const char* endpoint;
  Lines connect;     // "Applicable" values of ConnectButton
  Lines disconnect;  // and of DisconnectButton
};

class Buttons : public PPPRowTest<ButtonRow> {};

const ButtonRow kButtonRows[] = {
    {"DialOutDown", nullptr, kDialOut, {"true"}, {"false"}},
    {"DialOutUp", dialOutUp, kDialOut, {"false"}, {"true"}},
    {"DialOutServiceOff",
     [] { replaceLine(kDialOutScript, "#$IF_ENABLE_CMD", "$IF_ENABLE_CMD"); },
     kDialOut,
     {"false"},
     {"false"}},
    {"DialInUp", dialInUp, kDialIn, {}, {"true"}},
    {"ModemDisabled",
     [] { appliance::regSet("ModemStatus", "Disabled"); },
     kDialOut,
     {"false"},
     {"false"}},
    {"ModemStatusMissing", [] { appliance::regDelete("ModemStatus"); }, kDialOut, {}, {}},
};

TEST_P(Buttons, ApplicableSaysWhichMethodMayBeOffered) {
  const ButtonRow& row = GetParam();
  const OpenWBEM::CIMInstance instance = get(row.endpoint);
  EXPECT_EQ(qualifierValues(instance, "ConnectButton", "Applicable"), row.connect);
  EXPECT_EQ(qualifierValues(instance, "DisconnectButton", "Applicable"), row.disconnect);
}

INSTANTIATE_TEST_SUITE_P(PPP, Buttons, ::testing::ValuesIn(kButtonRows), RowName());

struct MethodRow {
  const char* name;
  std::function<void()> setUp;
  const char* method;
  Lines journal;
};

class Methods : public PPPRowTest<MethodRow> {};

const std::string kPeerOf =
    " | grep \"inet\" | grep \"P-t-P\"|cut -b35-53 | cut -f1 -d\" \" > /tmp/ip_addr";

const MethodRow kMethodRows[] = {
    {"ConnectLinkUp",
     dialOutUp,
     "ConnectLink",
     {"/sbin/ifconfig ppp1" + kPeerOf, "ping -c 2 -w 2 -I ppp1 10.0.0.2"}},
    {"ConnectLinkIdle",
     [] { appliance::linkUp(Direction::DialOut, "ppp1", "10.0.0.1", "10.0.0.2", true); },
     "ConnectLink",
     {kListPpp, "/sbin/ifconfig ppp1" + kPeerOf, "ping -c 2 -w 2 -I ppp1 10.0.0.2"}},
    {"ConnectLinkWithoutInterface",
     nullptr,
     "ConnectLink",
     {kListPpp, "/sbin/ifconfig " + kPeerOf, "ping -c 2 -w 2 -I  "}},
    {"DisconnectLinkUp", dialOutUp, "DisconnectLink", {"/qv/etc/ppp/ppp_hup_v2k ppp1"}},
    {"DisconnectLinkWithoutInterface", nullptr, "DisconnectLink", {kListPpp}},
};

TEST_P(Methods, RunTheirCommandsAndReturnOne) {
  const MethodRow& row = GetParam();
  const auto [result, failure] = invoke(kDialOut, row.method);
  EXPECT_EQ(failure, CimFailure{});
  EXPECT_EQ(result, OpenWBEM::CIMValue(OpenWBEM::UInt32(1)));
  EXPECT_EQ(appliance::journal(), row.journal);
}

INSTANTIATE_TEST_SUITE_P(PPP, Methods, ::testing::ValuesIn(kMethodRows), RowName());

TEST_F(Link, ConnectLinkBringsAnIdleLinkUpAndOtherMethodsAreUnknown) {
  appliance::linkUp(Direction::DialOut, "ppp1", "10.0.0.1", "10.0.0.2", true);
  invoke(kDialOut, "ConnectLink");
  EXPECT_EQ(value(kDialOut, "ConnectionStatus"), "0");
  EXPECT_EQ(invoke(kDialOut, "Reconnect").second,
            (CimFailure{CIMException::METHOD_NOT_FOUND, kSource, 432, std::nullopt}));
}

}  // namespace
