// Session.cpp: start-up, the batch loop and printing.
#include "Session.hpp"

#include <fstream>
#include <iostream>

#include "AccountHandle.hpp"
#include "HostEnvironment.hpp"
#include "OW_CIMException.hpp"
#include "Output.hpp"
#include "PathSyntax.hpp"
#include "Verbs.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const char kStartVerb[] = "start";
const char kStdin[] = "-";
constexpr int kStartFailed = 4;

}  // namespace

Session::Session(Options options)
    : options_(std::move(options)), schema_(std::make_shared<MofSchema>()) {}

Outcome Session::start() {
  std::vector<std::string> words{kStartVerb};
  try {
    schema_->load(options_.mofPath);
    const ELogLevel level = parseLogLevel(options_.logLevel);
    auto sink = options_.logFile.empty() ? std::make_shared<LogSink>()
                                         : std::make_shared<LogSink>(options_.logFile);
    library_ = std::make_unique<ModuleLibrary>(options_.modulePath);
    CIMOMHandleIFCRef handle(new AccountHandle(options_.accountsFile, schema_));
    ProviderEnvironmentIFCRef env(new HostEnvironment(handle, level, sink));
    cimom_ = std::make_unique<Cimom>(*library_, env, schema_);
  } catch (const CIMException& e) {
    Outcome o;
    o.verb = kStartVerb;
    o.hasCimError = true;
    o.cimError = CimError{e.getErrNo(), e.getDescription() ? e.getDescription() : "",
                          e.getFile() ? e.getFile() : "", e.getLine()};
    return o;
  } catch (const std::exception& e) {
    Outcome o;
    o.verb = kStartVerb;
    o.failure = e.what();
    return o;
  }
  return Outcome();
}

int Session::run() {
  const Outcome started = start();
  if (started.status() != Outcome::kOk) {
    report(started);
    return kStartFailed;
  }
  if (options_.batchFile.empty()) {
    VerbContext context{*cimom_, *schema_, options_.nameSpace};
    return report(runVerb(context, options_.words));
  }
  if (options_.batchFile == kStdin) return runBatch(std::cin);
  std::ifstream in(options_.batchFile);
  if (!in) {
    Outcome o;
    o.verb = kStartVerb;
    o.failure = "cannot read " + options_.batchFile;
    o.usageError = true;
    return report(o);
  }
  return runBatch(in);
}

int Session::runBatch(std::istream& in) {
  VerbContext context{*cimom_, *schema_, options_.nameSpace};
  int status = Outcome::kOk;
  std::string line;
  while (std::getline(in, line)) {
    Outcome o;
    try {
      const std::vector<std::string> words = splitWords(line);
      if (words.empty()) continue;
      o = runVerb(context, words);
    } catch (const SyntaxError& e) {
      o.verb = line;
      o.failure = e.what();
      o.usageError = true;
    }
    const int s = report(o);
    if (status == Outcome::kOk) status = s;
  }
  return status;
}

int Session::report(const Outcome& o) {
  if (options_.json)
    std::cout << toJson(o, *schema_) << std::endl;
  else
    printText(o, *schema_, std::cout, std::cerr);
  return o.status();
}

}  // namespace rascim
