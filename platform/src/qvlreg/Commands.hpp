// Commands.hpp: the commands of qvlreg, which reads and changes the registry store from outside.
#ifndef QVLREG_COMMANDS_HPP
#define QVLREG_COMMANDS_HPP

#include <ostream>
#include <string>
#include <vector>

namespace qvlreg {

// Exit statuses of qvlreg.
constexpr int kExitOk = 0;
constexpr int kExitAbsent = 1;  // no such entry or grant
constexpr int kExitUsage = 2;   // bad command line or refused value
constexpr int kExitFailed = 3;  // store unreadable or unwritable

struct Context {
  std::string storePath;
  std::ostream& out;
  std::ostream& err;
};

void printUsage(std::ostream& out);
// Runs the named command with its arguments and returns the exit status.
int runCommand(const std::string& name, const std::vector<std::string>& args, Context& context);

}  // namespace qvlreg

#endif  // QVLREG_COMMANDS_HPP
