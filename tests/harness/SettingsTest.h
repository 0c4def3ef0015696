// What the settings classes' tests share: instances shown as a client sees them, and tables of
// sets run in order on one appliance, each row with the commands it runs and the lines it
// leaves, or with the error of a refused value, which runs and changes nothing.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>

#include "ClientFixture.h"

namespace settings {

using client::Lines;
using client::Target;
using OpenWBEM::CIMException;
using OpenWBEM::CIMValue;

inline const Lines kMgettyRestart = {"killall -9 mgetty", "init q"};
inline const Lines kDialOutRestart = {"/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ",
                                      "killall -9 chat", "/qv/etc/ppp/ppp_hup_v2k ppp"};

inline Lines joined(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}
inline long count(const Lines& lines, const std::string& line) {
  return std::count(lines.begin(), lines.end(), line);
}

// The errors of a refused value, as the class's provider reports them.
inline CimFailure status(const std::string& cls, int n) {
  return {CIMException::FAILED, "../src/" + cls + "Provider", 388,
          "#RAS_MODEM_" + std::to_string(n) + "#"};
}
inline CimFailure tooLong(const std::string& cls, const std::string& property) {
  return {CIMException::INVALID_PARAMETER, "../src/" + cls + "Provider", 334,
          "The length of " + property + " must be <= 32\n#CFG_000_0004,MOF_Props_" + cls + "_" +
              property + ",32#"};
}
inline CimFailure notValid(const std::string& cls) {
  return {CIMException::INVALID_PARAMETER, "../src/" + cls + "Provider", 382,
          "The value of $prop.getName() is invalid.\n#CFG_000_0000,MOF_Props_" + cls +
              "_$prop.getName()#"};
}

struct Set {
  Target target;
  const char* property;
  CIMValue value;  // read back after a valid set
  Lines journal;
  Lines lines;  // that state() holds after a valid set, as often as listed
  CimFailure failure;
};
inline Set valid(Target t, const char* property, CIMValue v, Lines journal, Lines lines = {}) {
  return {t, property, v, journal, lines, {}};
}
inline Set refused(Target t, const char* property, CIMValue v, CimFailure failure) {
  return {t, property, v, {}, {}, failure};
}

class SettingsTest : public client::ClientTest {
 protected:
  // The lines of what the class's sets change: files, registry, modem codes.
  virtual Lines state() { return {}; }

  // The property's value, with its qualifiers as " [name=value]".
  static std::string shown(const OpenWBEM::CIMProperty& p) {
    std::string out = client::textOf(p.getValue());
    for (const OpenWBEM::CIMQualifier& q : p.getQualifiers())
      out += " [" + std::string(q.getName().c_str()) + "=" + client::textOf(q.getValue()) + "]";
    return out;
  }
  // Every property as "name=value [qualifier=value]...", in instance order.
  Lines shown(const Target& target) {
    Lines out;
    for (const OpenWBEM::CIMProperty& p : get(target).getProperties())
      out.push_back(std::string(p.getName().c_str()) + "=" + shown(p));
    return out;
  }
  // The values of the properties, each followed by a space.
  std::string values(const Target& target, std::initializer_list<const char*> properties) {
    std::string out;
    for (const char* property : properties) out += valueOf(target, property) + " ";
    return out;
  }

  void runSets(const std::vector<Set>& rows) {
    for (const Set& row : rows) {
      SCOPED_TRACE(std::string(row.property) + "=" + client::textOf(row.value));
      const Lines before = state();
      appliance::clearJournal();
      EXPECT_EQ(modify(row.target, {{row.property, row.value}}), row.failure);
      EXPECT_EQ(appliance::journal(), row.journal);
      const Lines after = state();
      for (const std::string& line : row.lines)
        EXPECT_EQ(count(after, line), count(row.lines, line)) << line;
      if (row.failure == CimFailure{}) {
        EXPECT_EQ(valueOf(row.target, row.property), client::textOf(row.value));
      } else {
        EXPECT_EQ(after, before);
      }
    }
  }
};

}  // namespace settings
