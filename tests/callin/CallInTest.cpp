// Call-in settings as a client sees them: values from the registry and mgetty's script, which
// of them are read live, sets with their registry, script and restart, and the errors of
// refused values, missing registry values and a registry that cannot be written.
#include "ScopedEnv.h"
#include "SettingsTest.h"

namespace {

using namespace settings;
using client::flag;
using client::u16;

const char kClass[] = "Zeph_CallInSettingData";
const Target kCallIn = client::settingData(kClass, "Velmar:Zeph_CallInSettingData");
const char kScript[] = "/qv/etc/ppp/mgetty_v2k";
const char kQvlError[] = "ERROR|Error in QVL Operation\n";
const std::initializer_list<const char*> kValues = {
    "LineToAnswer", "RingsBeforeAnswer", "AutoDisableTimer", "AutoDisableFlag", "DNNumber"};

std::string rings(int n) {
  return "declare -r NUMBER_OF_RINGS=\"" + std::to_string(n) + "\"";
}
Set ringsSet(int n, const Lines& restart = kMgettyRestart) {
  return valid(
      kCallIn, "RingsBeforeAnswer", u16(n),
      joined(
          {{"/bin/sed -i '/^declare -r NUMBER_OF_RINGS/ c " + rings(n) + "' " + kScript}, restart}),
      {rings(n)});
}
Set registrySet(const char* property, CIMValue value, const std::string& stored) {
  return valid(kCallIn, property, value, {}, {property + ("=" + stored)});
}

class CallIn : public SettingsTest {
 protected:
  Lines state() override {
    return joined({appliance::readLines("/var/lib/qvl/registry"), appliance::readLines(kScript)});
  }
};

// Only RingsBeforeAnswer carries the impact warning of a dial session.
TEST_F(CallIn, GetShowsEveryValueAndWarnsOnRingsDuringADialInSession) {
  for (const char* line :
       {"DEBUG|RingsBeforeAnswer =2\n", "DEBUG|Line To Answer is 1",
        "DEBUG|Auto Disable timer value = 10", "DEBUG|AutoDisable Flag is Off\n"})
    EXPECT_EQ(count(loggedWithCategory(), line), 1) << line;
  Lines values = {"InstanceID=Velmar:Zeph_CallInSettingData",
                  "ElementName=Dial-In Configuration",
                  "LineToAnswer=1",
                  "RingsBeforeAnswer=2",
                  "AutoDisableTimer=10",
                  "AutoDisableFlag=false",
                  "DNNumber=5550142"};
  EXPECT_EQ(shown(kCallIn), values);
  ConnectionStatus = true;
  check_key = "DialInEndpoint";
  values[3] +=
      " [ImpactWarning=Dial-In Session is in Progress.Change will take effect for Next "
      "Dial-In Session]";
  EXPECT_EQ(shown(kCallIn), values);
  EXPECT_TRUE(appliance::journal().empty());
}

// LineToAnswer and DNNumber are read at every get, the others when the module starts. A missing
// value is logged (the timer's at debug level, in its own spelling) and leaves the last value
// read, or the default.
TEST_F(CallIn, OutsideChangesShowAtOnceOrAfterReinitialising) {
  appliance::regSet("LineToAnswer", "5");
  appliance::regSet("modemdn", "5559999 ext 2");
  client::replaceLines(kScript, "declare -r NUMBER_OF_RINGS=", rings(7));
  appliance::regSet("AutoDisableTimer", "25");
  appliance::regSet("AutoDisableFlag", "on");
  EXPECT_EQ(values(kCallIn, kValues), "5 2 10 false 5559999 ext 2 ");
  initialize();
  EXPECT_EQ(values(kCallIn, kValues), "5 7 25 true 5559999 ext 2 ");
  for (const char* name : {"LineToAnswer", "modemdn", "AutoDisableTimer", "AutoDisableFlag"})
    appliance::regDelete(name);
  env_->log().clear();
  EXPECT_EQ(valueOf(kCallIn, "DNNumber"), "5559999 ext 2");
  EXPECT_EQ(count(loggedWithCategory(), kQvlError), 2);  // the line's and the number's
  initialize();
  EXPECT_EQ(count(loggedWithCategory(), kQvlError), 2);  // the line's and the flag's
  EXPECT_EQ(count(loggedWithCategory(), "DEBUG|Error IN QVL Operation\n"), 1);
  EXPECT_EQ(values(kCallIn, kValues), "0 7 0 false  ");
}

TEST_F(CallIn, SetsReachTheRegistryOrTheScriptOrFailWithTheirError) {
  const auto ringsOutside = [](int line, const char* relation, const char* error,
                               const char* bound) {
    return CimFailure{
        CIMException::INVALID_PARAMETER, "../src/Zeph_CallInSettingDataProvider", line,
        std::string("The value of RingsBeforeAnswer must be ") + relation + " " + bound + "\n#" +
            error + ",MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer," + bound + "#"};
  };
  runSets(
      {registrySet("LineToAnswer", u16(3), "3"), registrySet("LineToAnswer", u16(0), "NONE"),
       registrySet("AutoDisableTimer", u16(30), "30"), registrySet("AutoDisableTimer", u16(0), "0"),
       registrySet("AutoDisableFlag", flag(true), "ON"),
       registrySet("AutoDisableFlag", flag(false), "OFF"), ringsSet(20), ringsSet(1),
       refused(kCallIn, "LineToAnswer", u16(10000), status(kClass, 13)),
       refused(kCallIn, "LineToAnswer", u16(9), status(kClass, 18)),  // above MaxLine
       refused(kCallIn, "RingsBeforeAnswer", u16(21),
               ringsOutside(334, "<=", "CFG_000_0003", "20")),
       refused(kCallIn, "RingsBeforeAnswer", u16(0), ringsOutside(342, ">=", "CFG_000_0002", "1")),
       refused(kCallIn, "AutoDisableTimer", u16(31), status(kClass, 14))});
  for (const char* line :
       {"Line to Answer  0\n", "Setting AutoDisable Timer value 30\n",
        "Zeph_CallInSettingDataImpl::setAutoDisableTimer\n", "Setting the AutoDisable FLag to 1\n",
        "Setting the AutoDisable FLag to 0\n", "Killing Mgetty"})
    EXPECT_TRUE(wasLogged(line)) << line;
  {
    const appliance::ScopedEnv broken("QVL_REGISTRY", "/nonexistent/registry");
    env_->log().clear();
    runSets({refused(kCallIn, "LineToAnswer", u16(3), status(kClass, 100)),
             refused(kCallIn, "AutoDisableTimer", u16(5), status(kClass, 100)),
             refused(kCallIn, "AutoDisableFlag", flag(true), status(kClass, 100))});
    EXPECT_EQ(count(loggedWithCategory(), kQvlError), 3);
  }
  // Without MinLine and MaxLine a line is checked against the fixed range 1 to 268.
  appliance::regDelete("MinLine");
  appliance::regDelete("MaxLine");
  runSets({registrySet("LineToAnswer", u16(268), "268"),
           refused(kCallIn, "LineToAnswer", u16(269), status(kClass, 18))});
  // A dial-in call in progress is never cut: the script changes, mgetty is left alone.
  appliance::linkUp(appliance::Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2");
  runSets({ringsSet(5, {})});
}

}  // namespace
