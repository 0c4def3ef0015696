// Gets of the RAS service: every property with its value and qualifiers for each registry
// state, and the stop steps that every read of a disabled service repeats.
#include "ServiceFixture.h"

using ::testing::ElementsAreArray;
using namespace service;

namespace {

struct GetCase {
  const char* name;
  std::function<void()> setUp;
  bool modemStatus;
  Lines journal;
  Lines log;  // after the getter's trace line
};

const Lines kNone;
const Lines kNotUpdated = {"ERROR|ERROR:modemStatus is not properly update in the PDR.. \n"};
const std::string kTrace = "DEBUG|Zeph_RASServiceImpl::getmodemStatus\n";
const Lines kStopLoggedWithoutLink = joined(
    {{"DEBUG|Interface for DialIn  is", "DEBUG|", "DEBUG|ProcessCmd1 is", "DEBUG|" + kKillMgetty},
     {"DEBUG|Interface for DialOut  is", "DEBUG|ppp", "DEBUG|ProcessCmd is"},
     {"DEBUG|" + hangup("ppp")}});
const Lines kStopWithADialInCall = {
    gateEdit(kClosed, kDialIn),  hangup("ppp0"), kKillMgetty,  kListAll,
    gateEdit(kClosed, kDialOut), kKillChat,      hangup("ppp")};

TEST_F(ServiceTest, GetShowsEveryPropertyAndStopsADisabledService) {
  const auto outside = [](const char* value) { return [value] { changeFromOutside(value); }; };
  const auto disabledWithADialInCall = [] { changeFromOutside("DISABLED"), dialInUp(); };
  const auto noEntry = [] { appliance::regDelete("ModemStatus"), QvlNotifySync(); };
  const std::vector<GetCase> cases = {
      {"ENABLED", [] {}, true, kNone, kNone},
      {"enabled, lower case", outside("enabled"), true, kNone, kNone},
      {"disabled, lower case", outside("disabled"), false, kStopsWithoutLink,
       kStopLoggedWithoutLink},
      {"DISABLED, a dial-in call started by another program", disabledWithADialInCall, false,
       kStopWithADialInCall, kNone},
      {"neither value", outside("OFF"), false, kNone, kNotUpdated},
      {"no registry entry", noEntry, false, kNone, {"ERROR|Error IN QVL Operation\n"}},
  };
  for (const GetCase& c : cases) {
    pristine();
    c.setUp();
    appliance::clearJournal();
    newLog();
    const OpenWBEM::CIMInstance instance = get();
    EXPECT_THAT(appliance::journal(), ElementsAreArray(c.journal)) << c.name;
    const Lines log = newLog();
    ASSERT_FALSE(log.empty()) << c.name;
    EXPECT_EQ(log.front(), kTrace) << c.name;
    EXPECT_TRUE(containsInOrder(log, c.log)) << c.name << ::testing::PrintToString(log);

    const Lines expected = {"SystemCreationClassName=Zeph_System",
                            "SystemName=Zeph",
                            "CreationClassName=Zeph_RASService",
                            "Name=RASService",
                            "ElementName=",
                            c.modemStatus ? "modemStatus=true" : "modemStatus=false"};
    Lines shown;
    for (const OpenWBEM::CIMProperty& property : instance.getProperties()) {
      shown.push_back(std::string(property.getName().c_str()) + "=" +
                      property.getValue().toString().c_str());
      EXPECT_EQ(property.getQualifiers().size(), 0u) << c.name << " " << shown.back();
    }
    EXPECT_EQ(shown, expected) << c.name;
    EXPECT_EQ(instance.getPropertyValue("modemStatus").getType(), OpenWBEM::CIMDataType::BOOLEAN);
  }
}

// With a dial-in call up and the service enabled, a get changes nothing and warns of nothing.
TEST_F(ServiceTest, EnumerationListsTheOneServiceWithoutTouchingALiveCall) {
  using namespace OpenWBEM::WBEMFlags;
  dialInUp();
  appliance::clearJournal();
  OpenWBEM::CIMInstanceArray instances;
  OpenWBEM::CIMInstanceArrayBuilder result(instances);
  call([&](const auto& env) {
    provider_->enumInstances(env, kNs, "Zeph_RASService", result, E_NOT_LOCAL_ONLY, E_DEEP,
                             E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass, kNoClass);
  });
  ASSERT_EQ(instances.size(), 1u);
  EXPECT_EQ(instances[0].getPropertyValue("modemStatus").toString(), "true");
  EXPECT_EQ(instances[0].getProperty("modemStatus").getQualifiers().size(), 0u);
  EXPECT_TRUE(appliance::journal().empty());
  EXPECT_EQ(appliance::processState("mgetty"), "running");
}

}  // namespace
