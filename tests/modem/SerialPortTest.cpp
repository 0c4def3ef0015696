// The serial ports of both dial sides: device name and flow control read from each side's
// files, the edits of a new name and flow control, and the values refused.
#include <gtest/gtest.h>

#include <map>

#include "DeviceFixture.h"
#include "OW_CIMException.hpp"

namespace {

using namespace OpenWBEM;

const char kDialInOptions[] = "/qv/etc/ppp/options_dialin";
const char kDialOutOptions[] = "/qv/etc/ppp/options_dialout";
const char kDialInScript[] = "/qv/etc/ppp/mgetty_v2k";
const char kPppdDialOut[] = "/qv/etc/ppp/pppd_dialout_v2k";
const char kPppdAddo[] = "/qv/etc/ppp/pppd_addo_v2k";
const char kMgettyConfig[] = "/opt/etc/mgetty+sendfax/mgetty.config";
const char kSource[] = "../src/Zeph_SerialPortProvider";
const Lines kPortFiles = {kDialInOptions, kDialOutOptions, kDialInScript,
                          kPppdDialOut,   kPppdAddo,       kMgettyConfig};

std::string portLine(const std::string& port) {
  return "declare -r SERIAL_PORT=\"" + port + "\"";
}
std::string portEdit(const std::string& port, const char* script) {
  return "/bin/sed -i '/declare -r SERIAL_PORT/ c " + portLine(port) + "' " + script;
}
// The edit that makes `option` read `wanted` ("crtscts" or "#crtscts").
std::string optionEdit(const std::string& option, const std::string& wanted, const char* file) {
  return "/bin/sed -i 's/^#\\?" + option + "/" + wanted + "/' " + file;
}

std::map<std::string, std::string> portFiles() {
  std::map<std::string, std::string> content;
  for (const std::string& file : kPortFiles) content[file] = appliance::readFile(file);
  return content;
}

using SerialPort = DeviceTest;

TEST_F(SerialPort, BothSidesAreListedAsSerialPorts) {
  EXPECT_EQ(enumeratedIds(kPortIn), (Lines{"DialInSerialPort", "DialOutSerialPort"}));
  EXPECT_EQ(valueOf(kPortIn, "ElementName"), "SerialPort");
  EXPECT_EQ(valueOf(kPortOut, "ElementName"), "SerialPort");
}

// Hardware flow control wins when both options are active. The dial-out port comes from the
// script pppd is started by, not from the one a new name is written to.
TEST_F(SerialPort, EachSideReadsItsPortAndFlowControlWhenBuilt) {
  struct Row {
    const char* crtscts;
    const char* xonxoff;
    int flowControl;
    const char* dialInPort;
    const char* dialOutPort;
  };
  const std::vector<Row> rows = {
      {"crtscts", "#xonxoff", 1, "ttyS1", "ttyS1"},
      {"crtscts", "xonxoff", 1, "ttyS0", "ttyS3"},
      {"#crtscts", "xonxoff", 2, "ttyUSB0", "ttyS2"},
      {"#crtscts", "#xonxoff", 0, "ttyS1", "ttyS1"},
  };
  appliance::writeFile(kPppdAddo, portLine("ttyS9") + "\n");
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.crtscts) + " " + row.xonxoff);
    for (const char* options : {kDialInOptions, kDialOutOptions}) {
      replaceLines(options, "crtscts", row.crtscts);
      replaceLines(options, "#crtscts", row.crtscts);
      replaceLines(options, "xonxoff", row.xonxoff);
      replaceLines(options, "#xonxoff", row.xonxoff);
    }
    replaceLines(kDialInScript, "declare -r SERIAL_PORT=", portLine(row.dialInPort));
    replaceLines(kPppdDialOut, "declare -r SERIAL_PORT=", portLine(row.dialOutPort));
    initialize();
    EXPECT_EQ(valueOf(kPortIn, "FlowControl"), std::to_string(row.flowControl));
    EXPECT_EQ(valueOf(kPortOut, "FlowControl"), std::to_string(row.flowControl));
    EXPECT_EQ(valueOf(kPortIn, "Name"), row.dialInPort);
    EXPECT_EQ(valueOf(kPortOut, "Name"), row.dialOutPort);
    EXPECT_TRUE(wasLogged("Name of the Serial Port is "));
  }
}

