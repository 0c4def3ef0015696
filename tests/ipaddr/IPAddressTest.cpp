// The remote address (address pool) and the local address (IP endpoint) of both dial links:
// read from every form of the pppd address line, written through setIPEx with the restart of
// the dial-out link or of mgetty, and invalid addresses refused without touching a file.
#include <gtest/gtest.h>

#include <functional>

#include "ClientFixture.h"

namespace {

using namespace OpenWBEM;
using client::flag;
using client::joined;
using client::Lines;
using client::text;
using client::textOf;

const char kIn[] = "/qv/etc/ppp/options_dialin";
const char kOut[] = "/qv/etc/ppp/options_dialout";
const char kCallback[] = "/qv/etc/ppp/options_callback";
const char kSetIPEx[] = "/opt/etc/RasProviderScripts/setIPEx ";
const client::Target kEndIn =
    client::systemElement("Zeph_RASIPProtocolEndpoint", "Name", "DialInEndpoint");
const client::Target kEndOut =
    client::systemElement("Zeph_RASIPProtocolEndpoint", "Name", "DialOutEndpoint");
const client::Target kPoolIn =
    client::settingData("Zeph_RASStaticIPAddressPool", "Velmar:DialInRASStaticIPAddressPool");
const client::Target kPoolOut =
    client::settingData("Zeph_RASStaticIPAddressPool", "Velmar:DialOutRASStaticIPAddressPool");

// The commands that restart each side when no call is up.
const Lines kMgettyRestart = {"killall -9 mgetty", "init q"};
const Lines kDialOutRestart = {"/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ", "killall -9 chat",
                               "/qv/etc/ppp/ppp_hup_v2k ppp"};

// The address line as it stands in `file`: its first line with a ":" that is not a comment.
std::string addressLine(const char* file) {
  for (const std::string& line : appliance::readLines(file))
    if (line.find(':') != std::string::npos && line[0] != '#') return line;
  return "<none>";
}
// setIPEx as run for a remote part read from a file: its newline ends the command.
Lines setIPExRead(const char* file, const std::string& address) {
  return {kSetIPEx + std::string(file) + " " + address, ""};
}
Lines files() {
  return {addressLine(kIn), addressLine(kOut), addressLine(kCallback)};
}

class IPAddress : public client::ClientTest {
 protected:
  // The property's value, and its "Write" qualifier when it has one.
  std::string shown(const client::Target& target, const char* name) {
    const CIMInstance instance = get(target);
    std::string out = textOf(instance.getPropertyValue(name));
    for (const std::string& write : client::qualifierValues(instance, name, "Write"))
      out += " write=" + write;
    return out;
  }
};

TEST_F(IPAddress, EachFormOfTheAddressLineIsReadByBothClasses) {
  struct Row {
    const char* line;
    const char* ipv4;  // with the endpoint's "Write"
    const char* assigned;
    const char* ipAddr;  // with the pool's "Write"
    const char* useStaticPool;
  };
  const Row rows[] = {
      {"10.0.0.1:10.0.0.2", "10.0.0.1 write=true", "false", "10.0.0.2 write=true", "true"},
      {":10.0.0.2", " write=false", "true", "10.0.0.2 write=true", "true"},
      {"10.0.0.1:", "10.0.0.1 write=true", "false", " write=false", "false"},
      {"", " write=false", "true", " write=false", "false"},
      {"#10.0.0.1:10.0.0.2", " write=false", "true", " write=false", "false"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    for (const char* file : {kIn, kOut})
      appliance::writeFile(file, std::string("# local:remote\n") + row.line + "\nmodem\n");
    initialize();
    for (const client::Target& end : {kEndIn, kEndOut}) {
      EXPECT_EQ(shown(end, "IPv4Address"), row.ipv4);
      EXPECT_EQ(valueOf(end, "addrAssignment"), row.assigned);
    }
    for (const client::Target& pool : {kPoolIn, kPoolOut}) {
      EXPECT_EQ(shown(pool, "ipAddr"), row.ipAddr);
      EXPECT_EQ(valueOf(pool, "useStaticPool"), row.useStaticPool);
    }
  }
  EXPECT_EQ(valueOf(kEndOut, "DefaultTTL"), "00000101000001.000000+000");
  EXPECT_EQ(valueOf(kEndOut, "ReassemblyTimeout"), "00000101000001.000000+000");
  EXPECT_EQ(valueOf(kEndIn, "SubnetMask"), "255.255.255.255");
  EXPECT_EQ(valueOf(kPoolIn, "netMask"), "255.255.255.255");
}

// Each step runs on the state the steps before it left.
TEST_F(IPAddress, EverySetterRunsItsSetIPExLineAndRestartsItsLink) {
  const Lines kNone;
  struct Step {
    const char* what;
    std::function<CimFailure()> modify;
    Lines journal;
    Lines files;  // dial-in, dial-out, call-back address lines after the step
  };
  const auto set = [this](const client::Target& target, const char* name, CIMValue v) {
    return [=] { return modify(target, {{name, v}}); };
  };
  const std::string in = kIn, out = kOut, cb = kCallback;
  const Step steps[] = {
      {"endpoint out address",
       set(kEndOut, "IPv4Address", text("10.9.9.1")),
       joined(setIPExRead(kOut, "10.9.9.1:10.64.0.1"), kDialOutRestart),
       {"192.168.200.1:192.168.200.2", "10.9.9.1:10.64.0.1", "192.168.200.1:192.168.200.2"}},
      {"endpoint in negotiated",
       set(kEndIn, "addrAssignment", flag(true)),
       setIPExRead(kIn, ":192.168.200.2"),
       {":192.168.200.2", "10.9.9.1:10.64.0.1", "192.168.200.1:192.168.200.2"}},
      {"endpoint in address while negotiated",
       set(kEndIn, "IPv4Address", text("192.168.7.1")),
       joined(setIPExRead(kCallback, "192.168.7.1:192.168.200.2"),
              setIPExRead(kIn, ":192.168.200.2")),
       {":192.168.200.2", "10.9.9.1:10.64.0.1", "192.168.7.1:192.168.200.2"}},
      {"endpoint in fixed again",
       set(kEndIn, "addrAssignment", flag(false)),
       setIPExRead(kIn, "192.168.7.1:192.168.200.2"),
       {"192.168.7.1:192.168.200.2", "10.9.9.1:10.64.0.1", "192.168.7.1:192.168.200.2"}},
      {"endpoint subnet mask",
       set(kEndOut, "SubnetMask", text("255.255.255.0")),
       kNone,
       {"192.168.7.1:192.168.200.2", "10.9.9.1:10.64.0.1", "192.168.7.1:192.168.200.2"}},
      {"pool in address",
       set(kPoolIn, "ipAddr", text("192.168.7.2")),
       joined(
           {kSetIPEx + cb + " 192.168.7.1:192.168.7.2", kSetIPEx + in + " 192.168.7.1:192.168.7.2"},
           kMgettyRestart),
       {"192.168.7.1:192.168.7.2", "10.9.9.1:10.64.0.1", "192.168.7.1:192.168.7.2"}},
      {"pool in address removed",
       set(kPoolIn, "ipAddr", text("")),
       joined({kSetIPEx + cb + " 192.168.7.1:", kSetIPEx + in + " 192.168.7.1:"}, kMgettyRestart),
       {"192.168.7.1:", "10.9.9.1:10.64.0.1", "192.168.7.1:"}},
      {"pool out off",
       set(kPoolOut, "useStaticPool", flag(false)),
       joined({kSetIPEx + out + " 10.9.9.1:"}, kDialOutRestart),
       {"192.168.7.1:", "10.9.9.1:", "192.168.7.1:"}},
      {"pool out on again",
       set(kPoolOut, "useStaticPool", flag(true)),
       joined({kSetIPEx + out + " 10.9.9.1:10.64.0.1"}, kDialOutRestart),
       {"192.168.7.1:", "10.9.9.1:10.64.0.1", "192.168.7.1:"}},
  };
  for (const Step& step : steps) {
    SCOPED_TRACE(step.what);
    appliance::clearJournal();
    EXPECT_EQ(step.modify(), CimFailure{});
    EXPECT_EQ(appliance::journal(), step.journal);
    EXPECT_EQ(files(), step.files);
  }
  EXPECT_EQ(valueOf(kEndOut, "SubnetMask"), "255.255.255.0");
  initialize();
  EXPECT_EQ(valueOf(kEndOut, "SubnetMask"), "255.255.255.255") << "kept in memory only";
}

TEST_F(IPAddress, InvalidAddressesLeaveEveryFileAsItWas) {
  const std::string tooLong(33, '1');
  struct Row {
    std::function<CimFailure()> modify;
    CimFailure failure;
  };
  const char kSource[] = "../src/Zeph_RASIPProtocolEndpointProvider";
  const Row rows[] = {
      {[&] {
         return modify(kEndOut, {{"IPv4Address", text("256.1.1.1")}});
       },
       {}},
      {[&] {
         return modify(kEndIn, {{"IPv4Address", text("")}});
       },
       {}},
      {[&] {
         return modify(kEndIn, {{"SubnetMask", text(tooLong)}});
       },
       {CIMException::INVALID_PARAMETER, kSource, 334,
        "The length of SubnetMask must be <= 32\n"
        "#CFG_000_0004,MOF_Props_Zeph_RASIPProtocolEndpoint_SubnetMask,32#"}},
      {[&] {
         return modify(kPoolIn, {{"ipAddr", text("300.1.1.1")}});
       },
       {CIMException::FAILED, "../src/Zeph_RASStaticIPAddressPoolProvider", 388, "#RAS_MODEM_12#"}},
  };
  const Lines before = files();
  for (const Row& row : rows) {
    EXPECT_EQ(row.modify(), row.failure);
    EXPECT_EQ(appliance::journal(), Lines{});
    EXPECT_EQ(files(), before);
  }
}

}  // namespace
