// The appliance as the module sees it: system() runs through the journalling shell in a
// fresh appliance, and the fixture reads back the files and the journal.
#include <algorithm>
#include <cstdlib>

#include "ApplianceTest.h"

using namespace appliance;

namespace {

constexpr char kOptionsDialout[] = "/qv/etc/ppp/options_dialout";

class JournalTest : public ApplianceTest {};

TEST_F(JournalTest, SystemEditsTheFileAndIsJournalled) {
  const std::string command = "/bin/sed -i 's/^mtu .*/mtu 1400/' /qv/etc/ppp/options_dialout";
  ASSERT_EQ(std::system(command.c_str()), 0);

  std::vector<std::string> lines = readLines(kOptionsDialout);
  EXPECT_NE(std::find(lines.begin(), lines.end(), "mtu 1400"), lines.end());
  EXPECT_EQ(std::find(lines.begin(), lines.end(), "mtu 1500"), lines.end());
  EXPECT_EQ(journal(), std::vector<std::string>{command});
}

TEST_F(JournalTest, ResetRestoresPristineFilesAndEmptiesTheJournal) {
  const std::string pristine = readFile(kOptionsDialout);
  ASSERT_EQ(std::system("echo mtu 9000 >> /qv/etc/ppp/options_dialout"), 0);
  ASSERT_NE(readFile(kOptionsDialout), pristine);

  reset();
  EXPECT_EQ(readFile(kOptionsDialout), pristine);
  EXPECT_TRUE(journal().empty());
}

TEST_F(JournalTest, CommandsAreJournalledInOrderAndVerbatim) {
  // A command that ends in a newline is kept as it is: the journal shows an empty line.
  ASSERT_EQ(std::system("true 'a  b'"), 0);
  ASSERT_EQ(std::system("/usr/bin/killall -s CONT ppp_add_v2k\n"), 0);
  ASSERT_EQ(std::system("echo x > /dev/null; sh -c 'true'"), 0);
  EXPECT_EQ(journal(),
            (std::vector<std::string>{"true 'a  b'", "/usr/bin/killall -s CONT ppp_add_v2k", "",
                                      "echo x > /dev/null; sh -c 'true'", "true"}));
}

}  // namespace
