// The remote address (address pool) and the local address (IP endpoint) of both dial links:
// read from every form of the pppd address line, written through setIPEx with the restart of
// the dial-out link or of mgetty, and invalid addresses refused without touching a file.
#include "SettingsTest.h"

namespace {

using namespace settings;
using client::flag;
using client::text;

const char kIn[] = "/qv/etc/ppp/options_dialin";
const char kOut[] = "/qv/etc/ppp/options_dialout";
const char kCallback[] = "/qv/etc/ppp/options_callback";
const char kEndpoint[] = "Zeph_RASIPProtocolEndpoint";
const char kPool[] = "Zeph_RASStaticIPAddressPool";
const Target kEndIn = client::systemElement(kEndpoint, "Name", "DialInEndpoint");
const Target kEndOut = client::systemElement(kEndpoint, "Name", "DialOutEndpoint");
const Target kPoolIn = client::settingData(kPool, "Velmar:DialInRASStaticIPAddressPool");
const Target kPoolOut = client::settingData(kPool, "Velmar:DialOutRASStaticIPAddressPool");

// setIPEx for `address`; read from a file, the remote part's newline ends the command.
Lines setIPEx(const char* file, const std::string& address, bool read = false) {
  Lines run = {"/opt/etc/RasProviderScripts/setIPEx " + std::string(file) + " " + address};
  if (read) run.push_back("");
  return run;
}

class IPAddress : public SettingsTest {
 protected:
  Lines state() override {
    return joined(
        {appliance::readLines(kIn), appliance::readLines(kOut), appliance::readLines(kCallback)});
  }
  std::string shown(const Target& target, const char* property) {
    return SettingsTest::shown(get(target).getProperty(property));
  }
};

// The "Write" qualifier tells whether the address is in use.
TEST_F(IPAddress, EachFormOfTheAddressLineIsReadByBothClasses) {
  const std::vector<std::array<const char*, 5>> rows = {
      // line, endpoint IPv4Address, addrAssignment, pool ipAddr, useStaticPool
      {"10.0.0.1:10.0.0.2", "10.0.0.1 [Write=true]", "false", "10.0.0.2 [Write=true]", "true"},
      {":10.0.0.2", " [Write=false]", "true", "10.0.0.2 [Write=true]", "true"},
      {"10.0.0.1:", "10.0.0.1 [Write=true]", "false", " [Write=false]", "false"},
      {"", " [Write=false]", "true", " [Write=false]", "false"},
      {"#10.0.0.1:10.0.0.2", " [Write=false]", "true", " [Write=false]", "false"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0]);
    for (const char* file : {kIn, kOut})
      appliance::writeFile(file, std::string("# local:remote\n") + row[0] + "\nmodem\n");
    initialize();
    for (const Target& end : {kEndIn, kEndOut}) {
      EXPECT_EQ(shown(end, "IPv4Address"), row[1]);
      EXPECT_EQ(valueOf(end, "addrAssignment"), row[2]);
    }
    for (const Target& pool : {kPoolIn, kPoolOut}) {
      EXPECT_EQ(shown(pool, "ipAddr"), row[3]);
      EXPECT_EQ(valueOf(pool, "useStaticPool"), row[4]);
    }
  }
  EXPECT_EQ(valueOf(kEndOut, "DefaultTTL"), "00000101000001.000000+000");
  EXPECT_EQ(valueOf(kEndOut, "ReassemblyTimeout"), "00000101000001.000000+000");
  EXPECT_EQ(valueOf(kEndIn, "SubnetMask"), "255.255.255.255");
  EXPECT_EQ(valueOf(kPoolIn, "netMask"), "255.255.255.255");
}

// Each row lists the dial-in, dial-out and call-back address lines it leaves. A malformed
// endpoint address is dropped without an error, as it always was.
TEST_F(IPAddress, EverySetterRunsItsSetIPExLineAndRestartsItsLink) {
  const std::string in = "192.168.200.1:192.168.200.2", out = "10.9.9.1:10.64.0.1";
  const auto set = [](const Target& t, const char* property, CIMValue v, Lines journal,
                      const std::string& in, const std::string& out, const std::string& back) {
    return valid(t, property, v, journal, {in, out, back});
  };
  runSets({
      set(kEndOut, "IPv4Address", text("10.9.9.1"),
          joined({setIPEx(kOut, out, true), kDialOutRestart}), in, out, in),
      set(kEndIn, "addrAssignment", flag(true), setIPEx(kIn, ":192.168.200.2", true),
          ":192.168.200.2", out, in),
      // While negotiated only the call-back line takes the address.
      set(kEndIn, "IPv4Address", text("192.168.7.1"),
          joined({setIPEx(kCallback, "192.168.7.1:192.168.200.2", true),
                  setIPEx(kIn, ":192.168.200.2", true)}),
          ":192.168.200.2", out, "192.168.7.1:192.168.200.2"),
      set(kEndIn, "addrAssignment", flag(false), setIPEx(kIn, "192.168.7.1:192.168.200.2", true),
          "192.168.7.1:192.168.200.2", out, "192.168.7.1:192.168.200.2"),
      valid(kEndOut, "SubnetMask", text("255.255.255.0"), {}),
      set(kPoolIn, "ipAddr", text("192.168.7.2"),
          joined({setIPEx(kCallback, "192.168.7.1:192.168.7.2"),
                  setIPEx(kIn, "192.168.7.1:192.168.7.2"), kMgettyRestart}),
          "192.168.7.1:192.168.7.2", out, "192.168.7.1:192.168.7.2"),
      set(kPoolIn, "ipAddr", text(""),
          joined(
              {setIPEx(kCallback, "192.168.7.1:"), setIPEx(kIn, "192.168.7.1:"), kMgettyRestart}),
          "192.168.7.1:", out, "192.168.7.1:"),
      set(kPoolOut, "useStaticPool", flag(false),
          joined({setIPEx(kOut, "10.9.9.1:"), kDialOutRestart}),
          "192.168.7.1:", "10.9.9.1:", "192.168.7.1:"),
      set(kPoolOut, "useStaticPool", flag(true), joined({setIPEx(kOut, out), kDialOutRestart}),
          "192.168.7.1:", out, "192.168.7.1:"),
      refused(kEndIn, "SubnetMask", text(std::string(33, '1')), tooLong(kEndpoint, "SubnetMask")),
      refused(kPoolIn, "ipAddr", text("300.1.1.1"), status(kPool, 12)),
  });
  // Turning the pool off logs the remote part under its own label.
  EXPECT_TRUE(wasLogged("Static Pool REMOTE IP\n"));
  const Lines before = state();
  EXPECT_EQ(modify(kEndOut, {{"IPv4Address", text("256.1.1.1")}}), CimFailure{});
  EXPECT_EQ(modify(kEndIn, {{"IPv4Address", text("")}}), CimFailure{});
  EXPECT_EQ(appliance::journal(), Lines{});
  EXPECT_EQ(state(), before);
  initialize();
  EXPECT_EQ(valueOf(kEndOut, "SubnetMask"), "255.255.255.255") << "kept in memory only";
}

}  // namespace
