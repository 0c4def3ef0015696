// The command runner: documented command lines come out byte for byte, and a value cannot
// change what a line means.
#include <gmock/gmock.h>

#include "TestSupport.h"
#include "Zeph_CommandRunner.h"

using ras::CommandSequence;
using ras::runCommand;
using ras::ShellCommand;

namespace {

TEST(CommandRunnerTest, ValuesLandAsTheyAreAsOneQuotedWordOrNotAtAll) {
  const char* const sed = "%s -i 's/^x=.*/x=\"%s\"/' %s";
  const char* const except = "grep -v \"%s\" > /tmp/ifout ";
  const struct {
    ShellCommand command;
    std::string text;  // "" when refused
  } rows[] = {
      {{"%s -s CONT %s\n", {"/usr/bin/killall", "ppp_add_v2k"}},
       "/usr/bin/killall -s CONT ppp_add_v2k\n"},
      {{sed, {"/bin/sed", "0,,12:a@b+=c", "/f"}}, "/bin/sed -i 's/^x=.*/x=\"0,,12:a@b+=c\"/' /f"},
      {{sed, {"/bin/sed", "1'; reboot; '", "/f"}}, ""},
      {{sed, {"/bin/sed", "1/e reboot", "/f"}}, ""},  // would end the s part
      {{sed, {"/bin/sed", "$(id)", "/f"}}, ""},       // inert to sed, not to a sourcing script
      {{sed, {"/bin/sed", "a\\", "/f"}}, ""},
      {{sed, {"/bin/sed", "255.0.0.0 ", "/f"}}, "/bin/sed -i 's/^x=.*/x=\"255.0.0.0 \"/' /f"},
      {{except, {"ppp0\\"}}, ""},  // would escape the closing quote
      {{"%s %s", {"/hup", "ppp0\rreboot"}}, ""},
      {{"%s %s", {"/hup", "ppp0\treboot"}}, ""},
      {{"%s %s:%s", {"/set", "a", "b\n"}}, "/set a:b\n"},  // a file line's own newline
      {{"%s %s:%s ", {"/set", "a", "b\n"}}, ""},
      {{"%s %d", {"/x", "7;reboot"}}, ""},
      {{"%s %d", {"/x", "-12"}}, "/x -12"},
      {{except, {"ppp 0"}}, "grep -v \"ppp 0\" > /tmp/ifout "},
      {{except, {"ppp$(reboot)"}}, ""},
      {{"%s %s", {"/hup", "ppp0;reboot"}}, "/hup 'ppp0;reboot'"},
      {{"%s %s", {"/x", "it's"}}, "/x 'it'\\''s'"},
      {{"%s %s", {"/x", "a\nb"}}, ""},
      {{"%s name %s", {"/s", ""}}, "/s name "},
      {{"\\'%s", {"a b"}}, "\\''a b'"},  // an escaped quote opens nothing
      {{"%d%% %s", {7, "x"}}, "7% x"},
      {{"%s %s", {"x"}}, ""},
      {{"%s", {"x", "y"}}, ""},
      {{"%x", {"x"}}, ""},
      {{"%s", {std::string(1023, 'a')}}, std::string(1023, 'a')},
      {{"%s", {std::string(1024, 'a')}}, ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.command.valid(), !row.text.empty()) << row.text;
    EXPECT_EQ(row.command.text(), row.text);
  }
}

TEST(CommandRunnerTest, RefusedCommandIsLoggedAndNotRun) {
  ScopedLogRecorder log;
  EXPECT_EQ(runCommand("exit 3; echo \"%s\"", {"`id`"}), -1);
  EXPECT_THAT(log.newLines(),
              testing::ElementsAre("ERROR|Command not run: a value is not safe for the shell\n"));
  EXPECT_EQ(runCommand("exit %d", {3}), 3 << 8);
}

// A sequence with one unsafe line runs none of its lines, and so never reaches the runner's
// own refusal; a safe one runs them all.
TEST(CommandRunnerTest, SequenceRunsAllOrNothing) {
  ScopedLogRecorder log;
  CommandSequence refused;
  refused.add("exit %d", {0}).add("echo \"%s\"", {"`id`"});
  EXPECT_FALSE(refused.valid());
  EXPECT_FALSE(refused.run());
  EXPECT_THAT(log.newLines(), testing::IsEmpty());
  CommandSequence safe;
  safe.add("exit %d", {0}).add("exit %d", {1});
  EXPECT_TRUE(safe.run());
}

}  // namespace
