// The platform library's "ModemStatus" callback racing requests: while another program
// switches the service on and off, a client changes the call-in rings (the same dial-in
// script the callback gates) and now and then initialises the module again, which ends the
// subscription the callback runs under. No edit may be lost or torn, nothing may deadlock.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "ClientFixture.h"
#include "QvlShared.h"

namespace {

using client::ClientTest;
using client::Lines;
using client::settingData;
using client::Target;
using client::u16;

constexpr char kDialIn[] = "/qv/etc/ppp/mgetty_v2k";
constexpr char kDialOut[] = "/qv/etc/ppp/ppp_add_v2k";
constexpr char kRingsPrefix[] = "declare -r NUMBER_OF_RINGS=";
constexpr char kOpen[] = "#$IF_ENABLE_CMD";
constexpr int kSwitches = 12;
constexpr int kRingChanges = 24;
constexpr int kInitializeEvery = 8;
constexpr int kNoCimError = -1;

std::string ringsLine(int rings) {
  return std::string(kRingsPrefix) + "\"" + std::to_string(rings) + "\"";
}

// The lines of a script with its rings and gate lines left out: what no edit here may touch.
Lines untouched(const char* script) {
  Lines kept;
  for (const std::string& line : appliance::readLines(script)) {
    if (line.rfind(kRingsPrefix, 0) != 0 && line.find("$IF_ENABLE_CMD") == std::string::npos)
      kept.push_back(line);
  }
  return kept;
}

std::string lineStartingWith(const char* script, const std::string& prefix) {
  for (const std::string& line : appliance::readLines(script)) {
    if (line.rfind(prefix, 0) == 0) return line;
  }
  return "";
}

const Target kCallIn = settingData("Zeph_CallInSettingData", "Velmar:Zeph_CallInSettingData");

using CallbackConcurrency = ClientTest;

TEST_F(CallbackConcurrency, RequestsAndTheChangeCallbackLoseAndTearNoEdit) {
  const Lines dialInRest = untouched(kDialIn);
  const Lines dialOutRest = untouched(kDialOut);

  std::thread platform([] {
    for (int i = 0; i < kSwitches; ++i) {
      EXPECT_EQ(QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus",
                                     i % 2 == 0 ? "DISABLED" : "ENABLED"),
                0);
      EXPECT_EQ(QvlNotifySync(), 0);
    }
  });
  std::vector<std::string> lost;
  for (int i = 0; i < kRingChanges; ++i) {
    const int rings = i % 20 + 1;
    const std::string previous = ringsLine((i + 19) % 20 + 1);
    if (i > 0 && lineStartingWith(kDialIn, kRingsPrefix) != previous) {
      lost.push_back(previous + " became " + lineStartingWith(kDialIn, kRingsPrefix));
    }
    EXPECT_EQ(modify(kCallIn, {{"RingsBeforeAnswer", u16(rings)}}).code, kNoCimError) << rings;
    if (i % kInitializeEvery == kInitializeEvery - 1)
      provider_->initialize(TestEnvironment::make());
  }
  platform.join();
  EXPECT_EQ(lost, Lines{});

  // Whatever callbacks the re-initialisations skipped, the last change is followed.
  EXPECT_EQ(QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", "DISABLED"), 0);
  EXPECT_EQ(QvlNotifySync(), 0);
  EXPECT_EQ(QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", "ENABLED"), 0);
  EXPECT_EQ(QvlNotifySync(), 0);
  EXPECT_EQ(lineStartingWith(kDialIn, "#$IF"), kOpen);
  EXPECT_EQ(lineStartingWith(kDialOut, "#$IF"), kOpen);
  EXPECT_EQ(lineStartingWith(kDialIn, kRingsPrefix), ringsLine((kRingChanges - 1) % 20 + 1));
  EXPECT_EQ(untouched(kDialIn), dialInRest);
  EXPECT_EQ(untouched(kDialOut), dialOutRest);
}

}  // namespace
