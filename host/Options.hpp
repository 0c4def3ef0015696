// Options.hpp: ras-cim's command line: where the module, schema and account list are, how
// to log and print, and the operations to run (one from the arguments, or a batch).
#ifndef RAS_HOST_OPTIONS_HPP
#define RAS_HOST_OPTIONS_HPP

#include <string>
#include <vector>

namespace rascim {

struct Options {
  std::string modulePath;
  std::string mofPath;
  std::string accountsFile;
  std::string nameSpace;
  std::string logFile;  // empty: standard error
  std::string logLevel;
  bool json = false;
  bool help = false;
  std::string batchFile;           // "-" for standard input; empty: one operation
  std::vector<std::string> words;  // the one operation: verb and arguments
};

// Throws std::invalid_argument for an unknown option or a missing value.
Options parseOptions(int argc, const char* const* argv);

std::string helpText();

}  // namespace rascim

#endif
