// The one way the module hands a command line to the shell: a printf-like format whose %s
// and %d slots are filled with values made safe for the place they land in.
#ifndef ZEPH_COMMANDRUNNER_H
#define ZEPH_COMMANDRUNNER_H

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "Zeph_ApplianceFiles.h"

namespace ras {

// One value for a %s or %d slot of a command format.
class CommandArg {
 public:
  CommandArg(const char* text) : text_(text ? text : ""), isNumber_(false) {}
  CommandArg(const std::string& text) : text_(text), isNumber_(false) {}
  template <std::size_t N>
  CommandArg(const ScriptPath<N>& path) : text_(path.text), isNumber_(false) {}
  CommandArg(int number) : text_(std::to_string(number)), isNumber_(true) {}
  CommandArg(unsigned number) : text_(std::to_string(number)), isNumber_(true) {}
  CommandArg(long number) : text_(std::to_string(number)), isNumber_(true) {}
  CommandArg(unsigned long number) : text_(std::to_string(number)), isNumber_(true) {}

  const std::string& text() const { return text_; }
  bool isNumber() const { return isNumber_; }

 private:
  std::string text_;
  bool isNumber_;
};

// A command line built from a format and its values. The format knows only %s, %d and %%.
// A value with only ordinary characters lands as it is, so documented command lines stay
// byte for byte the same. Otherwise, outside quotes it becomes one single-quoted shell word;
// inside double quotes it is refused if it holds `"`, `$`, a backquote or a backslash; inside
// single quotes (always a sed expression) it is refused unless it is plain text (blanks
// allowed) without "/".
// A control character anywhere is refused (one trailing newline excepted, when its slot ends
// the format), and so is a %d value that is not a decimal number. A command that would not
// fit the 1024-byte buffer the appliance's tools were written for is refused too.
class ShellCommand {
 public:
  ShellCommand(const char* format, std::initializer_list<CommandArg> args);

  bool valid() const { return valid_; }
  const std::string& text() const { return text_; }

  // Runs the line with system(). A refused line is logged and not run (result -1): a last
  // defence that no client value reaches, since every setter builds its lines and refuses
  // the value before it runs the first (see CommandSequence).
  int run() const;

 private:
  std::string text_;
  bool valid_;
};

// The command lines of one setter's sequence, all built before the first runs, so that a
// value that cannot be formatted safely into every one of them is refused with nothing run.
class CommandSequence {
 public:
  CommandSequence& add(const char* format, std::initializer_list<CommandArg> args) {
    return add(ShellCommand(format, args));
  }
  CommandSequence& add(ShellCommand command) {
    commands_.push_back(std::move(command));
    return *this;
  }

  // True when every line of the sequence is safe.
  bool valid() const;

  // Runs every line in order when all are safe, none otherwise; valid().
  bool run() const;

 private:
  std::vector<ShellCommand> commands_;
};

// A count that moves whenever the appliance's files may have changed under the module: at
// every command line it runs (any thread) and at the start of every request (anything else
// may edit them between requests). A reader that keeps what it parsed of a file keeps it only
// while the count stays the same.
unsigned long fileEpoch();
void newFileEpoch();

// Builds and runs a command in one step; the result is system()'s, or -1 when refused.
int runCommand(const char* format, std::initializer_list<CommandArg> args);

// True when `value` can stand in a command line as it is, in any quoting context.
bool isPlainShellValue(const std::string& value);

// `value` as one shell word: unchanged when plain, else single-quoted.
std::string shellWord(const std::string& value);

// The formats of a helper script run with plain arguments.
inline constexpr char kScriptNumber[] = "%s %d";
inline constexpr char kScriptText[] = "%s %s";
inline constexpr char kScriptNumberText[] = "%s %d %s";

// Log text for a refused command (error level).
extern const char* const kCommandRefusedLog;

// The editor of every in-place file edit: "%s -i '<expression>' %s" with this and the file.
extern const char* const kSed;

// Longest command line the module runs (the original buffers hold 1024 bytes).
constexpr std::size_t kMaxCommandLength = 1023;

}  // namespace ras

#endif  // ZEPH_COMMANDRUNNER_H
