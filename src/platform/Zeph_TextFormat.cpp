// printf-style formatting into a std::string sized to the result.
#include "Zeph_TextFormat.h"

#include <cstdarg>
#include <cstdio>

namespace ras {

std::string formatText(const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list sizing;
  va_copy(sizing, args);
  const int length = std::vsnprintf(nullptr, 0, format, sizing);
  va_end(sizing);
  std::string text(length > 0 ? static_cast<std::size_t>(length) : 0U, '\0');
  if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, args);
  va_end(args);
  return text;
}

}  // namespace ras
