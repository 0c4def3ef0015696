// The tests' one logger: records every message it is given, with the thread that logged it,
// under a lock (the registry callback logs from the platform library's thread). Clones share
// the record, as the module may clone the logger it is handed.
#ifndef RAS_TESTS_RECORDINGLOGGER_H
#define RAS_TESTS_RECORDINGLOGGER_H

#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "OW_LogMessage.hpp"
#include "OW_Logger.hpp"

struct LogLine {
  std::string category;  // "ERROR", "DEBUG", ...
  std::string text;
  std::string component;
  std::string file;
  int fileLine = 0;
  std::thread::id thread;
};

class RecordingLogger : public OpenWBEM::Logger {
 public:
  explicit RecordingLogger(OpenWBEM::ELogLevel level = OpenWBEM::E_ALL_LEVEL,
                           const char* component = "tests")
      : Logger(component, level), record_(std::make_shared<Record>()) {}

  std::vector<LogLine> lines() const {
    std::lock_guard<std::mutex> lock(record_->mutex);
    return record_->lines;
  }
  // Every message as its text alone, or as "CATEGORY|text".
  std::vector<std::string> texts() const { return render(false); }
  std::vector<std::string> categorised() const { return render(true); }
  void clear() {
    std::lock_guard<std::mutex> lock(record_->mutex);
    record_->lines.clear();
  }

 protected:
  void doProcessLogMessage(const OpenWBEM::LogMessage& message) const override {
    std::lock_guard<std::mutex> lock(record_->mutex);
    record_->lines.push_back({message.category.c_str(), message.message.c_str(),
                              message.component.c_str(), message.filename ? message.filename : "",
                              message.fileline, std::this_thread::get_id()});
  }
  OpenWBEM::LoggerRef doClone() const override { return new RecordingLogger(*this); }

 private:
  struct Record {
    std::mutex mutex;
    std::vector<LogLine> lines;
  };

  std::vector<std::string> render(bool withCategory) const {
    std::vector<std::string> out;
    for (const LogLine& line : lines())
      out.push_back(withCategory ? line.category + "|" + line.text : line.text);
    return out;
  }

  std::shared_ptr<Record> record_;
};

#endif
