// A table row for the helper-script tests: a file as it is before, the script command,
// the expected exit status and the file as it must be afterwards.
#pragma once

#include <string>
#include <vector>

#include "Appliance.h"

struct ScriptCase {
  const char* name;
  std::string path;
  std::string before;
  std::vector<std::string> command;
  int status;
  std::string after;
};

inline constexpr char kScriptDir[] = "/opt/etc/RasProviderScripts/";

// Writes the file, runs the script (no shell) and returns its exit status.
inline int runScriptCase(const ScriptCase& row) {
  appliance::writeFile(row.path, row.before);
  std::vector<std::string> argv = row.command;
  argv[0] = kScriptDir + argv[0];
  return appliance::runTool(argv).status;
}
