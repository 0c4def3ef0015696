// Builds command lines from formats and values, keeps values from changing a line's
// meaning, and runs the lines with system().
#include "Zeph_CommandRunner.h"

#include <cstdlib>
#include <cstring>

#include "Zeph_PlatformLog.h"

namespace ras {

const char* const kCommandRefusedLog = "Command not run: a value is not safe for the shell\n";
const char* const kSed = "/bin/sed";

namespace {

enum class Quoting { None, Single, Double };

bool hasAnyOf(const std::string& value, const char* chars, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    if (value.find(chars[i]) != std::string::npos) return true;
  }
  return false;
}

// Characters that no quoting context makes harmless in a single line.
bool breaksLine(const std::string& value) {
  return hasAnyOf(value, "\n\r\0", 3);
}

// The text that lands in the slot, or false when the value cannot be made safe there.
bool safeSlotText(const CommandArg& arg, Quoting quoting, std::string& out) {
  const std::string& value = arg.text();
  if (arg.isNumber() || isPlainShellValue(value)) {
    out = value;
    return true;
  }
  if (breaksLine(value)) return false;
  switch (quoting) {
    case Quoting::None:
      out = shellWord(value);
      return true;
    case Quoting::Single:
      out = value;
      return value.find('\'') == std::string::npos;
    case Quoting::Double:
      out = value;
      return !hasAnyOf(value, "\"$`\\", 4);
  }
  return false;
}

// Follows the shell's quoting through one format character; returns how many characters
// (1 or 2, for a backslash escape) belong together.
std::size_t advanceQuoting(const char* p, Quoting& quoting) {
  const char c = *p;
  if (quoting == Quoting::Single) {
    if (c == '\'') quoting = Quoting::None;
    return 1;
  }
  if (c == '\\' && p[1] != '\0') return 2;
  if (c == '"') quoting = quoting == Quoting::Double ? Quoting::None : Quoting::Double;
  if (c == '\'' && quoting == Quoting::None) quoting = Quoting::Single;
  return 1;
}

// Fills the slots of `format`; false when a slot is unknown, a value is missing or unsafe.
bool fillFormat(const char* format, std::initializer_list<CommandArg> args, std::string& out) {
  auto next = args.begin();
  Quoting quoting = Quoting::None;
  for (const char* p = format; *p != '\0';) {
    if (*p != '%') {
      const std::size_t n = advanceQuoting(p, quoting);
      out.append(p, n);
      p += n;
      continue;
    }
    if (p[1] == '%') {
      out += '%';
      p += 2;
      continue;
    }
    if ((p[1] != 's' && p[1] != 'd') || next == args.end()) return false;
    std::string slot;
    if (!safeSlotText(*next++, quoting, slot)) return false;
    out += slot;
    p += 2;
  }
  return next == args.end();
}

}  // namespace

bool isPlainShellValue(const std::string& value) {
  for (char c : value) {
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                       std::strchr("_./:,+-=@%", c) != nullptr;
    if (!plain || c == '\0') return false;
  }
  return true;
}

std::string shellWord(const std::string& value) {
  if (isPlainShellValue(value)) return value;
  std::string word = "'";
  for (char c : value) {
    if (c == '\'') {
      word += "'\\''";
    } else {
      word += c;
    }
  }
  return word + "'";
}

ShellCommand::ShellCommand(const char* format, std::initializer_list<CommandArg> args)
    : valid_(false) {
  std::string line;
  if (format != nullptr && fillFormat(format, args, line) && line.size() <= kMaxCommandLength) {
    text_ = line;
    valid_ = true;
  }
}

int ShellCommand::run() const {
  if (!valid_) {
    platformLogError(kCommandRefusedLog);
    return -1;
  }
  return std::system(text_.c_str());
}

int runCommand(const char* format, std::initializer_list<CommandArg> args) {
  return ShellCommand(format, args).run();
}

}  // namespace ras
