// EmbeddedCimom.cpp: the private directory, the configuration, the repository and the
// start and stop of OpenWBEM's embedded CIMOM.
#include "EmbeddedCimom.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "MofCompile.hpp"
#include "MofFiles.hpp"
#include "OW_EmbeddedCIMOMEnvironment.hpp"
#include "OW_RepositoryIFC.hpp"
#include "Options.hpp"

namespace fs = std::filesystem;
using namespace OpenWBEM;

namespace rascim {
namespace {

const char kOpenWbemPrefix[] = RAS_CIM_OPENWBEM_PREFIX;  // set by host/CMakeLists.txt
const char kModuleLink[] = "providers/libZeph_RASProvider.so";
const char kAccountClass[] = "Zeph_Account";
const char kConfigNotice[] = "Using config file:";

// While the CIMOM starts, standard output goes nowhere and standard error into a file: the
// start announces its configuration file on both, and standard output is where ras-cim
// prints its results. What else went to standard error is passed on afterwards.
class QuietStart {
 public:
  explicit QuietStart(const std::string& errFile)
      : errFile_(errFile), out_(dup(STDOUT_FILENO)), err_(dup(STDERR_FILENO)) {
    std::cout.flush();
    std::cerr.flush();
    redirect(open("/dev/null", O_WRONLY), STDOUT_FILENO);
    redirect(open(errFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
  }
  ~QuietStart() {
    std::cout.flush();
    std::cerr.flush();
    redirect(out_, STDOUT_FILENO);
    redirect(err_, STDERR_FILENO);
    std::ifstream in(errFile_);
    for (std::string line; std::getline(in, line);)
      if (!line.empty() && line.rfind(kConfigNotice, 0) != 0) std::cerr << line << '\n';
  }

 private:
  static void redirect(int from, int to) {
    if (from < 0) return;
    dup2(from, to);
    close(from);
  }
  std::string errFile_;
  int out_, err_;
};

std::string mofString(const std::string& text) {
  std::string out = "\"";
  for (char c : text) out += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
  return out + "\"";
}

// The account list ("NAME TEXTUALUSERID" lines, # comments) as Zeph_Account instances.
std::string accountInstances(const std::string& file) {
  std::ifstream in(file);
  if (!in) throw std::runtime_error("cannot read the accounts " + file);
  std::string mof, line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream words(line);
    std::string name, user;
    if (!(words >> name)) continue;
    words >> user;
    mof += std::string("instance of ") + kAccountClass + " { Name = " + mofString(name) +
           "; TextualUserID = " + mofString(user) + "; };\n";
  }
  return mof;
}

}  // namespace

EmbeddedCimom::EmbeddedCimom(const Options& options) {
  const fs::path module = fs::absolute(options.modulePath);
  if (!fs::is_regular_file(module)) throw std::runtime_error("no module " + module.string());
  const char* tmp = std::getenv("TMPDIR");
  std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/ras-cim.XXXXXX";
  if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make " + pattern);
  dir_ = pattern;
  for (const char* sub : {"providers", "repository", "services", "requesthandlers"})
    fs::create_directory(fs::path(dir_) / sub);
  fs::create_symlink(module, fs::path(dir_) / kModuleLink);
  writeConfig(options);

  EmbeddedCIMOMEnvironmentRef& env = EmbeddedCIMOMEnvironment::instance();
  env->setConfigItem("owcimomd.config_file", (dir_ + "/openwbem.conf").c_str());
  started_ = true;
  {
    QuietStart quiet(dir_ + "/start.err");
    env->init();
    env->startServices();
  }
  compileRepository(options);
  handle_ = env->getCIMOMHandle(context_);
}

EmbeddedCimom::~EmbeddedCimom() {
  handle_ = CIMOMHandleIFCRef();
  if (started_) EmbeddedCIMOMEnvironment::instance()->shutdown();
  std::error_code ignored;
  fs::remove_all(dir_, ignored);
}

// As for owcimomd, but no HTTP services or request handlers (empty directories), anonymous
// access, the module never unloaded, and the log where the options say.
void EmbeddedCimom::writeConfig(const Options& o) const {
  const std::string lib = std::string(kOpenWbemPrefix) + "/lib";
  std::string level = o.logLevel;
  std::transform(level.begin(), level.end(), level.begin(), ::toupper);
  std::ofstream conf(dir_ + "/openwbem.conf");
  conf << "owcimomd.datadir = " << dir_ << "/repository\n"
       << "owcimomd.pidfile = " << dir_ << "/owcimomd.pid\n"
       << "owcimomd.services_path = " << dir_ << "/services\n"
       << "owcimomd.request_handler_path = " << dir_ << "/requesthandlers\n"
       << "owcimomd.provider_ifc_libs = " << lib << "/openwbem/provifcs\n"
       << "owcimomd.owlibdir = " << lib << "/openwbem\n"
       << "owcimomd.wql_lib = " << lib << "/libowwql.so\n"
       << "owcimomd.libexecdir = " << kOpenWbemPrefix << "/libexec/openwbem\n"
       << "owcimomd.authentication_module =\n"
       << "owcimomd.allow_anonymous = true\n"
       << "owcimomd.allowed_users = *\n"
       << "owcimomd.drop_root_privileges = false\n"
       << "owcimomd.disable_indications = true\n"
       << "cppprovifc.prov_location = " << dir_ << "/providers\n"
       << "cppprovifc.prov_TTL = -1\n"
       << "log.main.type = "
       << (level == "NONE"     ? "null"
           : o.logFile.empty() ? "stderr"
                               : "file")
       << "\n"
       << "log.main.location = " << o.logFile << "\n"
       << "log.main.level = " << level << "\n"
       << "log.main.format = %p %c: %m\n";
  if (!conf.flush()) throw std::runtime_error("cannot write " + dir_ + "/openwbem.conf");
}

void EmbeddedCimom::compileRepository(const Options& options) {
  EmbeddedCIMOMEnvironmentRef& env = EmbeddedCIMOMEnvironment::instance();
  const String ns(options.nameSpace.c_str());
  env->getRepository()->createNameSpace(ns, context_);
  const CIMOMHandleIFCRef repository =
      env->getCIMOMHandle(context_, ServiceEnvironmentIFC::E_BYPASS_PROVIDERS);
  std::vector<std::string> files;
  for (const fs::path& file : mofFiles(options.mofPath)) files.push_back(file);
  compileMof(repository, ns, files, accountInstances(options.accountsFile));
}

}  // namespace rascim
