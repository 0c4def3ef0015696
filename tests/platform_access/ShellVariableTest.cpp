// Declared script variables: the read pattern and the sed line made from one description are
// the appliance's documented forms, byte for byte.
#include <gmock/gmock.h>

#include "Zeph_ShellVariable.h"

namespace {

using ras::ShellCommand;
using ras::ShellVariable;

TEST(ShellVariableTest, ReadPatternAndEditLineComeFromOneDescription) {
  const struct {
    ShellVariable variable;
    ras::CommandArg value;
    const char* pattern;
    const char* line;
  } rows[] = {
      {{"/qv/etc/ppp/mgetty_v2k", "declare -r NUMBER_OF_RINGS", ShellVariable::Kind::Number},
       7,
       "declare -r NUMBER_OF_RINGS=\"%d\"",
       "/bin/sed -i '/^declare -r NUMBER_OF_RINGS/ c declare -r NUMBER_OF_RINGS=\"7\"' "
       "/qv/etc/ppp/mgetty_v2k"},
      {{"/qv/etc/ppp/ppp_call_v2k", "declare TELEPHONE_NUMBER", ShellVariable::Kind::Text},
       "0815",
       "declare TELEPHONE_NUMBER=\"%s",
       "/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare TELEPHONE_NUMBER=\"0815\"' "
       "/qv/etc/ppp/ppp_call_v2k"},
      {{"/qv/etc/ppp/callback_v2k", "declare CALLBACK_RETRY", ShellVariable::Kind::Number},
       3,
       "declare CALLBACK_RETRY=\"%d\"",
       "/bin/sed -i '/^declare CALLBACK_RETRY/ c declare CALLBACK_RETRY=\"3\"' "
       "/qv/etc/ppp/callback_v2k"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.variable.readPattern(), row.pattern) << row.variable.declaration;
    const ShellCommand edit(row.variable.editFormat().c_str(),
                            {ras::kSed, row.value, row.variable.file});
    EXPECT_EQ(edit.text(), row.line) << row.variable.declaration;
  }
  // A text value that could end the quoted expression is refused, not run.
  const ShellVariable number = rows[1].variable;
  EXPECT_FALSE(
      ShellCommand(number.editFormat().c_str(), {ras::kSed, "1'; reboot; '", number.file}).valid());
}

}  // namespace
