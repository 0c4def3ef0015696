// The "ModemStatus" subscription that the service's manager makes: registry changes made by
// other programs reach the dial services, until the service is deleted.
#include "ServiceFixture.h"

using ::testing::Contains;
using ::testing::ElementsAreArray;
using namespace service;

namespace {

void qvlreg(const char* value) {
  EXPECT_EQ(
      appliance::runTool({QVLREG_PATH, "set", "SoftModem", "ModemCC", "ModemStatus", value}).status,
      0);
  ASSERT_EQ(QvlNotifySync(), 0);
}

std::string modemStatusOf(const OpenWBEM::CIMInstance& instance) {
  return instance.getPropertyValue("modemStatus").toString().c_str();
}

TEST_F(ServiceTest, OutsideChangesActUntilTheServiceIsDeleted) {
  EXPECT_THAT(loggedWithCategory(), Contains("DEBUG|Successful in Notify"));
  dialInUp();
  appliance::clearJournal();

  qvlreg("disabled");
  EXPECT_THAT(
      appliance::journal(),
      ElementsAreArray(Lines{"/sbin/ifconfig | grep \"ppp\" | grep -v \"ppp0\" > /tmp/ifout ",
                             gateEdit(kClosed, kDialOut), kKillChat, hangup("ppp"),
                             gateEdit(kClosed, kDialIn), hangup("ppp0"), kKillMgetty}));
  EXPECT_EQ(gateLine(kDialIn), kClosed);
  EXPECT_EQ(modemStatusOf(get()), "false");

  appliance::clearJournal();
  qvlreg("ENABLED");
  EXPECT_THAT(
      appliance::journal(),
      ElementsAreArray(joined({resume(kDialIn, "mgetty_v2k"), resume(kDialOut, "ppp_add_v2k")})));
  EXPECT_EQ(gates(), kBothOpen);
  EXPECT_EQ(modemStatusOf(get()), "true");

  call([&](const auto& env) { provider_->deleteInstance(env, kNs, kService.path()); });
  appliance::clearJournal();
  qvlreg("DISABLED");
  EXPECT_TRUE(appliance::journal().empty());
  EXPECT_EQ(gates(), kBothOpen);
}

}  // namespace
