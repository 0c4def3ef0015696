// RasCimTest.cpp: ras-cim driving the module through the embedded CIMOM inside the simulated
// appliance: every class read and written, every instance in agreement with the repository's
// classes, error output and exit status, and a batch keeping the module's state from one
// operation to the next.
// A class whose implementation has not landed yet enumerates nothing; for it the test
// asserts the answers of the provider frame (CIM_ERR_NOT_FOUND) instead.
#include <gtest/gtest.h>

#include <algorithm>

#include "ApplianceTest.h"
#include "RasCimRun.h"

namespace {

const char kDialOutIpEndpoint[] =
    "Zeph_RASIPProtocolEndpoint.CreationClassName=\"Zeph_RASIPProtocolEndpoint\","
    "Name=\"DialOutEndpoint\",SystemCreationClassName=\"Zeph_System\",SystemName=\"Zeph\"";
const char kDialOutPpp[] =
    "Zeph_PPPProtocolEndpoint.CreationClassName=\"Zeph_PPPProtocolEndpoint\","
    "Name=\"DialOutEndpoint\",SystemCreationClassName=\"Zeph_System\",SystemName=\"Zeph\"";
const char kDialOutSettings[] =
    "Zeph_DialOutSettingData.InstanceID=\"Velmar:Zeph_DialOutSettingData\"";
const char kNotFound[] = "\"code\":6,\"name\":\"CIM_ERR_NOT_FOUND\"";
const char kOk[] = "\"ok\":true";
const char kNoPaths[] = "\"paths\":[]";

// One instance of each class, a writable property, a valid new value and how it reads back.
struct ClassCase {
  const char* className;
  const char* path;
  const char* change;
  const char* readBack;
};

const ClassCase kClasses[] = {
    {"Zeph_CallInSettingData",
     "Zeph_CallInSettingData.InstanceID=\"Velmar:Zeph_CallInSettingData\"", "RingsBeforeAnswer=7",
     "\"name\":\"RingsBeforeAnswer\",\"type\":\"uint16\",\"value\":7"},
    {"Zeph_DialOutSettingData", kDialOutSettings, "DialRetries=4",
     "\"name\":\"DialRetries\",\"type\":\"uint16\",\"value\":4"},
    {"Zeph_RASService",
     "Zeph_RASService.CreationClassName=\"Zeph_RASService\",Name=\"RASService\","
     "SystemCreationClassName=\"Zeph_System\",SystemName=\"Zeph\"",
     "modemStatus=true", "\"name\":\"modemStatus\",\"type\":\"boolean\",\"value\":true"},
    {"Zeph_RASStaticIPAddressPool",
     "Zeph_RASStaticIPAddressPool.InstanceID=\"Velmar:DialOutRASStaticIPAddressPool\"",
     "ipAddr=\"10.9.9.2\"", "\"name\":\"ipAddr\",\"type\":\"string\",\"value\":\"10.9.9.2\""},
    {"Zeph_NextHopIPRoute", "Zeph_NextHopIPRoute.InstanceID=\"10.1.0.0\"", "RouteMetric=9",
     "\"name\":\"RouteMetric\",\"type\":\"uint16\",\"value\":9"},
    {"Zeph_RASIPProtocolEndpoint", kDialOutIpEndpoint, "SubnetMask=\"255.255.255.0\"",
     "\"name\":\"SubnetMask\",\"type\":\"string\",\"value\":\"255.255.255.0\""},
    {"Zeph_PPPProtocolEndpoint", kDialOutPpp, "MTU=1400",
     "\"name\":\"MTU\",\"type\":\"uint16\",\"value\":1400"},
    {"Zeph_SoftModem",
     "Zeph_SoftModem.CreationClassName=\"Zeph_SoftModem\",DeviceID=\"SoftModemOut\","
     "SystemCreationClassName=\"Zeph_System\",SystemName=\"Zeph\"",
     "CallSpeed=3", "\"name\":\"CallSpeed\",\"type\":\"uint8\",\"value\":3"},
    {"Zeph_SerialPort",
     "Zeph_SerialPort.CreationClassName=\"Zeph_SerialPort\",DeviceId=\"DialOutSerialPort\","
     "SystemCreationClassName=\"Zeph_System\",SystemName=\"Zeph\"",
     "FlowControl=2", "\"name\":\"FlowControl\",\"type\":\"uint8\",\"value\":2"},
};

std::string quoted(const std::string& word) {
  std::string out = "'";
  for (char c : word) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

using RasCimTest = ApplianceTest;

TEST_F(RasCimTest, EveryClassReadsAndWritesThroughRasCim) {
  for (const ClassCase& c : kClasses) {
    SCOPED_TRACE(c.className);
    const std::string batch = std::string("ein ") + c.className + "\nmi " + quoted(c.path) + " " +
                              quoted(c.change) + "\ngi " + quoted(c.path) + "\n";
    const RasCimResult r = runRasCim({"--json", "-"}, batch);
    const std::vector<std::string> lines = linesOf(r.out);
    ASSERT_EQ(lines.size(), 3u) << r.out << r.err;
    if (contains(lines[0], kNoPaths)) {  // not implemented yet: the frame finds nothing
      EXPECT_TRUE(contains(lines[1], kNotFound)) << lines[1];
      EXPECT_TRUE(contains(lines[2], kNotFound)) << lines[2];
      EXPECT_EQ(r.status, 1);
      continue;
    }
    EXPECT_TRUE(contains(lines[1], kOk)) << lines[1];
    EXPECT_TRUE(contains(lines[2], c.readBack)) << lines[2];
    EXPECT_EQ(r.status, 0) << r.out << r.err;
  }
}

TEST_F(RasCimTest, EveryInstanceAgreesWithTheSchema) {
  std::string batch;
  for (const ClassCase& c : kClasses)
    batch += std::string("ei ") + c.className + "\nein " + c.className + "\n";
  batch += "ei Zeph_DialOutRoutes\nein Zeph_DialOutRoutes\n";
  batch +=
      std::string("ai ") + quoted(kDialOutSettings) + "\nri " + quoted(kDialOutSettings) + "\n";
  const RasCimResult r = runRasCim({"--json", "-"}, batch);
  const std::vector<std::string> lines = linesOf(r.out);
  ASSERT_EQ(lines.size(), 2 * std::size(kClasses) + 4) << r.out << r.err;
  for (const std::string& line : lines) {
    EXPECT_TRUE(contains(line, kOk)) << line;
    EXPECT_FALSE(contains(line, "schemaErrors")) << line;
  }
  EXPECT_EQ(r.status, 0) << r.err;
}

TEST_F(RasCimTest, RoutesAndTheirAssociationsAgree) {
  const std::string batch = "ein Zeph_NextHopIPRoute\nain " + quoted(kDialOutSettings) + "\nrin " +
                            quoted(kDialOutSettings) + "\n";
  const RasCimResult r = runRasCim({"--json", "-"}, batch);
  const std::vector<std::string> lines = linesOf(r.out);
  ASSERT_EQ(lines.size(), 3u) << r.out << r.err;
  auto count = [](const std::string& line) {
    size_t n = 0;
    for (size_t at = line.find("Zeph_NextHopIPRoute.InstanceID"); at != std::string::npos;
         at = line.find("Zeph_NextHopIPRoute.InstanceID", at + 1))
      ++n;
    return n;
  };
  EXPECT_EQ(count(lines[1]), count(lines[0])) << lines[1];
  EXPECT_EQ(count(lines[2]), count(lines[0])) << lines[2];
}

TEST_F(RasCimTest, ErrorsCarryCodeFileLineAndExitStatus) {
  struct Row {
    std::vector<std::string> args;
    int status;
    std::string expected;  // a part of the one line of JSON
  };
  const Row rows[] = {
      {{"gi", "zeph_softmodem.DeviceID=\"SoftModemIn\""},
       1,
       "{\"verb\":\"gi\",\"ok\":false,\"error\":{\"code\":5,\"name\":\"CIM_ERR_INVALID_CLASS\","
       "\"message\":\"\",\"file\":\"../src/Zeph_RASProvider\",\"line\":479}}"},
      // The CIMOM checks the association class against the repository.
      {{"ai", "-ac", "Zeph_Nothing", kDialOutSettings},
       1,
       "\"code\":6,\"name\":\"CIM_ERR_NOT_FOUND\",\"message\":\"/root/cimv2:Zeph_Nothing\""},
      {{"gi", "Zeph_CallInSettingData.InstanceID=\"nope\""},
       1,
       "\"code\":6,\"name\":\"CIM_ERR_NOT_FOUND\",\"message\":\"\","
       "\"file\":\"../src/Zeph_CallInSettingDataProvider\""},
      // A property the class does not declare reaches the module, which skips it.
      {{"mi", kDialOutPpp, "Speed=1"}, 0, "{\"verb\":\"mi\",\"ok\":true}"},
      {{"ein", "Zeph_Account"}, 0, "\"paths\":[\"root/cimv2:Zeph_Account.Name=\\\"500\\\"\""},
      {{"mi", kDialOutPpp, "MTU=abc"},
       1,
       "\"code\":4,\"name\":\"CIM_ERR_INVALID_PARAMETER\","
       "\"message\":\"Unable to convert \\\"abc\\\" into UInt16\",\"file\":\"ras-cim\",\"line\":0"},
      {{"mi", kDialOutSettings, "DialRetries=70000"},
       1,
       "\"message\":\"Unable to convert \\\"70000\\\" into UInt16\""},
      {{"mi", kDialOutSettings, "DialRetries="}, 1, "\"message\":\"#RAS_MODEM_2#\""},
      {{"mi", kDialOutPpp, "MTU={1}"}, 2, "MTU is uint16: give a single value"},
      {{"frobnicate"}, 2, "\"message\":\"unknown verb 'frobnicate' (see --help)\",\"usage\":true"},
      {{"--module", "/nonexistent/libZeph_RASProvider.so", "ein", "Zeph_SoftModem"},
       4,
       "{\"verb\":\"start\",\"ok\":false"},
  };
  for (const Row& row : rows) {
    std::vector<std::string> args{"--json"};
    args.insert(args.end(), row.args.begin(), row.args.end());
    const RasCimResult r = runRasCim(args);
    SCOPED_TRACE(row.args.front() + " " + row.args.back());
    EXPECT_EQ(r.status, row.status) << r.out << r.err;
    ASSERT_EQ(linesOf(r.out).size(), 1u) << r.out;
    EXPECT_TRUE(contains(r.out, row.expected)) << r.out;
  }
  const RasCimResult text = runRasCim({"gi", "zeph_softmodem.DeviceID=\"SoftModemIn\""});
  EXPECT_EQ(text.status, 1);
  EXPECT_EQ(text.out, "");
  EXPECT_EQ(text.err, "ras-cim: gi: CIM_ERR_INVALID_CLASS (5) at ../src/Zeph_RASProvider:479\n");
  EXPECT_EQ(runRasCim({"--bogus"}).status, 2);
}

TEST_F(RasCimTest, BatchKeepsTheModuleStateBetweenOperations) {
  const std::string batch = std::string("# the subnet mask lives only in the module\n\n") +
                            "ein Zeph_RASIPProtocolEndpoint\n" + "mi " +
                            quoted(kDialOutIpEndpoint) + " SubnetMask=\"255.255.255.0\"\n" + "gi " +
                            quoted(kDialOutIpEndpoint) + "\nfrobnicate\n" + "ein Zeph_SoftModem\n";
  const RasCimResult r = runRasCim({"--json", "-"}, batch);
  const std::vector<std::string> lines = linesOf(r.out);
  ASSERT_EQ(lines.size(), 5u) << r.out << r.err;
  EXPECT_TRUE(contains(lines[3], "unknown verb 'frobnicate'"));
  EXPECT_TRUE(contains(lines[4], kOk)) << "the batch goes on after a failure";
  const RasCimResult fresh = runRasCim({"--json", "gi", kDialOutIpEndpoint});
  if (contains(lines[0], kNoPaths)) {
    EXPECT_TRUE(contains(lines[1], kNotFound)) << lines[1];
    EXPECT_EQ(r.status, 1) << "the status of the first failure";
    EXPECT_TRUE(contains(fresh.out, kNotFound)) << fresh.out;
    return;
  }
  const char mask[] = "\"name\":\"SubnetMask\",\"type\":\"string\",\"value\":\"255.255.255";
  EXPECT_TRUE(contains(lines[2], std::string(mask) + ".0\"")) << lines[2];
  EXPECT_TRUE(contains(fresh.out, std::string(mask) + ".255\"")) << fresh.out;
  EXPECT_EQ(r.status, 2) << "the status of the first failure";
}

// mi sends what wbemcli sends: the whole instance read, with the given values in it, so
// every writable property's setter runs; --named-only sends only the given property.
TEST_F(RasCimTest, ModifySendsTheWholeInstanceUnlessNamedOnly) {
  const std::string retries =
      "/bin/sed -i '/^declare CALLBACK_RETRY/ c declare CALLBACK_RETRY=\"4\"' "
      "/qv/etc/ppp/callback_v2k";
  const std::string number =
      "/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare TELEPHONE_NUMBER=\"5550199\"' "
      "/qv/etc/ppp/ppp_call_v2k";
  struct Row {
    std::vector<std::string> args;
    bool wholeInstance;
  };
  const Row rows[] = {{{"mi", kDialOutSettings, "DialRetries=4"}, true},
                      {{"mi", "--named-only", kDialOutSettings, "DialRetries=4"}, false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.args[1]);
    appliance::clearJournal();
    const RasCimResult r = runRasCim(row.args);
    EXPECT_EQ(r.status, 0) << r.out << r.err;
    const std::vector<std::string> journal = appliance::journal();
    const auto has = [&](const std::string& line) {
      return std::find(journal.begin(), journal.end(), line) != journal.end();
    };
    EXPECT_TRUE(has(retries));
    EXPECT_EQ(has(number), row.wholeInstance);
  }
}

}  // namespace
