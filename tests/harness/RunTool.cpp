// Runs a program without a shell and collects its standard output.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>

#include "Appliance.h"

extern char** environ;

namespace appliance {
namespace {

int exitStatus(int waitStatus) {
  if (WIFEXITED(waitStatus)) return WEXITSTATUS(waitStatus);
  if (WIFSIGNALED(waitStatus)) return 128 + WTERMSIG(waitStatus);
  return -1;
}

std::string readAll(int fd) {
  std::string out;
  char buffer[4096];
  for (;;) {
    ssize_t n = read(fd, buffer, sizeof buffer);
    if (n > 0) {
      out.append(buffer, static_cast<size_t>(n));
    } else if (n == 0 || errno != EINTR) {
      return out;
    }
  }
}

pid_t spawn(const std::vector<std::string>& argv, int outFd, int unusedFd) {
  std::vector<char*> args;
  for (const std::string& arg : argv) args.push_back(const_cast<char*>(arg.c_str()));
  args.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, outFd, STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, unusedFd);
  pid_t pid = 0;
  int rc = posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (rc != 0) throw std::runtime_error("cannot run " + argv[0] + ": " + std::strerror(rc));
  return pid;
}

}  // namespace

ToolResult runTool(const std::vector<std::string>& argv) {
  if (argv.empty()) throw std::invalid_argument("runTool: empty command");
  int fds[2];
  if (pipe(fds) != 0) throw std::runtime_error("pipe failed");
  pid_t pid = 0;
  try {
    pid = spawn(argv, fds[1], fds[0]);
  } catch (...) {
    close(fds[0]);
    close(fds[1]);
    throw;
  }
  close(fds[1]);
  ToolResult result{0, readAll(fds[0])};
  close(fds[0]);
  int waitStatus = 0;
  while (waitpid(pid, &waitStatus, 0) < 0 && errno == EINTR) {
  }
  result.status = exitStatus(waitStatus);
  return result;
}

}  // namespace appliance
