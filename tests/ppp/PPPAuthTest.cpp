// Authentication of both endpoints: the statuses read at construction from the require- and
// refuse- lines (with the dial-out reader's overwrite of chapStatus), the status setters'
// sed edits, and authLevel and csAuth held in memory.
#include <gtest/gtest.h>

#include "PPPFixture.h"

namespace {

using namespace ppp;
using OpenWBEM::CIMValue;

struct ReadRow {
  const char* name;
  std::function<void()> setUp;
  const char* endpoint;
  const char* pap;
  const char* chap;
  const char* mschap;
  const char* mschapv2;
};

class AuthRead : public PPPRowTest<ReadRow> {};

auto edited(const char* file, std::vector<std::pair<std::string, std::string>> edits) {
  return [file, edits] {
    for (const auto& [from, to] : edits) replaceLine(file, from, to);
  };
}

const ReadRow kReadRows[] = {
    {"DialInShipped", nullptr, kDialIn, "true", "true", "false", "false"},
    {"DialInPapRefusedToo", edited(kDialInOptions, {{"#refuse-pap", "refuse-pap"}}), kDialIn,
     "false", "true", "false", "false"},
    {"DialInChapIgnoresRefuse", edited(kDialInOptions, {{"#refuse-chap", "refuse-chap"}}), kDialIn,
     "true", "true", "false", "false"},
    {"DialInMschapsOn",
     edited(kDialInOptions, {{"#require-mschap", "require-mschap"},
                             {"refuse-mschap", "#refuse-mschap"},
                             {"#require-mschap-v2", "require-mschap-v2"},
                             {"refuse-mschap-v2", "#refuse-mschap-v2"}}),
     kDialIn, "true", "true", "true", "true"},
    {"DialOutMschapLineIsChap", edited(kDialOutOptions, {{"#require-mschap", "require-mschap"}}),
     kDialOut, "false", "true", "false", "false"},
    {"DialOutChapLineIsOverwritten", edited(kDialOutOptions, {{"#require-chap", "require-chap"}}),
     kDialOut, "false", "false", "false", "false"},
    {"DialOutPapAndMschapv2",
     edited(kDialOutOptions,
            {{"#require-pap", "require-pap"}, {"#require-mschap-v2", "require-mschap-v2"}}),
     kDialOut, "true", "false", "false", "true"},
};

TEST_P(AuthRead, StatusesAreReadFromTheOptionsFileAtConstruction) {
  const ReadRow& row = GetParam();
  const OpenWBEM::CIMInstance instance = get(row.endpoint);
  const auto text = [&](const char* property) {
    return std::string(instance.getPropertyValue(property).toString().c_str());
  };
  EXPECT_EQ(text("PapStatus"), row.pap);
  EXPECT_EQ(text("chapStatus"), row.chap);
  EXPECT_EQ(text("MschapStatus"), row.mschap);
  EXPECT_EQ(text("Mschapv2Status"), row.mschapv2);
}

INSTANTIATE_TEST_SUITE_P(PPP, AuthRead, ::testing::ValuesIn(kReadRows), RowName());

using AuthSet = PPPTest;

std::string sed(const std::string& expression, const char* file) {
  return "/bin/sed -i '" + expression + "' " + file;
}

// The dial-in link switches the refuse- line opposite the require- line; the dial-out link
// only its require- line. No status change restarts anything.
TEST_F(AuthSet, StatusSettersEditTheirLinesAndReadBack) {
  struct Row {
    const char* endpoint;
    const char* property;
    bool value;
    Lines journal;
  };
  const char* in = kDialInOptions;
  const char* out = kDialOutOptions;
  const std::vector<Row> rows = {
      {kDialIn,
       "PapStatus",
       false,
       {sed("s/^#\\?require-pap/#require-pap/", in), sed("s/^#\\?refuse-pap/refuse-pap/", in)}},
      {kDialIn,
       "PapStatus",
       true,
       {sed("s/^#\\?require-pap/require-pap/", in), sed("s/^#\\?refuse-pap/#refuse-pap/", in)}},
      {kDialOut, "PapStatus", true, {sed("s/^#\\?require-pap/require-pap/", out)}},
      {kDialIn,
       "chapStatus",
       false,
       {sed("s/^#\\?require-chap/#require-chap/", in), sed("s/^#\\?refuse-chap/refuse-chap/", in)}},
      {kDialOut, "chapStatus", true, {sed("s/^#\\?require-chap/require-chap/", out)}},
      {kDialIn,
       "MschapStatus",
       true,
       {sed("s/^#\\?require-mschap$/require-mschap/", in),
        sed("s/^#\\?refuse-mschap$/#refuse-mschap/", in)}},
      {kDialOut, "MschapStatus", false, {sed("s/^#\\?require-mschap$/#require-mschap/", out)}},
      {kDialIn,
       "Mschapv2Status",
       true,
       {sed("s/^#\\?require-mschap-v2/require-mschap-v2/", in),
        sed("s/^#\\?refuse-mschap-v2/#refuse-mschap-v2/", in)}},
      {kDialOut, "Mschapv2Status", true, {sed("s/^#\\?require-mschap-v2/require-mschap-v2/", out)}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.endpoint) + " " + row.property + "=" + (row.value ? "1" : "0"));
    appliance::clearJournal();
    EXPECT_EQ(modify(row.endpoint, {{row.property, flag(row.value)}}), CimFailure{});
    EXPECT_EQ(appliance::journal(), row.journal);
    EXPECT_EQ(value(row.endpoint, row.property), row.value ? "true" : "false");
  }
}

