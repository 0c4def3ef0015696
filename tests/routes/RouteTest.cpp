// The dial-out routes and their association with the dial-out settings, through the module's
// dispatcher inside the simulated appliance: the route file's arrays and the scripts run after
// each creation, edit and deletion, the reads of the file, the association from both ends, and
// the errors and log lines a client or operator sees.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "AccountHandle.h"
#include "ClientFixture.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ConfigReader.h"
#include "Zeph_DialService.h"
#include "Zeph_RouteArrays.h"

namespace {

using client::Lines;
using client::textOf;
using OpenWBEM::CIMException;
using OpenWBEM::CIMObjectPath;

const char* const kRouteFile = "/qv/etc/ppp/ip_up_add_v2k";
const char* const kAssociation = "Zeph_DialOutRoutes";

client::Target route(const std::string& address) {
  return client::settingData("Zeph_NextHopIPRoute", address.c_str());
}

// Routes as "ADDRESS MASK METRIC" each, one after another.
const std::string kR1 = "10.1.0.0 255.255.0.0 1 ";
const std::string kR2 = "10.2.0.0 255.254.0.0 2 ";
const std::string kR3 = "10.3.0.0 255.252.0.0 3 ";

// A route file holding `routes`, in the appliance's layout: each element but an array's last
// continued.
std::string routeText(const std::string& routes) {
  Lines words;
  std::istringstream in(routes);
  for (std::string word; in >> word;) words.push_back(word);
  const std::size_t n = words.size() / 3;
  std::string text = "#!/bin/bash\ndeclare -r NUMBER_OF_ROUTES=\"" + std::to_string(n) + "\"\n";
  const std::string names[] = {"ROUTES", "NETMASK", "METRIC"};
  for (std::size_t a = 0; a < 3; ++a) {
    text += "declare -a " + names[a] + "\n";
    for (std::size_t i = 0; i < n; ++i)
      text += "\t" + names[a] + "[" + std::to_string(i) + "]=\"" + words[3 * i + a] + "\"" +
              (i + 1 < n ? " \\\n" : "\n");
  }
  return text + "exit 0\n";
}
// The count line and the array element lines of a route file's text, in order.
Lines arrays(const std::string& text) {
  Lines lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);)
    if (line.rfind("declare -r", 0) == 0 || line.rfind("\t", 0) == 0) lines.push_back(line);
  return lines;
}

class RouteTest : public client::ClientTest {
 protected:
  TestEnvRef makeEnvironment() const override { return new AccountEnvironment; }

  // The pristine appliance with `routes` in the route file (none: no file), and a freshly
  // built module.
  void fresh(const std::string& routes) {
    restart([&] {
      appliance::removeFile(kRouteFile);
      if (!routes.empty()) appliance::writeFile(kRouteFile, routeText(routes));
    });
  }

  // Runs "create ADDRESS [MASK|- [METRIC|-]]", "mask ADDRESS MASK", "metric ADDRESS METRIC" or
  // "delete ADDRESS"; the CIM error.
  CimFailure step(const std::string& line) {
    std::istringstream in(line);
    std::string verb, address, a = "-", b = "-";
    in >> verb >> address >> a >> b;
    if (verb == "mask") return modify(route(address), {{"DestinationMask", client::text(a)}});
    if (verb == "metric")
      return modify(route(address), {{"RouteMetric", client::u16(std::stoi(a))}});
    OpenWBEM::CIMInstance instance = route(address).instance();
    instance.setProperty("DestinationAddress", client::text(address));
    if (a != "-") instance.setProperty("DestinationMask", client::text(a));
    if (b != "-") instance.setProperty("RouteMetric", client::u16(std::stoi(b)));
    return cimFailureOf([&] {
      call([&](const auto& env) {
        if (verb == "create") provider_->createInstance(env, kNs, instance);
        if (verb == "delete") provider_->deleteInstance(env, kNs, route(address).path());
      });
    });
  }

  Lines routeIds() {
    Lines ids;
    for (const auto& path : enumNames("Zeph_NextHopIPRoute"))
      ids.push_back(textOf(path.getKeyValue("InstanceID")));
    return ids;
  }

