// The association of the dial-out settings with the routes: associators, associatorNames,
// references and referenceNames from both ends, the role rules and their errors, and the
// instance side.
#include "RouteFixture.h"

namespace {

using client::Lines;
using OpenWBEM::CIMObjectPath;

class RouteAssociationTest : public RouteTest {
 protected:
  Lines associatedInstances(const CIMObjectPath& source) {
    OpenWBEM::CIMInstanceArray instances;
    OpenWBEM::CIMInstanceArrayBuilder result(instances);
    call([&](const auto& env) {
      provider_->associators(env, result, kNs, source, "Zeph_DialOutRoutes", "", "", "",
                             OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS,
                             OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0);
    });
    Lines texts;
    for (const auto& i : instances)
      texts.push_back(std::string(i.getClassName().c_str()) + ":" +
                      textOf(i.getPropertyValue("ElementName")));
    return texts;
  }

  // references (instances) or referenceNames: "antecedent -> dependent" of each association.
  Lines references(const CIMObjectPath& source, const char* role, bool names) {
    OpenWBEM::CIMInstanceArray instances;
    OpenWBEM::CIMInstanceArrayBuilder instanceResult(instances);
    OpenWBEM::CIMObjectPathArray paths;
    OpenWBEM::CIMObjectPathArrayBuilder pathResult(paths);
    call([&](const auto& env) {
      if (names) {
        provider_->referenceNames(env, pathResult, kNs, source, "Zeph_DialOutRoutes", role);
      } else {
        provider_->references(env, instanceResult, kNs, source, "Zeph_DialOutRoutes", role,
                              OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS,
                              OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0);
      }
    });
    Lines texts;
    auto end = [](const OpenWBEM::CIMValue& ref) {
      const CIMObjectPath p = ref.toCIMObjectPath();
      return std::string(p.getClassName().c_str()) + ":" + textOf(p.getKeyValue("InstanceID"));
    };
    for (const auto& i : instances)
      texts.push_back(end(i.getPropertyValue("Antecedent")) + " -> " +
                      end(i.getPropertyValue("Dependent")));
    for (const auto& p : paths)
      texts.push_back(end(p.getKeyValue("Antecedent")) + " -> " + end(p.getKeyValue("Dependent")));
    return texts;
  }
};

const std::string kSettingsEnd = "Zeph_DialOutSettingData:Velmar:Zeph_DialOutSettingData";
const std::string kRoute1 = "Zeph_NextHopIPRoute:10.1.0.0";
const std::string kRoute2 = "Zeph_NextHopIPRoute:172.16.0.0";

TEST_F(RouteAssociationTest, EachEndReachesExactlyTheOther) {
  const CIMObjectPath from = settings().path();
  const CIMObjectPath fromRoute = route("10.1.0.0").path();
  EXPECT_EQ(associatedNames(from), (Lines{kRoute1, kRoute2}));
  EXPECT_EQ(associatedNames(from, "Antecedent", "Dependent"), (Lines{kRoute1, kRoute2}));
  EXPECT_EQ(associatedNames(from, "", "", "Zeph_NextHopIPRoute"), (Lines{kRoute1, kRoute2}));
  EXPECT_EQ(associatedNames(fromRoute), (Lines{kSettingsEnd}));
  EXPECT_EQ(associatedNames(fromRoute, "Dependent", "", "Zeph_DialOutSettingData"),
            (Lines{kSettingsEnd}));
  EXPECT_EQ(associatedInstances(from),
            (Lines{"Zeph_NextHopIPRoute:IP Routes", "Zeph_NextHopIPRoute:IP Routes"}));
  const Lines both = {kSettingsEnd + " -> " + kRoute1, kSettingsEnd + " -> " + kRoute2};
  for (bool names : {false, true}) {
    EXPECT_EQ(references(from, "", names), both);
    EXPECT_EQ(references(from, "Antecedent", names), both);
    EXPECT_EQ(references(fromRoute, "", names), Lines{both[0]});
  }
  // The instance side serves the same associations.
  EXPECT_EQ(enumNames("Zeph_DialOutRoutes").size(), 2u);
  ASSERT_EQ(remove(route("172.16.0.0")).code, -1);
  ASSERT_EQ(remove(route("10.1.0.0")).code, -1);
  EXPECT_TRUE(associatedNames(from).empty());
  EXPECT_TRUE(references(from, "", true).empty());
  EXPECT_TRUE(enumNames("Zeph_DialOutRoutes").empty());
}

TEST_F(RouteAssociationTest, RoleRulesRefuseWithTheirCodesAndTexts) {
  const CIMObjectPath modem =
      client::systemElement("Zeph_SoftModem", "DeviceID", "SoftModemIn").path();
  const CIMObjectPath noKey(OpenWBEM::CIMName("Zeph_DialOutSettingData"), "root/cimv2");
  const CIMObjectPath from = settings().path();
  struct Case {
    CIMObjectPath source;
    const char* role;
    const char* resultRole;
    const char* resultClass;
    int code;
    std::optional<std::string> message;
  };
  const std::vector<Case> cases = {
      {modem, "", "", "", 13, std::nullopt},
      {noKey, "", "", "", 1, "Property InstanceID is not sent"},
      {from, "Owner", "", "", 7,
       "No Reference of class specified in objectPath exists in this association"},
      {from, "", "Owner", "", 4, std::nullopt},
      {from, "", "Owner", "Zeph_NextHopIPRoute", 7, std::nullopt},
  };
  for (const Case& c : cases) {
    const CimFailure failure =
        cimFailureOf([&] { associatedNames(c.source, c.role, c.resultRole, c.resultClass); });
    EXPECT_EQ(failure.code, c.code) << c.role << "/" << c.resultRole << " " << failure;
    EXPECT_EQ(failure.message, c.message) << failure;
  }
  const CimFailure references = cimFailureOf([&] { this->references(modem, "", true); });
  EXPECT_EQ(references.code, 13);
}

TEST_F(RouteAssociationTest, CreatingAnAssociationNeedsBothReferences) {
  OpenWBEM::CIMInstance association("Zeph_DialOutRoutes");
  association.setProperty("Antecedent", OpenWBEM::CIMValue(settings().path()));
  const CimFailure failure = cimFailureOf(
      [&] { call([&](const auto& env) { provider_->createInstance(env, kNs, association); }); });
  EXPECT_EQ(failure.code, 4);
  EXPECT_EQ(failure.message, "Invalid reference objectPath");
}

}  // namespace
