// The soft modem and the serial port of both dial sides. The answering modem's codes are read
// from and written to the modem through its helper scripts, the calling modem's are in the
// dial-out connect script; the ports' names are in the sides' start scripts and their flow
// control in the sides' pppd options. Each change restarts what the side needs.
#include "SettingsTest.h"

namespace {

using namespace settings;
using client::flag;
using client::text;
using client::u8;

const char kPort[] = "Zeph_SerialPort";
const Target kModemIn = client::systemElement("Zeph_SoftModem", "DeviceID", "SoftModemIn");
const Target kModemOut = client::systemElement("Zeph_SoftModem", "DeviceID", "SoftModemOut");
const Target kPortIn = client::systemElement(kPort, "DeviceId", "DialInSerialPort");
const Target kPortOut = client::systemElement(kPort, "DeviceId", "DialOutSerialPort");
const char kCall[] = "/qv/etc/ppp/ppp_call_v2k";
const char kInOptions[] = "/qv/etc/ppp/options_dialin";
const char kOutOptions[] = "/qv/etc/ppp/options_dialout";
const char kMgettyScript[] = "/qv/etc/ppp/mgetty_v2k";
const char kPppdScript[] = "/qv/etc/ppp/pppd_dialout_v2k";
const char kAddoScript[] = "/qv/etc/ppp/pppd_addo_v2k";
const char kMgettyConfig[] = "/opt/etc/mgetty+sendfax/mgetty.config";

std::string declared(const std::string& variable, const std::string& code) {
  return "declare " + variable + "=\"" + code + "\"";
}
std::string port(const std::string& name) {
  return declared("-r SERIAL_PORT", name);
}
// The answering side's write of one code, the calling side's edit of one connect variable.
Lines modemParam(int parameter, const std::string& code) {
  return joined(
      {{"/opt/etc/RasProviderScripts/setModemParam " + std::to_string(parameter) + " " + code},
       kMgettyRestart});
}
Lines callEdit(const std::string& variable, const std::string& code) {
  return joined(
      {{"sed -i '/^declare " + variable + "=/ c " + declared(variable, code) + "' " + kCall},
       kDialOutRestart});
}
// The edits that make the side's options read `crtscts` and `xonxoff` as given.
Lines flowEdits(const char* file, const std::string& crtscts, const std::string& xonxoff) {
  return {"/bin/sed -i 's/^#\\?crtscts/" + crtscts + "/' " + file,
          "/bin/sed -i 's/^#\\?xonxoff/" + xonxoff + "/' " + file};
}

class Modem : public SettingsTest {
 protected:
  // Lines of the files and codes the sets change, each under the name of its place.
  Lines state() override {
    Lines all;
    for (const char* file :
         {kCall, kInOptions, kOutOptions, kMgettyScript, kPppdScript, kAddoScript, kMgettyConfig})
      for (const std::string& line : appliance::readLines(file))
        all.push_back(std::string(file).substr(std::string(file).rfind('/') + 1) + " " + line);
    for (int parameter : {2, 3, 4})
      all.push_back("modem " + std::to_string(parameter) + appliance::modemCode(parameter));
    return all;
  }
  std::string values(const Target& target, std::initializer_list<const char*> properties) {
    std::string out;
    for (const char* property : properties) out += valueOf(target, property) + " ";
    return out;
  }
};

TEST_F(Modem, BothSidesAreListedWithTheirFixedNames) {
  for (const auto& [cls, key, ids] :
       {std::tuple{"Zeph_SoftModem", "DeviceID", Lines{"SoftModemIn", "SoftModemOut"}},
        std::tuple{kPort, "DeviceId", Lines{"DialInSerialPort", "DialOutSerialPort"}}}) {
    Lines found;
    for (const auto& path : enumNames(cls)) found.push_back(client::textOf(path.getKeyValue(key)));
    EXPECT_EQ(found, ids);
  }
  EXPECT_EQ(values(kModemOut, {"ElementName", "Name"}), " DSP Soft Modem   V.42 Modem  ");
  EXPECT_EQ(values(kPortOut, {"ElementName", "Name", "FlowControl"}), "SerialPort ttyS1 1 ");
  EXPECT_TRUE(wasLogged("Name of the Serial Port is "));
}

// Unknown codes leave a field as the object was built (false, 0) and are only logged. Hardware
// flow control wins when both options are active. The dial-out port comes from the script
// pppd is started by, not from the one a new name is written to.
TEST_F(Modem, EachSideReadsItsCodesPortAndFlowControlWhenBuilt) {
  struct Row {
    std::map<int, std::string> modem;  // parameter -> code
    const char* call;                  // ERRC, COMP and SPEED lines of the connect script
    const char* crtscts;
    const char* xonxoff;
    const char* ports[2];  // dial-in, dial-out
    const char* in;        // ErrorControl, CallSpeed, Compression; Name, FlowControl
    const char* out;
    Lines logs;
  };
  const std::vector<Row> rows = {
      {{{2, "m0"}, {3, "k0"}, {4, "n14"}},
       "ERRC=\"&m0\"\ndeclare MODEM_OPT_COMP=\"&k0\"\ndeclare MODEM_OPT_SPEED=\"&n7\"",
       "crtscts",
       "xonxoff",
       {"ttyS0", "ttyS3"},
       "false 14 false ttyS0 1 ",
       "false 7 false ttyS3 1 ",
       {"SoftModemDialIn Speed 14", "The value of speed is 7"}},
      {{{2, "m5"}, {3, "k2"}, {4, "n0"}},
       "ERRC=\"&m5\"\ndeclare MODEM_OPT_COMP=\"&k2\"\ndeclare MODEM_OPT_SPEED=\"&n0\"",
       "#crtscts",
       "xonxoff",
       {"ttyUSB0", "ttyS2"},
       "true 0 true ttyUSB0 2 ",
       "true 0 true ttyS2 2 ",
       {}},
      // An unquoted value, speeds past 8 bits, no port line.
      {{{2, "m3"}, {3, "k1"}, {4, "n300"}},
       "ERRC=\"&m3\"\ndeclare MODEM_OPT_COMP=&k2\ndeclare MODEM_OPT_SPEED=\"&n260\"",
       "#crtscts",
       "#xonxoff",
       {"", "ttyS1"},
       "false 44 false  0 ",
       "false 4 false ttyS1 0 ",
       {"The value of Error Control is", "3", "The value of Compression is", "1",
        "The value of (Dial-Out) Compression is"}},
  };
  appliance::writeFile(kAddoScript, port("ttyS9") + "\n");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.call);
    for (const auto& [parameter, code] : row.modem) appliance::setModemCode(parameter, code);
    appliance::writeFile(kCall, std::string("declare MODEM_OPT_") + row.call + "\n");
    for (const char* options : {kInOptions, kOutOptions}) {
      client::replaceLines(options, "crtscts", row.crtscts);
      client::replaceLines(options, "#crtscts", row.crtscts);
      client::replaceLines(options, "xonxoff", row.xonxoff);
      client::replaceLines(options, "#xonxoff", row.xonxoff);
    }
    client::replaceLines(kMgettyScript,
                         "declare -r SERIAL_PORT=", *row.ports[0] ? port(row.ports[0]) : "");
    client::replaceLines(kPppdScript, "declare -r SERIAL_PORT=", port(row.ports[1]));
    initialize();
    for (const auto& [modem, serial, expected] :
         {std::tuple{kModemIn, kPortIn, row.in}, {kModemOut, kPortOut, row.out}})
      EXPECT_EQ(values(modem, {"ErrorControl", "CallSpeed", "Compression"}) +
                    values(serial, {"Name", "FlowControl"}),
                expected);
    for (const std::string& log : row.logs) EXPECT_TRUE(wasLogged(log)) << log;
    for (const char* file : {"/tmp/modem_err", "/tmp/modem_speed", "/tmp/modem_comp"})
      EXPECT_FALSE(appliance::fileExists(file)) << file;
  }
}

