// The stand-ins for the system tools and daemons, driven by the command lines the module
// runs: what they print, what they record and how they change the simulated state.
#include <cstdlib>

#include "ApplianceTest.h"

using namespace appliance;

namespace {

constexpr char kLinks[] = "/var/lib/appliance/links";

class StandinsTest : public ApplianceTest {};

TEST_F(StandinsTest, IfconfigPutsThePeerWhereTheModuleCutsIt) {
  const char* const kPeerPipeline =
      "/sbin/ifconfig ppp1 | grep \"inet\" | grep \"P-t-P\"|cut -b35-53 | cut -f1 -d\" \" > "
      "/tmp/ip_addr";
  // Bytes 35 to 53 hold "P-t-P:" and at most 13 characters of the peer: a longer
  // peer address reaches the module cut short, as it would on the appliance.
  struct Row {
    const char* local;
    const char* peer;
    const char* seen;
  };
  for (const Row& row : {Row{"10.64.0.2", "10.64.0.1", "P-t-P:10.64.0.1\n"},
                         Row{"192.168.10.1", "192.168.100.2", "P-t-P:192.168.100.2\n"},
                         Row{"10.0.0.1", "192.168.100.200", "P-t-P:192.168.100.2\n"}}) {
    SCOPED_TRACE(row.peer);
    linkUp(Direction::DialOut, "ppp1", row.local, row.peer);
    ASSERT_EQ(std::system(kPeerPipeline), 0);
    EXPECT_EQ(readFile("/tmp/ip_addr"), row.seen);
  }
  linkUp(Direction::DialIn, "ppp0", "192.168.200.1", "192.168.200.2");
  ASSERT_EQ(std::system("/sbin/ifconfig | grep \"ppp\" | grep -v \"ppp0\" > /tmp/ifout "), 0);
  EXPECT_EQ(readFile("/tmp/ifout"), "ppp1      Link encap:Point-to-Point Protocol  \n");
  EXPECT_NE(runTool({"ifconfig", "ppp7"}).status, 0);
}

TEST_F(StandinsTest, MarkerFileRecordsTheConnectedLink) {
  EXPECT_FALSE(fileExists(kMarkerPath));
  linkUp(Direction::DialOut, "ppp0", "10.64.0.2", "10.64.0.1", /*idle=*/true);
  EXPECT_FALSE(fileExists(kMarkerPath)) << "an idle demand link is not connected";
  linkUp(Direction::DialOut, "ppp0", "10.64.0.2", "10.64.0.1");
  EXPECT_EQ(readFile(kMarkerPath), "ADDO\nppp0\n");
  linkUp(Direction::DialIn, "ppp1", "192.168.200.1", "192.168.200.2");
  EXPECT_EQ(readFile(kMarkerPath), "DIN\nppp1\n") << "a dial-in call takes precedence";
  linkDown("ppp1");
  EXPECT_EQ(readFile(kMarkerPath), "ADDO\nppp0\n");
  linkDown("ppp0");
  EXPECT_FALSE(fileExists(kMarkerPath));
}

TEST_F(StandinsTest, HangUpScriptTakesTheLinkDown) {
  linkUp(Direction::DialIn, "ppp0", "192.168.200.1", "192.168.200.2");
  linkUp(Direction::DialOut, "ppp1", "10.64.0.2", "10.64.0.1");
  EXPECT_EQ(std::system("/qv/etc/ppp/ppp_hup_v2k ppp1"), 0);
  EXPECT_EQ(readFile(kLinks), "ppp0 dialin 192.168.200.1 192.168.200.2 up\n");
  EXPECT_EQ(readFile(kMarkerPath), "DIN\nppp0\n");

  // The module's hang-up of an interface it did not find: nothing to hang up.
  EXPECT_NE(std::system("/qv/etc/ppp/ppp_hup_v2k ppp"), 0);
  EXPECT_EQ(readFile(kMarkerPath), "DIN\nppp0\n");
  EXPECT_EQ(calls(), (std::vector<std::string>{"ppp_hup_v2k ppp1", "ppp_hup_v2k ppp"}));
}

TEST_F(StandinsTest, KillallAndInitActOnTheSimulatedProcesses) {
  EXPECT_EQ(std::system("killall -9 mgetty"), 0);
  EXPECT_EQ(processState("mgetty"), "");
  EXPECT_EQ(std::system("init q"), 0);
  EXPECT_EQ(processState("mgetty"), "running");

  // With the dial-in gate closed, the respawned start script stops before mgetty.
  ASSERT_EQ(std::system("/bin/sed -i 's/#\\?$IF_ENABLE_CMD/$IF_ENABLE_CMD/' "
                        "/qv/etc/ppp/mgetty_v2k"),
            0);
  EXPECT_EQ(std::system("killall -9 mgetty"), 0);
  EXPECT_EQ(std::system("init q"), 0);
  EXPECT_EQ(processState("mgetty"), "");
  EXPECT_EQ(processState("mgetty_v2k"), "stopped");
  EXPECT_EQ(std::system("/usr/bin/killall -s CONT mgetty_v2k\n"), 0);
  EXPECT_EQ(processState("mgetty_v2k"), "running");
  EXPECT_EQ(processState("mgetty"), "running") << "the continued script starts mgetty";

  EXPECT_NE(std::system("killall -9 chat >> /tmp/chatlog"), 0) << "no chat is running";
  EXPECT_EQ(calls(),
            (std::vector<std::string>{"killall -9 mgetty", "init q", "killall -9 mgetty", "init q",
                                      "killall -s CONT mgetty_v2k", "killall -9 chat"}));
}

TEST_F(StandinsTest, EndingPppdTakesEveryLinkDown) {
  linkUp(Direction::DialIn, "ppp0", "192.168.200.1", "192.168.200.2");
  linkUp(Direction::DialOut, "ppp1", "10.64.0.2", "10.64.0.1");
  EXPECT_EQ(std::system("killall pppd"), 0);
  EXPECT_EQ(readFile(kLinks), "");
  EXPECT_FALSE(fileExists(kMarkerPath));
  EXPECT_NE(std::system("killall pppd"), 0);
}

TEST_F(StandinsTest, PppdBringsUpTheDialOutDemandLinkAndPingConnectsIt) {
  ASSERT_EQ(std::system("/qv/etc/ppp/pppd_dialout_v2k"), 0);
  EXPECT_EQ(readFile(kLinks), "ppp0 dialout 10.64.0.2 10.64.0.1 idle\n");
  EXPECT_FALSE(fileExists(kMarkerPath));

  EXPECT_EQ(std::system("ping -c 2 -w 2 -I ppp0 10.64.0.1"), 0);
  EXPECT_EQ(readFile(kLinks), "ppp0 dialout 10.64.0.2 10.64.0.1 up\n");
  EXPECT_EQ(readFile(kMarkerPath), "ADDO\nppp0\n");
  EXPECT_NE(std::system("ping -c 2 -w 2 -I ppp0 10.64.0.99"), 0) << "only the peer answers";
  EXPECT_NE(std::system("ping -c 2 -w 2 -I ppp5 10.64.0.1"), 0);
  EXPECT_EQ(calls().front(), "pppd file /qv/etc/ppp/options_dialout /dev/ttyS1 115200");
}

}  // namespace
