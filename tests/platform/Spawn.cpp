// Spawn.cpp: posix_spawn with a pipe for the child's standard output.
#include "Spawn.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

extern char** environ;

namespace qvltest {

RunResult runProgram(const std::vector<std::string>& argv) {
  std::vector<char*> args;
  for (const std::string& arg : argv) args.push_back(const_cast<char*>(arg.c_str()));
  args.push_back(nullptr);
  std::array<int, 2> pipeFds{};
  if (::pipe2(pipeFds.data(), O_CLOEXEC) != 0) return {-1, ""};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, pipeFds[1], STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t pid = -1;
  const int spawned = ::posix_spawn(&pid, args[0], &actions, nullptr, args.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  ::close(pipeFds[1]);
  RunResult result{-1, ""};
  std::array<char, 512> chunk;
  for (ssize_t n; (n = ::read(pipeFds[0], chunk.data(), chunk.size())) > 0;) {
    result.out.append(chunk.data(), static_cast<std::size_t>(n));
  }
  ::close(pipeFds[0]);
  int status = 0;
  if (spawned == 0 && ::waitpid(pid, &status, 0) == pid && WIFEXITED(status)) {
    result.exitCode = WEXITSTATUS(status);
  }
  return result;
}

}  // namespace qvltest
