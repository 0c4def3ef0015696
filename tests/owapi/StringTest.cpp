// String: conversions that decide which client values are accepted, tokenizing, editing.
#include <gtest/gtest.h>

#include <functional>

#include "OW_Array.hpp"
#include "OW_Bool.hpp"
#include "OW_Format.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace {

struct ConvertRow {
  const char* text;
  std::function<UInt64(const String&)> convert;
  bool throws;
  UInt64 value;
};

TEST(StringTest, NumericConversionsRejectWhatDoesNotFit) {
  auto u16 = [](const String& s) -> UInt64 { return s.toUInt16(); };
  auto u8 = [](const String& s) -> UInt64 { return s.toUInt8(); };
  auto u32 = [](const String& s) -> UInt64 { return s.toUInt32(); };
  auto u64 = [](const String& s) -> UInt64 { return s.toUInt64(); };
  auto i32 = [](const String& s) -> UInt64 { return UInt64(s.toInt32() + 1000); };
  const ConvertRow rows[] = {
      {"1500", u16, false, 1500},
      {"65535", u16, false, 65535},
      {"70000", u16, true, 0},
      {"-1", u16, true, 0},
      {"", u16, true, 0},
      {"12a", u16, true, 0},
      {"12 ", u16, true, 0},
      {" 12", u16, false, 12},
      {"256", u8, true, 0},
      {"-1", u32, true, 0},
      {"-1", u64, false, ~UInt64(0)},
      {"-5", i32, false, 995},
      {"2147483648", i32, true, 0},
      {"0x10", u16, true, 0},
  };
  for (const ConvertRow& row : rows) {
    SCOPED_TRACE(row.text);
    if (row.throws) {
      EXPECT_THROW(row.convert(String(row.text)), StringConversionException);
    } else {
      EXPECT_EQ(row.value, row.convert(String(row.text)));
    }
  }
  EXPECT_EQ(16, String("10").toInt(16));
}

TEST(StringTest, BoolConversionTakesOnlyTrueOrFalse) {
  EXPECT_TRUE(String("TRUE").toBool());
  EXPECT_FALSE(String("false").toBool());
  EXPECT_THROW(String("1").toBool(), StringConversionException);
  EXPECT_STREQ("1", String(true).c_str());
  EXPECT_STREQ("true", Bool(true).toString().c_str());
}

struct TokenRow {
  const char* text;
  const char* delims;
  String::EReturnDelimitersFlag delimFlag;
  String::EEmptyTokenReturnFlag emptyFlag;
  const char* joined;
};

TEST(StringTest, Tokenize) {
  const TokenRow rows[] = {
      {"a b  c", " ", String::E_DISCARD_DELIMITERS, String::E_SKIP_EMPTY_TOKENS, "a|b|c"},
      {"a:b::c:", ":", String::E_DISCARD_DELIMITERS, String::E_RETURN_EMPTY_TOKENS, "a|b||c|"},
      {"a=b", "=", String::E_RETURN_DELIMITERS, String::E_SKIP_EMPTY_TOKENS, "a|=|b"},
      {"", " ", String::E_DISCARD_DELIMITERS, String::E_RETURN_EMPTY_TOKENS, ""},
  };
  for (const TokenRow& row : rows) {
    SCOPED_TRACE(row.text);
    StringArray parts = String(row.text).tokenize(row.delims, row.delimFlag, row.emptyFlag);
    String joined;
    for (size_t i = 0; i < parts.size(); ++i) {
      joined += (i > 0 ? "|" : "") + parts[i];
    }
    EXPECT_STREQ(row.joined, joined.c_str());
  }
}

TEST(StringTest, ComparisonSearchAndEditing) {
  String s("  Zeph_SoftModem ");
  EXPECT_FALSE(s.equals("zeph_softmodem"));
  EXPECT_TRUE(String("Zeph").equalsIgnoreCase("ZEPH"));
  EXPECT_STREQ("Zeph_SoftModem", s.trim().c_str());
  EXPECT_STREQ("Zeph_SoftModem", s.c_str());
  EXPECT_EQ(4u, s.indexOf('_'));
  EXPECT_EQ(String::npos, s.indexOf("xyz"));
  EXPECT_STREQ("Soft", s.substring(5, 4).c_str());
  EXPECT_STREQ("", s.substring(100).c_str());
  EXPECT_TRUE(s.startsWith("zeph", String::E_CASE_INSENSITIVE));
  EXPECT_TRUE(s.endsWith("Modem"));
  String copy(s);
  copy.toUpperCase();
  EXPECT_STREQ("Zeph_SoftModem", s.c_str());
  EXPECT_STREQ("ZEPH_SOFTMODEM", copy.c_str());
  String f;
  EXPECT_EQ(8, f.format("%s=%04d", "MTU", 15));
  EXPECT_STREQ("MTU=0015", f.c_str());
  EXPECT_STREQ("", String(static_cast<const char*>(0)).c_str());
  EXPECT_STREQ("", String('\0').c_str());
}

TEST(StringTest, FormatSubstitutesNumberedArguments) {
  EXPECT_STREQ("no Zeph_X with 5 (5%)",
               Format("no %1 with %2 (%2%%)", String("Zeph_X"), 5).c_str());
  EXPECT_STREQ("b a", Format("%2 %1", "a", "b").toString().c_str());
}

TEST(ArrayTest, CopiesAreValuesAndIndexesAreChecked) {
  StringArray a;
  a.push_back("x");
  StringArray b(a);
  b[0] = "y";
  b.append("z");
  EXPECT_STREQ("x", a[0].c_str());
  EXPECT_EQ(1u, a.size());
  EXPECT_EQ(2u, b.size());
  EXPECT_THROW(a[1], OutOfBoundsException);
  EXPECT_THROW(a.remove(1), OutOfBoundsException);
  b.remove(0);
  EXPECT_STREQ("z", b[0].c_str());
}

}  // namespace
