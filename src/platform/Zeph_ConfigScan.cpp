// Line scanning for the configuration reader: search keys, sscanf formats bounded to the
// reader's buffers (a value longer than a buffer is cut instead of overrunning it), and the
// loop that finds and scans the lines that begin with a key.
#include "Zeph_ConfigScan.h"

#include <algorithm>
#include <cstring>

#include "Zeph_PlatformLog.h"

namespace ras {

namespace {

const char* const kLogCompared = "Compared";
const char* const kLogExactLine = "Setting value true for PPPP";
const char* const kLogComparedFalse = "Compared false";

// One parsed conversion, from its "%" to its last character.
struct Conversion {
  bool suppressed = false;
  std::size_t width = 0;  // 0: none given
  std::string length;     // length modifier letters
  std::string body;       // conversion letter, with the scanset for "["
  const char* end = nullptr;
};

// Reads a scanset after "[", the closing "]" included; false when it is not closed.
bool readScanset(const char*& p, std::string& body) {
  body = "[";
  ++p;
  if (*p == '^') body += *p++;
  if (*p == ']') body += *p++;
  while (*p != '\0' && *p != ']') body += *p++;
  if (*p != ']') return false;
  body += *p++;
  return true;
}

// Parses the conversion that starts at `p` (just after "%").
bool parseConversion(const char* p, Conversion& conv) {
  if (*p == '*') {
    conv.suppressed = true;
    ++p;
  }
  for (; *p >= '0' && *p <= '9'; ++p) {
    if (conv.width < 100000) conv.width = conv.width * 10 + static_cast<std::size_t>(*p - '0');
  }
  while (*p != '\0' && std::strchr("hlLqjztm", *p) != nullptr) conv.length += *p++;
  if (*p == '\0') return false;
  if (*p == '[') {
    if (!readScanset(p, conv.body)) return false;
  } else {
    conv.body = *p++;
  }
  conv.end = p;
  return true;
}

bool boundIntConversion(const Conversion& conv, std::string& out) {
  if (conv.body != "d" && conv.body != "i") return false;
  out += "%" + (conv.width ? std::to_string(conv.width) : std::string()) + conv.body;
  return true;
}

// A text conversion gets at most the buffer's room; "%s" and "%[" without a width get all of it.
bool boundTextConversion(const Conversion& conv, std::size_t bufferSize, std::string& out) {
  const char letter = conv.body[0];
  if (letter != 's' && letter != '[' && letter != 'c') return false;
  const std::size_t fallback = letter == 'c' ? 1 : bufferSize - 1;
  const std::size_t width = std::min(conv.width ? conv.width : fallback, bufferSize - 1);
  out += "%" + std::to_string(width) + conv.body;
  return true;
}

// The text of a storing conversion bounded for `target`, or false when it does not fit it.
bool boundConversion(const Conversion& conv, ScanTarget target, std::size_t bufferSize,
                     std::string& out) {
  if (!conv.length.empty() || bufferSize < 2) return false;
  return target == ScanTarget::Int ? boundIntConversion(conv, out)
                                   : boundTextConversion(conv, bufferSize, out);
}

}  // namespace

bool boundedScanFormat(const char* format, ScanTarget target, std::size_t bufferSize,
                       std::string& out) {
  out.clear();
  for (const char* p = format; *p != '\0';) {
    if (*p != '%') {
      out += *p++;
      continue;
    }
    if (p[1] == '%') {
      out += "%%";
      p += 2;
      continue;
    }
    Conversion conv;
    if (!parseConversion(p + 1, conv)) return false;
    if (!conv.suppressed) return boundConversion(conv, target, bufferSize, out);
    out.append(p, conv.end);
    p = conv.end;
  }
  return true;
}

std::string configKey(const char* format) {
  char copy[kKeySize] = {};
  std::strncpy(copy, format, kKeySize - 1);
  const std::string whole = copy;
  char* save = nullptr;
  const char* token = strtok_r(copy, "%", &save);
  return token != nullptr ? token : whole;
}

namespace {

enum class OutputKind { None, Int, Text };

OutputKind outputKind(const char* format) {
  if (std::strstr(format, "%d") != nullptr) return OutputKind::Int;
  if (std::strstr(format, "%s") != nullptr) return OutputKind::Text;
  return OutputKind::None;
}

// Scans one matching line into the caller's output; a text output is set even when
// nothing converts.
void scanInto(const char* line, const char* format, OutputKind kind, void* output) {
  std::string bounded;
  if (kind == OutputKind::Int) {
    if (boundedScanFormat(format, ScanTarget::Int, sizeof(int), bounded)) {
      std::sscanf(line, bounded.c_str(), static_cast<int*>(output));
    }
    return;
  }
  char value[kConfigValueSize] = {};
  if (boundedScanFormat(format, ScanTarget::Text, sizeof value, bounded)) {
    std::sscanf(line, bounded.c_str(), value);
  }
  *static_cast<std::string*>(output) = value;
}

// The line without its last character (the newline) equals the key.
bool isExactLine(const char* line, const std::string& key) {
  platformLogDebug(kLogCompared);
  std::string rest = line;
  if (!rest.empty()) rest.pop_back();
  if (rest == key) {
    platformLogDebug(kLogExactLine);
    return true;
  }
  platformLogDebug(kLogComparedFalse);
  return false;
}

}  // namespace

// The caller passes one output, so only the first matching line is scanned; later matching
// lines are still compared.
int scanConfigLines(FILE* stream, const char* format, va_list args, bool exactTest) {
  const std::string key = configKey(format);
  const OutputKind kind = outputKind(format);
  bool outputUsed = false;
  int result = 0;
  char line[kLineSize] = {};
  while (std::fgets(line, sizeof line, stream) != nullptr) {
    if (std::strncmp(line, key.c_str(), key.size()) != 0) continue;
    if (!exactTest || isExactLine(line, key)) result = 1;
    if (kind == OutputKind::None || outputUsed) continue;
    void* output = kind == OutputKind::Int ? static_cast<void*>(va_arg(args, int*))
                                           : static_cast<void*>(va_arg(args, std::string*));
    outputUsed = true;
    scanInto(line, format, kind, output);
  }
  return result;
}

}  // namespace ras
