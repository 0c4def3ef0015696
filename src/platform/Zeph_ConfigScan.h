// Line scanning shared by the configuration reader: the search key of a format, the bounded
// form of a caller's sscanf format, and the matching loop of getConfigParameter.
#ifndef ZEPH_CONFIGSCAN_H
#define ZEPH_CONFIGSCAN_H

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <string>

namespace ras {

// Buffer sizes of the appliance's readers; they bound what a line, key or value can hold.
constexpr std::size_t kLineSize = 1024;
constexpr std::size_t kKeySize = 80;
constexpr std::size_t kConfigValueSize = 80;
constexpr std::size_t kFileValueSize = 1024;

enum class ScanTarget { Int, Text };

// Writes the bounded form of `format` to `out`: cut after the first conversion that stores a
// value, a text conversion given a width that fits `bufferSize` bytes. False when that
// conversion does not write `target`: the caller then does not scan. A format without a
// storing conversion is kept whole.
bool boundedScanFormat(const char* format, ScanTarget target, std::size_t bufferSize,
                       std::string& out);

// The search key of a format: its text before the first "%" (leading "%"s skipped; the whole
// format when nothing else is left), at most 79 characters.
std::string configKey(const char* format);

// Reads `stream` line by line and counts the lines that begin with the key of `format`.
// With `exactTest` the result is 1 only for a line that is exactly the key (without its last
// character), else for any matching line. The first matching line is scanned into the one
// output in `args` (an int* for "%d", a std::string* for "%s", none otherwise).
int scanConfigLines(FILE* stream, const char* format, va_list args, bool exactTest);

}  // namespace ras

#endif  // ZEPH_CONFIGSCAN_H
