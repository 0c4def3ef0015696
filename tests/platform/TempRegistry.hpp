// TempRegistry.hpp: points $QVL_REGISTRY at a store in a fresh temporary directory for the
// lifetime of the object, and removes the directory afterwards.
#ifndef QVL_TEST_TEMP_REGISTRY_HPP
#define QVL_TEST_TEMP_REGISTRY_HPP

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "ScopedEnv.h"

namespace qvltest {

class TempRegistry {
 public:
  TempRegistry() {
    std::string pattern = (std::filesystem::temp_directory_path() / "qvl-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) ADD_FAILURE() << "mkdtemp failed";
    dir_ = pattern;
    env_.emplace("QVL_REGISTRY", path());
  }
  ~TempRegistry() {
    env_.reset();
    std::error_code ignored;
    std::filesystem::remove_all(dir_, ignored);
  }
  std::string path() const { return (dir_ / "registry").string(); }
  const std::filesystem::path& dir() const { return dir_; }
  void write(const std::string& text) const { std::ofstream(path(), std::ios::binary) << text; }
  std::string read() const {
    std::ostringstream text;
    text << std::ifstream(path(), std::ios::binary).rdbuf();
    return text.str();
  }

 private:
  std::filesystem::path dir_;
  std::optional<appliance::ScopedEnv> env_;
};

// The appliance's usual content, as used by several tests.
constexpr char kSampleStore[] =
    "# comment lines and blank lines are ignored\n"
    "[SoftModem/ModemCC]\n"
    "ModemStatus=ENABLED\n"
    "MinLine=1\n"
    "[privileges]\n"
    "# kind userId privilege\n"
    "1 500 11\n";

}  // namespace qvltest

#endif  // QVL_TEST_TEMP_REGISTRY_HPP
