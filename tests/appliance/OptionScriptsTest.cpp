// The helper scripts that edit pppd options, secrets and the modem: setIPEx, setLine_*,
// addPassword, setModemParam and getModemParam.
#include "ApplianceTest.h"
#include "ScriptCase.h"

using namespace appliance;

namespace {

constexpr char kDialin[] = "/qv/etc/ppp/options_dialin";
constexpr char kDialout[] = "/qv/etc/ppp/options_dialout";
constexpr char kCallback[] = "/qv/etc/ppp/options_callback";
constexpr char kPap[] = "/etc/ppp/pap-secrets";

class OptionScriptsTest : public ApplianceTest {};

TEST_F(OptionScriptsTest, SetIPExReplacesTheAddressLine) {
  const std::string file = "# options\n10.0.0.1:10.0.0.2\nmodem\n";
  expectScriptCases(
      {
          {"empty local part",
           file,
           {"setIPEx", kDialin, ":10.0.0.9"},
           0,
           "# options\n:10.0.0.9\nmodem\n"},
          {"empty remote part",
           file,
           {"setIPEx", kDialout, "10.0.0.5:"},
           0,
           "# options\n10.0.0.5:\nmodem\n",
           kDialout},
          {"both parts empty",
           ":10.0.0.2\nmodem\n",
           {"setIPEx", kCallback, ":"},
           0,
           ":\nmodem\n",
           kCallback},
          {"an address line after other options stays where it is",
           "modem\n10.0.0.1:\nlock\n",
           {"setIPEx", kDialin, "10.0.0.7:10.0.0.8"},
           0,
           "modem\n10.0.0.7:10.0.0.8\nlock\n"},
          {"no address line: it goes before the first option",
           "# options\n#1.2.3.4:5.6.7.8\n\nmodem\n",
           {"setIPEx", kDialin, "10.0.0.1:10.0.0.2"},
           0,
           "# options\n#1.2.3.4:5.6.7.8\n\n10.0.0.1:10.0.0.2\nmodem\n"},
          {"a part that is not an address",
           file,
           {"setIPEx", kDialin, "10.0.0.1;reboot:"},
           2,
           file},
          {"no colon", file, {"setIPEx", kDialin, "10.0.0.1"}, 2, file},
      },
      kDialin);
}

TEST_F(OptionScriptsTest, SetLineMakesOneActiveLine) {
  expectScriptCases(
      {
          {"active line replaced",
           "lock\nmtu 1500\nmodem\n",
           {"setLine_dialout", "mtu", "1400"},
           0,
           "lock\nmtu 1400\nmodem\n"},
          {"commented line activated",
           "#idle 0\nmodem\n",
           {"setLine_dialin", "idle", "60"},
           0,
           "idle 60\nmodem\n",
           kDialin},
          {"the active line wins over a commented one",
           "#idle 0\nidle 600\n",
           {"setLine_callback", "idle", "30"},
           0,
           "#idle 0\nidle 30\n",
           kCallback},
          {"missing line appended",
           "modem\n",
           {"setLine_dialout", "name", "backup"},
           0,
           "modem\nname backup\n"},
          {"a second active line removed",
           "mru 1500\nlock\nmru 576\n",
           {"setLine_dialout", "mru", "1000"},
           0,
           "mru 1000\nlock\n"},
          {"a longer keyword is another keyword",
           "lcp-max-configure 10\nlcp-max-configure-x 1\n",
           {"setLine_dialout", "lcp-max-configure", "3"},
           0,
           "lcp-max-configure 3\nlcp-max-configure-x 1\n"},
          {"a keyword with a shell character",
           "modem\n",
           {"setLine_dialout", "mtu;reboot", "1"},
           2,
           "modem\n"},
      },
      kDialout);
}

TEST_F(OptionScriptsTest, AddPasswordSetsTheSecret) {
  const std::string secrets =
      "# client\tserver\tsecret\tIP addresses\n"
      "\"dialer\"\t*\t\"old\"\t*\n"
      "\"dialer2\"\t*\t\"other\"\t*\n";
  expectScriptCases(
      {
          {"secret replaced",
           secrets,
           {"addPassword", "dialer", "old", "new", kPap},
           0,
           "# client\tserver\tsecret\tIP addresses\n\"dialer\"\t*\t\"new\"\t*\n"
           "\"dialer2\"\t*\t\"other\"\t*\n"},
          {"an empty old secret leaves three arguments",
           secrets,
           {"addPassword", "dialer2", "new", kPap},
           0,
           "# client\tserver\tsecret\tIP addresses\n\"dialer\"\t*\t\"old\"\t*\n"
           "\"dialer2\"\t*\t\"new\"\t*\n"},
          {"a user without a line gets one",
           secrets,
           {"addPassword", "x", "", "pw", kPap},
           0,
           secrets + "\"x\"\t*\t\"pw\"\t*\n"},
          {"a secret with a double quote",
           secrets,
           {"addPassword", "dialer", "old", "a\"b", kPap},
           2,
           secrets},
      },
      kPap);
}

TEST_F(OptionScriptsTest, ModemParametersGoToTheModem) {
  struct Row {
    const char* parameter;
    const char* code;
    int status;
    const char* readBack;
  };
  const Row rows[] = {
      {"2", "m0", 0, "m0\n"}, {"3", "k0", 0, "k0\n"},  {"4", "n12", 0, "n12\n"},
      {"2", "k2", 2, "m5\n"}, {"4", "n1x", 2, "n0\n"}, {"5", "m5", 2, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.parameter) + " " + row.code);
    reset();
    EXPECT_EQ(runScript({"setModemParam", row.parameter, row.code}).status, row.status);
    EXPECT_EQ(runScript({"getModemParam", row.parameter}).output, row.readBack);
  }
}

}  // namespace
