// Hostile values on every client value the module writes into a file, followed by what the
// appliance does with those files later: bash runs the route file and sources the dial
// scripts' declarations, pppd splits its options and secrets files into words. No payload
// may run then, no word, line or entry may appear, and every file must stay well-formed.
#include <gmock/gmock.h>

#include <sstream>

#include "HostileFixture.h"

namespace {

const char kMarker[] = "/tmp/pwned";
const char kRouteFile[] = "/qv/etc/ppp/ip_up_add_v2k";

// Payloads, and values that are awkward but inert somewhere (a blank, "#", a leading "@").
const std::vector<std::string> kPayloads = {
    "$(touch /tmp/pwned)",
    "`touch /tmp/pwned`",
    "\";touch /tmp/pwned;\"",
    ";touch /tmp/pwned",
    "\ntouch /tmp/pwned",
    "\\",
    "' /tmp/pwned",
    " #x",
    "@/tmp/pwned",
    " ",
    "/x",
    "&",
};

const std::vector<std::string> kScripts = {"/qv/etc/ppp/ppp_call_v2k", "/qv/etc/ppp/callback_v2k",
                                           "/qv/etc/ppp/mgetty_v2k", "/qv/etc/ppp/ppp_add_v2k",
                                           "/qv/etc/ppp/pppd_addo_v2k"};
const std::vector<std::string> kOptions = {
    "/qv/etc/ppp/options_dialout", "/qv/etc/ppp/options_dialin", "/qv/etc/ppp/options_callback"};
const std::vector<std::string> kSecrets = {"/etc/ppp/pap-secrets", "/etc/ppp/chap-secrets"};

// The words of one line as pppd reads them: blanks separate, "#" at a word's start comments
// out the rest, quotes group and a backslash escapes.
std::vector<std::string> pppdWords(const std::string& line) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  char quote = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (!inWord && !quote && (c == ' ' || c == '\t')) continue;
    if (!inWord && c == '#') break;
    if (quote ? c == quote : (c == '"' || c == '\'')) {
      quote = quote ? 0 : c;
      inWord = true;
      continue;
    }
    if (!quote && (c == ' ' || c == '\t')) {
      words.push_back(word);
      word.clear();
      inWord = false;
      continue;
    }
    if (c == '\\' && i + 1 < line.size()) ++i;
    word += line[i];
    inWord = true;
  }
  if (inWord) words.push_back(word);
  return words;
}

std::size_t wordCount(const std::string& file) {
  std::size_t count = 0;
  for (const std::string& line : appliance::readLines(file)) count += pppdWords(line).size();
  return count;
}

// Runs `script` with bash; what it printed on both outputs and its status.
appliance::ToolResult bash(const std::string& script) {
  return appliance::runTool({"bash", "-c", script + " 2>&1"});
}

struct Slot {
  const client::Target* target;  // null: a route created with the value as its mask
  const char* property;
  const char* prefix;  // what makes the value pass the setter's own first check
};

const client::Target kPoolIn =
    client::settingData("Zeph_RASStaticIPAddressPool", "Velmar:DialInRASStaticIPAddressPool");
const client::Target kEndpointOut =
    client::systemElement("Zeph_RASIPProtocolEndpoint", "Name", "DialOutEndpoint");

const Slot kSlots[] = {
    {nullptr, "DestinationMask", "255.255.0.0 "},
    {&kRoute, "DestinationMask", "255.255.0.0 "},
    {&kPoolOut, "ipAddr", "10.0.0.9."},
    {&kPoolIn, "ipAddr", "10.0.0.9."},
    {&kEndpointIn, "IPv4Address", "10.0.0.9."},
    {&kEndpointOut, "IPv4Address", "10.0.0.9."},
    {&kDialOut, "DialOutPassword", ""},
    {&kDialOut, "DialOutUserName", "0"},
    {&kDialOut, "DialOutNumber", "5551234"},
    {&kPortIn, "Name", "ttyS1"},
    {&kPortOut, "Name", "ttyS0"},
};

class RestingPlaces : public HostileTest {
 protected:
  CimFailure request(const Slot& slot, const std::string& value) {
    if (slot.target != nullptr) return modify(*slot.target, {{slot.property, text(value)}});
    OpenWBEM::CIMInstance route("Zeph_NextHopIPRoute");
    route.setProperty("InstanceID", text("10.8.11.0"));
    route.setProperty("DestinationAddress", text("10.8.11.0"));
    route.setProperty("DestinationMask", text(value));
    route.setProperty("RouteMetric", client::u16(1));
    return cimFailureOf(
        [&] { call([&](const auto& env) { provider_->createInstance(env, kNs, route); }); });
  }

