// The RAS service as a CIMOM reaches it, inside a fresh simulated appliance: the module's
// dispatcher initialised, a logger that the platform thread may share, and the command
// lines, gate lines and registry values the tests compare.
#ifndef RASSERVICE_SERVICEFIXTURE_H
#define RASSERVICE_SERVICEFIXTURE_H

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ClientFixture.h"
#include "QvlStandIn.h"

using Lines = std::vector<std::string>;

namespace service {

inline const char* const kDialIn = "/qv/etc/ppp/mgetty_v2k";
inline const char* const kDialOut = "/qv/etc/ppp/ppp_add_v2k";
inline const std::string kOpen = "#$IF_ENABLE_CMD", kClosed = "$IF_ENABLE_CMD";
inline const std::string kListAll = "/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ";
inline const std::string kKillChat = "killall -9 chat", kKillMgetty = "killall -9 mgetty";
inline const std::string kSource = "../src/Zeph_RASServiceProvider";
inline const std::string kBothOpen = kOpen + " " + kOpen, kBothClosed = kClosed + " " + kClosed;

inline std::string hangup(const std::string& iface) {
  return "/qv/etc/ppp/ppp_hup_v2k " + iface;
}
inline std::string gateEdit(const std::string& to, const char* script) {
  return "/bin/sed -i 's/#\\?$IF_ENABLE_CMD/" + to + "/' " + script;
}
// "/usr/bin/killall -s CONT NAME\n": the journal shows the command and an empty line.
inline Lines resume(const char* script, const std::string& process) {
  return {gateEdit(kOpen, script), "/usr/bin/killall -s CONT " + process, ""};
}
// What a disabling runs with no link up: dial-in stopped, then dial-out.
inline const Lines kStopsWithoutLink = {gateEdit(kClosed, kDialIn),  kKillMgetty, kListAll,
                                        gateEdit(kClosed, kDialOut), kKillChat,   hangup("ppp")};
inline Lines joined(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}
// True when `all` is `first` and `second` merged, each in its own order: the change callback
// runs on the platform's thread while a set may still be running its own commands.
inline bool isInterleaving(const Lines& all, const Lines& first, const Lines& second,
                           std::size_t i = 0, std::size_t j = 0) {
  if (i + j == all.size()) return i == first.size() && j == second.size();
  const std::string& line = all[i + j];
  return (i < first.size() && first[i] == line && isInterleaving(all, first, second, i + 1, j)) ||
         (j < second.size() && second[j] == line && isInterleaving(all, first, second, i, j + 1));
}
// True when `wanted` occurs in `all` in this order, other lines between them allowed.
inline bool containsInOrder(const Lines& all, const Lines& wanted) {
  auto from = all.begin();
  for (const std::string& line : wanted) {
    from = std::find(from, all.end(), line);
    if (from == all.end()) return false;
    ++from;
  }
  return true;
}
// The gate line of a start script (kOpen or kClosed).
inline std::string gateLine(const char* script) {
  for (const std::string& line : appliance::readLines(script)) {
    if (line == kOpen || line == kClosed) return line;
  }
  return "";
}
// Both gate lines: the dial-in script's, then the dial-out script's.
inline std::string gates() {
  return gateLine(kDialIn) + " " + gateLine(kDialOut);
}
inline void dialInUp() {
  appliance::linkUp(appliance::Direction::DialIn, "ppp0", "10.0.0.1", "10.0.0.2");
}

}  // namespace service

inline const client::Target kService =
    client::systemElement("Zeph_RASService", "Name", "RASService");

class ServiceTest : public client::ClientTest {
 protected:
  // The pristine appliance again, once the callbacks its registry rewrite causes are done.
  static void pristine() {
    appliance::reset();
    ASSERT_EQ(QvlNotifySync(), 0);
    appliance::clearJournal();
    appliance::clearCalls();
  }

  // A registry change made by another program, once the module's callback has acted on it.
  static void changeFromOutside(const std::string& value) {
    appliance::regSet("ModemStatus", value);
    ASSERT_EQ(QvlNotifySync(), 0);
  }

  OpenWBEM::CIMInstance get() {
    return ClientTest::get(kService, OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS);
  }

  // modifyInstance of modemStatus, then waits for the callback its registry write causes.
  CimFailure setModemStatus(bool value) {
    const CimFailure failure = modify(kService, {{"modemStatus", client::flag(value)}});
    EXPECT_EQ(QvlNotifySync(), 0);
    return failure;
  }

  // Log lines ("CATEGORY|text") since the previous call.
  Lines newLog() {
    const Lines all = loggedWithCategory();
    Lines fresh(all.begin() + static_cast<long>(seen_), all.end());
    seen_ = all.size();
    return fresh;
  }

 private:
  std::size_t seen_ = 0;
};

#endif