  // What an association request returns from `source`: each end as "class:InstanceID", each
  // association as "antecedent's InstanceID -> dependent's".
  enum Request { kAssociators, kAssociatorNames, kReferences, kReferenceNames };
  Lines ask(Request request, const CIMObjectPath& source, const char* role = "",
            const char* resultRole = "", const char* resultClass = "") {
    OpenWBEM::CIMInstanceArray instances;
    OpenWBEM::CIMObjectPathArray paths;
    OpenWBEM::CIMInstanceArrayBuilder toInstances(instances);
    OpenWBEM::CIMObjectPathArrayBuilder toPaths(paths);
    const auto q = OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS;
    const auto o = OpenWBEM::WBEMFlags::E_EXCLUDE_CLASS_ORIGIN;
    call([&](const auto& env) {
      auto& p = *provider_;
      if (request == kAssociators)
        p.associators(env, toInstances, kNs, source, kAssociation, resultClass, role, resultRole, q,
                      o, 0);
      if (request == kAssociatorNames)
        p.associatorNames(env, toPaths, kNs, source, kAssociation, resultClass, role, resultRole);
      if (request == kReferences)
        p.references(env, toInstances, kNs, source, kAssociation, role, q, o, 0);
      if (request == kReferenceNames)
        p.referenceNames(env, toPaths, kNs, source, kAssociation, role);
    });
    Lines out;
    const auto describe = [&](const std::string& className, auto value) {
      const auto id = [&](const char* end) {
        return textOf(value(end).toCIMObjectPath().getKeyValue("InstanceID"));
      };
      out.push_back(className == kAssociation ? id("Antecedent") + " -> " + id("Dependent")
                                              : className + ":" + textOf(value("InstanceID")));
    };
    for (const auto& i : instances)
      describe(i.getClassName().c_str(), [&](const char* p) { return i.getPropertyValue(p); });
    for (const auto& p : paths)
      describe(p.getClassName().c_str(), [&](const char* k) { return p.getKeyValue(k); });
    return out;
  }
};

// The journal lines of the route table (its scripts, sed edits and the route file), each ended
// by a newline and with the appliance's directories left out; a command that ends in a
// newline is followed by an empty line.
std::string routeJournal() {
  std::string text;
  const Lines all = appliance::journal();
  for (std::size_t i = 0; i < all.size(); ++i) {
    std::string line = all[i];
    if (line.rfind("/bin/sed", 0) != 0 && line.rfind("/opt/", 0) != 0 && line != kRouteFile)
      continue;
    for (const char* dir : {"/opt/etc/RasProviderScripts/", "/qv/etc/ppp/"})
      if (line.find(dir) != std::string::npos)
        line.replace(line.find(dir), std::string(dir).size(), "");
    text += line + (i + 1 < all.size() && all[i + 1].empty() ? "\n\n" : "\n");
  }
  return text;
}

// The sed line that continues element `i` (of value `v`) of an array before an append.
std::string continued(const std::string& name, int i, const std::string& v) {
  const std::string element = name + "\\[" + std::to_string(i) + "\\]=\\\"" + v + "\\\"";
  return "/bin/sed -i 's/" + element + "/" + element + " \\\\/' ip_up_add_v2k\n";
}

