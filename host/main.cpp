// main.cpp: ras-cim, a command line over OpenWBEM's embedded CIMOM with the provider module
// loaded: options, start-up, one operation or a batch of them, and the exit status.
#include <wordexp.h>

#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <memory>

#include "Bindings.hpp"
#include "EmbeddedCimom.hpp"
#include "OW_CIMException.hpp"
#include "Options.hpp"
#include "Output.hpp"
#include "Verbs.hpp"

using namespace rascim;

namespace {

constexpr int kUsageStatus = 2;
constexpr int kStartFailed = 4;
const char kStdin[] = "-";

const char kDescription[] =
    "usage: ras-cim [OPTIONS] VERB ARGUMENTS...\n"
    "       ras-cim [OPTIONS] -              operations from standard input, one per line\n"
    "       ras-cim [OPTIONS] --batch FILE   operations from FILE, one per line\n\n"
    "Runs OpenWBEM's embedded CIMOM with the provider module loaded and sends it CIM\n"
    "operations, in one process, so that the module keeps its state from one operation to the\n"
    "next. Paths and values are written as for wbemcli: root/cimv2:Class.Key=\"v\",... and\n"
    "Name=value[,Name=value...] (strings may be quoted, arrays as {a,b}); values are typed from\n"
    "the repository's classes. A batch line is a verb and its arguments, quoted as in a shell;\n"
    "a line starting with # is a comment.";

const char kFooter[] =
    "\nExit status: 0 success; 1 a CIM error or another failure; 2 a mistake in the request;\n"
    "3 what the module returned disagrees with the repository's classes; 4 the CIMOM, its\n"
    "repository or the module could not be started. In a batch, the status of the first\n"
    "operation that failed.";

class Session {
 public:
  explicit Session(Options options) : options_(std::move(options)) {}

  int run() {
    try {
      cimom_ = std::make_unique<EmbeddedCimom>(options_);
    } catch (const std::exception& e) {
      return report(failed(e), kStartFailed);
    }
    if (options_.batchFile.empty())
      return report(runVerb(handle(), options_.nameSpace, options_.words));
    if (options_.batchFile == kStdin) return runBatch(std::cin);
    std::ifstream in(options_.batchFile);
    if (!in) {
      Outcome o = usage("cannot read " + options_.batchFile);
      o.verb = "start";
      return report(o);
    }
    return runBatch(in);
  }

 private:
  OpenWBEM::CIMOMHandleIFC& handle() { return cimom_->handle(); }

  static Outcome failed(const std::exception& e) {
    Outcome o;
    o.verb = "start";
    const auto* cim = dynamic_cast<const OpenWBEM::CIMException*>(&e);
    o.hasCimError = cim != nullptr;
    if (cim)
      o.cimError = {cim->getErrNo(), cim->getDescription() ? cim->getDescription() : "",
                    cim->getFile() ? cim->getFile() : "", cim->getLine()};
    else
      o.failure = e.what();
    return o;
  }

  static Outcome usage(const std::string& message) {
    Outcome o;
    o.failure = message;
    o.usageError = true;
    return o;
  }

  int runBatch(std::istream& in) {
    int status = Outcome::kOk;
    std::string line;
    while (std::getline(in, line)) {
      const size_t first = line.find_first_not_of(" \t");
      if (first == std::string::npos || line[first] == '#') continue;
      wordexp_t words;
      const int split = wordexp(line.c_str(), &words, WRDE_NOCMD | WRDE_UNDEF);
      Outcome o = usage("cannot split the line as a shell would (quote it)");
      o.verb = line;
      if (split == 0)
        o = runVerb(handle(), options_.nameSpace,
                    std::vector<std::string>(words.we_wordv, words.we_wordv + words.we_wordc));
      if (split == 0 || split == WRDE_NOSPACE) wordfree(&words);
      const int s = report(o);
      if (status == Outcome::kOk) status = s;
    }
    return status;
  }

  int report(const Outcome& o, int status = -1) {
    if (options_.json)
      std::cout << toJson(o) << std::endl;
    else
      printText(o, std::cout, std::cerr);
    return status < 0 ? o.status() : status;
  }

  Options options_;
  std::unique_ptr<EmbeddedCimom> cimom_;
};

}  // namespace

int main(int argc, char** argv) {
  Options o{RAS_CIM_DEFAULT_MODULE,
            RAS_CIM_DEFAULT_MOF,
            "/var/lib/appliance/accounts",
            "root/cimv2",
            "",
            "error",
            "",
            false,
            {}};
  CLI::App app(kDescription, "ras-cim");
  app.footer("Verbs:\n" + verbSynopsis() + kFooter);
  app.prefix_command();
  app.add_option("--module", o.modulePath, "provider library (default: the build's)");
  app.add_option("--mof", o.mofPath, "MOF file, or directory of .mof files (default: mof/)");
  app.add_option("--accounts", o.accountsFile, "Zeph_Account list put into the repository");
  app.add_option("-n,--namespace", o.nameSpace, "namespace of paths that name none");
  app.add_flag("--json", o.json, "each operation's outcome as one line of JSON");
  app.add_option("--log", o.logFile, "the CIMOM's and module's log (default: standard error)");
  app.add_option("--log-level", o.logLevel, "none, fatal, error, info, debug or all")
      ->check(CLI::IsMember({"none", "fatal", "error", "info", "debug", "all"}));
  app.add_option("--batch", o.batchFile, "run the operations of FILE (- for standard input)");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    if (e.get_exit_code() == 0) return app.exit(e);
    std::cerr << "ras-cim: " << e.what() << " (see --help)\n";
    return kUsageStatus;
  }
  o.words = app.remaining();
  if (!o.words.empty() && o.words[0].size() > 1 && o.words[0][0] == '-') {
    std::cerr << "ras-cim: unknown option " << o.words[0] << " (see --help)\n";
    return kUsageStatus;
  }
  if (!o.words.empty() && o.words[0] == kStdin && o.batchFile.empty()) {
    o.batchFile = kStdin;
    o.words.erase(o.words.begin());
  }
  if (o.batchFile.empty() == o.words.empty()) {
    std::cerr << "ras-cim: give either one operation or a batch (see --help)\n";
    return kUsageStatus;
  }
  return Session(std::move(o)).run();
}
