// The route array scripts on the dial-out route file: appends, first elements, deletes at
// the front, in the middle and at the end, continuations and the route count.
#include <initializer_list>

#include "ApplianceTest.h"
#include "ScriptCase.h"

using namespace appliance;

namespace {

constexpr char kRouteFile[] = "/qv/etc/ppp/ip_up_add_v2k";

// One array in the file's layout; every element but the last is continued with " \",
// and the last one too when openEnd is set.
std::string array(const std::string& name, std::initializer_list<const char*> values,
                  bool openEnd = false) {
  std::string text = "declare -a " + name + "\n";
  size_t i = 0;
  for (const char* value : values) {
    text += "\t" + name + "[" + std::to_string(i) + "]=\"" + value + "\"";
    ++i;
    if (i < values.size() || openEnd) text += " \\";
    text += "\n";
  }
  return text;
}

std::string count(int n) {
  return "declare -r NUMBER_OF_ROUTES=\"" + std::to_string(n) + "\"\n";
}

const std::string kMasks3 = array("NETMASK", {"255.255.0.0", "255.254.0.0", "255.252.0.0"});
const std::string kMetrics3 = array("METRIC", {"1", "2", "3"});
const std::string kRoutes3 = array("ROUTES", {"10.1.0.0", "10.2.0.0", "10.3.0.0"});
const std::string kThree = count(3) + kRoutes3 + kMasks3 + kMetrics3;

class RouteScriptsTest : public ApplianceTest {};

TEST_F(RouteScriptsTest, EditTheArraysAsTheModuleExpects) {
  const std::vector<ScriptCase> rows = {
      {"delete the front element",
       kThree,
       {"delRoute", "0", "3"},
       0,
       count(3) + array("ROUTES", {"10.2.0.0", "10.3.0.0"}) + kMasks3 + kMetrics3},
      {"delete a middle element",
       kThree,
       {"delMask", "1", "3"},
       0,
       count(3) + kRoutes3 + array("NETMASK", {"255.255.0.0", "255.252.0.0"}) + kMetrics3},
      {"delete the last element leaves the continuation",
       kThree,
       {"delMetric", "2", "3"},
       0,
       count(3) + kRoutes3 + kMasks3 + array("METRIC", {"1", "2"}, true)},
      {"remove the continuation of the new last element",
       count(2) + array("ROUTES", {"10.1.0.0", "10.2.0.0"}, true),
       {"setRoute_removebackslash", "1", "10.2.0.0"},
       0,
       count(2) + array("ROUTES", {"10.1.0.0", "10.2.0.0"})},
      {"remove the continuation of an element holding another value",
       count(2) + array("METRIC", {"1", "2"}, true),
       {"setMetric_removebackslash", "1", "3"},
       2,
       count(2) + array("METRIC", {"1", "2"}, true)},
      {"delete the only route",
       count(1) + array("ROUTES", {"10.1.0.0"}),
       {"delfirstRoute"},
       0,
       count(1) + array("ROUTES", {})},
      {"delete an element the array does not have",
       count(3) + array("NETMASK", {"255.255.0.0", "255.254.0.0"}),
       {"delMask", "2", "3"},
       0,
       count(3) + array("NETMASK", {"255.255.0.0", "255.254.0.0"})},
      {"delete with an index beyond the count", kThree, {"delRoute", "3", "3"}, 2, kThree},
      {"append after the last element",
       count(3) + array("ROUTES", {"10.1.0.0", "10.2.0.0", "10.3.0.0"}, true) + kMasks3,
       {"setRoute", "3", "10.4.0.0"},
       0,
       count(3) + array("ROUTES", {"10.1.0.0", "10.2.0.0", "10.3.0.0", "10.4.0.0"}) + kMasks3},
      {"append an element that exists", kThree, {"setMask", "1", "255.0.0.0"}, 2, kThree},
      {"append a metric that is not a number", kThree, {"setMetric", "3", "x"}, 2, kThree},
      {"first element of an empty array",
       count(0) + array("ROUTES", {}) + kMasks3,
       {"setfirstRoute", "10.9.0.0"},
       0,
       count(0) + array("ROUTES", {"10.9.0.0"}) + kMasks3},
      {"first element of a missing array",
       count(1) + array("ROUTES", {"10.9.0.0"}),
       {"setfirstMask", "255.255.255.0"},
       0,
       count(1) + array("ROUTES", {"10.9.0.0"}) + array("NETMASK", {"255.255.255.0"})},
      {"first element replaced, continuation kept",
       kThree,
       {"setfirstMetric", "9"},
       0,
       count(3) + kRoutes3 + kMasks3 + array("METRIC", {"9", "2", "3"})},
      {"route count", kThree, {"setNumRoute", "2"}, 0, count(2) + kRoutes3 + kMasks3 + kMetrics3},
      {"route count that is not a number", kThree, {"setNumRoute", "2;"}, 2, kThree},
  };
  expectScriptCases(rows, kRouteFile);
}

TEST_F(RouteScriptsTest, FirstRouteWithoutAFileCreatesAnExecutableRouteFile) {
  removeFile(kRouteFile);
  ASSERT_EQ(runScript({"setfirstRoute", "10.5.0.0"}).status, 0);
  ASSERT_EQ(runScript({"setNumRoute", "1"}).status, 0);
  ASSERT_EQ(runScript({"setfirstMask", "255.255.0.0"}).status, 0);
  ASSERT_EQ(runScript({"setfirstMetric", "4"}).status, 0);

  EXPECT_EQ(readFile(kRouteFile),
            "#!/bin/bash\n"
            "# Static routes of the dial-out link: element i of the three arrays is route i.\n" +
                count(1) + array("ROUTES", {"10.5.0.0"}) + array("NETMASK", {"255.255.0.0"}) +
                array("METRIC", {"4"}));
  EXPECT_EQ(runTool({kRouteFile}).status, 0);
}

// The pristine route file installs its routes on the connected dial-out link, and
// addRoute installs one more; without a connected dial-out link neither does anything.
TEST_F(RouteScriptsTest, RoutesAreInstalledOnTheDialOutLink) {
  ASSERT_EQ(runTool({kRouteFile}).status, 0);
  EXPECT_EQ(readFile("/var/lib/appliance/routes"), "");

  linkUp(Direction::DialOut, "ppp1", "10.64.0.2", "10.64.0.1");
  ASSERT_EQ(runTool({kRouteFile}).status, 0);
  EXPECT_EQ(readFile("/var/lib/appliance/routes"),
            "10.1.0.0 255.255.0.0 1 ppp1\n172.16.0.0 255.240.0.0 5 ppp1\n");

  ASSERT_EQ(runScript({"setRoute", "2", "192.168.7.0"}).status, 0);
  ASSERT_EQ(runScript({"setMask", "2", "255.255.255.0"}).status, 0);
  ASSERT_EQ(runScript({"addRoute", "2"}).status, 0);
  EXPECT_EQ(readLines("/var/lib/appliance/routes").back(), "192.168.7.0 255.255.255.0 0 ppp1");

  linkDown("ppp1");
  EXPECT_EQ(readFile("/var/lib/appliance/routes"), "");
}

}  // namespace
