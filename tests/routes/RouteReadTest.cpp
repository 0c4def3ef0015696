// Element reads of the route file: each gives the word and the log lines of a fresh scan of
// the file with that element's format, including on odd lines, and sees an edit of the file
// made between two reads, by a command or by anything else.
#include <gmock/gmock.h>

#include "Appliance.h"
#include "RouteFixture.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ConfigReader.h"
#include "Zeph_RouteArrays.h"

namespace {

class RouteReadTest : public RouteTest {
 protected:
  // readRouteElement against getParameterFromFile on the same file, element by element.
  void expectFreshScanResults(const std::string& content) {
    appliance::writeFile(kRouteFile, content);
    for (const ras::RouteArray* array : {&ras::kRouteArray, &ras::kMaskArray, &ras::kMetricArray}) {
      for (int index = 0; index < 5; ++index) {
        char format[256];
        std::snprintf(format, sizeof format, array->readFormat, index, "%s");
        env_->log().clear();
        std::string word;
        getParameterFromFile(kRouteFile, format, array->prefix, word);
        Lines expected = logged();
        char line[2048];
        std::snprintf(line, sizeof line, array->readLog, word.c_str());
        expected.push_back(line);
        const std::string value =
            word.size() > 1 && word[0] == '"' ? word.substr(1, word.size() - 2) : "";
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
};

TEST_F(RouteReadTest, EveryReadGivesTheWordAndLogOfAFreshScan) {
  const std::string longWord(1100, 'x');
  const std::string rows[] = {
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
      "\tROUTES[0]=\"" + longWord + "\"\n\tROUTES[1]=\"q\"\n",
      "",
  };
  for (const std::string& content : rows) expectFreshScanResults(content);
}

// A command run between two reads, even inside one request.
TEST_F(RouteReadTest, AnEditByACommandIsSeenByTheNextRead) {
  appliance::writeFile(kRouteFile, "\tROUTES[0]=\"10.1.0.0\"\n\tROUTES[1]=\"10.2.0.0\"\n");
  EXPECT_EQ(ras::readRouteElement(ras::kRouteArray, 0), "10.1.0.0");
  ras::runCommand("%s -i s/10.1.0.0/10.9.0.0/ %s", {ras::kSed, kRouteFile});
  EXPECT_EQ(ras::readRouteElement(ras::kRouteArray, 0), "10.9.0.0");
  EXPECT_EQ(ras::readRouteElement(ras::kRouteArray, 1), "10.2.0.0");
}

// The file rewritten in place between two requests, to the same size within the file
// system's time resolution: the next request reads it again.
TEST_F(RouteReadTest, AnEditBetweenTwoRequestsIsSeen) {
  const auto mask = [&] {
    return textOf(get(route("10.1.0.0")).getPropertyValue("DestinationMask"));
  };
  EXPECT_EQ(mask(), "255.255.0.0");
  std::string text = appliance::readFile(kRouteFile);
  text.replace(text.find("255.255.0.0"), 11, "255.254.0.0");
  appliance::writeFile(kRouteFile, text);
  EXPECT_EQ(mask(), "255.254.0.0");
}

}  // namespace
