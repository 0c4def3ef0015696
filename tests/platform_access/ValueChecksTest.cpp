// Accept/reject tables of the value checks with the exact lines they log, and the datetime
// and number formatting.
#include <gmock/gmock.h>

#include <climits>
#include <cstdlib>
#include <cstring>

#include "QvlShared.h"
#include "ScopedEnv.h"
#include "TestSupport.h"
#include "Zeph_PlatformAccess.h"

using ::testing::ElementsAreArray;
using Lines = std::vector<std::string>;

namespace {

class ValueChecksTest : public ScratchTest {};

struct CheckRow {
  std::string input;
  int result;
  Lines log;
};

void expectChecks(int (*check)(char*), const std::vector<CheckRow>& rows, ScopedLogRecorder& log) {
  for (const CheckRow& row : rows) {
    std::string input = row.input;
    log.newLines();
    EXPECT_EQ(check(input.data()), row.result) << row.input;
    EXPECT_THAT(log.newLines(), ElementsAreArray(row.log)) << row.input;
  }
}

TEST_F(ValueChecksTest, AddressCheckIsLenientAboutDotsAndLogsEveryReason) {
  const std::string digit = "DEBUG|Character is not a digit at ", few = "DEBUG|Not Enough Tokens\n",
                    range = "DEBUG|Less than 0 and greater than 255 ",
                    length = "DEBUG|Length is grater than 3 ";
  expectChecks(IsIPValid,
               {{"192.168.1.1", 1, {}},
                {"10.1.2.3.4", 1, {}},
                {"10..1.2.3", 1, {}},
                {".10.1.2.3.", 1, {}},
                {"192.168.1", 0, {few}},
                {"192.168.1.1a", 0, {digit + "3 2\n"}},
                {"ab1.1.1.1", 0, {digit + "0 1\n", digit + "0 2\n"}},
                {"1x.2", 0, {digit + "0 2\n", few}},
                {"256.1.1.1", 0, {range + "0 3\n"}},
                {"-1.0.0.0", 0, {digit + "0 1\n", range + "0 2\n"}},
                {"1234.1.1.1", 0, {length + "0\n", range + "0 0\n"}},
                {"1.1.1.99999999999", 0, {length + "3\n", range + "3 0\n"}}},
               log_);
}

TEST_F(ValueChecksTest, MaskMustBeOnesThenZeros) {
  expectChecks(IsMaskValid,
               {{"255.255.255.0", 1, {}},
                {"0.0.0.0", 1, {}},
                {"255.255.255.255", 1, {}},
                {"0xfffffffe", 1, {}},  // every form inet_aton takes
                {"255.255.0.255", 0, {}},
                {"255.255", 0, {}},  // 255.0.0.255
                {"", 0, {"DEBUG|Blank Mask\n"}},
                {"mask", 0, {"DEBUG|inet_aton failed\n"}}},
               log_);
}

TEST_F(ValueChecksTest, LineNumberRangeComesFromTheRegistryOrFallsBack) {
  const appliance::ScopedEnv registry("QVL_REGISTRY", path("registry"));
  const std::string outside = "DEBUG|Not Valid Line Number",
                    fallback = "DEBUG|Condition is True for 0";
  const struct {
    const char* minLine;  // nullptr: no entry
    const char* maxLine;
    int line;
    Lines log;  // empty: valid
  } rows[] = {
      {"1", "8", 1, {}},
      {"1", "8", 8, {}},
      {"1", "8", 0, {outside}},
      {"1", "8", 9, {outside}},
      {nullptr, nullptr, 268, {}},
      {nullptr, nullptr, 269, {fallback}},
      {"5", nullptr, 0, {fallback}},
      {"5", nullptr, 1, {}},
  };
  for (const auto& row : rows) {
    std::filesystem::remove(path("registry"));
    for (const auto& [name, value] :
         {std::pair{"MinLine", row.minLine}, {"MaxLine", row.maxLine}}) {
      if (value) {
        EXPECT_EQ(QvlSetRegEntryString("SoftModem", "ModemCC", name, value), 0);
      }
    }
    log_.newLines();
    EXPECT_EQ(IsLineNumberValid(row.line), row.log.empty() ? 1 : 0) << row.line;
    EXPECT_THAT(log_.newLines(), ElementsAreArray(row.log)) << row.line;
  }
}

TEST_F(ValueChecksTest, SecondsBecomeMinutesAndSecondsOfADatetime) {
  for (const auto& [seconds, expected] : {std::pair{0, "00000101000000.000000+000"},
                                          {5, "00000101000005.000000+000"},
                                          {630, "00000101001030.000000+000"},
                                          {5999, "00000101009959.000000+000"},
                                          {-30, "00000101000-30.000000+000"},
                                          {6000, "unchanged"},
                                          {INT_MAX, "unchanged"}}) {
    std::string out = "unchanged";
    timeTodatetimeFormat(out, seconds);
    EXPECT_EQ(out, expected) << seconds;
  }
  EXPECT_THAT(log_.newLines(), ElementsAreArray(Lines(2, "ERROR|Invalid time value\n")));
}

TEST_F(ValueChecksTest, IntegersBecomeDecimalText) {
  for (const auto& [value, expected] :
       {std::pair{-45, "-45"}, {0, "0"}, {INT_MIN, "-2147483648"}}) {
    char text[12] = "garbage";
    EXPECT_EQ(itoa(value, text), static_cast<int>(std::strlen(expected)));
    EXPECT_STREQ(text, expected);
  }
}

}  // namespace
