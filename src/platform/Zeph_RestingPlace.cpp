// The characters that would turn a value into code, words, lines or comments in each place
// the module writes values to.
#include "Zeph_RestingPlace.h"

#include "Zeph_CommandRunner.h"

namespace ras {

namespace {

bool hasControl(const std::string& value) {
  for (char c : value) {
    const auto code = static_cast<unsigned char>(c);
    if (code < 0x20 || code == 0x7f) return true;
  }
  return false;
}

bool hasAnyOf(const std::string& value, const char* chars) {
  return value.find_first_of(chars) != std::string::npos;
}

// Ordinary characters and blanks, without "/".
bool isSedText(const std::string& value) {
  for (char c : value) {
    if (c == '/' || (c != ' ' && !isPlainShellValue(std::string(1, c)))) return false;
  }
  return true;
}

}  // namespace

bool staysData(const std::string& value, RestingPlace place) {
  if (hasControl(value)) return false;
  switch (place) {
    case RestingPlace::SedText:
      return isSedText(value);
    case RestingPlace::QuotedAssignment:
      return !hasAnyOf(value, "$`\"\\");
    case RestingPlace::PppdWord:
      return !hasAnyOf(value, " #\"'\\");
    case RestingPlace::AddressPart:
      return !hasAnyOf(value, " #\"'\\:");
    case RestingPlace::SecretColumn:
      return !hasAnyOf(value, "\"\\") && (value.empty() || value[0] != '@');
  }
  return false;
}

bool staysData(const std::string& value, std::initializer_list<RestingPlace> places) {
  for (RestingPlace place : places) {
    if (!staysData(value, place)) return false;
  }
  return true;
}

}  // namespace ras
