// A table row for the helper-script tests: a file as it is before, the script command,
// the expected exit status and the file as it must be afterwards.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Appliance.h"

struct ScriptCase {
  const char* name;
  std::string before;
  std::vector<std::string> command;
  int status;
  std::string after;
  std::string path = "";  // the file the script edits; empty: the table's file
};

inline constexpr char kScriptDir[] = "/opt/etc/RasProviderScripts/";

// Runs the helper script argv[0] with the arguments, without a shell.
inline appliance::ToolResult runScript(std::vector<std::string> argv) {
  argv[0] = kScriptDir + argv[0];
  return appliance::runTool(argv);
}

// For each row: writes the file, runs the script, checks its exit status and the file after.
inline void expectScriptCases(const std::vector<ScriptCase>& rows, const std::string& file) {
  for (const ScriptCase& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string& path = row.path.empty() ? file : row.path;
    appliance::writeFile(path, row.before);
    EXPECT_EQ(runScript(row.command).status, row.status);
    EXPECT_EQ(appliance::readFile(path), row.after);
  }
}
