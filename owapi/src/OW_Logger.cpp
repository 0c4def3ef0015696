// Logger: level and category filtering in front of the subclass's output.
#include "OW_Logger.hpp"

#include "OW_LogMessage.hpp"

namespace OW_NAMESPACE {

const String Logger::STR_NONE_CATEGORY("NONE");
const String Logger::STR_FATAL_CATEGORY("FATAL");
const String Logger::STR_ERROR_CATEGORY("ERROR");
const String Logger::STR_INFO_CATEGORY("INFO");
const String Logger::STR_DEBUG_CATEGORY("DEBUG");
const String Logger::STR_ALL_CATEGORY("ALL");
const String Logger::STR_DEFAULT_COMPONENT("none");

Logger::~Logger() {}

Logger::Logger(const String& defaultComponent, const ELogLevel logLevel)
    : m_logLevel(logLevel), m_defaultComponent(defaultComponent) {}
Logger::Logger() : m_logLevel(E_ERROR_LEVEL), m_defaultComponent(STR_DEFAULT_COMPONENT) {}
Logger::Logger(const ELogLevel logLevel)
    : m_logLevel(logLevel), m_defaultComponent(STR_DEFAULT_COMPONENT) {}
Logger::Logger(const Logger& x)
    : IntrusiveCountableBase(x),
      m_logLevel(x.m_logLevel),
      m_defaultComponent(x.m_defaultComponent) {}

Logger& Logger::operator=(const Logger& x) {
  m_logLevel = x.m_logLevel;
  m_defaultComponent = x.m_defaultComponent;
  return *this;
}

void Logger::swap(Logger& x) {
  std::swap(m_logLevel, x.m_logLevel);
  m_defaultComponent.swap(x.m_defaultComponent);
}

void Logger::processLogMessage(const LogMessage& message) const {
  doProcessLogMessage(message);
}

void Logger::logFatalError(const String& message, const char* filename, int fileline,
                           const char* methodname) const {
  if (m_logLevel >= E_FATAL_ERROR_LEVEL) {
    logMessage(STR_FATAL_CATEGORY, message, filename, fileline, methodname);
  }
}

void Logger::logError(const String& message, const char* filename, int fileline,
                      const char* methodname) const {
  if (m_logLevel >= E_ERROR_LEVEL) {
    logMessage(STR_ERROR_CATEGORY, message, filename, fileline, methodname);
  }
}

void Logger::logInfo(const String& message, const char* filename, int fileline,
                     const char* methodname) const {
  if (m_logLevel >= E_INFO_LEVEL) {
    logMessage(STR_INFO_CATEGORY, message, filename, fileline, methodname);
  }
}

void Logger::logDebug(const String& message, const char* filename, int fileline,
                      const char* methodname) const {
  if (m_logLevel >= E_DEBUG_LEVEL) {
    logMessage(STR_DEBUG_CATEGORY, message, filename, fileline, methodname);
  }
}

void Logger::logMessage(const String& component, const String& category,
                        const String& message) const {
  processLogMessage(LogMessage(component, category, message, 0, -1, 0));
}

void Logger::logMessage(const String& component, const String& category, const String& message,
                        const char* filename, int fileline, const char* methodname) const {
  processLogMessage(LogMessage(component, category, message, filename, fileline, methodname));
}

void Logger::logMessage(const String& category, const String& message) const {
  processLogMessage(LogMessage(m_defaultComponent, category, message, 0, -1, 0));
}

void Logger::logMessage(const String& category, const String& message, const char* filename,
                        int fileline, const char* methodname) const {
  processLogMessage(
      LogMessage(m_defaultComponent, category, message, filename, fileline, methodname));
}

void Logger::logMessage(const LogMessage& message) const {
  processLogMessage(message);
}

void Logger::setDefaultComponent(const String& component) {
  m_defaultComponent = component;
}
String Logger::getDefaultComponent() const {
  return m_defaultComponent;
}
void Logger::setLogLevel(ELogLevel logLevel) {
  m_logLevel = logLevel;
}

void Logger::setLogLevel(const String& logLevel) {
  const String* const names[] = {&STR_NONE_CATEGORY, &STR_FATAL_CATEGORY, &STR_ERROR_CATEGORY,
                                 &STR_INFO_CATEGORY, &STR_DEBUG_CATEGORY, &STR_ALL_CATEGORY};
  for (int level = E_NONE_LEVEL; level <= E_ALL_LEVEL; ++level) {
    if (logLevel.equalsIgnoreCase(*names[level])) {
      m_logLevel = ELogLevel(level);
      return;
    }
  }
  m_logLevel = E_DEBUG_LEVEL;
}

bool Logger::categoryIsEnabled(const String& category) const {
  return doCategoryIsEnabled(category);
}

bool Logger::levelIsEnabled(const ELogLevel level) {
  return getLogLevel() >= level;
}

bool Logger::componentAndCategoryAreEnabled(const String& component, const String& category) const {
  return doComponentAndCategoryAreEnabled(component, category);
}

LoggerRef Logger::clone() const {
  return doClone();
}

bool Logger::doCategoryIsEnabled(const String&) const {
  return true;
}

bool Logger::doComponentAndCategoryAreEnabled(const String&, const String&) const {
  return true;
}

}  // namespace OW_NAMESPACE
