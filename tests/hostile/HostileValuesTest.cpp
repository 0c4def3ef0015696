// Hostile values on every property whose value reaches a command line, and in the files and
// accounts the module reads into command lines: nothing of them runs, files stay intact or
// hold the value as inert text, and a refused value is a CIM error that changes nothing.
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

// A secret that addPassword can store between double quotes; everything else is refused.
bool storableSecret(const std::string& value) {
  return value.find_first_of("\"\\\n\r") == std::string::npos;
}

struct Slot {
  const client::Target* target;
  const char* property;
  bool acceptsSecrets;  // true: a storable value is passed as one quoted word
};

const Slot kSlots[] = {
    {&kDialOut, "DialOutNumber", false},  {&kDialOut, "DialOutUserName", false},
    {&kDialOut, "DialOutPassword", true}, {&kPortIn, "Name", false},
    {&kPortOut, "Name", false},
};

class HostileValues : public HostileTest {
 protected:
  // Nothing ran the payload, and every journal line that carries it carries it as one word.
  void expectInert(const std::string& value, const std::string& label) {
    EXPECT_FALSE(appliance::fileExists(kMarker)) << label;
    for (const std::string& line : appliance::journal()) {
      if (line.find("pwned") == std::string::npos) continue;
      EXPECT_NE(line.find(" " + ras::shellWord(value) + " "), std::string::npos)
          << label << ": " << line;
    }
  }
};

TEST_F(HostileValues, ClientValuesAreRefusedOrPassedAsOneWord) {
  get();
  ASSERT_EQ(modify({{"DialOutUserName", text("0")}}), CimFailure{});  // the secrets' user
  for (const Slot& slot : kSlots) {
    for (const std::string& value : kCorpus) {
      const std::string label = std::string(slot.property) + " = " + value;
      get();  // the account list that the user-name setter indexes
      const auto before = editedFiles();
      appliance::clearJournal();
      const CimFailure failure = modify(*slot.target, {{slot.property, text(value)}});
      expectInert(value, label);
      if (slot.acceptsSecrets && storableSecret(value)) {
        EXPECT_EQ(failure, CimFailure{}) << label;
        for (const char* secrets : {"/etc/ppp/pap-secrets", "/etc/ppp/chap-secrets"}) {
          EXPECT_NE(appliance::readFile(secrets).find("\t\"" + value + "\"\t"), std::string::npos)
              << label;
        }
      } else {
        EXPECT_THAT(failure.code, testing::AnyOf(OpenWBEM::CIMException::INVALID_PARAMETER,
                                                 OpenWBEM::CIMException::FAILED))
            << label;
        EXPECT_EQ(editedFiles(), before) << label;
        EXPECT_THAT(appliance::journal(), testing::IsEmpty()) << label;
      }
    }
  }
}

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
