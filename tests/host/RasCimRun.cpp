// RasCimRun.cpp: fork/exec of ras-cim with its streams redirected to scratch files.
#include "RasCimRun.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

const char kRasCim[] = RAS_CIM;
const char kLibraryPath[] = RAS_CIM_LIBRARY_PATH;

std::string slurp(const std::string& path) {
  std::ifstream in(path);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

void redirect(const std::string& path, int fd, int flags) {
  const int file = open(path.c_str(), flags, 0600);
  if (file < 0 || dup2(file, fd) < 0) _exit(127);
  close(file);
}

}  // namespace

RasCimResult runRasCim(const std::vector<std::string>& args, const std::string& input) {
  char dir[] = "/tmp/rascim.XXXXXX";
  if (!mkdtemp(dir)) throw std::runtime_error("mkdtemp failed");
  const std::string in = std::string(dir) + "/in", out = std::string(dir) + "/out",
                    err = std::string(dir) + "/err";
  std::ofstream(in) << input;
  std::vector<const char*> argv{kRasCim};
  for (const std::string& a : args) argv.push_back(a.c_str());
  argv.push_back(nullptr);
  const pid_t pid = fork();
  if (pid == 0) {
    redirect(in, 0, O_RDONLY);
    redirect(out, 1, O_WRONLY | O_CREAT | O_TRUNC);
    redirect(err, 2, O_WRONLY | O_CREAT | O_TRUNC);
    setenv("LD_LIBRARY_PATH", kLibraryPath, 1);
    // In a sanitizer build: the embedded CIMOM unloads the module when it shuts down, and
    // LeakSanitizer then can name neither the module's objects nor OpenWBEM's own (its MOF
    // compiler keeps its lexer's buffers). The module's leaks are checked in process.
    setenv("LSAN_OPTIONS", "detect_leaks=0", 1);
    execv(kRasCim, const_cast<char* const*>(argv.data()));
    _exit(127);
  }
  int wstatus = 0;
  waitpid(pid, &wstatus, 0);
  RasCimResult result{WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : 128 + WTERMSIG(wstatus),
                      slurp(out), slurp(err)};
  for (const std::string& f : {in, out, err}) unlink(f.c_str());
  rmdir(dir);
  return result;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}
