// The recording logger installed as the module's logger while a ScopedLogRecorder lives.
#ifndef PLATFORM_ACCESS_LOGRECORDER_H
#define PLATFORM_ACCESS_LOGRECORDER_H

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

  // The lines logged since the previous call, as "CATEGORY|text".
  std::vector<std::string> newLines() {
    const std::vector<std::string> all = recorder_->categorised();
    const std::vector<std::string> fresh(all.begin() + static_cast<long>(seen_), all.end());
    seen_ = all.size();
    return fresh;
  }
  // The thread that logged `text` first (a default id when none did).
  std::thread::id threadOf(const std::string& text) const {
    for (const LogLine& line : recorder_->lines()) {
      if (line.text == text) return line.thread;
    }
    return std::thread::id();
  }

 private:
  OpenWBEM::IntrusiveReference<RecordingLogger> recorder_;
  std::size_t seen_ = 0;
};

#endif
