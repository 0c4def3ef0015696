// The soft modem's two roles: the answering codes read from and written to the modem through
// its helper scripts, the calling codes in the dial-out connect script, the restart each side
// needs, and the values a module initialised again reads back.
#include <gtest/gtest.h>

#include <map>

#include "DeviceFixture.h"
#include "OW_Bool.hpp"

namespace {

using namespace OpenWBEM;

const char kCallScript[] = "/qv/etc/ppp/ppp_call_v2k";

// The connect script with the three modem variables as given (whole lines).
void writeCallScript(const std::string& errc, const std::string& comp, const std::string& speed) {
  appliance::writeFile(kCallScript, "#!/bin/bash\ndeclare TELEPHONE_NUMBER=\"5550199\"\n" + errc +
                                        "\n" + comp + "\n" + speed + "\n");
}

std::string declared(const std::string& variable, const std::string& code) {
  return "declare " + variable + "=\"" + code + "\"";
}

// The answering side's write of one code, and the calling side's edit of one variable.
std::string setModemParam(int parameter, const std::string& code) {
  return "/opt/etc/RasProviderScripts/setModemParam " + std::to_string(parameter) + " " + code;
}
std::string callEdit(const std::string& variable, const std::string& code) {
  return "sed -i '/^declare " + variable + "=/ c " + declared(variable, code) + "' " + kCallScript;
}

struct Values {
  bool errorControl;
  int callSpeed;
  bool compression;
};

class SoftModem : public DeviceTest {
 protected:
  // The "Setting ..." lines logged since the module was initialised.
  Lines settingLogs() const {
    Lines found;
    for (const std::string& text : logged())
      if (text.rfind("Setting ", 0) == 0) found.push_back(text);
    return found;
  }
};

// The calling side is given a speed one above the answering side's, to tell them apart.
int speedFor(const Device& device, int speed) {
  return std::string(device.id) == kModemOut.id ? speed + 1 : speed;
}

TEST_F(SoftModem, BothRolesAreListedWithTheirFixedNames) {
  EXPECT_EQ(enumeratedIds(kModemIn), (Lines{"SoftModemIn", "SoftModemOut"}));
  for (const Device& device : {kModemIn, kModemOut}) {
    SCOPED_TRACE(device.id);
    EXPECT_EQ(valueOf(device, "ElementName"), " DSP Soft Modem ");
    EXPECT_EQ(valueOf(device, "Name"), " V.42 Modem ");
  }
}

// Unknown codes leave a field as the object was built (false, 0) and are only logged.
TEST_F(SoftModem, EachRoleReadsItsCodesWhenBuilt) {
  struct Row {
    const char* what;
    std::map<int, std::string> modem;  // parameter -> code
    Lines callScript;                  // ERRC, COMP, SPEED lines
    Values in, out;
    Lines logs;
  };
  const std::vector<Row> rows = {
      {"pristine codes",
       {{2, "m5"}, {3, "k2"}, {4, "n0"}},
       {declared("MODEM_OPT_ERRC", "&m5"), declared("MODEM_OPT_COMP", "&k2"),
        declared("MODEM_OPT_SPEED", "&n0")},
       {true, 0, true},
       {true, 0, true},
       {"SoftModemDialIn Speed 0", "The value of speed is 0"}},
      {"options off, speeds set",
       {{2, "m0"}, {3, "k0"}, {4, "n14"}},
       {declared("MODEM_OPT_ERRC", "&m0"), declared("MODEM_OPT_COMP", "&k0"),
        declared("MODEM_OPT_SPEED", "&n7")},
       {false, 14, false},
       {false, 7, false},
       {"SoftModemDialIn Speed 14", "The value of speed is 7"}},
      {"unknown codes, an unquoted value, speeds past 8 bits",
       {{2, "m3"}, {3, "k1"}, {4, "n300"}},
       {declared("MODEM_OPT_ERRC", "&m3"), "declare MODEM_OPT_COMP=&k2",
        declared("MODEM_OPT_SPEED", "&n260")},
       {false, 44, false},
       {false, 4, false},
       {"The value of Error Control is", "3", "The value of Compression is", "1",
        "The value of (Dial-Out) Compression is"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    for (const auto& [parameter, code] : row.modem) appliance::setModemCode(parameter, code);
    writeCallScript(row.callScript[0], row.callScript[1], row.callScript[2]);
    initialize();
    for (const auto& [device, values] : {std::pair{kModemIn, row.in}, {kModemOut, row.out}}) {
      SCOPED_TRACE(device.id);
      EXPECT_EQ(valueOf(device, "ErrorControl"), values.errorControl ? "true" : "false");
      EXPECT_EQ(valueOf(device, "CallSpeed"), std::to_string(values.callSpeed));
      EXPECT_EQ(valueOf(device, "Compression"), values.compression ? "true" : "false");
    }
    for (const std::string& log : row.logs) EXPECT_TRUE(wasLogged(log)) << log;
    EXPECT_FALSE(appliance::fileExists("/tmp/modem_err"));
    EXPECT_FALSE(appliance::fileExists("/tmp/modem_speed"));
    EXPECT_FALSE(appliance::fileExists("/tmp/modem_comp"));
  }
}

// Answering changes go into the modem and restart mgetty; calling changes go into the
// connect script and restart the dial-out service. Speeds are not range-checked.
TEST_F(SoftModem, EachSetWritesItsRolesPlaceAndRestartsItsSide) {
  struct Row {
    Device device;
    const char* property;
    CIMValue value;
    Lines journal;
    int parameter;       // the modem parameter that holds it, 0 on the calling side
    std::string stored;  // the modem's code, or the connect script's line
    const char* log;
  };
  const auto flag = [](bool value) { return CIMValue(Bool(value)); };
  const auto speed = [](UInt8 value) { return CIMValue(value); };
  const auto answering = [](int parameter, const char* code) {
    return joined({setModemParam(parameter, code)}, kMgettyRestart);
  };
  const auto calling = [](const char* variable, const char* code) {
    return joined({callEdit(variable, code)}, kDialOutRestart);
  };
  const std::vector<Row> rows = {
      {kModemIn, "ErrorControl", flag(false), answering(2, "m0"), 2, "m0",
       "Setting Error Control for Dialin"},
      {kModemIn, "ErrorControl", flag(true), answering(2, "m5"), 2, "m5",
       "Mgetty is Restarted for Error Control"},
      {kModemIn, "CallSpeed", speed(0), answering(4, "n0"), 4, "n0",
       "Mgetty Restarted for  Call Speed  "},
      {kModemIn, "CallSpeed", speed(255), answering(4, "n255"), 4, "n255", "Call Speed 255"},
      {kModemIn, "Compression", flag(false), answering(3, "k0"), 3, "k0",
       "Setting Compression for Dialin"},
      {kModemIn, "Compression", flag(true), answering(3, "k2"), 3, "k2",
       "Setting compression for Dialin"},
      {kModemOut, "ErrorControl", flag(false), calling("MODEM_OPT_ERRC", "&m0"), 0,
       declared("MODEM_OPT_ERRC", "&m0"), "ppp_add_v2k is Restarted for Error Control"},
      {kModemOut, "ErrorControl", flag(true), calling("MODEM_OPT_ERRC", "&m5"), 0,
       declared("MODEM_OPT_ERRC", "&m5"), "Setting Error Control for Dialout"},
      {kModemOut, "CallSpeed", speed(0), calling("MODEM_OPT_SPEED", "&n0"), 0,
       declared("MODEM_OPT_SPEED", "&n0"), "Setting Call Speed for DialOut"},
      {kModemOut, "CallSpeed", speed(200), calling("MODEM_OPT_SPEED", "&n200"), 0,
       declared("MODEM_OPT_SPEED", "&n200"), "ppp_add_v2k is Restarted for Call Speed"},
      {kModemOut, "Compression", flag(false), calling("MODEM_OPT_COMP", "&k0"), 0,
       declared("MODEM_OPT_COMP", "&k0"), "Setting Compression for Dialout"},
      {kModemOut, "Compression", flag(true), calling("MODEM_OPT_COMP", "&k2"), 0,
       declared("MODEM_OPT_COMP", "&k2"), "ppp_add_v2k is Restarted for Compression"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.device.id) + " " + row.property + "=" + textOf(row.value));
    appliance::clearJournal();
    env_->log().clear();
    EXPECT_EQ(modify(row.device, {{row.property, row.value}}), CimFailure{});
    EXPECT_EQ(appliance::journal(), row.journal);
    if (row.parameter != 0) {
      EXPECT_EQ(appliance::modemCode(row.parameter), row.stored);
    } else {
      EXPECT_TRUE(hasLine(kCallScript, row.stored)) << appliance::readFile(kCallScript);
    }
    EXPECT_TRUE(wasLogged(row.log)) << row.log;
    if (std::string(row.log).rfind("Setting ", 0) == 0) {
      EXPECT_EQ(settingLogs(), Lines{row.log});
    }
    EXPECT_EQ(valueOf(row.device, row.property), textOf(row.value));
  }
}

TEST_F(SoftModem, AModuleInitialisedAgainReadsBackEverySetValue) {
  for (const Values& values : {Values{false, 9, false}, Values{true, 33, true}}) {
    SCOPED_TRACE(values.callSpeed);
    for (const Device& device : {kModemIn, kModemOut}) {
      const std::vector<Change> changes = {
          {"ErrorControl", CIMValue(Bool(values.errorControl))},
          {"CallSpeed", CIMValue(UInt8(speedFor(device, values.callSpeed)))},
          {"Compression", CIMValue(Bool(values.compression))}};
      EXPECT_EQ(modify(device, changes), CimFailure{});
    }
    initialize();
    for (const Device& device : {kModemIn, kModemOut}) {
      SCOPED_TRACE(device.id);
      EXPECT_EQ(valueOf(device, "ErrorControl"), values.errorControl ? "true" : "false");
      EXPECT_EQ(valueOf(device, "CallSpeed"), std::to_string(speedFor(device, values.callSpeed)));
      EXPECT_EQ(valueOf(device, "Compression"), values.compression ? "true" : "false");
    }
  }
}

}  // namespace
