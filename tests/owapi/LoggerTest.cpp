// Logger: level filtering of the log calls and macros, and the default component.
#include <gtest/gtest.h>

#include <vector>

#include "OW_Format.hpp"
#include "OW_LogMessage.hpp"
#include "OW_Logger.hpp"

using namespace OpenWBEM;

namespace {

class RecordingLogger : public Logger {
 public:
  RecordingLogger(ELogLevel level, std::vector<LogMessage>* out)
      : Logger("Zeph_RASProvider", level), m_out(out) {}

 protected:
  void doProcessLogMessage(const LogMessage& message) const override { m_out->push_back(message); }
  LoggerRef doClone() const override { return LoggerRef(new RecordingLogger(*this)); }

 private:
  std::vector<LogMessage>* m_out;
};

int evaluations = 0;
String counted(const char* text) {
  ++evaluations;
  return String(text);
}

TEST(LoggerTest, CallsAndMacrosEmitAtOrBelowTheLevel) {
  struct Row {
    ELogLevel level;
    const char* categories;
  } rows[] = {
      {E_NONE_LEVEL, ""},
      {E_FATAL_ERROR_LEVEL, "FATAL FATAL"},
      {E_ERROR_LEVEL, "FATAL ERROR FATAL ERROR"},
      {E_INFO_LEVEL, "FATAL ERROR INFO FATAL ERROR INFO"},
      {E_DEBUG_LEVEL, "FATAL ERROR INFO DEBUG FATAL ERROR INFO DEBUG"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.categories);
    std::vector<LogMessage> out;
    LoggerRef logger(new RecordingLogger(row.level, &out));
    logger->logFatalError("f");
    logger->logError("e");
    logger->logInfo("i");
    logger->logDebug("d");
    evaluations = 0;
    OW_LOG_FATAL_ERROR(logger, counted("f"));
    OW_LOG_ERROR(logger, counted("e"));
    OW_LOG_INFO(logger, counted("i"));
    OW_LOG_DEBUG(logger, Format("%1", counted("d")));
    String seen;
    for (const LogMessage& m : out) {
      seen += (seen.empty() ? "" : " ") + m.category;
      EXPECT_STREQ("Zeph_RASProvider", m.component.c_str());
    }
    EXPECT_STREQ(row.categories, seen.c_str());
    EXPECT_EQ(int(out.size()) / 2, evaluations);
  }
}

TEST(LoggerTest, MessagesKeepTextAndSite) {
  std::vector<LogMessage> out;
  LoggerRef logger(new RecordingLogger(E_ERROR_LEVEL, &out));
  logger->logError("Zeph_CallInSettingDataImpl::getDNNumber\n", "file.cpp", 12, "m");
  logger->logMessage(Logger::STR_DEBUG_CATEGORY, "always");
  ASSERT_EQ(2u, out.size());
  EXPECT_STREQ("Zeph_CallInSettingDataImpl::getDNNumber\n", out[0].message.c_str());
  EXPECT_STREQ("file.cpp", out[0].filename);
  EXPECT_EQ(12, out[0].fileline);
  EXPECT_STREQ("DEBUG", out[1].category.c_str());
  LoggerRef copy = logger->clone();
  EXPECT_EQ(E_ERROR_LEVEL, copy->getLogLevel());
}

}  // namespace
