// Test support: the recording logger installed as the module's logger while a
// ScopedLogRecorder lives, and a fixture with a scratch directory outside /tmp (the reader
// deletes files under /tmp).
#ifndef PLATFORM_ACCESS_TESTSUPPORT_H
#define PLATFORM_ACCESS_TESTSUPPORT_H

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "RecordingLogger.h"
#include "Zeph_ModuleGlobals.h"

class ScopedLogRecorder {
 public:
  ScopedLogRecorder() : recorder_(new RecordingLogger(OpenWBEM::E_DEBUG_LEVEL)) {
    logger = recorder_;
  }
  ~ScopedLogRecorder() { logger = 0; }

  // The lines logged since the previous call.
  std::vector<std::string> newLines() {
    const std::vector<std::string> all = recorder_->categorised();
    std::vector<std::string> fresh(all.begin() + static_cast<long>(seen_), all.end());
    seen_ = all.size();
    return fresh;
  }
  // The thread that logged `line` first (a default id when none did).
  std::thread::id threadOf(const std::string& line) const {
    for (const LogLine& logged : recorder_->lines()) {
      if (logged.category + "|" + logged.text == line) return logged.thread;
    }
    return std::thread::id();
  }

 private:
  OpenWBEM::IntrusiveReference<RecordingLogger> recorder_;
  std::size_t seen_ = 0;
};

class ScratchTest : public ::testing::Test {
 protected:
  void SetUp() override {
    // Not under the build tree: a checkout may itself lie under /tmp.
    dir_ = std::filesystem::path("/var/tmp") /
           ("platform_access_scratch." + std::to_string(::getpid())) /
           ::testing::UnitTest::GetInstance()->current_test_info()->name();
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
  }
  void TearDown() override { std::filesystem::remove_all(dir_.parent_path()); }

  std::string path(const std::string& name) const { return (dir_ / name).string(); }
  // Writes `content` to a scratch file and returns its path.
  std::string write(const std::string& content, const std::string& name = "f") const {
    std::ofstream(path(name), std::ios::binary) << content;
    return path(name);
  }

  ScopedLogRecorder log_;

 private:
  std::filesystem::path dir_;
};

#endif  // PLATFORM_ACCESS_TESTSUPPORT_H