// Each row runs its step on a fresh appliance whose route file holds the row's routes.
TEST_F(RouteTest, EachStepRunsItsScriptsAndLeavesTheArraysInStep) {
  struct Row {
    std::string routes;
    const char* step;
    int code;
    std::string journal;
    std::string after;  // the routes that the route file's count and arrays hold afterwards
  };
  const std::string recount2 = "setNumRoute 2\nip_up_add_v2k\n";
  const Row rows[] = {
      {"", "create 10.5.0.0 255.255.0.0 7", -1,
       "setfirstRoute 10.5.0.0\nsetNumRoute 1\nsetfirstMask 255.255.0.0\naddRoute 0\n"
       "setfirstMetric 7\naddRoute 0\n",
       "10.5.0.0 255.255.0.0 7"},
      {kR1, "create 10.2.0.0 255.254.0.0 2", -1,
       continued("ROUTES", 0, "10.1.0.0") + "setRoute 1 10.2.0.0\nsetNumRoute 2\n" +
           continued("NETMASK", 0, "255.255.0.0") + "setMask 1 255.254.0.0\naddRoute 1\n" +
           continued("METRIC", 0, "1") + "setMetric 1 2\naddRoute 1\n",
       kR1 + kR2},
      {kR1 + kR2, "mask 10.1.0.0 255.0.0.0", -1,
       "/bin/sed  -i 's/^\tNETMASK\\[0\\]=\\\"255.255.0.0\\\"/\\tNETMASK\\[0\\]=\\\"255.0.0.0\\\"/'"
       "   ip_up_add_v2k\naddRoute 0\n",
       "10.1.0.0 255.0.0.0 1 " + kR2},
      {kR1 + kR2, "metric 10.2.0.0 65535", -1,
       "/bin/sed  -i 's/^\tMETRIC\\[1\\]=\\\"2\\\"/\\tMETRIC\\[1\\]=\\\"65535\\\"/'   "
       "ip_up_add_v2k\naddRoute 1\n",
       kR1 + "10.2.0.0 255.254.0.0 65535"},
      {kR1, "mask 10.1.0.0 255.0.255.0", 1, "", kR1},
      {kR1 + kR2, "create 10.2.0.0 255.0.0.0 1", 4, "", kR1 + kR2},
      {kR1, "delete 10.1.0.0", -1,
       "delfirstRoute\ndelfirstMask\ndelfirstMetric\nsetNumRoute 0\nip_up_add_v2k\n", ""},
      {kR1 + kR2 + kR3, "delete 10.1.0.0", -1,
       "delRoute 0 3\n\ndelMask 0 3\n\ndelMetric 0 3\n\n" + recount2, kR2 + kR3},
      {kR1 + kR2 + kR3, "delete 10.2.0.0", -1,
       "delRoute 1 3\n\ndelMask 1 3\n\ndelMetric 1 3\n\n" + recount2, kR1 + kR3},
      {kR1 + kR2 + kR3, "delete 10.3.0.0", -1,
       "delRoute 2 3\n\ndelMask 2 3\n\ndelMetric 2 3\n\nsetRoute_removebackslash 1 10.2.0.0\n\n"
       "setMask_removebackslash 1 255.254.0.0\n\nsetMetric_removebackslash 1 2\n\n" +
           recount2,
       kR1 + kR2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.step);
    fresh(row.routes);
    EXPECT_EQ(step(row.step).code, row.code);
    EXPECT_EQ(routeJournal(), row.journal);
    EXPECT_EQ(arrays(appliance::readFile(kRouteFile)), arrays(routeText(row.after)));
    // Every route still reads its own element: indices follow the deletions.
    const Lines ids = routeIds();
    for (const std::string& id : ids) EXPECT_EQ(valueOf(route(id), "DestinationAddress"), id);
    EXPECT_EQ(ids.size(), arrays(routeText(row.after)).size() / 3);
  }
}

TEST_F(RouteTest, RefusalsAndLogLinesTellWhatHappened) {
  const char* const source = "../src/Zeph_NextHopIPRouteImpl";
  EXPECT_EQ(step("create 10.1.0.0"),
            (CimFailure{CIMException::INVALID_PARAMETER, source, 0,
                        "Destination Address specified already exists in the table."}));
  EXPECT_EQ(step("create 10.1.0"), (CimFailure{CIMException::FAILED, source, 0, "#\x04#"}));
  EXPECT_EQ(routeIds(), (Lines{"10.1.0.0", "172.16.0.0"}));
  EXPECT_EQ(appliance::journal(), Lines{});
  env_->log().clear();
  EXPECT_EQ(getFailure(route("10.9.9.9")).code, CIMException::NOT_FOUND);
  EXPECT_TRUE(wasLogged("The hasKey value in the get operation is i\n"));
  env_->log().clear();
  routeIds();
  Lines log = logged();
  EXPECT_EQ(std::count(log.begin(), log.end(), "Size of Collection : \n"), 2);
  EXPECT_EQ(valueOf(route("10.1.0.0"), "IfName"), "ppp0");
  EXPECT_TRUE(wasLogged("Name of Dialout Interface ppp0"));
  EXPECT_EQ(step("delete 10.1.0.0").code, -1);
  log = logged();
  const auto deleting = std::find(log.begin(), log.end(), "Deleting the association\n");
  ASSERT_NE(deleting, log.end());
  EXPECT_EQ(*(deleting + 1), "Deleted the association\n");
  // A destination listed twice loads once, with the later element; the earlier route is
  // dropped, not kept aside (the sanitizer build reports it if it leaks).
  fresh(kR1 + kR2 + "10.1.0.0 255.0.0.0 9");
  EXPECT_EQ(routeIds(), (Lines{"10.1.0.0", "10.2.0.0"}));
  EXPECT_EQ(valueOf(route("10.1.0.0"), "DestinationMask"), "255.0.0.0");
  EXPECT_EQ(valueOf(route("10.1.0.0"), "RouteMetric"), "9");
}

