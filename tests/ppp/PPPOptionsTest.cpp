// The link options of both endpoints: what construction reads and repairs in the options
// files, and each setter's accepted bounds (file, journal, read-back) and refused values (the
// client's error, nothing touched).
#include <gtest/gtest.h>

#include "OW_CIMException.hpp"
#include "PPPFixture.h"

namespace {

using namespace ppp;
using OpenWBEM::CIMException;
using OpenWBEM::CIMValue;

struct ReadRow {
  const char* name;
  std::function<void()> setUp;
  const char* property;
  const char* expected;  // read from the dial-out endpoint
  Lines linesAfter;      // in options_dialout after construction
  Lines repairs;         // commands construction ran
};

class OptionsRead : public PPPRowTest<ReadRow> {};

auto dialOutLines(std::vector<std::pair<std::string, std::string>> edits) {
  return [edits] {
    for (const auto& [from, to] : edits) replaceLine(kDialOutOptions, from, to);
  };
}

const std::string kNoVjRepair = "/bin/sed -i 's/^#\\?novj/novj/' /qv/etc/ppp/options_dialout";
const std::string kSlotsRepair =
    "/bin/sed -i '/^#\\?vj-max-slots/ c #vj-max-slots 8' /qv/etc/ppp/options_dialout";
const std::string kBsdcompRepair =
    "/bin/sed -i '/^#\\?bsdcomp/ c bsdcomp 0' /qv/etc/ppp/options_dialout";

const ReadRow kReadRows[] = {
    {"NeitherCompressionLineActive",
     dialOutLines({{"novj", "#novj"}}),
     "IPHeaderComp",
     "false",
     {"novj", "#vj-max-slots 8"},
     {kNoVjRepair, kSlotsRepair}},
    {"SlotCountIsNotTheBareLine",
     dialOutLines({{"novj", "#novj"}, {"#vj-max-slots 8", "vj-max-slots 8"}}),
     "IPHeaderComp",
     "false",
     {"novj", "#vj-max-slots 8"},
     {kNoVjRepair, kSlotsRepair}},
    {"NovjWinsOverSlots",
     dialOutLines({{"#vj-max-slots 8", "vj-max-slots 8"}}),
     "IPHeaderComp",
     "false",
     {"novj", "vj-max-slots 8"},
     {}},
    {"BareSlotsLineIsOn",
     dialOutLines({{"novj", "#novj"}, {"#vj-max-slots 8", "vj-max-slots"}}),
     "IPHeaderComp",
     "true",
     {"#novj", "vj-max-slots"},
     {}},
    {"BsdcompOtherThanZeroOrTwelve",
     dialOutLines({{"bsdcomp 0", "bsdcomp 15,15"}}),
     "SoftwareComp",
     "false",
     {"bsdcomp 0"},
     {kBsdcompRepair}},
    {"BsdcompMissing",
     dialOutLines({{"bsdcomp 0", ""}}),
     "SoftwareComp",
     "false",
     {},
     {kBsdcompRepair}},
    {"BsdcompTwelve",
     dialOutLines({{"bsdcomp 0", "bsdcomp 12"}}),
     "SoftwareComp",
     "true",
     {"bsdcomp 12"},
     {}},
    {"MissingMtuReadsZero", dialOutLines({{"mtu 1500", ""}}), "MTU", "0", {}, {}},
    {"ZeroLcpLimitIsReported",
     dialOutLines({{"lcp-max-failure 5", "lcp-max-failure 0"}}),
     "maxConfigureNak",
     "0",
     {"lcp-max-failure 0"},
     {}},
    {"CommentedIdleReadsZero", dialOutLines({{"idle 300", "#idle 0"}}), "IdleTimeout", "0", {}, {}},
};

TEST_P(OptionsRead, ConstructionReadsTheOptionsFileAndRepairsCompressionLines) {
  const ReadRow& row = GetParam();
  EXPECT_EQ(value(kDialOut, row.property), row.expected);
  for (const std::string& line : row.linesAfter) {
    EXPECT_TRUE(hasLine(kDialOutOptions, line)) << line << "\n"
                                                << appliance::readFile(kDialOutOptions);
  }
  Lines repairs;
  for (const std::string& command : initJournal_) {
    if (command.find("options_dialout") != std::string::npos) repairs.push_back(command);
  }
  EXPECT_EQ(repairs, row.repairs);
}

INSTANTIATE_TEST_SUITE_P(PPP, OptionsRead, ::testing::ValuesIn(kReadRows), RowName());

using OptionsSet = PPPTest;

const std::string kSetLine = "/opt/etc/RasProviderScripts/setLine";

Lines withRestart(Lines lines) {
  lines.insert(lines.end(), kRestartWithoutLink.begin(), kRestartWithoutLink.end());
  return lines;
}

// Each option at its bounds, on the endpoint whose edits differ; the value reads back.
TEST_F(OptionsSet, AcceptedValuesEditTheFilesAndRestartOnlyTheDialOutLink) {
  struct Row {
    const char* endpoint;
    const char* property;
    CIMValue value;
    Lines journal;
    const char* file;  // holds `line` afterwards
    const char* line;
  };
  const std::vector<Row> rows = {
      {kDialOut, "maxConfigureRequest", u16(15),
       withRestart({kSetLine + "_dialout lcp-max-configure 15"}), kDialOutOptions,
       "lcp-max-configure 15"},
      {kDialIn,
       "maxConfigureRequest",
       u16(1),
       {kSetLine + "_dialin lcp-max-configure 1"},
       kDialInOptions,
       "lcp-max-configure 1"},
      {kDialIn,
       "maxConfigureNak",
       u16(10),
       {kSetLine + "_dialin lcp-max-failure 10"},
       kDialInOptions,
       "lcp-max-failure 10"},
      {kDialOut, "maxTerminateReq", u16(5),
       withRestart({kSetLine + "_dialout lcp-max-terminate 5"}), kDialOutOptions,
       "lcp-max-terminate 5"},
      {kDialIn,
       "IdleTimeout",
       u16(36000),
       {kSetLine + "_callback idle 36000", kSetLine + "_dialin idle 36000"},
       kCallbackOptions,
       "idle 36000"},
      {kDialIn,
       "IdleTimeout",
       u16(0),
       {"/bin/sed -i '/^#\\?idle/ c #idle 0' /qv/etc/ppp/options_callback",
        "/bin/sed -i '/^#\\?idle/ c #idle 0' /qv/etc/ppp/options_dialin"},
       kDialInOptions,
       "#idle 0"},
      {kDialOut, "IdleTimeout", u16(0),
       withRestart({"/bin/sed -i '/^#\\?idle/ c #idle 0' /qv/etc/ppp/options_dialout"}),
       kDialOutOptions, "#idle 0"},
      {kDialIn,
       "MRU",
       u16(128),
       {"/bin/sed -i '/^mru/ c mru 128' /qv/etc/ppp/options_callback",
        kSetLine + "_dialin mru 128"},
       kCallbackOptions,
       "mru 128"},
      {kDialOut, "MTU", u16(16384), withRestart({kSetLine + "_dialout mtu 16384"}), kDialOutOptions,
       "mtu 16384"},
      {kDialOut, "IPHeaderComp", flag(true),
       withRestart(
           {"/bin/sed -i '/^#\\?vj-max-slots/ c vj-max-slots 8' /qv/etc/ppp/options_dialout",
            "/bin/sed -i 's/^#\\?novj/#novj/' /qv/etc/ppp/options_dialout"}),
       kDialOutOptions, "#novj"},
      {kDialIn,
       "IPHeaderComp",
       flag(false),
       {"/bin/sed -i 's/^#\\?novj/novj/' /qv/etc/ppp/options_dialin",
        "/bin/sed -i '/^#\\?vj-max-slots/ c #vj-max-slots 8' /qv/etc/ppp/options_dialin"},
       kDialInOptions,
       "novj"},
      {kDialIn,
       "SoftwareComp",
       flag(true),
       {"/bin/sed -i '/^#\\?bsdcomp/ c bsdcomp 12' /qv/etc/ppp/options_dialin"},
       kDialInOptions,
       "bsdcomp 12"},
  };
  for (const Row& row : rows) {
    const std::string shown = row.value.toString().c_str();
    SCOPED_TRACE(std::string(row.endpoint) + " " + row.property + "=" + shown);
    appliance::clearJournal();
    EXPECT_EQ(modify(row.endpoint, {{row.property, row.value}}), CimFailure{});
    EXPECT_EQ(appliance::journal(), row.journal);
    EXPECT_TRUE(hasLine(row.file, row.line)) << appliance::readFile(row.file);
    EXPECT_EQ(value(row.endpoint, row.property), shown);
  }
}

TEST_F(OptionsSet, OutOfRangeValuesAreRefusedWithTheirCodeAndChangeNothing) {
  struct Row {
    const char* property;
    unsigned short value;
    int status;
  };
  const std::vector<Row> rows = {
      {"maxConfigureRequest", 0, 6},
      {"maxConfigureRequest", 16, 6},
      {"maxConfigureNak", 0, 7},
      {"maxConfigureNak", 11, 7},
      {"maxTerminateReq", 0, 8},
      {"maxTerminateReq", 6, 8},
      {"IdleTimeout", 36001, 9},
      {"MRU", 127, 10},
      {"MRU", 16385, 10},
      {"MTU", 127, 11},
      {"MTU", 16385, 11},
  };
  const Lines files = {kDialInOptions, kDialOutOptions, kCallbackOptions};
  Lines before;
  for (const std::string& file : files) before.push_back(appliance::readFile(file));
  for (const char* endpoint : {kDialIn, kDialOut}) {
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(endpoint) + " " + row.property + "=" + std::to_string(row.value));
      const std::string old = value(endpoint, row.property);
      appliance::clearJournal();
      const std::string id = "#RAS_MODEM_" + std::to_string(row.status) + "#";
      EXPECT_EQ(modify(endpoint, {{row.property, u16(row.value)}}),
                (CimFailure{CIMException::FAILED, kSource, 388, id}));
      EXPECT_EQ(appliance::journal(), Lines{});
      EXPECT_EQ(value(endpoint, row.property), old);
    }
  }
  Lines after;
  for (const std::string& file : files) after.push_back(appliance::readFile(file));
  EXPECT_EQ(after, before);
}

// The call-back file's unit sizes are replaced only where an active line exists.
TEST_F(OptionsSet, DialInMruLeavesACommentedCallbackLineAlone) {
  replaceLine(kCallbackOptions, "mru 1500", "#mru 1500");
  EXPECT_EQ(modify(kDialIn, {{"MRU", u16(1400)}}), CimFailure{});
  EXPECT_TRUE(hasLine(kCallbackOptions, "#mru 1500"));
  EXPECT_FALSE(hasLine(kCallbackOptions, "mru 1400"));
  EXPECT_TRUE(hasLine(kDialInOptions, "mru 1400"));
}

}  // namespace
