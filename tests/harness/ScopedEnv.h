// Sets an environment variable for the life of a scope and restores what was there before
// (the old value, or no variable at all).
#ifndef RAS_TESTS_SCOPEDENV_H
#define RAS_TESTS_SCOPEDENV_H

#include <cstdlib>
#include <optional>
#include <string>

namespace appliance {

class ScopedEnv {
 public:
  ScopedEnv(const char* name, const std::string& value) : name_(name) {
    if (const char* old = std::getenv(name)) previous_ = old;
    ::setenv(name, value.c_str(), 1);
  }
  ~ScopedEnv() {
    if (previous_) {
      ::setenv(name_.c_str(), previous_->c_str(), 1);
    } else {
      ::unsetenv(name_.c_str());
    }
  }
  ScopedEnv(const ScopedEnv&) = delete;
  ScopedEnv& operator=(const ScopedEnv&) = delete;

 private:
  std::string name_;
  std::optional<std::string> previous_;
};

}  // namespace appliance

#endif