// Each end reaches exactly the other, by any of the four requests and role rules; the rules
// refuse with their codes and texts.
TEST_F(RouteTest, TheAssociationLinksTheSettingsWithEachRoute) {
  const CIMObjectPath modem =
      client::systemElement("Zeph_SoftModem", "DeviceID", "SoftModemIn").path();
  const CIMObjectPath noKey(OpenWBEM::CIMName("Zeph_DialOutSettingData"), "root/cimv2");
  const CIMObjectPath r = route("10.1.0.0").path();
  const std::string id = "Velmar:Zeph_DialOutSettingData";
  const CIMObjectPath s = client::settingData("Zeph_DialOutSettingData", id.c_str()).path();
  const std::string settings = "Zeph_DialOutSettingData:" + id;
  const std::string r1 = "Zeph_NextHopIPRoute:10.1.0.0", r2 = "Zeph_NextHopIPRoute:172.16.0.0";
  const std::string a1 = id + " -> 10.1.0.0", a2 = id + " -> 172.16.0.0";
  struct Row {
    Request request;
    CIMObjectPath source;
    const char* role;
    const char* resultRole;
    const char* resultClass;
    Lines expected;
  };
  const Row rows[] = {
      {kAssociatorNames, s, "", "", "", {r1, r2}},
      {kAssociatorNames, s, "Antecedent", "Dependent", "", {r1, r2}},
      {kAssociatorNames, s, "", "", "Zeph_NextHopIPRoute", {r1, r2}},
      {kAssociatorNames, r, "", "", "", {settings}},
      {kAssociatorNames, r, "Dependent", "", "Zeph_DialOutSettingData", {settings}},
      {kAssociators, s, "", "", "", {r1, r2}},
      {kAssociators, r, "", "", "", {settings}},
      {kReferences, s, "", "", "", {a1, a2}},
      {kReferences, r, "Dependent", "", "", {a1}},
      {kReferenceNames, s, "Antecedent", "", "", {a1, a2}},
      {kReferenceNames, r, "", "", "", {a1}},
      {kAssociatorNames, modem, "", "", "", {"error 13"}},
      {kReferenceNames, modem, "", "", "", {"error 13"}},
      {kAssociatorNames, noKey, "", "", "", {"error 1: Property InstanceID is not sent"}},
      {kAssociatorNames,
       s,
       "Owner",
       "",
       "",
       {"error 7: No Reference of class specified in "
        "objectPath exists in this association"}},
      {kAssociatorNames, s, "", "Owner", "", {"error 4"}},
      {kAssociatorNames, s, "", "Owner", "Zeph_NextHopIPRoute", {"error 7"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::to_string(row.request) + " " + row.role + "/" + row.resultRole + "/" +
                 row.resultClass);
    Lines got;
    const CimFailure failure = cimFailureOf(
        [&] { got = ask(row.request, row.source, row.role, row.resultRole, row.resultClass); });
    if (failure.code != -1)
      got = {"error " + std::to_string(failure.code) +
             (failure.message ? ": " + *failure.message : "")};
    EXPECT_EQ(got, row.expected);
  }
  // The instance side serves the same associations, and creates one only from two references.
  EXPECT_EQ(enumNames(kAssociation).size(), 2u);
  for (const char* end : {"Antecedent", "Dependent"}) {
    OpenWBEM::CIMInstance association(kAssociation);
    association.setProperty(end, OpenWBEM::CIMValue(end[0] == 'A' ? s : r));
    EXPECT_EQ(cimFailureOf([&] {
                call([&](const auto& env) { provider_->createInstance(env, kNs, association); });
              }).message,
              "Invalid reference objectPath")
        << end;
  }
  ASSERT_EQ(step("delete 172.16.0.0").code, -1);
  ASSERT_EQ(step("delete 10.1.0.0").code, -1);
  EXPECT_EQ(ask(kAssociatorNames, s), Lines{});
  EXPECT_EQ(ask(kReferenceNames, s), Lines{});
  EXPECT_EQ(enumNames(kAssociation).size(), 0u);
}

// Every element read gives the word and log lines of a fresh scan of the file with that
// element's format, odd lines included, and sees an edit of the file made since the last read.
TEST_F(RouteTest, ElementReadsMatchAFreshScanOfTheFile) {
  const std::string contents[] = {
      "declare -a ROUTES\n\tROUTES[0]=\"10.1.0.0\" \\\n\tROUTES[1]=\"10.2.0.0\"\n"
      "\tNETMASK[0]=\"255.0.0.0\"\n\tMETRIC[1]=\"3\"\n",
      // An element listed twice (the last wins), out of order, and with a missing element.
      "\tROUTES[2]=\"a\"\n\tROUTES[0]=\"b\"\n\tROUTES[2]=\"c\"\n\tROUTES[4]=\"d\"\n",
      // Brackets the read formats do not take, other names with the same beginning, blanks.
      "\tROUTES[03]=\"z\"\n\tROUTES[ 1]=\"y\"\n\tROUTES[+1]=\"w\"\n\tROUTESX[1]=\"v\"\n"
      "\tROUTES [1]=\"u\"\n\tROUTES[1]= \"t\"\n\tROUTES[1]=\n\tROUTES[-1]=\"s\"\n",
      // Unquoted, a lone quote, an empty value, no brackets at all.
      "\tMETRIC[0]=5\n\tMETRIC[1]=\"\n\tMETRIC[2]=\"\"\n\tMETRIC=\"1\"\n",
      // A line longer than the reader's buffer: its continuation is a line of its own.
      "\tROUTES[0]=\"" + std::string(1100, 'x') + "\"\n\tROUTES[1]=\"q\"\n",
      "",
  };
  for (const std::string& content : contents) {
    appliance::writeFile(kRouteFile, content);
    for (const ras::RouteArray* array : {&ras::kRouteArray, &ras::kMaskArray, &ras::kMetricArray}) {
      for (int index = 0; index < 5; ++index) {
        char format[256], line[2048];
        std::snprintf(format, sizeof format, array->readFormat, index, "%s");
        env_->log().clear();
        std::string word;
        getParameterFromFile(kRouteFile, format, array->prefix, word);
        Lines expected = logged();
        std::snprintf(line, sizeof line, array->readLog, word.c_str());
        expected.push_back(line);
        const bool quoted = word.size() > 1 && word[0] == '"';
        const std::string value = quoted ? word.substr(1, word.size() - 2) : "";
        if (array->valueLog != nullptr) {
          std::snprintf(line, sizeof line, array->valueLog, value.c_str());
          expected.push_back(line);
        }
        env_->log().clear();
        EXPECT_EQ(ras::readRouteElement(*array, index), value) << format << " in\n" << content;
        EXPECT_EQ(logged(), expected) << format << " in\n" << content;
      }
    }
  }
  // A command run between two reads, even inside one request.
  appliance::writeFile(kRouteFile, "\tROUTES[0]=\"10.1.0.0\"\n\tROUTES[1]=\"10.2.0.0\"\n");
  EXPECT_EQ(ras::readRouteElement(ras::kRouteArray, 0), "10.1.0.0");
  ras::runCommand("%s -i s/10.1.0.0/10.9.0.0/ %s", {ras::kSed, kRouteFile});
  EXPECT_EQ(ras::readRouteElement(ras::kRouteArray, 0), "10.9.0.0");
  EXPECT_EQ(ras::readRouteElement(ras::kRouteArray, 1), "10.2.0.0");
  // The file rewritten in place between two requests, to the same size within the file
  // system's time resolution: the next request reads it again.
  fresh(kR1);
  EXPECT_EQ(valueOf(route("10.1.0.0"), "DestinationMask"), "255.255.0.0");
  std::string text = appliance::readFile(kRouteFile);
  text.replace(text.find("255.255.0.0"), 11, "255.254.0.0");
  appliance::writeFile(kRouteFile, text);
  EXPECT_EQ(valueOf(route("10.1.0.0"), "DestinationMask"), "255.254.0.0");
}

}  // namespace
