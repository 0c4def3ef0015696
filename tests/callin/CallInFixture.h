// A CIMOM's view of the call-in settings inside a fresh appliance: the module's dispatcher,
// initialised with a recording environment, and the requests a client sends to it.
#ifndef CALLIN_CALLINFIXTURE_H
#define CALLIN_CALLINFIXTURE_H

#include <string>
#include <utility>
#include <vector>

#include "ClientFixture.h"

namespace callin {

inline constexpr char kClass[] = "Zeph_CallInSettingData";
inline constexpr char kInstanceID[] = "Velmar:Zeph_CallInSettingData";
inline constexpr char kMgettyScript[] = "/qv/etc/ppp/mgetty_v2k";
inline const client::Target kCallIn = client::settingData(kClass, kInstanceID);

using client::flag;
using client::RowName;
using client::u16;
using Properties = std::vector<std::pair<const char*, OpenWBEM::CIMValue>>;

class CallInTest : public client::ClientTest {
 protected:
  // What the module logged, as "CATEGORY|text".
  std::vector<std::string> logged() const { return loggedWithCategory(); }

  OpenWBEM::CIMInstance get() {
    return ClientTest::get(kCallIn, OpenWBEM::WBEMFlags::E_EXCLUDE_QUALIFIERS);
  }

  // Every property of a get in MOF form (qualifiers, type, name, value), in instance order.
  // Built from the parts: the layout of CIMProperty::toMOF() differs between OpenWBEM builds.
  std::vector<std::string> getAsMof() {
    std::vector<std::string> mof;
    for (const OpenWBEM::CIMProperty& property : get().getProperties()) {
      std::string line;
      for (const OpenWBEM::CIMQualifier& q : property.getQualifiers())
        line +=
            "[" + std::string(q.getName().c_str()) + "(" + q.getValue().toMOF().c_str() + ")]\n";
      line += std::string(property.getDataType().toString().c_str()) + " " +
              property.getName().c_str() + " = " + property.getValue().toMOF().c_str() + ";\n";
      mof.push_back(line);
    }
    return mof;
  }

  std::string value(const char* property) { return valueOf(kCallIn, property); }

  CimFailure modify(const Properties& properties) {
    std::vector<client::Change> changes;
    for (const auto& [name, value] : properties) changes.emplace_back(name, value);
    return ClientTest::modify(kCallIn, changes);
  }
};

template <class Row>
using CallInRowTest = client::RowTest<CallInTest, Row>;

}  // namespace callin

#endif
