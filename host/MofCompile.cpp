// MofCompile.cpp: MOF files compiled into a repository by OpenWBEM's MOF compiler.
// OwMofCompiler.hpp must come before any other OpenWBEM header (see there).
#include "OwMofCompiler.hpp"
// The rest.
#include <stdexcept>

#include "MofCompile.hpp"
#include "OW_MOFParserErrorHandlerIFC.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

// Remembers the compiler's first error with its file and line; the compile then fails.
class MofErrors : public MOF::ParserErrorHandlerIFC {
 public:
  std::string first;

 protected:
  void doFatalError(const char* error, const MOF::LineInfo& at) override { note(error, at); }
  EParserAction doRecoverableError(const char* error, const MOF::LineInfo& at) override {
    note(error, at);
    return E_ABORT_ACTION;
  }
  void doProgressMessage(const char*, const MOF::LineInfo&) override {}

 private:
  void note(const char* error, const MOF::LineInfo& at) {
    if (first.empty())
      first = std::string(at.filename.c_str()) + ":" + std::to_string(at.lineNum) + ": " + error;
  }
};

}  // namespace

void compileMof(const CIMOMHandleIFCRef& repository, const String& ns,
                const std::vector<std::string>& files, const std::string& text) {
  IntrusiveReference<MofErrors> errors(new MofErrors);
  MOF::Compiler::Options options;
  options.m_namespace = ns;
  MOF::Compiler compiler(repository, options, errors);
  for (const std::string& file : files)
    if (compiler.compile(file.c_str()) != 0) break;
  if (errors->first.empty() && !text.empty()) compiler.compileString(text.c_str());
  if (!errors->first.empty()) throw std::runtime_error("MOF: " + errors->first);
}

}  // namespace rascim
