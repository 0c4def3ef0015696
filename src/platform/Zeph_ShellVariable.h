// A variable that a dial script declares on a line of its own ("declare NAME=\"value\""): the
// one description from which both its read pattern and its in-place edit are made.
#ifndef ZEPH_SHELLVARIABLE_H
#define ZEPH_SHELLVARIABLE_H

#include <string>

#include "Zeph_CommandRunner.h"

namespace ras {

struct ShellVariable {
  enum class Kind { Number, Text };

  const char* file;         // the script that declares it
  const char* declaration;  // "declare NAME" or "declare -r NAME"
  Kind kind;

  // The configuration reader's format: `declaration="%d"`, or `declaration="%s` for text,
  // whose scanned value then keeps the closing quote.
  std::string readPattern() const;

  // The command format that replaces the declaration line:
  // `%s -i '/^declaration/ c declaration="%d"' %s`, with "%s" in the quotes for text.
  std::string editFormat() const;

  // Reads the value into `value`; the reader's result (-1 when the file cannot be opened).
  int read(int& value) const;
  int read(std::string& value) const;

  // The edit that sets the variable to `value`.
  ShellCommand edit(const CommandArg& value) const;
};

}  // namespace ras

#endif  // ZEPH_SHELLVARIABLE_H
