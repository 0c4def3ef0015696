// Builds command lines from formats and values, keeps values from changing a line's
// meaning, and runs the lines with system().
#include "Zeph_CommandRunner.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

#include "Zeph_PlatformLog.h"
#include "Zeph_RestingPlace.h"

namespace ras {

const char* const kCommandRefusedLog = "Command not run: a value is not safe for the shell\n";
const char* const kSed = "/bin/sed";

namespace {

enum class Quoting { None, Single, Double };

bool hasAnyOf(const std::string& value, const char* chars) {
  return value.find_first_of(chars) != std::string::npos;
}

bool isControl(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code < 0x20 || code == 0x7f;
}

// Control characters (newline, carriage return, NUL, tab, escape...) have no place in any
// value: no quoting keeps a line break or a NUL from cutting the line.
bool hasControl(const std::string& value) {
  for (char c : value) {
    if (isControl(c)) return true;
  }
  return false;
}

bool isDecimal(const std::string& value) {
  std::size_t i = (!value.empty() && value[0] == '-') ? 1 : 0;
  if (i == value.size()) return false;
  for (; i < value.size(); ++i) {
    if (value[i] < '0' || value[i] > '9') return false;
  }
  return true;
}

// The text that lands in the slot, or false when the value cannot be made safe there.
bool safeSlotText(const CommandArg& arg, char conversion, Quoting quoting, std::string& out) {
  const std::string& value = arg.text();
  if (conversion == 'd' && !isDecimal(value)) return false;
  if (hasControl(value)) return false;
  switch (quoting) {
    case Quoting::None:
      out = shellWord(value);
      return true;
    case Quoting::Single:
      // Every single-quoted slot lies in a sed expression.
      out = value;
      return staysData(value, RestingPlace::SedText);
    case Quoting::Double:
      out = value;
      return !hasAnyOf(value, "\"$`\\");
  }
  return false;
}

// A value read from a file may keep the newline of its line when its slot ends the format:
// the newline then only ends the command line. Returns the value without it, or as it is.
CommandArg withoutFinalNewline(const CommandArg& arg, const char* rest, Quoting quoting) {
  const std::string& value = arg.text();
  if (*rest != '\0' || quoting != Quoting::None || value.empty() || value.back() != '\n') {
    return arg;
  }
  return CommandArg(value.substr(0, value.size() - 1));
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
    const CommandArg& arg = *next++;
    const CommandArg value = withoutFinalNewline(arg, p + 2, quoting);
    std::string slot;
    if (!safeSlotText(value, p[1], quoting, slot)) return false;
    out += slot;
    if (value.text().size() != arg.text().size()) out += '\n';
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

namespace {
std::atomic<unsigned long> epoch{0};
}  // namespace

unsigned long fileEpoch() {
  return epoch.load();
}

void newFileEpoch() {
  ++epoch;
}

int ShellCommand::run() const {
  if (!valid_) {
    platformLogError(kCommandRefusedLog);
    return -1;
  }
  newFileEpoch();
  const int result = std::system(text_.c_str());
  newFileEpoch();
  return result;
}

bool CommandSequence::valid() const {
  for (const ShellCommand& command : commands_) {
    if (!command.valid()) return false;
  }
  return true;
}

bool CommandSequence::run() const {
  if (!valid()) return false;
  for (const ShellCommand& command : commands_) command.run();
  return true;
}

int runCommand(const char* format, std::initializer_list<CommandArg> args) {
  return ShellCommand(format, args).run();
}

}  // namespace ras
