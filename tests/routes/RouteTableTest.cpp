// The route table through the dispatcher: the whole set of array lines and the journal of
// scripts after creations, edits and deletions at the front, middle and end of tables of
// 0 to 3 routes; and the route file as bash reads it along a create/delete sequence.
#include <algorithm>
#include <functional>

#include "RouteFixture.h"

namespace {

using client::Lines;

struct Route {
  const char* address;
  const char* mask;
  const char* metric;
};

const char* const kScripts = "/opt/etc/RasProviderScripts/";

std::string element(const char* name, int i, const std::string& value, bool continued) {
  return std::string("\t") + name + "[" + std::to_string(i) + "]=\"" + value + "\"" +
         (continued ? " \\" : "");
}

// The count line and the three arrays of `routes`, continued as the module keeps them.
Lines arrayLines(const std::vector<Route>& routes) {
  Lines lines = {"declare -r NUMBER_OF_ROUTES=\"" + std::to_string(routes.size()) + "\""};
  const int n = static_cast<int>(routes.size());
  for (int i = 0; i < n; ++i) lines.push_back(element("ROUTES", i, routes[i].address, i < n - 1));
  for (int i = 0; i < n; ++i) lines.push_back(element("NETMASK", i, routes[i].mask, i < n - 1));
  for (int i = 0; i < n; ++i) lines.push_back(element("METRIC", i, routes[i].metric, i < n - 1));
  return lines;
}

// A route file holding `routes`, in the appliance's layout.
void writeRouteFile(const std::vector<Route>& routes) {
  const Lines lines = arrayLines(routes);
  std::string text = "#!/bin/bash\n" + lines[0] + "\n";
  const char* const names[] = {"ROUTES", "NETMASK", "METRIC"};
  for (std::size_t a = 0; a < 3; ++a) {
    text += std::string("declare -a ") + names[a] + "\n";
    for (std::size_t i = 0; i < routes.size(); ++i) text += lines[1 + a * routes.size() + i] + "\n";
  }
  appliance::writeFile(kRouteFile, text + "exit 0\n");
  appliance::runTool({"chmod", "755", kRouteFile});
}

const Route kR1{"10.1.0.0", "255.255.0.0", "1"};
const Route kR2{"10.2.0.0", "255.254.0.0", "2"};
const Route kR3{"10.3.0.0", "255.252.0.0", "3"};

std::string script(const std::string& command) {
  return kScripts + command;
}
std::string continuation(const char* name, int i, const std::string& value) {
  return "/bin/sed -i 's/" + std::string(name) + "\\[" + std::to_string(i) + "\\]=\\\"" + value +
         "\\\"/" + name + "\\[" + std::to_string(i) + "\\]=\\\"" + value + "\\\" \\\\/' " +
         kRouteFile;
}
// Commands written with a trailing newline show in the journal followed by an empty line.
Lines withNewline(const std::string& command) {
  return {command, ""};
}

// The journal lines that touch the route table: its scripts, sed edits and the route file.
Lines routeJournal() {
  Lines lines;
  const Lines all = appliance::journal();
  for (std::size_t i = 0; i < all.size(); ++i) {
    const std::string& line = all[i];
    const bool ours =
        line.rfind(kScripts, 0) == 0 || line.rfind("/bin/sed", 0) == 0 || line == kRouteFile;
    if (ours) lines.push_back(line);
    if (ours && i + 1 < all.size() && all[i + 1].empty()) lines.push_back("");
  }
  return lines;
}

struct Row {
  const char* name;
  std::function<void()> setUp;
  std::function<CimFailure(RouteTest&)> step;
  int code;  // CIM error code of the step, -1 for none
  Lines journal;
  Lines arrays;
};

class RouteTableTest : public client::RowTest<RouteTest, Row> {};

const std::vector<Row> kRows = {
    {"FirstRouteWithoutFile",
     [] { appliance::removeFile(kRouteFile); },
     [](RouteTest& t) { return t.create("10.5.0.0", "255.255.0.0", 7); },
     -1,
     {script("setfirstRoute 10.5.0.0"), script("setNumRoute 1"), script("setfirstMask 255.255.0.0"),
      script("addRoute 0"), script("setfirstMetric 7"), script("addRoute 0")},
     arrayLines({{"10.5.0.0", "255.255.0.0", "7"}})},
    {"SecondRouteContinuesTheFirst",
     [] { writeRouteFile({kR1}); },
     [](RouteTest& t) { return t.create("10.2.0.0", "255.254.0.0", 2); },
     -1,
     {continuation("ROUTES", 0, "10.1.0.0"), script("setRoute 1 10.2.0.0"), script("setNumRoute 2"),
      continuation("NETMASK", 0, "255.255.0.0"), script("setMask 1 255.254.0.0"),
      script("addRoute 1"), continuation("METRIC", 0, "1"), script("setMetric 1 2"),
      script("addRoute 1")},
     arrayLines({kR1, kR2})},
    {"MaskOfFirstOfTwoKeepsContinuation",
     [] {
       writeRouteFile({kR1, kR2});
     },
     [](RouteTest& t) {
       return t.modify(route("10.1.0.0"), {{"DestinationMask", client::text("255.0.0.0")}});
     },
     -1,
     {std::string("/bin/sed  -i 's/^\tNETMASK\\[0\\]=\\\"255.255.0.0\\\"/\\tNETMASK\\[0\\]=") +
          "\\\"255.0.0.0\\\"/'   " + kRouteFile,
      script("addRoute 0")},
     arrayLines({{"10.1.0.0", "255.0.0.0", "1"}, kR2})},
    {"LargestMetricOfLast",
     [] {
       writeRouteFile({kR1, kR2});
     },
     [](RouteTest& t) {
       return t.modify(route("10.2.0.0"), {{"RouteMetric", client::u16(65535)}});
     },
     -1,
     {std::string(
          "/bin/sed  -i 's/^\tMETRIC\\[1\\]=\\\"2\\\"/\\tMETRIC\\[1\\]=\\\"65535\\\"/'   ") +
          kRouteFile,
      script("addRoute 1")},
     arrayLines({kR1, {"10.2.0.0", "255.254.0.0", "65535"}})},
    {"InvalidMaskWritesNothing",
     [] { writeRouteFile({kR1}); },
     [](RouteTest& t) {
       return t.modify(route("10.1.0.0"), {{"DestinationMask", client::text("255.0.255.0")}});
     },
     1,
     {},
     arrayLines({kR1})},
    {"DeleteOnlyRoute",
     [] { writeRouteFile({kR1}); },
     [](RouteTest& t) { return t.remove(route("10.1.0.0")); },
     -1,
     {script("delfirstRoute"), script("delfirstMask"), script("delfirstMetric"),
      script("setNumRoute 0"), kRouteFile},
     arrayLines({})},
    {"DeleteFirstOfThree",
     [] {
       writeRouteFile({kR1, kR2, kR3});
     },
     [](RouteTest& t) { return t.remove(route("10.1.0.0")); }, -1,
     client::joined(
         client::joined(withNewline(script("delRoute 0 3")), withNewline(script("delMask 0 3"))),
         client::joined(withNewline(script("delMetric 0 3")),
                        {script("setNumRoute 2"), kRouteFile})),
     arrayLines({kR2, kR3})},
    {"DeleteMiddleOfThree",
     [] {
       writeRouteFile({kR1, kR2, kR3});
     },
     [](RouteTest& t) { return t.remove(route("10.2.0.0")); }, -1,
     client::joined(
         client::joined(withNewline(script("delRoute 1 3")), withNewline(script("delMask 1 3"))),
         client::joined(withNewline(script("delMetric 1 3")),
                        {script("setNumRoute 2"), kRouteFile})),
     arrayLines({kR1, kR3})},
    {"DeleteLastOfThree",
     [] {
       writeRouteFile({kR1, kR2, kR3});
     },
     [](RouteTest& t) { return t.remove(route("10.3.0.0")); }, -1,
     [] {
       Lines lines;
       for (const char* command :
            {"delRoute 2 3", "delMask 2 3", "delMetric 2 3", "setRoute_removebackslash 1 10.2.0.0",
             "setMask_removebackslash 1 255.254.0.0", "setMetric_removebackslash 1 2"})
         lines = client::joined(lines, withNewline(script(command)));
       return client::joined(lines, {script("setNumRoute 2"), kRouteFile});
     }(),
     arrayLines({kR1, kR2})},
    {"DuplicateWritesNothing",
     [] {
       writeRouteFile({kR1, kR2});
     },
     [](RouteTest& t) { return t.create("10.2.0.0", "255.0.0.0", 1); },
     4,
     {},
     arrayLines({kR1, kR2})},
};

TEST_P(RouteTableTest, WholeRouteFileAndScriptsAfterEachStep) {
  const Row& row = GetParam();
  const CimFailure failure = row.step(*this);
  EXPECT_EQ(failure.code, row.code) << failure;
  EXPECT_EQ(routeJournal(), row.journal);
  EXPECT_EQ(routeArrayLines(), row.arrays);
  // Every route still reads its own element: indices follow the deletions.
  for (const std::string& id : routeIds()) EXPECT_EQ(valueOf(route(id), "DestinationAddress"), id);
  EXPECT_EQ(routeIds().size(), row.arrays.size() / 3);
}

INSTANTIATE_TEST_SUITE_P(Steps, RouteTableTest, ::testing::ValuesIn(kRows), client::RowName());

TEST_F(RouteTest, DuplicateAndMalformedDestinationsAreRefusedWithTheirTexts) {
  const CimFailure duplicate = create("10.1.0.0");
  EXPECT_EQ(duplicate.code, 4);
  EXPECT_EQ(duplicate.message, "Destination Address specified already exists in the table.");
  const CimFailure malformed = create("10.1.0");
  EXPECT_EQ(malformed.code, 1);
  EXPECT_EQ(malformed.message, std::string("#\x04#"));
  EXPECT_EQ(routeIds(), (Lines{"10.1.0.0", "172.16.0.0"}));
  EXPECT_TRUE(appliance::journal().empty());
}

TEST_F(RouteTest, TheCollectionLogsAFailedLookupAndEveryStep) {
  env_->log().clear();
  EXPECT_EQ(getFailure(route("10.9.9.9")).code, OpenWBEM::CIMException::NOT_FOUND);
  EXPECT_TRUE(wasLogged("The hasKey value in the get operation is i\n"));
  env_->log().clear();
  EXPECT_EQ(routeIds().size(), 2u);
  const Lines log = logged();
  EXPECT_EQ(std::count(log.begin(), log.end(), "Size of Collection : \n"), 2);
}

// A destination listed twice takes the later element; the earlier route is dropped, not kept
// aside (the sanitizer build reports it if it leaks).
class DuplicateRouteFile : public RouteTest {
 protected:
  void beforeInitialising() override { writeRouteFile({kR1, kR2, {"10.1.0.0", "255.0.0.0", "9"}}); }
};

TEST_F(DuplicateRouteFile, LoadsTheDestinationOnceAtItsLaterIndex) {
  EXPECT_EQ(routeIds(), (Lines{"10.1.0.0", "10.2.0.0"}));
  const OpenWBEM::CIMInstance instance = get(route("10.1.0.0"));
  EXPECT_EQ(textOf(instance.getPropertyValue("DestinationMask")), "255.0.0.0");
  EXPECT_EQ(textOf(instance.getPropertyValue("RouteMetric")), "9");
}

// Sources the route file with bash: the count and the three arrays, one line each.
Lines sourcedArrays() {
  const appliance::ToolResult result = appliance::runTool(
      {"bash", "-c",
       "show() { echo \"$NUMBER_OF_ROUTES\"; echo \"${ROUTES[*]}\"; echo \"${NETMASK[*]}\"; "
       "echo \"${METRIC[*]}\"; echo \"${#ROUTES[@]} ${#NETMASK[@]} ${#METRIC[@]}\"; }; "
       "trap show EXIT; . /qv/etc/ppp/ip_up_add_v2k"});
  EXPECT_EQ(result.status, 0);
  Lines lines;
  std::string line;
  for (char c : result.output) {
    if (c == '\n') {
      lines.push_back(line);
      line.clear();
    } else {
      line += c;
    }
  }
  return lines;
}

TEST_F(RouteTest, CreateThreeDeleteMiddleThenLastKeepsAValidShellFile) {
  ASSERT_EQ(create("10.7.0.0", "255.255.0.0", 4).code, -1);
  ASSERT_EQ(create("10.8.0.0", "255.255.255.0", 5).code, -1);
  ASSERT_EQ(create("10.9.0.0", "255.0.0.0", 6).code, -1);
  const Route kDefault1{"10.1.0.0", "255.255.0.0", "1"};
  const Route kDefault2{"172.16.0.0", "255.240.0.0", "5"};
  const Route kA{"10.7.0.0", "255.255.0.0", "4"};
  const Route kB{"10.8.0.0", "255.255.255.0", "5"};
  const Route kC{"10.9.0.0", "255.0.0.0", "6"};
  const std::vector<std::vector<Route>> states = {{kDefault1, kDefault2, kA, kB, kC},
                                                  {kDefault1, kDefault2, kA, kC},
                                                  {kDefault1, kDefault2, kA}};
  for (std::size_t step = 0; step < states.size(); ++step) {
    if (step == 1) {
      ASSERT_EQ(remove(route("10.8.0.0")).code, -1);
    }
    if (step == 2) {
      ASSERT_EQ(remove(route("10.9.0.0")).code, -1);
    }
    const std::vector<Route>& routes = states[step];
    Lines expected(4);
    const std::string n = std::to_string(routes.size());
    expected[0] = n;
    for (const Route& r : routes) {
      for (auto [i, value] : {std::pair{1, r.address}, {2, r.mask}, {3, r.metric}})
        expected[i] += (expected[i].empty() ? "" : " ") + std::string(value);
    }
    expected.push_back(n + " " + n + " " + n);
    EXPECT_EQ(sourcedArrays(), expected) << "step " << step;
    EXPECT_EQ(routeArrayLines(), arrayLines(routes)) << "step " << step;

    Lines ids;
    for (const Route& r : routes) ids.push_back(r.address);
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(routeIds(), ids);
    Lines associated;
    for (const std::string& id : ids) associated.push_back("Zeph_NextHopIPRoute:" + id);
    EXPECT_EQ(associatedNames(settings().path()), associated);
    for (const Route& r : routes) {
      const OpenWBEM::CIMInstance instance = get(route(r.address));
      EXPECT_EQ(textOf(instance.getPropertyValue("DestinationAddress")), r.address);
      EXPECT_EQ(textOf(instance.getPropertyValue("DestinationMask")), r.mask);
      EXPECT_EQ(textOf(instance.getPropertyValue("RouteMetric")), r.metric);
    }
  }
}

}  // namespace
