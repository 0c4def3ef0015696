// Logger: level filtering of the log calls and macros, and the default component.
#include <gtest/gtest.h>

#include <vector>

#include "OW_Format.hpp"
#include "OW_LogMessage.hpp"
#include "OW_Logger.hpp"
#include "RecordingLogger.h"

using namespace OpenWBEM;

namespace {

IntrusiveReference<RecordingLogger> recorder(ELogLevel level) {
  return new RecordingLogger(level, "Zeph_RASProvider");
}

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
    const IntrusiveReference<RecordingLogger> out = recorder(row.level);
    LoggerRef logger(out);
    logger->logFatalError("f");
    logger->logError("e");
    logger->logInfo("i");
    logger->logDebug("d");
    evaluations = 0;
    OW_LOG_FATAL_ERROR(logger, counted("f"));
    OW_LOG_ERROR(logger, counted("e"));
    OW_LOG_INFO(logger, counted("i"));
    OW_LOG_DEBUG(logger, Format("%1", counted("d")));
    std::string seen;
    for (const LogLine& m : out->lines()) {
      seen += (seen.empty() ? "" : " ") + m.category;
      EXPECT_EQ("Zeph_RASProvider", m.component);
    }
    EXPECT_EQ(row.categories, seen);
    EXPECT_EQ(int(out->lines().size()) / 2, evaluations);
  }
}

TEST(LoggerTest, MessagesKeepTextAndSite) {
  const IntrusiveReference<RecordingLogger> recorded = recorder(E_ERROR_LEVEL);
  LoggerRef logger(recorded);
  logger->logError("Zeph_CallInSettingDataImpl::getDNNumber\n", "file.cpp", 12, "m");
  logger->logMessage(Logger::STR_DEBUG_CATEGORY, "always");
  const std::vector<LogLine> out = recorded->lines();
  ASSERT_EQ(2u, out.size());
  EXPECT_EQ("Zeph_CallInSettingDataImpl::getDNNumber\n", out[0].text);
  EXPECT_EQ("file.cpp", out[0].file);
  EXPECT_EQ(12, out[0].fileLine);
  EXPECT_EQ("DEBUG", out[1].category);
  LoggerRef copy = logger->clone();
  EXPECT_EQ(E_ERROR_LEVEL, copy->getLogLevel());
}

}  // namespace
