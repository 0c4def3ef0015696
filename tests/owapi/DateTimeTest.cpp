// CIMDateTime: parsing both forms, formatting, truth and comparison.
#include <gtest/gtest.h>

#include "OW_CIMDateTime.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace {

struct ParseRow {
  const char* text;
  bool interval;
  bool truth;
  const char* formatted;
};

TEST(CIMDateTimeTest, ParseAndFormat) {
  const ParseRow rows[] = {
      {"00000101000001.000000+000", false, true, "00000101000001.000000+000"},
      {"00000101001030.000000+000", false, true, "00000101001030.000000+000"},
      {"20240229235959.123456-300", false, true, "20240229235959.123456-300"},
      {"00000000000000.000000+060", false, false, "00000000000000.000000+060"},
      {"00000001020304.000005:000", true, true, "00000001020304.000005:000"},
      {"00000000000000.000000:000", true, false, "00000000000000.000000:000"},
      {"", true, false, "00000000000000.000000:000"},
      {"2024x1__000000.000000+000", false, true, "20240000000000.000000+000"},
  };
  for (const ParseRow& row : rows) {
    SCOPED_TRACE(row.text);
    CIMDateTime dt{String(row.text)};
    EXPECT_EQ(row.interval, dt.isInterval());
    EXPECT_EQ(row.truth, static_cast<bool>(dt));
    EXPECT_STREQ(row.formatted, dt.toString().c_str());
  }
}

TEST(CIMDateTimeTest, OneSecondDateFields) {
  CIMDateTime dt(String("00000101000001.000000+000"));
  EXPECT_EQ(0, dt.getYear());
  EXPECT_EQ(1, dt.getMonth());
  EXPECT_EQ(1u, dt.getDay());
  EXPECT_EQ(1, dt.getSeconds());
  EXPECT_EQ(0, dt.getUtc());
  EXPECT_TRUE(dt.equal(CIMDateTime(String("00000101000001.000000+000"))));
  EXPECT_FALSE(dt.equal(CIMDateTime(String("00000101000001.000000:000"))));
}

TEST(CIMDateTimeTest, BadFormsThrow) {
  const char* const rows[] = {"0000010100000", "00000101000001.000000 000",
                              "00000101000001.000000x000"};
  for (const char* text : rows) {
    SCOPED_TRACE(text);
    EXPECT_THROW(CIMDateTime{String(text)}, CIMDateTimeException);
  }
}

TEST(CIMDateTimeTest, DefaultAndNull) {
  EXPECT_FALSE(CIMDateTime());
  EXPECT_TRUE(CIMDateTime().isInterval());
  EXPECT_FALSE(CIMDateTime(CIMNULL));
  EXPECT_THROW(CIMDateTime(CIMNULL).toString(), Exception);
  EXPECT_STREQ("00000001000001.000002:000", CIMDateTime(UInt64(86401000002UL)).toString().c_str());
}

}  // namespace
