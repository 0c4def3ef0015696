// The two PPP endpoints as a client sees them: the module's dispatcher initialised inside a
// fresh appliance (prepared first by the test, since the endpoints read their options when
// they are built), and the get, modify and method calls, each with its own environment.
#ifndef PPP_PPPFIXTURE_H
#define PPP_PPPFIXTURE_H

#include <string>
#include <utility>
#include <vector>

#include "ClientFixture.h"

namespace ppp {

inline constexpr char kClass[] = "Zeph_PPPProtocolEndpoint";
inline constexpr char kSource[] = "../src/Zeph_PPPProtocolEndpointProvider";
inline constexpr char kDialIn[] = "DialInEndpoint";
inline constexpr char kDialOut[] = "DialOutEndpoint";

inline constexpr char kDialInOptions[] = "/qv/etc/ppp/options_dialin";
inline constexpr char kDialOutOptions[] = "/qv/etc/ppp/options_dialout";
inline constexpr char kCallbackOptions[] = "/qv/etc/ppp/options_callback";
inline constexpr char kMgettyScript[] = "/qv/etc/ppp/mgetty_v2k";
inline constexpr char kDialOutScript[] = "/qv/etc/ppp/ppp_add_v2k";

using Lines = std::vector<std::string>;
using client::Change;

// The dial-out restart when no link is up: the interface is looked for, chat killed and the
// bare name hung up.
inline const Lines kRestartWithoutLink = {"/sbin/ifconfig | grep \"ppp\" > /tmp/ifout ",
                                          "killall -9 chat", "/qv/etc/ppp/ppp_hup_v2k ppp"};

using client::flag;
using client::hasLine;
using client::qualifierValues;
using client::replaceLine;
using client::RowName;
using client::u16;
using client::u8;

inline client::Target endpoint(const char* name) {
  return client::systemElement(kClass, "Name", name);
}

class PPPTest : public client::ClientTest {
 protected:
  OpenWBEM::CIMInstance get(const char* name) { return ClientTest::get(endpoint(name)); }
  std::string value(const char* name, const char* property) {
    return valueOf(endpoint(name), property);
  }
  CimFailure getFailure(const char* name) { return ClientTest::getFailure(endpoint(name)); }
  CimFailure modify(const char* name, const std::vector<Change>& changes) {
    return ClientTest::modify(endpoint(name), changes);
  }
  std::pair<OpenWBEM::CIMValue, CimFailure> invoke(const char* name, const char* method) {
    return ClientTest::invoke(endpoint(name), method);
  }
  static OpenWBEM::CIMObjectPath pathOf(const char* name) { return endpoint(name).path(); }
};

template <class Row>
using PPPRowTest = client::RowTest<PPPTest, Row>;

}  // namespace ppp

#endif
