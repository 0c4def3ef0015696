// Every client value that the module writes into a command line or a file, with awkward and
// hostile values: the setter either runs its prescribed command line, byte for byte, or refuses
// the value with nothing run and every file unchanged; it never answers success without its
// command. Afterwards the appliance uses the files as it does later: bash runs the route file
// and sources the dial scripts' declarations, pppd splits its options and secrets into words.
// No payload may run then, and no word, line or entry may appear.
#include <gmock/gmock.h>

#include <functional>
#include <set>
#include <sstream>

#include "HostileFixture.h"
#include "SchemaClasses.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ModuleClasses.h"

namespace {

const char kMarker[] = "/tmp/pwned";
const char kRouteFile[] = "/qv/etc/ppp/ip_up_add_v2k";

// Appended to a setter's ordinary value: blanks, quotes, shell, sed and pppd specials, line
// breaks, payloads that would create the marker if anything ran them.
const std::vector<std::string> kSuffixes = {"",
                                            " ",
                                            " x",
                                            "'",
                                            "\"",
                                            " $(touch /tmp/pwned)",
                                            ".$(touch /tmp/pwned)",
                                            " `touch /tmp/pwned`",
                                            "\";touch /tmp/pwned;\"",
                                            ";touch /tmp/pwned",
                                            "\ntouch /tmp/pwned",
                                            "\rx",
                                            "\\",
                                            " #x",
                                            "@/tmp/pwned",
                                            "/x",
                                            "&"};

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

const client::Target kPoolIn =
    client::settingData("Zeph_RASStaticIPAddressPool", "Velmar:DialInRASStaticIPAddressPool");
const client::Target kEndpointOut =
    client::systemElement("Zeph_RASIPProtocolEndpoint", "Name", "DialOutEndpoint");

using Line = std::function<std::string(const std::string& value, const std::string& before)>;

struct Setter {
  const client::Target* target;  // null: a route created with the value as its mask
  const char* property;
  std::string ordinary;
  std::set<std::string> accepted;  // the suffixes written as they are
  Line line;                       // the prescribed line; null: not compared
  // The endpoint drops a malformed address with success, as it always did.
  bool refusesSilently = false;
};

const std::set<std::string> kOnlyOrdinary = {""};
const std::set<std::string> kInertInAMask = {"", " ", " x"};

Line maskEdit() {
  return [](const std::string& v, const std::string& before) {
    return "/bin/sed  -i 's/^\tNETMASK\\[0\\]=\\\"" + before + "\\\"/\\tNETMASK\\[0\\]=\\\"" + v +
           "\\\"/'   /qv/etc/ppp/ip_up_add_v2k";
  };
}

const std::vector<Setter>& setters() {
  static const std::vector<Setter> rows = {
      {&kDialOut, "DialOutNumber", "5551234", kOnlyOrdinary,
       [](const std::string& v, const std::string&) {
         return "/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare TELEPHONE_NUMBER=\"" + v +
                "\"' /qv/etc/ppp/ppp_call_v2k";
       }},
      // The index text is read as a number: what follows its digits is ignored.
      {&kDialOut,
       "DialOutUserName",
       "1",
       {"", "/x", "@/tmp/pwned"},
       [](const std::string&, const std::string&) {
         return "/opt/etc/RasProviderScripts/setLine_dialout name backup";
       }},
      {&kDialOut,
       "DialOutPassword",
       "",
       {"", " ", " x", "'", " $(touch /tmp/pwned)", ".$(touch /tmp/pwned)", " `touch /tmp/pwned`",
        ";touch /tmp/pwned", " #x", "/x", "&"},
       [](const std::string& v, const std::string& before) {
         return "/opt/etc/RasProviderScripts/addPassword 0 " + ras::shellWord(before) + " " +
                ras::shellWord(v) + " /etc/ppp/pap-secrets";
       }},
      {&kPortIn, "Name", "ttyS1", kOnlyOrdinary,
       [](const std::string& v, const std::string&) {
         return "/bin/sed -i '/^port/ c port " + v + "' /opt/etc/mgetty+sendfax/mgetty.config";
       }},
      {&kPortOut, "Name", "ttyS1", kOnlyOrdinary,
       [](const std::string& v, const std::string&) {
         return "/bin/sed -i '/declare -r SERIAL_PORT/ c declare -r SERIAL_PORT=\"" + v +
                "\"' /qv/etc/ppp/pppd_addo_v2k";
       }},
      {&kEndpointIn, "IPv4Address", "10.0.0.9", kOnlyOrdinary,
       [](const std::string& v, const std::string&) {
         return "/opt/etc/RasProviderScripts/setIPEx /qv/etc/ppp/options_callback " + v +
                ":192.168.200.2";
       },
       true},
      {&kEndpointOut, "IPv4Address", "10.0.0.9", kOnlyOrdinary, nullptr, true},
      {&kPoolOut, "ipAddr", "10.0.0.9", kOnlyOrdinary,
       [](const std::string& v, const std::string&) {
         return "/opt/etc/RasProviderScripts/setIPEx /qv/etc/ppp/options_dialout 10.64.0.2:" + v;
       }},
      {&kPoolIn, "ipAddr", "10.0.0.9", kOnlyOrdinary, nullptr},
      // Inert in the sed expression and in the route file's double quotes: written as it is.
      {&kRoute, "DestinationMask", "255.255.255.0", kInertInAMask, maskEdit()},
      {nullptr, "DestinationMask", "255.255.255.0", kInertInAMask, nullptr},
  };
  return rows;
}

// Writable text properties whose setters build no command line from the value.
const std::set<std::string> kNoCommand = {"Zeph_RASIPProtocolEndpoint.SubnetMask"};

class ClientValues : public HostileTest {
 protected:
  CimFailure request(const Setter& setter, const std::string& value) {
    if (setter.target != nullptr) return modify(*setter.target, {{setter.property, text(value)}});
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

class EachSetter : public ClientValues, public testing::WithParamInterface<Setter> {};

TEST_P(EachSetter, RunsItsPrescribedLineOrNothingAndItsValueStaysData) {
  const Setter& setter = GetParam();
  for (const std::string& suffix : kSuffixes) {
    const std::string value = setter.ordinary + suffix;
    const std::string label = std::string(setter.target ? setter.target->className : "ci") + "." +
                              setter.property + " = \"" + value + "\"";
    restart();
    get();  // the account list that the user-name setter indexes
    ASSERT_EQ(modify({{"DialOutUserName", text("0")}}), CimFailure{}) << label;
    get();
    const std::string before =
        setter.target ? valueOf(*setter.target, setter.property) : std::string();
    std::vector<std::size_t> optionWords;
    for (const std::string& file : kOptions) optionWords.push_back(wordCount(file));
    const auto files = editedFiles();
    appliance::clearJournal();
    const CimFailure failure = request(setter, value);
    EXPECT_THAT(logged(), testing::Not(testing::Contains(testing::HasSubstr(
                              "Command not run: a value is not safe for the shell"))))
        << label;
    if (setter.accepted.count(suffix) != 0) {
      EXPECT_EQ(failure, CimFailure{}) << label;
      if (setter.line) {
        EXPECT_THAT(appliance::journal(), testing::Contains(setter.line(value, before))) << label;
      }
    } else {
      // A malformed address is dropped silently; one that passes the address check is refused.
      if (!setter.refusesSilently) {
        EXPECT_FALSE(failure == CimFailure{}) << label;
      }
      EXPECT_THAT(appliance::journal(), testing::IsEmpty()) << label;
      EXPECT_EQ(editedFiles(), files) << label;
      if (setter.target) {
        EXPECT_EQ(valueOf(*setter.target, setter.property), before) << label;
      }
    }
    expectScriptsRunCleanly(label);
    expectPppdFilesIntact(optionWords, label);
  }
}

INSTANTIATE_TEST_SUITE_P(ClientValues, EachSetter, testing::ValuesIn(setters()),
                         [](const testing::TestParamInfo<Setter>& info) {
                           return std::string(info.param.target ? info.param.target->className
                                                                : "Create") +
                                  info.param.property + std::to_string(info.index);
                         });

// The table above holds every writable text property of the schema that reaches a command.
TEST_F(ClientValues, TheTableCoversEveryWritableTextProperty) {
  std::set<std::string> covered = kNoCommand;
  for (const Setter& setter : setters()) {
    if (setter.target)
      covered.insert(std::string(setter.target->className) + "." + setter.property);
  }
  for (const std::string& className : ras::moduleClassNames()) {
    for (const OpenWBEM::CIMProperty& p : schemaClass(className).getAllProperties()) {
      if (!hasQualifier(p, "Write") || p.getDataType().getType() != OpenWBEM::CIMDataType::STRING) {
        continue;
      }
      EXPECT_EQ(covered.count(className + "." + p.getName().c_str()), 1u)
          << className << "." << p.getName();
    }
  }
}

// Values the module reads itself into command lines: an account name from the CIMOM and a
// dial-in interface from the marker file. None of them runs and no file changes.
TEST_F(ClientValues, ValuesFromTheCimomAndFilesNeverRun) {
  for (const std::string& payload : kSuffixes) {
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
    // The registry write makes the module's callback hang up the interface too, on its own
    // thread: checked once it is done (and before the next reset, which it would race).
    QvlNotifySync();
    EXPECT_FALSE(appliance::fileExists(kMarker)) << payload;
    EXPECT_THAT(appliance::journal(), testing::Contains(testing::HasSubstr("ppp_hup_v2k")));
  }
}

}  // namespace
