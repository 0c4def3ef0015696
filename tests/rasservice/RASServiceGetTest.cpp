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

const std::string kTrace = "DEBUG|Zeph_RASServiceImpl::getmodemStatus\n";
const Lines kStopDialInThenDialOut = {gateEdit(kClosed, kDialIn),  kKillMgetty, kListAll,
                                      gateEdit(kClosed, kDialOut), kKillChat,   hangup("ppp")};

TEST_F(ServiceTest, GetShowsEveryPropertyAndStopsADisabledService) {
  const std::vector<GetCase> cases = {
      {"ENABLED", [] {}, true, {}, {}},
      {"enabled, lower case", [] { changeFromOutside("enabled"); }, true, {}, {}},
      {"disabled, lower case",
       [] { changeFromOutside("disabled"); },
       false,
       kStopDialInThenDialOut,
       {"DEBUG|Interface for DialIn  is", "DEBUG|", "DEBUG|ProcessCmd1 is", "DEBUG|" + kKillMgetty,
        "DEBUG|Interface for DialOut  is", "DEBUG|ppp", "DEBUG|ProcessCmd is",
        "DEBUG|" + hangup("ppp")}},
      {"DISABLED, a dial-in call started by another program",
       [] { changeFromOutside("DISABLED"), dialInUp(); },
       false,
       {gateEdit(kClosed, kDialIn), hangup("ppp0"), kKillMgetty, kListAll,
        gateEdit(kClosed, kDialOut), kKillChat, hangup("ppp")},
       {}},
      {"neither value",
       [] { changeFromOutside("OFF"); },
       false,
       {},
       {"ERROR|ERROR:modemStatus is not properly update in the PDR.. \n"}},
      {"no registry entry",
       [] { appliance::regDelete("ModemStatus"), QvlNotifySync(); },
       false,
       {},
       {"ERROR|Error IN QVL Operation\n"}},
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
    EXPECT_TRUE(containsInOrder(log, c.log)) << c.name << listed(log);

    const std::vector<std::pair<std::string, std::string>> expected = {
        {"SystemCreationClassName", "Zeph_System"},
        {"SystemName", "Zeph"},
        {"CreationClassName", "Zeph_RASService"},
        {"Name", "RASService"},
        {"ElementName", ""},
        {"modemStatus", c.modemStatus ? "true" : "false"}};
    const OpenWBEM::CIMPropertyArray properties = instance.getProperties();
    ASSERT_EQ(properties.size(), expected.size()) << c.name;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const auto& [name, text] = expected[i];
      EXPECT_EQ(properties[i].getName(), name.c_str()) << c.name;
      EXPECT_EQ(properties[i].getValue().toString(), text.c_str()) << c.name << " " << name;
      EXPECT_EQ(properties[i].getQualifiers().size(), 0u) << c.name << " " << name;
    }
    EXPECT_EQ(instance.getPropertyValue("modemStatus").getType(), OpenWBEM::CIMDataType::BOOLEAN);
  }
}

// With a dial-in call up and the service enabled, a get changes nothing and warns of nothing.
TEST_F(ServiceTest, EnumerationListsTheOneServiceWithoutTouchingALiveCall) {
  dialInUp();
  appliance::clearJournal();
  OpenWBEM::CIMInstanceArray instances;
  OpenWBEM::CIMInstanceArrayBuilder result(instances);
  provider_->enumInstances(
      env_, kNs, "Zeph_RASService", result, OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY,
      OpenWBEM::WBEMFlags::E_DEEP, OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS,
      OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, OpenWBEM::CIMClass(OpenWBEM::CIMNULL),
      OpenWBEM::CIMClass(OpenWBEM::CIMNULL));
  ASSERT_EQ(instances.size(), 1u);
  EXPECT_EQ(instances[0].getPropertyValue("modemStatus").toString(), "true");
  EXPECT_EQ(instances[0].getProperty("modemStatus").getQualifiers().size(), 0u);
  EXPECT_TRUE(appliance::journal().empty());
  EXPECT_EQ(appliance::processState("mgetty"), "running");
}

}  // namespace
