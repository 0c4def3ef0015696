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
};

// Unknown codes leave a field as the object was built (false, 0) and are only logged. Hardware
// flow control wins when both options are active. The dial-out port comes from the script
// pppd is started by, not from the one a new name is written to.
TEST_F(Modem, EachSideReadsItsCodesPortAndFlowControlWhenBuilt) {
  struct Row {
    Lines modem;          // codes of parameters 2, 3, 4
    std::string call;     // the connect script
    std::string options;  // both sides' pppd options
    Lines ports;          // the dial-in start script and the one pppd dials out with
    Lines values;         // ErrorControl CallSpeed Compression Name FlowControl, by side
    Lines logs;
  };
  const auto call = [](const char* errc, const char* comp, const char* speed) {
    return "declare MODEM_OPT_ERRC=" + std::string(errc) + "\ndeclare MODEM_OPT_COMP=" + comp +
           "\ndeclare MODEM_OPT_SPEED=" + speed + "\n";
  };
  const std::vector<Row> rows = {
      {Lines{"m0", "k0", "n14"}, call("\"&m0\"", "\"&k0\"", "\"&n7\""), "crtscts\nxonxoff\n",
       Lines{port("ttyS0"), port("ttyS3")},
       Lines{"false 14 false ttyS0 1 ", "false 7 false ttyS3 1 "},
       Lines{"SoftModemDialIn Speed 14", "The value of speed is 7"}},
      {Lines{"m5", "k2", "n0"}, call("\"&m5\"", "\"&k2\"", "\"&n0\""), "#crtscts\nxonxoff\n",
       Lines{port("ttyUSB0"), port("ttyS2")},
       Lines{"true 0 true ttyUSB0 2 ", "true 0 true ttyS2 2 "}, Lines{}},
      // An unquoted value, speeds past 8 bits, no port line.
      {Lines{"m3", "k1", "n300"}, call("\"&m3\"", "&k2", "\"&n260\""), "#crtscts\n#xonxoff\n",
       Lines{"", port("ttyS1")}, Lines{"false 44 false  0 ", "false 4 false ttyS1 0 "},
       Lines{"The value of Error Control is", "3", "The value of Compression is", "1",
             "The value of (Dial-Out) Compression is"}},
  };
  EXPECT_EQ(values(kModemOut, {"ElementName", "Name"}), " DSP Soft Modem   V.42 Modem  ");
  EXPECT_EQ(valueOf(kPortOut, "ElementName"), "SerialPort");
  appliance::writeFile(kAddoScript, port("ttyS9") + "\n");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.call);
    for (int i = 0; i < 3; ++i) appliance::setModemCode(i + 2, row.modem[i]);
    appliance::writeFile(kCall, row.call);
    appliance::writeFile(kInOptions, row.options);
    appliance::writeFile(kOutOptions, row.options);
    appliance::writeFile(kMgettyScript, row.ports[0] + "\n");
    appliance::writeFile(kPppdScript, row.ports[1] + "\n");
    initialize();
    for (const auto& [modem, serial, expected] :
         {std::tuple{kModemIn, kPortIn, row.values[0]}, {kModemOut, kPortOut, row.values[1]}})
      EXPECT_EQ(values(modem, {"ErrorControl", "CallSpeed", "Compression"}) +
                    values(serial, {"Name", "FlowControl"}),
                expected);
    for (const std::string& log : joined({row.logs, {"Name of the Serial Port is "}}))
      EXPECT_TRUE(wasLogged(log)) << log;
    for (const char* file : {"/tmp/modem_err", "/tmp/modem_speed", "/tmp/modem_comp"})
      EXPECT_FALSE(appliance::fileExists(file)) << file;
  }
}

// Answering changes go into the modem and restart mgetty, calling changes into the connect
// script and restart dial-out; speeds are not range-checked. A new port name goes into the
// side's script (and mgetty's configuration for dial-in) without a restart; flow control edits
// the side's options, and dial-out is restarted.
TEST_F(Modem, EachSetWritesItsSidesPlaceAndRestartsItsSide) {
  const auto answering = [](const char* property, CIMValue v, int parameter, const char* code) {
    return valid(kModemIn, property, v,
                 joined({{"/opt/etc/RasProviderScripts/setModemParam " + std::to_string(parameter) +
                          " " + code},
                         kMgettyRestart}),
                 {"modem " + std::to_string(parameter) + code});
  };
  const auto calling = [](const char* property, CIMValue v, const std::string& variable,
                          const std::string& code) {
    return valid(kModemOut, property, v,
                 joined({{"sed -i '/^declare " + variable + "=/ c " + declared(variable, code) +
                          "' " + kCall},
                         kDialOutRestart}),
                 {"ppp_call_v2k " + declared(variable, code)});
  };
  const auto portEdit = [](const std::string& name, const char* script) {
    return "/bin/sed -i '/declare -r SERIAL_PORT/ c " + port(name) + "' " + script;
  };
  // The edits that make the side's options read `crtscts` and `xonxoff` as given.
  const auto flow = [](const Target& side, int value, const std::string& crtscts,
                       const std::string& xonxoff, const Lines& restart = {}) {
    const std::string file = side.keys[3].second == "DialInSerialPort" ? kInOptions : kOutOptions;
    const std::string name = file.substr(file.rfind('/') + 1) + " ";
    return valid(side, "FlowControl", u8(value),
                 joined({{"/bin/sed -i 's/^#\\?crtscts/" + crtscts + "/' " + file,
                          "/bin/sed -i 's/^#\\?xonxoff/" + xonxoff + "/' " + file},
                         restart}),
                 {name + crtscts, name + xonxoff});
  };
  runSets({
      answering("ErrorControl", flag(false), 2, "m0"),
      answering("ErrorControl", flag(true), 2, "m5"),
      answering("CallSpeed", u8(65), 4, "n65"),
      answering("Compression", flag(false), 3, "k0"),
      answering("Compression", flag(true), 3, "k2"),
      calling("ErrorControl", flag(false), "MODEM_OPT_ERRC", "&m0"),
      calling("CallSpeed", u8(200), "MODEM_OPT_SPEED", "&n200"),
      calling("Compression", flag(true), "MODEM_OPT_COMP", "&k2"),
      valid(kPortIn, "Name", text("ttyS2"),
            {"/bin/sed -i '/^port/ c port ttyS2' " + std::string(kMgettyConfig),
             portEdit("ttyS2", kMgettyScript)},
            {"mgetty.config port ttyS2", "mgetty_v2k " + port("ttyS2")}),
      valid(kPortOut, "Name", text("ttyUSB1"), {portEdit("ttyUSB1", kAddoScript)},
            {"pppd_addo_v2k " + port("ttyUSB1"), "pppd_dialout_v2k " + port("ttyS1")}),
      flow(kPortIn, 0, "#crtscts", "#xonxoff"),
      flow(kPortIn, 2, "#crtscts", "xonxoff"),
      flow(kPortOut, 1, "crtscts", "#xonxoff", kDialOutRestart),
      refused(kPortOut, "Name", text("/dev/ttyS1"), notValid(kPort)),
      refused(kPortIn, "Name", text(std::string(33, 'a')), tooLong(kPort, "Name")),
      refused(kPortIn, "FlowControl", u8(3), status(kPort, 100)),
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
