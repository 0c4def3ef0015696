// Every setter that writes a client's text into a command line, with each awkward value: the
// setter either runs its prescribed command line, byte for byte, or refuses the value with
// nothing run and every file unchanged. It never answers success without its command, and
// the command runner's own refusal (its last defence) is never reached.
#include <gmock/gmock.h>

#include <functional>
#include <set>

#include "HostileFixture.h"
#include "SchemaClasses.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ModuleClasses.h"

namespace {

// Appended to a setter's ordinary value: blanks, quotes, shell and sed specials, line breaks.
const std::vector<std::string> kAwkward = {"",    " ",  " x",  "'",   "\"", "$x",
                                           "`x`", "\\", "\nx", "\rx", "/x"};

struct Setter {
  const client::Target* target;
  const char* property;
  std::string ordinary;
  std::set<std::string> acceptedSuffixes;  // besides "": the awkward suffixes written as they are
  // The prescribed line for an accepted value; `before` is the property's value before.
  std::function<std::string(const std::string& value, const std::string& before)> line;
  // A refusal answers success: the endpoint drops a malformed address, as it always did.
  bool refusesSilently = false;
};

std::string quoteWord(const std::string& value) {
  return ras::shellWord(value);
}

const std::set<std::string> kNone;

const std::vector<Setter>& setters() {
  static const std::vector<Setter> rows = {
      {&kDialOut, "DialOutNumber", "5551234", kNone,
       [](const std::string& v, const std::string&) {
         return "/bin/sed -i '/^declare TELEPHONE_NUMBER/ c declare TELEPHONE_NUMBER=\"" + v +
                "\"' /qv/etc/ppp/ppp_call_v2k";
       }},
      // The index text is read as a number: what follows its digits is ignored.
      {&kDialOut,
       "DialOutUserName",
       "1",
       {"/x"},
       [](const std::string&, const std::string&) {
         return "/opt/etc/RasProviderScripts/setLine_dialout name backup";
       }},
      {&kDialOut,
       "DialOutPassword",
       "secret",
       {" ", " x", "'", "$x", "`x`", "/x"},
       [](const std::string& v, const std::string& before) {
         return "/opt/etc/RasProviderScripts/addPassword 0 " + quoteWord(before) + " " +
                quoteWord(v) + " /etc/ppp/pap-secrets";
       }},
      {&kPortIn, "Name", "ttyS1", kNone,
       [](const std::string& v, const std::string&) {
         return "/bin/sed -i '/^port/ c port " + v + "' /opt/etc/mgetty+sendfax/mgetty.config";
       }},
      {&kPortOut, "Name", "ttyS1", kNone,
       [](const std::string& v, const std::string&) {
         return "/bin/sed -i '/declare -r SERIAL_PORT/ c declare -r SERIAL_PORT=\"" + v +
                "\"' /qv/etc/ppp/pppd_addo_v2k";
       }},
      {&kEndpointIn, "IPv4Address", "10.0.0.9", kNone,
       [](const std::string& v, const std::string&) {
         return "/opt/etc/RasProviderScripts/setIPEx /qv/etc/ppp/options_callback " + v +
                ":192.168.200.2";
       },
       true},
      {&kPoolOut, "ipAddr", "10.0.0.9", kNone,
       [](const std::string& v, const std::string&) {
         return "/opt/etc/RasProviderScripts/setIPEx /qv/etc/ppp/options_dialout 10.64.0.2:" + v;
       }},
      // Inert in the sed expression and in the route file's double quotes: written as it is.
      {&kRoute,
       "DestinationMask",
       "255.255.255.0",
       {" ", " x"},
       [](const std::string& v, const std::string& before) {
         return "/bin/sed  -i 's/^\tNETMASK\\[0\\]=\\\"" + before + "\\\"/\\tNETMASK\\[0\\]=\\\"" +
                v + "\\\"/'   /qv/etc/ppp/ip_up_add_v2k";
       }},
  };
  return rows;
}

// Writable text properties whose setters build no command line from the value.
const std::set<std::string> kNoCommand = {"Zeph_RASIPProtocolEndpoint.SubnetMask"};

class SetterSequence : public HostileTest {};

TEST_F(SetterSequence, EachAwkwardValueRunsItsPrescribedLineOrIsRefusedWithNothingRun) {
  for (const Setter& setter : setters()) {
    for (const std::string& suffix : kAwkward) {
      const std::string value = setter.ordinary + suffix;
      const std::string label =
          std::string(setter.target->className) + "." + setter.property + " = \"" + value + "\"";
      appliance::reset();
      initialize();
      get();  // the account list that the user-name setter indexes
      ASSERT_EQ(modify({{"DialOutUserName", text("0")}}), CimFailure{}) << label;
      get();
      const std::string before = valueOf(*setter.target, setter.property);
      const auto files = editedFiles();
      appliance::clearJournal();
      const CimFailure failure = modify(*setter.target, {{setter.property, text(value)}});
      EXPECT_THAT(logged(), testing::Not(testing::Contains(testing::HasSubstr(
                                "Command not run: a value is not safe for the shell"))))
          << label;
      if (suffix.empty() || setter.acceptedSuffixes.count(suffix) != 0) {
        EXPECT_EQ(failure, CimFailure{}) << label;
        EXPECT_THAT(appliance::journal(), testing::Contains(setter.line(value, before))) << label;
      } else {
        EXPECT_EQ(failure == CimFailure{}, setter.refusesSilently) << label;
        EXPECT_THAT(appliance::journal(), testing::IsEmpty()) << label;
        EXPECT_EQ(editedFiles(), files) << label;
        EXPECT_EQ(valueOf(*setter.target, setter.property), before) << label;
      }
    }
  }
}

// The table above holds every writable text property of the schema that reaches a command.
TEST_F(SetterSequence, TheTableCoversEveryWritableTextProperty) {
  std::set<std::string> covered = kNoCommand;
  for (const Setter& setter : setters()) {
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

}  // namespace
