// Test support: a Logger that records each message as "CATEGORY|text" with its thread,
// installed as the module's logger while a ScopedLogRecorder lives, and a fixture with a
// scratch directory outside /tmp (the reader deletes files under /tmp).
#ifndef PLATFORM_ACCESS_TESTSUPPORT_H
#define PLATFORM_ACCESS_TESTSUPPORT_H

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "OW_LogMessage.hpp"
#include "OW_Logger.hpp"
#include "Zeph_ModuleGlobals.h"

class RecordingLogger : public OpenWBEM::Logger {
 public:
  RecordingLogger() : Logger("platform_access_test", OpenWBEM::E_DEBUG_LEVEL) {}
  std::vector<std::pair<std::string, std::thread::id>> entries() const {
    std::lock_guard<std::mutex> lock(mutex_);
    return entries_;
  }

 protected:
  void doProcessLogMessage(const OpenWBEM::LogMessage& message) const override {
    std::lock_guard<std::mutex> lock(mutex_);
    entries_.emplace_back(std::string(message.category.c_str()) + "|" + message.message.c_str(),
                          std::this_thread::get_id());
  }
  OpenWBEM::LoggerRef doClone() const override { return new RecordingLogger(); }

 private:
  mutable std::mutex mutex_;
  mutable std::vector<std::pair<std::string, std::thread::id>> entries_;
};

class ScopedLogRecorder {
 public:
  ScopedLogRecorder() : recorder_(new RecordingLogger()) { logger = recorder_; }
  ~ScopedLogRecorder() { logger = 0; }

  // The lines logged since the previous call.
  std::vector<std::string> newLines() {
    const auto all = recorder_->entries();
    std::vector<std::string> fresh;
    for (std::size_t i = seen_; i < all.size(); ++i) fresh.push_back(all[i].first);
    seen_ = all.size();
    return fresh;
  }
  // The thread that logged `line` first (a default id when none did).
  std::thread::id threadOf(const std::string& line) const {
    for (const auto& [text, thread] : recorder_->entries()) {
      if (text == line) return thread;
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
