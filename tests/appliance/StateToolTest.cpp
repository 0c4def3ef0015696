// The state tool through the harness: registry entries and privileges in the registry's
// text format, and the accounts the CIMOM serves.
#include "ApplianceTest.h"

using namespace appliance;

namespace {

constexpr char kRegistry[] = "/var/lib/qvl/registry";

class StateToolTest : public ApplianceTest {};

TEST_F(StateToolTest, RegistryEntriesKeepTheirSections) {
  writeFile(kRegistry,
            "# comment\n[SoftModem/ModemCC]\nModemStatus=ENABLED\nMinLine=1\n"
            "[privileges]\n1 500 11\n");
  EXPECT_EQ(regGet("ModemStatus"), "ENABLED");
  EXPECT_EQ(regGet("MaxLine"), std::nullopt);
  EXPECT_EQ(regGet("Other/Group/ModemStatus"), std::nullopt);

  regSet("ModemStatus", "disabled");
  regSet("MaxLine", "8");
  regSet("Other/Group/Name", "a=b c");
  regDelete("MinLine");
  grantPrivilege(501);
  grantPrivilege(500);
  revokePrivilege(500);
  grantPrivilege(600, 3, 2);

  EXPECT_EQ(readFile(kRegistry),
            "# comment\n[SoftModem/ModemCC]\nModemStatus=disabled\nMaxLine=8\n"
            "[privileges]\n1 501 11\n2 600 3\n[Other/Group]\nName=a=b c\n");
  EXPECT_EQ(regGet("Other/Group/Name"), "a=b c");
  EXPECT_EQ(regGet("MinLine"), std::nullopt);
}

TEST_F(StateToolTest, PristineRegistryAndAccounts) {
  EXPECT_EQ(regGet("ModemStatus"), "ENABLED");
  EXPECT_EQ(regGet("MinLine"), "1");
  EXPECT_EQ(regGet("MaxLine"), "8");
  EXPECT_EQ(regGet("modemdn"), "5550142");
  EXPECT_EQ(accounts(),
            (std::vector<Account>{{"500", "dialer"}, {"501", "backup"}, {"502", "operator"}}));

  addAccount("503", "field");
  addAccount("500", "renamed");
  removeAccount("501");
  EXPECT_EQ(accounts(),
            (std::vector<Account>{{"502", "operator"}, {"503", "field"}, {"500", "renamed"}}));
}

TEST_F(StateToolTest, ModemCodesAndLinksAreSetFromOutsideTheScripts) {
  setModemCode(2, "m3");
  EXPECT_EQ(modemCode(2), "m3");
  EXPECT_EQ(runTool({"/opt/etc/RasProviderScripts/getModemParam", "2"}).output, "m3\n");

  EXPECT_THROW(linkUp(Direction::DialIn, "eth0", "1.2.3.4", "5.6.7.8"), std::runtime_error);
  linkUp(Direction::DialIn, "ppp0", "192.168.200.1", "192.168.200.2");
  EXPECT_EQ(runTool({"ifconfig", "ppp0"}).status, 0);
  linkDown("ppp0");
  EXPECT_NE(runTool({"ifconfig", "ppp0"}).status, 0);
  EXPECT_TRUE(journal().empty()) << "the harness must not write to the journal";
}

}  // namespace
