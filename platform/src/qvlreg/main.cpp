// main.cpp: qvlreg's command line: options, then one command.
#include <iostream>
#include <string>
#include <vector>

#include "Commands.hpp"
#include "store/StoreFile.hpp"

namespace {

constexpr char kHelpOption[] = "--help";
constexpr char kShortHelpOption[] = "-h";
constexpr char kFileOption[] = "--file";
constexpr char kMsgFileNeedsPath[] = "qvlreg: --file needs a PATH\n";
constexpr char kMsgUnknownOption[] = "qvlreg: unknown option: ";
constexpr char kMsgNoCommand[] = "qvlreg: no command given\n";

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  qvlreg::Context context{qvl::storePathFromEnvironment(), std::cout, std::cerr};
  std::size_t next = 0;
  for (; next < args.size() && args[next].rfind('-', 0) == 0; ++next) {
    if (args[next] == kHelpOption || args[next] == kShortHelpOption) {
      qvlreg::printUsage(std::cout);
      return qvlreg::kExitOk;
    }
    if (args[next] != kFileOption) {
      std::cerr << kMsgUnknownOption << args[next] << '\n';
      return qvlreg::kExitUsage;
    }
    if (++next == args.size()) {
      std::cerr << kMsgFileNeedsPath;
      return qvlreg::kExitUsage;
    }
    context.storePath = args[next];
  }
  if (next == args.size()) {
    std::cerr << kMsgNoCommand;
    qvlreg::printUsage(std::cerr);
    return qvlreg::kExitUsage;
  }
  const std::vector<std::string> commandArgs(args.begin() + static_cast<std::ptrdiff_t>(next + 1),
                                             args.end());
  return qvlreg::runCommand(args[next], commandArgs, context);
}
