// Spawn.hpp: runs a program as a child process and collects its exit status and output.
#ifndef QVL_TEST_SPAWN_HPP
#define QVL_TEST_SPAWN_HPP

#include <string>
#include <vector>

namespace qvltest {

struct RunResult {
  int exitCode;  // -1 when the program could not be run or did not exit normally
  std::string out;
};

// Runs argv[0] with the current environment; stderr is discarded.
RunResult runProgram(const std::vector<std::string>& argv);

}  // namespace qvltest

#endif  // QVL_TEST_SPAWN_HPP
