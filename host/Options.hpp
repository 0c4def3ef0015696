// Options.hpp: what the command line asks ras-cim to do.
#ifndef RAS_HOST_OPTIONS_HPP
#define RAS_HOST_OPTIONS_HPP

#include <string>
#include <vector>

namespace rascim {

struct Options {
  std::string modulePath;    // the provider library the CIMOM loads
  std::string mofPath;       // a MOF file or a directory of them, compiled into the repository
  std::string accountsFile;  // the appliance's accounts, put in as Zeph_Account instances
  std::string nameSpace;     // for paths that name none
  std::string logFile;       // empty: standard error
  std::string logLevel;
  std::string batchFile;  // "-": standard input; empty: one operation from `words`
  bool json = false;
  std::vector<std::string> words;
};

}  // namespace rascim

#endif
