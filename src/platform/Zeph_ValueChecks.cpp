// Checks of client values and the number and time formats: dotted-quad addresses, netmasks,
// modem line numbers against the registry's range, datetime intervals, itoa and reverse.
#include "Zeph_ValueChecks.h"

#include <arpa/inet.h>
#include <netinet/in.h>

#include <cctype>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "Zeph_CommandRunner.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_Registry.h"
#include "Zeph_RestingPlace.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

constexpr std::size_t kAddressCopySize = 256;

const char* const kLogNotDigit = "Character is not a digit at %d %d\n";
const char* const kLogTooLong = "Length is grater than 3 %d\n";
const char* const kLogOutOfRange = "Less than 0 and greater than 255 %d %d\n";
const char* const kLogNotEnoughTokens = "Not Enough Tokens\n";
const char* const kLogBlankMask = "Blank Mask\n";
const char* const kLogInetAtonFailed = "inet_aton failed\n";
const char* const kLogBadLineNumber = "Not Valid Line Number";
const char* const kLogBadFallbackLine = "Condition is True for 0";
const char* const kLogInvalidTime = "Invalid time value\n";

const char* const kDatetimePrefixes[] = {"0000010100000", "000001010000", "00000101000",
                                         "0000010100"};
const char* const kDatetimeSuffix = ".000000+000";

// Line range used when the registry does not give one.
constexpr int kFallbackLineMin = 1;
constexpr int kFallbackLineMax = 268;

}  // namespace

namespace {

// atoi without its overflow: out-of-range numbers saturate.
int toInt(const char* text) {
  const long value = std::strtol(text, nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

// Checks one of the first four parts of a dotted quad; logs every reason it fails.
bool isAddressPartValid(const char* token, int index) {
  bool valid = true;
  const std::size_t length = std::strlen(token);
  int position = 0;
  if (length < 4) {
    for (std::size_t i = 0; i < length; ++i) {
      position = static_cast<int>(i) + 1;
      if (std::isdigit(static_cast<unsigned char>(token[i]))) continue;
      platformLogDebug(formatText(kLogNotDigit, index, position));
      valid = false;
    }
  } else {
    platformLogDebug(formatText(kLogTooLong, index));
    valid = false;
  }
  const int number = toInt(token);
  if (number < 0 || number > 255) {
    platformLogDebug(formatText(kLogOutOfRange, index, position));
    valid = false;
  }
  return valid;
}

}  // namespace

int IsIPValid(char* address) {
  char copy[kAddressCopySize] = {};
  std::strncpy(copy, address, kAddressCopySize - 1);
  int valid = 1;
  int index = 0;
  char* save = nullptr;
  for (char* token = strtok_r(copy, ".", &save); token != nullptr && index < 4; ++index) {
    if (!isAddressPartValid(token, index)) valid = 0;
    token = strtok_r(nullptr, ".", &save);
  }
  if (index < 4) {
    platformLogDebug(kLogNotEnoughTokens);
    valid = 0;
  }
  return valid;
}

int IsMaskValid(char* mask) {
  if (mask == nullptr || mask[0] == '\0') {
    platformLogDebug(kLogBlankMask);
    return 0;
  }
  in_addr address{};
  if (inet_aton(mask, &address) == 0) {
    platformLogDebug(kLogInetAtonFailed);
    return 0;
  }
  std::uint32_t bits = ntohl(address.s_addr);
  int counter = 32;
  for (; counter > 0 && (bits & 1U) == 0; --counter) bits >>= 1;
  for (; counter > 0; --counter) {
    if ((bits & 1U) == 0) return 0;
    bits >>= 1;
  }
  return 1;
}

int IsLineNumberValid(int line) {
  std::string minText;
  std::string maxText;
  const bool haveMin = readModemRegistry(kRegMinLine, minText);
  const bool haveMax = readModemRegistry(kRegMaxLine, maxText);
  if (haveMin && haveMax) {
    if (toInt(minText.c_str()) <= line && line <= toInt(maxText.c_str())) return 1;
    platformLogDebug(kLogBadLineNumber);
    return 0;
  }
  if (line >= kFallbackLineMin && line <= kFallbackLineMax) return 1;
  platformLogDebug(kLogBadFallbackLine);
  return 0;
}

void timeTodatetimeFormat(std::string& out, int seconds) {
  const long long number = static_cast<long long>(seconds / 60) * 100 + seconds % 60;
  const std::string digits = std::to_string(number);
  if (digits.size() > 4) {
    platformLogError(kLogInvalidTime);
    return;
  }
  out = kDatetimePrefixes[digits.size() - 1] + digits + kDatetimeSuffix;
}

int itoa(int value, char* text) {
  const bool negative = value < 0;
  // Unsigned arithmetic keeps the most negative value representable.
  unsigned int magnitude =
      negative ? 0U - static_cast<unsigned int>(value) : static_cast<unsigned int>(value);
  int i = 0;
  do {
    text[i++] = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude > 0);
  if (negative) text[i++] = '-';
  text[i] = '\0';
  return reverse(text);
}

int reverse(char* text) {
  const int length = static_cast<int>(std::strlen(text));
  for (int i = 0, j = length - 1; i < j; ++i, --j) {
    const char c = text[i];
    text[i] = text[j];
    text[j] = c;
  }
  return length;
}

// An address rests in the route file's arrays, in sed expressions and in a part of pppd's
// address line.
bool ras::isSettableAddress(const std::string& address) {
  std::string copy = address;
  return IsIPValid(copy.data()) == 1 &&
         staysData(address, {RestingPlace::SedText, RestingPlace::QuotedAssignment,
                             RestingPlace::AddressPart});
}

// A mask rests in the route file's NETMASK array and in sed expressions; inet_aton stops at
// the first blank, so anything may follow one.
bool ras::isSettableMask(const std::string& mask) {
  std::string copy = mask;
  return IsMaskValid(copy.data()) == 1 &&
         staysData(mask, {RestingPlace::SedText, RestingPlace::QuotedAssignment});
}
