// Read patterns and sed edit lines of the dial scripts' declared variables.
#include "Zeph_ShellVariable.h"

#include "Zeph_ConfigReader.h"

namespace ras {
namespace {

const char* const kOpenValue = "=\"";
const char* const kCloseValue = "\"";
const char* const kNumberSlot = "%d";
const char* const kTextSlot = "%s";
const char* const kEditHead = "%s -i '/^";
const char* const kEditChange = "/ c ";
const char* const kEditTail = "' %s";

}  // namespace

std::string ShellVariable::readPattern() const {
  const std::string head = std::string(declaration) + kOpenValue;
  return kind == Kind::Number ? head + kNumberSlot + kCloseValue : head + kTextSlot;
}

std::string ShellVariable::editFormat() const {
  return std::string(kEditHead) + declaration + kEditChange + declaration + kOpenValue +
         (kind == Kind::Number ? kNumberSlot : kTextSlot) + kCloseValue + kEditTail;
}

int ShellVariable::read(int& value) const {
  return getConfigParameter(file, readPattern().c_str(), &value);
}

int ShellVariable::read(std::string& value) const {
  return getConfigParameter(file, readPattern().c_str(), &value);
}

ShellCommand ShellVariable::edit(const CommandArg& value) const {
  return ShellCommand(editFormat().c_str(), {kSed, value, file});
}

}  // namespace ras
