// QvlregTest.cpp: the qvlreg command, run as a separate process against a temporary store.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Appliance.h"
#include "TempRegistry.hpp"

namespace {

struct Row {
  std::vector<std::string> args;
  int exitCode;
  const char* out;  // nullptr: not checked
};

// Rows run in order against one store, so later rows see earlier changes.
TEST(Qvlreg, CommandsReadAndChangeTheStore) {
  qvltest::TempRegistry registry;
  registry.write(qvltest::kSampleStore);
  const std::string other = (registry.dir() / "other").string();
  const Row rows[] = {
      {{"get", "SoftModem", "ModemCC", "ModemStatus"}, 0, "ENABLED\n"},
      {{"get", "SoftModem", "ModemCC", "MaxLine"}, 1, ""},
      {{"set", "SoftModem", "ModemCC", "MaxLine", "268"}, 0, ""},
      {{"set", "SoftModem", "ModemCC", "Note", "a=b c"}, 0, ""},
      {{"set", "Other", "Group", "Name", "x"}, 0, ""},
      {{"list", "SoftModem"},
       0,
       "SoftModem/ModemCC/ModemStatus=ENABLED\nSoftModem/ModemCC/MinLine=1\n"
       "SoftModem/ModemCC/MaxLine=268\nSoftModem/ModemCC/Note=a=b c\n"},
      {{"list", "Other", "Nope"}, 0, ""},
      {{"delete", "SoftModem", "ModemCC", "Note"}, 0, ""},
      {{"delete", "SoftModem", "ModemCC", "Note"}, 1, ""},
      {{"list"},
       0,
       "SoftModem/ModemCC/ModemStatus=ENABLED\nSoftModem/ModemCC/MinLine=1\n"
       "SoftModem/ModemCC/MaxLine=268\nOther/Group/Name=x\n"},
      {{"grant", "1", "501", "11"}, 0, ""},
      {{"revoke", "1", "500", "11"}, 0, ""},
      {{"revoke", "1", "500", "11"}, 1, ""},
      {{"privileges"}, 0, "1 501 11\n"},
      {{"grant", "1", "x", "11"}, 2, ""},
      {{"grant", "1", "99999999999", "11"}, 2, ""},
      {{"set", "SoftModem", "ModemCC", "Bad=Name", "v"}, 2, ""},
      {{"set", "SoftModem", "ModemCC", "Name"}, 2, ""},
      {{"frobnicate"}, 2, ""},
      {{"--help"}, 0, nullptr},
      {{}, 2, ""},
      {{"--bogus", "list"}, 2, ""},
      {{"--file"}, 2, ""},
      {{"--file", other, "set", "A", "B", "C", "D"}, 0, ""},
      {{"--file", other, "list"}, 0, "A/B/C=D\n"},
      {{"get", "A", "B", "C"}, 1, ""},
      {{"--file", (registry.dir() / "missing" / "store").string(), "list"}, 3, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.args));
    std::vector<std::string> argv = {QVLREG_PATH};
    argv.insert(argv.end(), row.args.begin(), row.args.end());
    const appliance::ToolResult result = appliance::runTool(argv);
    EXPECT_EQ(row.exitCode, result.status);
    if (row.out != nullptr) {
      EXPECT_EQ(row.out, result.output);
    }
  }
}

}  // namespace
