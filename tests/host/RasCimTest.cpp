// ras-cim driving the module through the embedded CIMOM inside the simulated appliance: every
// class read and written and in agreement with the schema, errors with their code, place and
// exit status, a batch keeping the module's state, and what mi sends.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "ApplianceTest.h"

namespace {

const char kDialOutSettings[] =
    "Zeph_DialOutSettingData.InstanceID=\"Velmar:Zeph_DialOutSettingData\"";
const char kSystem[] = "SystemCreationClassName=\"Zeph_System\",SystemName=\"Zeph\",";
const std::string kPppOut =
    std::string("Zeph_PPPProtocolEndpoint.") + kSystem +
    "CreationClassName=\"Zeph_PPPProtocolEndpoint\",Name=\"DialOutEndpoint\"";
const std::string kIpOut =
    std::string("Zeph_RASIPProtocolEndpoint.") + kSystem +
    "CreationClassName=\"Zeph_RASIPProtocolEndpoint\",Name=\"DialOutEndpoint\"";

// One instance of each class, a writable property with a new value, and its type as read back.
const std::vector<std::vector<std::string>> kClasses = {
    {"Zeph_CallInSettingData",
     "Zeph_CallInSettingData.InstanceID=\"Velmar:Zeph_CallInSettingData\"", "RingsBeforeAnswer",
     "7", "uint16"},
    {"Zeph_DialOutSettingData", kDialOutSettings, "DialRetries", "4", "uint16"},
    {"Zeph_RASService",
     std::string("Zeph_RASService.") + kSystem +
         "CreationClassName=\"Zeph_RASService\",Name=\"RASService\"",
     "modemStatus", "true", "boolean"},
    {"Zeph_RASStaticIPAddressPool",
     "Zeph_RASStaticIPAddressPool.InstanceID=\"Velmar:DialOutRASStaticIPAddressPool\"", "ipAddr",
     "\"10.9.9.2\"", "string"},
    {"Zeph_NextHopIPRoute", "Zeph_NextHopIPRoute.InstanceID=\"10.1.0.0\"", "RouteMetric", "9",
     "uint16"},
    {"Zeph_RASIPProtocolEndpoint", kIpOut, "SubnetMask", "\"255.255.255.0\"", "string"},
    {"Zeph_PPPProtocolEndpoint", kPppOut, "MTU", "1400", "uint16"},
    {"Zeph_SoftModem",
     std::string("Zeph_SoftModem.") + kSystem +
         "CreationClassName=\"Zeph_SoftModem\",DeviceID=\"SoftModemOut\"",
     "CallSpeed", "3", "uint8"},
    {"Zeph_SerialPort",
     std::string("Zeph_SerialPort.") + kSystem +
         "CreationClassName=\"Zeph_SerialPort\",DeviceId=\"DialOutSerialPort\"",
     "FlowControl", "2", "uint8"},
};

struct RasCimResult {
  int status;
  std::string out;                 // its standard output
  std::vector<std::string> lines;  // the same, line by line
};

// Runs ras-cim with the arguments, and with `batch` as its batch file when given. The embedded
// CIMOM unloads the module at shutdown, after which LeakSanitizer can name neither the
// module's objects nor OpenWBEM's own: the module's leaks are checked in process.
RasCimResult runRasCim(std::vector<std::string> args, const std::string& batch = "") {
  if (!batch.empty()) {
    appliance::writeFile("/tmp/batch", batch);
    args.insert(args.begin(), {"--batch", "/tmp/batch"});
  }
  args.insert(args.begin(), {"env", "LD_LIBRARY_PATH=" RAS_CIM_LIBRARY_PATH,
                             "LSAN_OPTIONS=detect_leaks=0", RAS_CIM});
  const appliance::ToolResult r = appliance::runTool(args);
  RasCimResult result{r.status, r.output, {}};
  std::istringstream out(r.output);
  for (std::string line; std::getline(out, line);) result.lines.push_back(line);
  return result;
}

std::string quoted(const std::string& word) {
  std::string out = "'";
  for (char c : word) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

using RasCimTest = ApplianceTest;

// ei/ein of every class and of the association, ai/ri from the dial-out settings, then mi and
// gi of each class: every answer succeeds, agrees with the schema and reads the change back.
TEST_F(RasCimTest, EveryClassReadsWritesAndAgreesWithTheSchema) {
  std::string batch = "ei Zeph_DialOutRoutes\nein Zeph_DialOutRoutes\nai " +
                      quoted(kDialOutSettings) + "\nri " + quoted(kDialOutSettings) + "\n";
  for (const auto& c : kClasses) {
    batch += "ei " + c[0] + "\nein " + c[0] + "\nmi " + quoted(c[1]) + " " +
             quoted(c[2] + "=" + c[3]) + "\ngi " + quoted(c[1]) + "\n";
  }
  const RasCimResult r = runRasCim({"--json"}, batch);
  const std::vector<std::string>& lines = r.lines;
  ASSERT_EQ(lines.size(), 4 + 4 * kClasses.size()) << r.out;
  EXPECT_EQ(r.status, 0);
  for (const std::string& line : lines) {
    EXPECT_TRUE(contains(line, "\"ok\":true")) << line;
    EXPECT_FALSE(contains(line, "schemaErrors")) << line;
  }
  for (std::size_t i = 0; i < kClasses.size(); ++i) {
    const auto& c = kClasses[i];
    EXPECT_TRUE(contains(lines[4 + 4 * i + 3], "{\"name\":\"" + c[2] + "\",\"type\":\"" + c[4] +
                                                   "\",\"value\":" + c[3] + ","))
        << lines[4 + 4 * i + 3];
  }
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
      {{"ai", "-ac", "Zeph_Nothing", kDialOutSettings},
       1,
       "\"code\":6,\"name\":\"CIM_ERR_NOT_FOUND\",\"message\":\"/root/cimv2:Zeph_Nothing\""},
      {{"gi", "Zeph_CallInSettingData.InstanceID=\"nope\""},
       1,
       "\"code\":6,\"name\":\"CIM_ERR_NOT_FOUND\",\"message\":\"\","
       "\"file\":\"../src/Zeph_CallInSettingDataProvider\""},
      // A property the class does not declare reaches the module, which skips it.
      {{"mi", kPppOut, "Speed=1"}, 0, "{\"verb\":\"mi\",\"ok\":true}"},
      {{"ein", "Zeph_Account"}, 0, "\"paths\":[\"root/cimv2:Zeph_Account.Name=\\\"500\\\"\""},
      {{"mi", kPppOut, "MTU=abc"},
       1,
       "\"code\":4,\"name\":\"CIM_ERR_INVALID_PARAMETER\","
       "\"message\":\"Unable to convert \\\"abc\\\" into UInt16\",\"file\":\"ras-cim\",\"line\":0"},
      {{"mi", kDialOutSettings, "DialRetries="}, 1, "\"message\":\"#RAS_MODEM_2#\""},
      {{"mi", kPppOut, "MTU={1}"}, 2, "MTU is uint16: give a single value"},
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
    EXPECT_EQ(r.status, row.status) << r.out;
    ASSERT_EQ(r.lines.size(), 1u) << r.out;
    EXPECT_TRUE(contains(r.out, row.expected)) << r.out;
  }
  // Without --json the error is one line on standard error, nothing on standard output.
  const appliance::ToolResult text =
      appliance::runTool({"sh", "-c",
                          "env LSAN_OPTIONS=detect_leaks=0 LD_LIBRARY_PATH=" RAS_CIM_LIBRARY_PATH
                          " " RAS_CIM " gi \"$0\" 2>&1 >/dev/null",
                          "zeph_softmodem.DeviceID=\"SoftModemIn\""});
  EXPECT_EQ(text.status, 1);
  EXPECT_EQ(text.output, "ras-cim: gi: CIM_ERR_INVALID_CLASS (5) at ../src/Zeph_RASProvider:479\n");
}

// One module for the whole batch: a value kept only in memory reads back within it and not
// in the next process; the batch goes on after a failure and exits with the first one's status.
TEST_F(RasCimTest, BatchKeepsTheModuleStateBetweenOperations) {
  const std::string batch = "# the subnet mask lives only in the module\n\nmi " + quoted(kIpOut) +
                            " SubnetMask=\"255.255.255.0\"\ngi " + quoted(kIpOut) +
                            "\nfrobnicate\nein Zeph_SoftModem\n";
  const RasCimResult r = runRasCim({"--json"}, batch);
  const std::vector<std::string>& lines = r.lines;
  ASSERT_EQ(lines.size(), 4u) << r.out;
  const std::string mask = "\"name\":\"SubnetMask\",\"type\":\"string\",\"value\":\"255.255.255";
  EXPECT_TRUE(contains(lines[1], mask + ".0\"")) << lines[1];
  EXPECT_TRUE(contains(lines[3], "\"ok\":true")) << lines[3];
  EXPECT_EQ(r.status, 2);
  EXPECT_TRUE(contains(runRasCim({"--json", "gi", kIpOut}).out, mask + ".255\""));
}

// mi sends what wbemcli sends, the whole instance read with the given values in it, so every
// writable property's setter runs; --named-only sends only the given property.
TEST_F(RasCimTest, ModifySendsTheWholeInstanceUnlessNamedOnly) {
  const std::string number =
      "/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare TELEPHONE_NUMBER=\"5550199\"' "
      "/qv/etc/ppp/ppp_call_v2k";
  for (bool namedOnly : {false, true}) {
    appliance::clearJournal();
    std::vector<std::string> args{"mi", kDialOutSettings, "DialRetries=4"};
    if (namedOnly) args.insert(args.begin() + 1, "--named-only");
    EXPECT_EQ(runRasCim(args).status, 0);
    const std::vector<std::string> journal = appliance::journal();
    EXPECT_EQ(std::count(journal.begin(), journal.end(), number), namedOnly ? 0 : 1) << namedOnly;
  }
}

}  // namespace
