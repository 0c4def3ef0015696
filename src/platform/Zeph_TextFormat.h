// printf-style formatting into a std::string, for log lines and registry values.
#ifndef ZEPH_TEXTFORMAT_H
#define ZEPH_TEXTFORMAT_H

#include <string>

namespace ras {

// `format` filled with the values that follow, never cut short.
std::string formatText(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace ras

#endif  // ZEPH_TEXTFORMAT_H