  // Bash reads the route arrays without a word of complaint, and the three arrays and the
  // count agree; each dial script's declarations run cleanly.
  void expectScriptsRunCleanly(const std::string& label) {
    const appliance::ToolResult routes =
        bash(std::string("eval \"$(sed -n '/^declare -r NUMBER_OF_ROUTES/,/^$/p' ") + kRouteFile +
             ")\" && echo ${#ROUTES[@]} ${#NETMASK[@]} ${#METRIC[@]} $NUMBER_OF_ROUTES");
    EXPECT_EQ(routes.status, 0) << label << ": " << routes.output;
    std::istringstream counts(routes.output);
    std::string first, count;
    counts >> first;
    for (int i = 0; i < 3 && counts >> count; ++i)
      EXPECT_EQ(count, first) << label << routes.output;
    for (const std::string& script : kScripts) {
      const appliance::ToolResult declared =
          bash("eval \"$(grep -E '^[[:space:]]*declare ' " + script + ")\"");
      EXPECT_EQ(declared.status, 0) << label << ": " << script;
      EXPECT_EQ(declared.output, "") << label << ": " << script;
    }
    EXPECT_EQ(bash(kRouteFile).status, 0) << label;
    EXPECT_FALSE(appliance::fileExists(kMarker)) << label;
  }

  // pppd finds as many words in its options files as before, and four in every secrets entry,
  // none of whose secrets names a file.
  void expectPppdFilesIntact(const std::vector<std::size_t>& optionWords,
                             const std::string& label) {
    for (std::size_t i = 0; i < kOptions.size(); ++i) {
      EXPECT_EQ(wordCount(kOptions[i]), optionWords[i]) << label << ": " << kOptions[i];
    }
    for (const std::string& secrets : kSecrets) {
      for (const std::string& line : appliance::readLines(secrets)) {
        const std::vector<std::string> words = pppdWords(line);
        if (words.empty()) continue;
        EXPECT_EQ(words.size(), 4u) << label << ": " << line;
        EXPECT_FALSE(words.size() > 2 && words[2].rfind('@', 0) == 0) << label << ": " << line;
      }
    }
  }
};

TEST_F(RestingPlaces, NoValueBecomesCodeWordsOrLinesWhereItRests) {
  get();  // the account list that the user-name setter indexes
  for (const Slot& slot : kSlots) {
    for (const std::string& payload : kPayloads) {
      const std::string value = slot.prefix + payload;
      const std::string label = std::string(slot.property) + " = " + value;
      appliance::reset();
      resetSession();
      initialize();
      get();
      std::vector<std::size_t> optionWords;
      for (const std::string& file : kOptions) optionWords.push_back(wordCount(file));
      const auto before = editedFiles();
      const CimFailure failure = request(slot, value);
      if (!(failure == CimFailure{})) {
        EXPECT_THAT(appliance::journal(), testing::IsEmpty()) << label;
        EXPECT_EQ(editedFiles(), before) << label;
      }
      expectScriptsRunCleanly(label);
      expectPppdFilesIntact(optionWords, label);
    }
  }
}

// Values the module reads itself into command lines: an account name from the CIMOM and a
// dial-in interface from the marker file. None of them runs and no file changes.
TEST_F(RestingPlaces, ValuesFromTheCimomAndFilesNeverRun) {
  for (const std::string& payload : kPayloads) {
    // One file word that a shell would act on.
    if (payload.find('\n') != std::string::npos ||
        payload.find_first_of("$`\"';\\&") == std::string::npos)
      continue;
    appliance::reset();
    appliance::addAccount("900", payload);
    appliance::grantPrivilege(900);
    ASSERT_TRUE(get().getProperty("DialOutUserName").getQualifier("Values")) << payload;
    const auto before = editedFiles();
    EXPECT_EQ(modify({{"DialOutUserName", text("2")}}).code,
              OpenWBEM::CIMException::INVALID_PARAMETER)
        << payload;
    EXPECT_EQ(editedFiles(), before) << payload;

    appliance::writeFile("/qv/etc/ppp/ppp_active_if_file", "DIN\nppp" + payload + "\n");
    appliance::clearJournal();
    EXPECT_EQ(modify(kService, {{"modemStatus", client::flag(false)}}), CimFailure{});
    EXPECT_FALSE(appliance::fileExists(kMarker)) << payload;
    EXPECT_THAT(appliance::journal(), testing::Contains(testing::HasSubstr("ppp_hup_v2k")));
  }
}

}  // namespace
