// Hostile values in the files and accounts the module reads into command lines, and addresses
// with a payload after their fourth token: nothing of them runs and files stay intact. The
// client's own text values are SetterSequenceTest's.
#include <gmock/gmock.h>

#include "HostileFixture.h"
#include "Zeph_CommandRunner.h"

namespace {

const char kMarker[] = "/tmp/pwned";

// Each would create the marker if any shell or sed ran it.
const std::vector<std::string> kCorpus = {
    ";touch /tmp/pwned",
    "$(touch /tmp/pwned)",
    "`touch /tmp/pwned`",
    "\";touch /tmp/pwned;\"",
    "';touch /tmp/pwned;'",
    "x\ntouch /tmp/pwned",
    "x\rtouch /tmp/pwned",
    "1\\",
    "1/;e touch /tmp/pwned;#",
    "1' -e '1e touch /tmp/pwned' '",
    "|touch${IFS}/tmp/pwned",
    "$(touch${IFS}/tmp/pwned)",
    "x\";touch${IFS}/tmp/pwned;\"",
};

class HostileValues : public HostileTest {};

// Values the module reads itself: an account name from the CIMOM and an interface of the
// marker file.
TEST_F(HostileValues, ValuesFromTheCimomAndFilesNeverRun) {
  for (const std::string& value : kCorpus) {
    if (value.find_first_of("\n\r") != std::string::npos) continue;  // not one file word
    appliance::reset();
    appliance::addAccount("900", value);
    appliance::grantPrivilege(900);
    const auto offered = get().getProperty("DialOutUserName").getQualifier("Values");
    ASSERT_TRUE(offered) << value;
    const auto before = editedFiles();
    appliance::clearJournal();
    EXPECT_EQ(modify({{"DialOutUserName", text("2")}}).code,
              OpenWBEM::CIMException::INVALID_PARAMETER)
        << value;
    EXPECT_EQ(editedFiles(), before) << value;

    // A dial-in link's interface: the dial-out one is looked for among the others.
    appliance::writeFile("/qv/etc/ppp/ppp_active_if_file", "DIN\nppp" + value + "\n");
    appliance::clearJournal();
    EXPECT_EQ(modify(kService, {{"modemStatus", client::flag(false)}}), CimFailure{});
    EXPECT_FALSE(appliance::fileExists(kMarker)) << value;
    EXPECT_THAT(appliance::journal(), testing::Contains(testing::HasSubstr("ppp_hup_v2k")));
  }
}

// Addresses that pass the lenient address check (nothing after the fourth token is looked at)
// but carry a payload: the pool refuses them as malformed, the endpoint drops them silently, a
// route is not created; nothing runs and no file changes.
TEST_F(HostileValues, AddressesWithAPayloadAfterTheFourthTokenChangeNothing) {
  const client::Target pool =
      client::settingData("Zeph_RASStaticIPAddressPool", "Velmar:DialOutRASStaticIPAddressPool");
  const client::Target endpoint =
      client::systemElement("Zeph_RASIPProtocolEndpoint", "Name", "DialOutEndpoint");
  for (const std::string& payload : kCorpus) {
    const std::string value = "10.0.0.9." + payload;
    const auto before = editedFiles();
    const std::string routes = appliance::readFile("/qv/etc/ppp/ip_up_add_v2k");
    appliance::clearJournal();
    // Past the properties' 32 characters the length check refuses first.
    const auto refused =
        testing::AnyOf(OpenWBEM::CIMException::FAILED, OpenWBEM::CIMException::INVALID_PARAMETER);
    EXPECT_THAT(modify(pool, {{"ipAddr", text(value)}}).code, refused) << value;
    EXPECT_THAT(modify(endpoint, {{"IPv4Address", text(value)}}).code,
                testing::AnyOf(-1, OpenWBEM::CIMException::INVALID_PARAMETER))
        << value;
    OpenWBEM::CIMInstance route("Zeph_NextHopIPRoute");
    route.setProperty("InstanceID", text(value));
    route.setProperty("DestinationAddress", text(value));
    EXPECT_EQ(cimFailureOf([&] {
                call([&](const auto& env) { provider_->createInstance(env, kNs, route); });
              }).code,
              OpenWBEM::CIMException::FAILED)
        << value;
    EXPECT_FALSE(appliance::fileExists(kMarker)) << value;
    EXPECT_THAT(appliance::journal(), testing::IsEmpty()) << value;
    EXPECT_EQ(editedFiles(), before) << value;
    EXPECT_EQ(appliance::readFile("/qv/etc/ppp/ip_up_add_v2k"), routes) << value;
  }
}

}  // namespace
