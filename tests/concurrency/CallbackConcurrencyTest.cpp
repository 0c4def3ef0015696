// The platform library's "ModemStatus" callback racing requests: while another thread switches
// the service off and on through the registry, a client changes the call-in rings (in the same
// dial-in script whose gate the callback edits) and now and then initialises the module again,
// which ends the subscription the callback runs under. No edit may be lost or torn, nothing
// may deadlock, and the last switch is followed.
#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "ClientFixture.h"
#include "QvlShared.h"

namespace {

using client::Lines;

constexpr char kRingsPrefix[] = "declare -r NUMBER_OF_RINGS=";

// A start script as its rings line, its gate line and the rest, which no edit here may touch.
struct Script {
  std::string rings, gate;
  Lines rest;
};
Script read(const char* file) {
  Script script;
  for (const std::string& line : appliance::readLines(file)) {
    if (line.rfind(kRingsPrefix, 0) == 0) {
      script.rings = line;
    } else if (line.find("$IF_ENABLE_CMD") != std::string::npos) {
      script.gate = line;
    } else {
      script.rest.push_back(line);
    }
  }
  return script;
}
std::string ringsLine(int rings) {
  return std::string(kRingsPrefix) + "\"" + std::to_string(rings) + "\"";
}
void setModemStatus(const char* value) {
  EXPECT_EQ(QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", value), 0);
  EXPECT_EQ(QvlNotifySync(), 0);
}

using CallbackConcurrency = client::ClientTest;

TEST_F(CallbackConcurrency, RequestsAndTheChangeCallbackLoseAndTearNoEdit) {
  const char* const dialIn = "/qv/etc/ppp/mgetty_v2k";
  const char* const dialOut = "/qv/etc/ppp/ppp_add_v2k";
  const Lines dialInRest = read(dialIn).rest, dialOutRest = read(dialOut).rest;
  std::thread platform([] {
    for (int i = 0; i < 12; ++i) setModemStatus(i % 2 == 0 ? "DISABLED" : "ENABLED");
  });
  const auto callIn =
      client::settingData("Zeph_CallInSettingData", "Velmar:Zeph_CallInSettingData");
  Lines lost;
  for (int i = 0; i < 24; ++i) {
    const std::string previous = ringsLine((i + 19) % 20 + 1);
    if (i > 0 && read(dialIn).rings != previous)
      lost.push_back(previous + " became " + read(dialIn).rings);
    EXPECT_EQ(modify(callIn, {{"RingsBeforeAnswer", client::u16(i % 20 + 1)}}).code, -1) << i;
    if (i % 8 == 7) provider_->initialize(TestEnvironment::make());
  }
  platform.join();
  EXPECT_EQ(lost, Lines{});
  // Whatever callbacks the re-initialisations skipped, the last change is followed.
  setModemStatus("DISABLED");
  setModemStatus("ENABLED");
  EXPECT_EQ(read(dialIn).gate, "#$IF_ENABLE_CMD");
  EXPECT_EQ(read(dialOut).gate, "#$IF_ENABLE_CMD");
  EXPECT_EQ(read(dialIn).rings, ringsLine(4));
  EXPECT_EQ(read(dialIn).rest, dialInRest);
  EXPECT_EQ(read(dialOut).rest, dialOutRest);
}

}  // namespace
