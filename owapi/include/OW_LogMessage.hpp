// One log record: component, category, text and where it was written.
#ifndef OW_LOG_MESSAGE_HPP_INCLUDE_GUARD_
#define OW_LOG_MESSAGE_HPP_INCLUDE_GUARD_
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

struct LogMessage {
  LogMessage(const String& component_, const String& category_, const String& message_,
             const char* filename_, int fileline_, const char* methodname_)
      : component(component_),
        category(category_),
        message(message_),
        filename(filename_),
        fileline(fileline_),
        methodname(methodname_) {}

  String component;
  String category;
  String message;
  const char* filename;
  int fileline;
  const char* methodname;
};

}  // namespace OW_NAMESPACE

#endif