// Answering changes go into the modem and restart mgetty, calling changes into the connect
// script and restart dial-out; speeds are not range-checked. A new port name goes into the
// side's script (and mgetty's configuration for dial-in) without a restart; flow control edits
// the side's options, and dial-out is restarted.
TEST_F(Modem, EachSetWritesItsSidesPlaceAndRestartsItsSide) {
  runSets({
      {kModemIn, "ErrorControl", flag(false), modemParam(2, "m0"), {"modem 2m0"}},
      {kModemIn, "ErrorControl", flag(true), modemParam(2, "m5"), {"modem 2m5"}},
      {kModemIn, "CallSpeed", u8(65), modemParam(4, "n65"), {"modem 4n65"}},
      {kModemIn, "Compression", flag(false), modemParam(3, "k0"), {"modem 3k0"}},
      {kModemIn, "Compression", flag(true), modemParam(3, "k2"), {"modem 3k2"}},
      {kModemOut,
       "ErrorControl",
       flag(false),
       callEdit("MODEM_OPT_ERRC", "&m0"),
       {"ppp_call_v2k " + declared("MODEM_OPT_ERRC", "&m0")}},
      {kModemOut,
       "CallSpeed",
       u8(200),
       callEdit("MODEM_OPT_SPEED", "&n200"),
       {"ppp_call_v2k " + declared("MODEM_OPT_SPEED", "&n200")}},
      {kModemOut,
       "Compression",
       flag(true),
       callEdit("MODEM_OPT_COMP", "&k2"),
       {"ppp_call_v2k " + declared("MODEM_OPT_COMP", "&k2")}},
      {kPortIn,
       "Name",
       text("ttyS2"),
       {"/bin/sed -i '/^port/ c port ttyS2' " + std::string(kMgettyConfig),
        "/bin/sed -i '/declare -r SERIAL_PORT/ c " + port("ttyS2") + "' " + kMgettyScript},
       {"mgetty.config port ttyS2", "mgetty_v2k " + port("ttyS2")}},
      {kPortOut,
       "Name",
       text("ttyUSB1"),
       {"/bin/sed -i '/declare -r SERIAL_PORT/ c " + port("ttyUSB1") + "' " + kAddoScript},
       {"pppd_addo_v2k " + port("ttyUSB1"), "pppd_dialout_v2k " + port("ttyS1")}},
      {kPortIn,
       "FlowControl",
       u8(0),
       flowEdits(kInOptions, "#crtscts", "#xonxoff"),
       {"options_dialin #crtscts", "options_dialin #xonxoff"}},
      {kPortIn,
       "FlowControl",
       u8(2),
       flowEdits(kInOptions, "#crtscts", "xonxoff"),
       {"options_dialin #crtscts", "options_dialin xonxoff"}},
      {kPortOut,
       "FlowControl",
       u8(1),
       joined({flowEdits(kOutOptions, "crtscts", "#xonxoff"), kDialOutRestart}),
       {"options_dialout crtscts", "options_dialout #xonxoff"}},
      {kPortIn, "Name", text("ttyS1;reboot"), {}, {}, notValid(kPort)},
      {kPortOut, "Name", text("/dev/ttyS1"), {}, {}, notValid(kPort)},
      {kPortIn, "Name", text("tty S1"), {}, {}, notValid(kPort)},
      {kPortIn, "Name", text(std::string(33, 'a')), {}, {}, tooLong(kPort, "Name")},
      {kPortIn, "FlowControl", u8(3), {}, {}, status(kPort, 100)},
  });
  for (const char* log :
       {"Setting Error Control for Dialin", "Mgetty is Restarted for Error Control",
        "in set val  =  65 value = A", "Call Speed 65", "Setting Call Speed for Dialin",
        "Mgetty Restarted for  Call Speed  ", "Setting Compression for Dialin",
        "Setting compression for Dialin", "Mgetty Restarted for Compression",
        "Setting Error Control for Dialout", "ppp_add_v2k is Restarted for Error Control",
        "Setting Call Speed for DialOut", "ppp_add_v2k is Restarted for Call Speed",
        "Setting Compression for Dialout", "ppp_add_v2k is Restarted for Compression",
        "The value of Flow Control is "})
    EXPECT_TRUE(wasLogged(log)) << log;
  // A module initialised again reads back what was set.
  initialize();
  EXPECT_EQ(values(kModemIn, {"ErrorControl", "CallSpeed", "Compression"}), "true 65 true ");
  EXPECT_EQ(values(kModemOut, {"ErrorControl", "CallSpeed", "Compression"}), "false 200 true ");
  EXPECT_EQ(values(kPortIn, {"Name", "FlowControl"}), "ttyS2 2 ");
  EXPECT_EQ(values(kPortOut, {"Name", "FlowControl"}), "ttyS1 1 ");
}

}  // namespace
