// Options.cpp: parsing of ras-cim's options and its help text.
#include "Options.hpp"

#include <stdexcept>

#include "Verbs.hpp"

namespace rascim {
namespace {

// The build's own module and schema (set by host/CMakeLists.txt).
const char kDefaultModule[] = RAS_CIM_DEFAULT_MODULE;
const char kDefaultMof[] = RAS_CIM_DEFAULT_MOF;
const char kDefaultAccounts[] = "/var/lib/appliance/accounts";
const char kDefaultNamespace[] = "root/cimv2";
const char kDefaultLogLevel[] = "error";
const char kStdin[] = "-";

const char kUsage[] =
    "usage: ras-cim [OPTIONS] VERB ARGUMENTS...\n"
    "       ras-cim [OPTIONS] -              operations from standard input, one per line\n"
    "       ras-cim [OPTIONS] --batch FILE   operations from FILE, one per line\n"
    "\n"
    "Loads the provider module as an OpenWBEM CIMOM does and runs CIM operations against it,\n"
    "in one process, so that the module keeps its state from one operation to the next.\n"
    "Paths and values are written as for wbemcli: [http://host/]root/cimv2:Class.Key=\"v\",...\n"
    "and Name=value[,Name=value...] (strings may be quoted, arrays as {a,b}); values are typed\n"
    "from the schema. A batch line is a verb and its arguments, quoted as in a shell; # starts\n"
    "a comment.\n"
    "\n"
    "Options:\n"
    "  --module PATH       provider library (default: the build's libZeph_RASProvider.so)\n"
    "  --mof PATH          MOF file, or directory of .mof files (default: the project's mof/)\n"
    "  --accounts FILE     Zeph_Account list served through the CIMOM handle\n"
    "                      (default: /var/lib/appliance/accounts)\n"
    "  -n, --namespace NS  namespace of paths that name none (default: root/cimv2)\n"
    "  --json              print each operation's outcome as one line of JSON\n"
    "  --log FILE          append the module's log to FILE (default: standard error)\n"
    "  --log-level LEVEL   none, fatal, error, info, debug or all (default: error)\n"
    "  --batch FILE        run the operations of FILE (- for standard input)\n"
    "  -h, --help          this text\n"
    "\n"
    "Verbs:\n";

const char kExitStatus[] =
    "\n"
    "Exit status: 0 success; 1 a CIM error or a failure of the module; 2 a mistake in the\n"
    "request; 3 what the module returned disagrees with the schema; 4 the module could not\n"
    "be loaded or initialised. In a batch, the status of the first operation that failed.\n";

// The options that take a value, and where it goes.
struct ValueOption {
  const char* name;
  const char* shortName;
  std::string Options::*member;
};

const ValueOption kValueOptions[] = {
    {"--module", nullptr, &Options::modulePath},     {"--mof", nullptr, &Options::mofPath},
    {"--accounts", nullptr, &Options::accountsFile}, {"--namespace", "-n", &Options::nameSpace},
    {"--log", nullptr, &Options::logFile},           {"--log-level", nullptr, &Options::logLevel},
    {"--batch", nullptr, &Options::batchFile}};

// Takes the option argv[i], and its value when it has one.
void takeOption(int argc, const char* const* argv, int& i, Options& o) {
  const std::string opt = argv[i];
  for (const ValueOption& v : kValueOptions) {
    if (opt != v.name && (!v.shortName || opt != v.shortName)) continue;
    if (i + 1 >= argc) throw std::invalid_argument(opt + " needs a value");
    o.*v.member = argv[++i];
    return;
  }
  if (opt == "--json")
    o.json = true;
  else if (opt == "-h" || opt == "--help")
    o.help = true;
  else
    throw std::invalid_argument("unknown option " + opt + " (see --help)");
}

}  // namespace

Options parseOptions(int argc, const char* const* argv) {
  Options o;
  o.modulePath = kDefaultModule;
  o.mofPath = kDefaultMof;
  o.accountsFile = kDefaultAccounts;
  o.nameSpace = kDefaultNamespace;
  o.logLevel = kDefaultLogLevel;
  int i = 1;
  for (; i < argc && argv[i][0] == '-' && std::string(argv[i]) != kStdin; ++i)
    takeOption(argc, argv, i, o);
  if (i < argc && std::string(argv[i]) == kStdin && o.batchFile.empty()) {
    o.batchFile = kStdin;
    ++i;
  }
  o.words.assign(argv + i, argv + argc);
  if (!o.help && o.batchFile.empty() && o.words.empty())
    throw std::invalid_argument("no operation given (see --help)");
  if (!o.batchFile.empty() && !o.words.empty())
    throw std::invalid_argument("give either a batch or one operation, not both");
  return o;
}

std::string helpText() {
  return kUsage + verbSynopsis() + kExitStatus;
}

}  // namespace rascim