// The anchored MS-CHAP edits leave the "-v2" lines alone; the dial-out PAP edit never
// touches refuse-pap.
TEST_F(AuthSet, StatusEditsTouchOnlyTheirOwnLines) {
  replaceLine(kDialInOptions, "#require-mschap", "require-mschap");
  replaceLine(kDialInOptions, "#require-mschap-v2", "require-mschap-v2");
  EXPECT_EQ(modify(kDialIn, {{"MschapStatus", flag(false)}}), CimFailure{});
  EXPECT_TRUE(hasLine(kDialInOptions, "#require-mschap"));
  EXPECT_TRUE(hasLine(kDialInOptions, "require-mschap-v2"));
  EXPECT_TRUE(hasLine(kDialInOptions, "refuse-mschap"));
  EXPECT_TRUE(hasLine(kDialInOptions, "refuse-mschap-v2"));

  replaceLine(kDialOutOptions, "#refuse-pap", "refuse-pap");
  EXPECT_EQ(modify(kDialOut, {{"PapStatus", flag(true)}, {"PapStatus", flag(false)}}),
            CimFailure{});
  EXPECT_TRUE(hasLine(kDialOutOptions, "refuse-pap"));
  EXPECT_TRUE(hasLine(kDialOutOptions, "#require-pap"));
}

// authLevel and csAuth change no file; the dial-out link restarts for them all the same.
TEST_F(AuthSet, LevelAndCsAuthAreHeldInMemory) {
  struct Row {
    const char* endpoint;
    const char* property;
    CIMValue value;
    Lines journal;
  };
  const std::vector<Row> rows = {
      {kDialIn, "authLevel", u8(7), {}},
      {kDialOut, "authLevel", u8(7), kRestartWithoutLink},
      {kDialIn, "csAuth", flag(true), {}},
      {kDialOut, "csAuth", flag(true), kRestartWithoutLink},
  };
  const std::string dialIn = appliance::readFile(kDialInOptions);
  const std::string dialOut = appliance::readFile(kDialOutOptions);
  EXPECT_EQ(value(kDialIn, "authLevel"), "0");
  EXPECT_EQ(value(kDialOut, "csAuth"), "false");
  for (const Row& row : rows) {
    const std::string shown = row.value.toString().c_str();
    SCOPED_TRACE(std::string(row.endpoint) + " " + row.property + "=" + shown);
    appliance::clearJournal();
    EXPECT_EQ(modify(row.endpoint, {{row.property, row.value}}), CimFailure{});
    EXPECT_EQ(appliance::journal(), row.journal);
    EXPECT_EQ(value(row.endpoint, row.property), shown);
  }
  EXPECT_EQ(appliance::readFile(kDialInOptions), dialIn);
  EXPECT_EQ(appliance::readFile(kDialOutOptions), dialOut);
}

}  // namespace
