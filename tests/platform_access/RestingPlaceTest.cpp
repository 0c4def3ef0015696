// Which values stay data in each place the module writes them to, and the address and mask
// checks built on it.
#include <gtest/gtest.h>

#include "Zeph_RestingPlace.h"
#include "Zeph_ValueChecks.h"

namespace {

using ras::RestingPlace;

TEST(RestingPlaceTest, EachPlaceRefusesWhatWouldNotStayData) {
  // Columns: sed text, double-quoted assignment, pppd word, address part, secret column.
  const struct {
    const char* value;
    bool expected[5];
  } rows[] = {
      {"255.255.255.0", {true, true, true, true, true}},
      {"255.255.255.0 ", {true, true, false, false, true}},
      {"a:b", {true, true, true, false, true}},
      {"a/b", {false, true, true, true, true}},
      {"$(id)", {false, false, true, true, true}},
      {"`id`", {false, false, true, true, true}},
      {"a\"b", {false, false, false, false, false}},
      {"a\\", {false, false, false, false, false}},
      {"a'b", {false, true, false, false, true}},
      {"a&b", {false, true, true, true, true}},
      {"#a", {false, true, false, false, true}},
      {"@/etc/shadow", {false, true, true, true, false}},
      {"a\nb", {false, false, false, false, false}},
      {"a\tb", {false, false, false, false, false}},
      {"", {true, true, true, true, true}},
  };
  const RestingPlace places[] = {RestingPlace::SedText, RestingPlace::QuotedAssignment,
                                 RestingPlace::PppdWord, RestingPlace::AddressPart,
                                 RestingPlace::SecretColumn};
  for (const auto& row : rows) {
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(ras::staysData(row.value, places[i]), row.expected[i])
          << "'" << row.value << "' in place " << i;
    }
    bool all = true;
    for (bool expected : row.expected) all = all && expected;
    EXPECT_EQ(ras::staysData(row.value, {places[0], places[1], places[2], places[3], places[4]}),
              all)
        << row.value;
  }
}

TEST(RestingPlaceTest, SettableAddressesAndMasks) {
  const struct {
    const char* value;
    bool address;
    bool mask;
  } rows[] = {
      {"10.1.0.0", true, false},
      {"10.1.2.3.4", true, false},      // IsIPValid's leniency kept
      {"255.255.255.0 ", false, true},  // inet_aton stops at the blank
      {"0xffffff00", false, true},      // a form inet_aton takes
      {"255.255.0.0 $(touch /tmp/x)", false, false},
      {"255.255.0.0 `id`", false, false},
      {"255.255.0.0 \";id;\"", false, false},
      {"255.255.0.0\nid", false, false},
      {"1.2.3.4.:5", false, false},  // would move pppd's local:remote split
      {"1.2.3.4./x", false, false},  // would end a sed `s` part
      {"255.0.255.0", true, false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ras::isSettableAddress(row.value), row.address) << row.value;
    EXPECT_EQ(ras::isSettableMask(row.value), row.mask) << row.value;
  }
}

}  // namespace