// A new name goes into the side's script (and mgetty's configuration for dial-in) without a
// restart; flow control edits both options of the side, and dial-out is restarted.
TEST_F(SerialPort, EachSetEditsItsSidesFiles) {
  struct Row {
    Device device;
    const char* property;
    CIMValue value;
    Lines journal;
    std::map<std::string, Lines> lines;  // file -> lines it must hold afterwards
  };
  const auto flow = [](UInt8 value) { return CIMValue(value); };
  const auto flowEdits = [](const char* file, const char* crtscts, const char* xonxoff) {
    return Lines{optionEdit("crtscts", crtscts, file), optionEdit("xonxoff", xonxoff, file)};
  };
  const std::vector<Row> rows = {
      {kPortIn,
       "Name",
       text("ttyS2"),
       {"/bin/sed -i '/^port/ c port ttyS2' " + std::string(kMgettyConfig),
        portEdit("ttyS2", kDialInScript)},
       {{kMgettyConfig, {"port ttyS2"}}, {kDialInScript, {portLine("ttyS2")}}}},
      {kPortOut,
       "Name",
       text("ttyUSB1"),
       {portEdit("ttyUSB1", kPppdAddo)},
       {{kPppdAddo, {portLine("ttyUSB1")}}, {kPppdDialOut, {portLine("ttyS1")}}}},
      {kPortIn,
       "FlowControl",
       flow(0),
       flowEdits(kDialInOptions, "#crtscts", "#xonxoff"),
       {{kDialInOptions, {"#crtscts", "#xonxoff"}}}},
      {kPortIn,
       "FlowControl",
       flow(2),
       flowEdits(kDialInOptions, "#crtscts", "xonxoff"),
       {{kDialInOptions, {"#crtscts", "xonxoff"}}}},
      {kPortIn,
       "FlowControl",
       flow(1),
       flowEdits(kDialInOptions, "crtscts", "#xonxoff"),
       {{kDialInOptions, {"crtscts", "#xonxoff"}}}},
      {kPortOut,
       "FlowControl",
       flow(2),
       joined(flowEdits(kDialOutOptions, "#crtscts", "xonxoff"), kDialOutRestart),
       {{kDialOutOptions, {"#crtscts", "xonxoff"}}}},
      {kPortOut,
       "FlowControl",
       flow(0),
       joined(flowEdits(kDialOutOptions, "#crtscts", "#xonxoff"), kDialOutRestart),
       {{kDialOutOptions, {"#crtscts", "#xonxoff"}}}},
      {kPortOut,
       "FlowControl",
       flow(1),
       joined(flowEdits(kDialOutOptions, "crtscts", "#xonxoff"), kDialOutRestart),
       {{kDialOutOptions, {"crtscts", "#xonxoff"}}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.device.id) + " " + row.property + "=" + textOf(row.value));
    appliance::clearJournal();
    EXPECT_EQ(modify(row.device, {{row.property, row.value}}), CimFailure{});
    EXPECT_EQ(appliance::journal(), row.journal);
    for (const auto& [file, lines] : row.lines) {
      for (const std::string& line : lines)
        EXPECT_TRUE(hasLine(file, line)) << file << " lacks " << line;
    }
    EXPECT_EQ(valueOf(row.device, row.property), textOf(row.value));
  }
  EXPECT_FALSE(hasLine(kDialInOptions, "xonxoff"));
  EXPECT_FALSE(hasLine(kDialOutOptions, "##xonxoff"));
}

// Refused values change no file and run nothing; the cached value stays.
TEST_F(SerialPort, InvalidValuesAreRefusedWithTheirError) {
  struct Row {
    Device device;
    const char* property;
    CIMValue value;
    int code;
    int line;
    std::string message;
  };
  const std::string notAlphanumeric =
      "The value of $prop.getName() is invalid.\n"
      "#CFG_000_0000,MOF_Props_Zeph_SerialPort_$prop.getName()#";
  const int invalid = CIMException::INVALID_PARAMETER;
  const int failed = CIMException::FAILED;
  const std::vector<Row> rows = {
      {kPortIn, "Name", text("ttyS-1"), invalid, 382, notAlphanumeric},
      {kPortOut, "Name", text("/dev/ttyS1"), invalid, 382, notAlphanumeric},
      {kPortIn, "Name", text("ttyS1;reboot"), invalid, 382, notAlphanumeric},
      {kPortOut, "Name", text("tty S1"), invalid, 382, notAlphanumeric},
      {kPortIn, "Name", text("ttyS1'$(id)"), invalid, 382, notAlphanumeric},
      {kPortIn, "Name", text(std::string(33, 'a')), invalid, 334,
       "The length of Name must be <= 32\n#CFG_000_0004,MOF_Props_Zeph_SerialPort_Name,32#"},
      {kPortIn, "FlowControl", CIMValue(UInt8(3)), failed, 388, "#RAS_MODEM_100#"},
      {kPortOut, "FlowControl", CIMValue(UInt8(255)), failed, 388, "#RAS_MODEM_100#"},
  };
  const std::map<std::string, std::string> before = portFiles();
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.device.id) + " " + row.property + "=" + textOf(row.value));
    appliance::clearJournal();
    EXPECT_EQ(modify(row.device, {{row.property, row.value}}),
              (CimFailure{row.code, kSource, row.line, row.message}));
    EXPECT_EQ(portFiles(), before);
    EXPECT_EQ(appliance::journal(), Lines{});
  }
  EXPECT_EQ(valueOf(kPortIn, "Name"), "ttyS1");
  EXPECT_EQ(valueOf(kPortOut, "FlowControl"), "1");
  EXPECT_TRUE(wasLogged("The value of Flow Control is "));
}

}  // namespace
