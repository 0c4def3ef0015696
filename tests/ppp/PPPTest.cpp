// The two PPP endpoints through the module's dispatcher, inside the simulated appliance: what
// a client reads after the endpoints are built on prepared files and links, what each setter
// and method runs, and the errors a client gets.
#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "ClientFixture.h"
#include "OW_CIMException.hpp"

namespace {

using client::flag;
using client::Lines;
using client::u16;
using OpenWBEM::CIMException;
using OpenWBEM::CIMValue;

const char* const kIn = "DialInEndpoint";
const char* const kOut = "DialOutEndpoint";
const char* const kSource = "../src/Zeph_PPPProtocolEndpointProvider";
const std::string kOutWarning =
    "Dial-Out Session is in Progress.Change will take effect for Next Dial-Out Session";
const std::string kInWarning =
    "Dial-In Session is in Progress.Change will take effect for Next Dial-In Session";

client::Target endpoint(const char* name) {
  return client::systemElement("Zeph_PPPProtocolEndpoint", "Name", name);
}

// Journal lines, each ended by a newline, with the appliance's directories left out:
// "sed 's/a/b/' dialin" stands for /bin/sed -i 's/a/b/' /qv/etc/ppp/options_dialin.
std::string brief(const Lines& lines) {
  std::string text;
  for (std::string line : lines) {
    for (const char* dir :
         {"/bin/sed -i", "/qv/etc/ppp/options_", "/qv/etc/ppp/", "/opt/etc/RasProviderScripts/"}) {
      for (std::size_t at; (at = line.find(dir)) != std::string::npos;)
        line.replace(at, std::strlen(dir), dir[1] == 'b' ? "sed" : "");
    }
    text += line + "\n";
  }
  return text;
}

class PPPTest : public client::ClientTest {
 protected:
  // The pristine appliance prepared by steps separated by ";", and a freshly built module:
  // "in:FROM>TO", "out:FROM>TO" and "gate:FROM>TO" replace the line FROM of the dial-in or
  // dial-out options or of the dial-out start script by TO (or drop it); "in-up", "out-up" and
  // "out-idle" (dialled on demand, not yet connected) bring a link up; "modem=S" sets
  // ModemStatus, "modem-" removes it.
  void fresh(const std::string& steps) {
    restart([&] {
      std::istringstream in(steps);
      for (std::string step; std::getline(in, step, ';');) {
        const std::size_t colon = step.find(':'), arrow = step.find('>');
        const bool out = step[0] != 'i';
        if (colon != std::string::npos) {
          const std::string file = step.substr(0, colon);
          client::replaceLine(
              file == "gate" ? "/qv/etc/ppp/ppp_add_v2k" : "/qv/etc/ppp/options_dial" + file,
              step.substr(colon + 1, arrow - colon - 1), step.substr(arrow + 1));
        } else if (step == "modem-") {
          appliance::regDelete("ModemStatus");
        } else if (step.rfind("modem=", 0) == 0) {
          appliance::regSet("ModemStatus", step.substr(6));
        } else {
          appliance::linkUp(out ? appliance::Direction::DialOut : appliance::Direction::DialIn,
                            out ? "ppp1" : "ppp0", out ? "10.0.0.1" : "192.168.200.1",
                            out ? "10.0.0.2" : "192.168.200.2", step == "out-idle");
        }
      }
    });
  }
  // The space-separated properties' values joined by "|"; "P@Q" stands for the values of
  // P's qualifiers Q, joined by "," ("none" when there is none).
  std::string shown(const char* name, const std::string& properties) {
    const OpenWBEM::CIMInstance instance = get(endpoint(name));
    std::string text, property, separator;
    for (std::istringstream in(properties); in >> property; separator = "|") {
      const std::size_t at = property.find('@');
      std::string value = client::textOf(instance.getPropertyValue(property.c_str()));
      if (at != std::string::npos) {
        const Lines q = client::qualifierValues(instance, property.substr(0, at).c_str(),
                                                property.substr(at + 1).c_str());
        value = q.empty() ? "none" : q[0];
        for (std::size_t i = 1; i < q.size(); ++i) value += "," + q[i];
      }
      text += separator + value;
    }
    return text;
  }
};

// The authentication statuses and options are read (and odd compression lines repaired) when
// the endpoints are built; the link state when they are read.
TEST_F(PPPTest, ClientsReadTheFilesAndLinksAsTheEndpointsFoundThem) {
  struct Row {
    const char* steps;
    const char* endpoint;
    const char* properties;
    std::string expected;
    const char* repairs = "";  // of the options files, while the endpoints were built
  };
  const char* const auth = "PapStatus chapStatus MschapStatus Mschapv2Status";
  const char* const link =
      "IfName ConnectionStatus MRU@ImpactWarning ConnectButton@Applicable "
      "DisconnectButton@Applicable";
  const char* const noVj =
      "sed 's/^#\\?novj/novj/' dialout\nsed '/^#\\?vj-max-slots/ c #vj-max-slots 8' dialout\n";
  const char* const bsdcomp = "sed '/^#\\?bsdcomp/ c bsdcomp 0' dialout\n";
  const Row rows[] = {
      {"", kIn, auth, "true|true|false|false"},
      {"in:#refuse-pap>refuse-pap", kIn, auth, "false|true|false|false"},
      {"in:#refuse-chap>refuse-chap", kIn, auth, "true|true|false|false"},
      {"in:#require-mschap>require-mschap;in:refuse-mschap>#refuse-mschap;"
       "in:#require-mschap-v2>require-mschap-v2;in:refuse-mschap-v2>#refuse-mschap-v2",
       kIn, auth, "true|true|true|true"},
      // The dial-out link reads require-mschap into chapStatus, over require-chap.
      {"out:#require-mschap>require-mschap", kOut, auth, "false|true|false|false"},
      {"out:#require-chap>require-chap", kOut, auth, "false|false|false|false"},
      {"out:#require-pap>require-pap;out:#require-mschap-v2>require-mschap-v2", kOut, auth,
       "true|false|false|true"},
      {"out:novj>#novj", kOut, "IPHeaderComp", "false", noVj},
      {"out:novj>#novj;out:#vj-max-slots 8>vj-max-slots 8", kOut, "IPHeaderComp", "false", noVj},
      {"out:#vj-max-slots 8>vj-max-slots 8", kOut, "IPHeaderComp", "false"},
      {"out:novj>#novj;out:#vj-max-slots 8>vj-max-slots", kOut, "IPHeaderComp", "true"},
      {"out:bsdcomp 0>bsdcomp 15,15", kOut, "SoftwareComp", "false", bsdcomp},
      {"out:bsdcomp 0>", kOut, "SoftwareComp", "false", bsdcomp},
      {"out:bsdcomp 0>bsdcomp 12", kOut, "SoftwareComp", "true"},
      {"out:mtu 1500>;out:lcp-max-failure 5>lcp-max-failure 0", kOut, "MTU maxConfigureNak", "0|0"},
      {"out:idle 300>#idle 0", kOut, "IdleTimeout IfStatus", "0|true"},
      {"out-up", kOut, link, "ppp1|0|" + kOutWarning + "|false|true"},
      {"", kOut, link, "|1|none|true|false"},
      {"in-up", kIn, link, "ppp0|0|" + kInWarning + "|none|true"},
      {"in-up;out-idle", kOut, link, "ppp1|1|none|true|false"},
      {"gate:#$IF_ENABLE_CMD>$IF_ENABLE_CMD", kOut, "IfStatus ConnectButton@Applicable",
       "false|false"},
      {"modem=Disabled", kOut, link, "|1|none|false|false"},
      {"modem-", kOut, link, "|1|none|none|none"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.steps) + ": " + row.endpoint + " " + row.properties);
    fresh(row.steps);
    EXPECT_EQ(shown(row.endpoint, row.properties), row.expected);
    EXPECT_EQ(check_key, row.endpoint);  // the endpoint whose ConnectionStatus was read last
    Lines repairs;
    for (const std::string& command : initJournal_)
      if (command.find("/options_") != std::string::npos) repairs.push_back(command);
    EXPECT_EQ(brief(repairs), row.repairs);
  }
}

// A modify (or, without a value, a method) runs exactly these commands; the value reads back.
// The dial-in link switches the refuse- line opposite the require- line and edits the
// call-back options too; only dial-out changes restart the dial-out service.
TEST_F(PPPTest, EachChangeRunsItsCommandsAndReadsBack) {
  struct Row {
    const char* steps;
    const char* endpoint;
    const char* name;
    CIMValue value;
    std::string journal;
    const char* back = nullptr;  // what the property reads afterwards, if not the value
  };
  const CIMValue method(OpenWBEM::CIMNULL);
  // The dial-out restart when no link is up: the interface looked for, chat killed, "ppp"
  // hung up.
  const std::string list = "/sbin/ifconfig | grep \"ppp\" > /tmp/ifout \n";
  const std::string restart = list + "killall -9 chat\nppp_hup_v2k ppp\n";
  const std::string peer =
      " | grep \"inet\" | grep \"P-t-P\"|cut -b35-53 | cut -f1 -d\" \" > /tmp/ip_addr\n";
  const std::string inOff =
      "sed 's/#\\?$IF_ENABLE_CMD/$IF_ENABLE_CMD/' mgetty_v2k\n"
      "sed 's/#\\?ENABLED/#DISABLED/' mgetty_v2k\n";
  const std::string hangUp = "killall -9 chat >> /tmp/chatlog\nppp_hup_v2k ";
  const Row rows[] = {
      {"", kIn, "PapStatus", flag(false),
       "sed 's/^#\\?require-pap/#require-pap/' dialin\nsed 's/^#\\?refuse-pap/refuse-pap/' "
       "dialin\n"},
      {"", kIn, "PapStatus", flag(true),
       "sed 's/^#\\?require-pap/require-pap/' dialin\nsed 's/^#\\?refuse-pap/#refuse-pap/' "
       "dialin\n"},
      {"", kOut, "PapStatus", flag(true), "sed 's/^#\\?require-pap/require-pap/' dialout\n"},
      {"", kIn, "chapStatus", flag(false),
       "sed 's/^#\\?require-chap/#require-chap/' dialin\n"
       "sed 's/^#\\?refuse-chap/refuse-chap/' dialin\n"},
      {"", kOut, "chapStatus", flag(true), "sed 's/^#\\?require-chap/require-chap/' dialout\n"},
      {"", kIn, "MschapStatus", flag(true),
       "sed 's/^#\\?require-mschap$/require-mschap/' dialin\n"
       "sed 's/^#\\?refuse-mschap$/#refuse-mschap/' dialin\n"},
      {"", kIn, "MschapStatus", flag(false),
       "sed 's/^#\\?require-mschap$/#require-mschap/' dialin\n"
       "sed 's/^#\\?refuse-mschap$/refuse-mschap/' dialin\n"},
      {"", kOut, "MschapStatus", flag(false),
       "sed 's/^#\\?require-mschap$/#require-mschap/' dialout\n"},
      {"", kIn, "Mschapv2Status", flag(true),
       "sed 's/^#\\?require-mschap-v2/require-mschap-v2/' dialin\n"
       "sed 's/^#\\?refuse-mschap-v2/#refuse-mschap-v2/' dialin\n"},
      {"", kOut, "Mschapv2Status", flag(true),
       "sed 's/^#\\?require-mschap-v2/require-mschap-v2/' dialout\n"},
      {"", kIn, "authLevel", client::u8(7), ""},
      {"", kOut, "authLevel", client::u8(7), restart},
      {"", kIn, "csAuth", flag(true), ""},
      {"", kOut, "csAuth", flag(true), restart},
      {"", kOut, "maxConfigureRequest", u16(15),
       "setLine_dialout lcp-max-configure 15\n" + restart},
      {"", kIn, "maxConfigureRequest", u16(1), "setLine_dialin lcp-max-configure 1\n"},
      {"", kIn, "maxConfigureNak", u16(10), "setLine_dialin lcp-max-failure 10\n"},
      {"", kOut, "maxTerminateReq", u16(5), "setLine_dialout lcp-max-terminate 5\n" + restart},
      {"", kIn, "IdleTimeout", u16(36000),
       "setLine_callback idle 36000\nsetLine_dialin idle 36000\n"},
      {"", kIn, "IdleTimeout", u16(0),
       "sed '/^#\\?idle/ c #idle 0' callback\nsed '/^#\\?idle/ c #idle 0' dialin\n"},
      {"", kOut, "IdleTimeout", u16(0), "sed '/^#\\?idle/ c #idle 0' dialout\n" + restart},
      {"", kIn, "MRU", u16(128), "sed '/^mru/ c mru 128' callback\nsetLine_dialin mru 128\n"},
      {"", kOut, "MTU", u16(16384), "setLine_dialout mtu 16384\n" + restart},
      {"", kOut, "IPHeaderComp", flag(true),
       "sed '/^#\\?vj-max-slots/ c vj-max-slots 8' dialout\nsed 's/^#\\?novj/#novj/' dialout\n" +
           restart},
      {"", kIn, "IPHeaderComp", flag(false),
       "sed 's/^#\\?novj/novj/' dialin\nsed '/^#\\?vj-max-slots/ c #vj-max-slots 8' dialin\n"},
      {"", kIn, "SoftwareComp", flag(true), "sed '/^#\\?bsdcomp/ c bsdcomp 12' dialin\n"},
      // Switching a service off closes its gate; a link that is up is hung up at once.
      {"", kIn, "IfStatus", flag(false), inOff},
      {"in-up", kIn, "IfStatus", flag(false), inOff + hangUp + "ppp0\nkillall -9 mgetty\n"},
      {"out-up", kOut, "IfStatus", flag(false),
       "sed 's/#\\?$IF_ENABLE_CMD/$IF_ENABLE_CMD/' ppp_add_v2k\n"
       "sed 's/#\\?ENABLED/#DISABLED/' ppp_add_v2k\n" +
           hangUp + "ppp1\n"},
      {"gate:#$IF_ENABLE_CMD>$IF_ENABLE_CMD", kOut, "IfStatus", flag(true),
       list +
           "sed 's/#\\?$IF_ENABLE_CMD/#$IF_ENABLE_CMD/' ppp_add_v2k\n"
           "sed 's/#\\?DISABLED/#ENABLED/' ppp_add_v2k\n/usr/bin/killall -s CONT ppp_add_v2k\n\n"},
      // A disabled modem (in any case) leaves the service alone.
      {"modem=disabled;in-up", kIn, "IfStatus", flag(false), "", "true"},
      {"out-up", kOut, "ConnectLink", method,
       "/sbin/ifconfig ppp1" + peer + "ping -c 2 -w 2 -I ppp1 10.0.0.2\n"},
      {"out-idle", kOut, "ConnectLink", method,
       list + "/sbin/ifconfig ppp1" + peer + "ping -c 2 -w 2 -I ppp1 10.0.0.2\n"},
      {"", kOut, "ConnectLink", method, list + "/sbin/ifconfig " + peer + "ping -c 2 -w 2 -I  \n"},
      {"out-up", kOut, "DisconnectLink", method, "ppp_hup_v2k ppp1\n"},
      {"", kOut, "DisconnectLink", method, list},
  };
  for (const Row& row : rows) {
    const std::string value = row.value ? row.value.toString().c_str() : "()";
    SCOPED_TRACE(std::string(row.steps) + ": " + row.endpoint + " " + row.name + " " + value);
    fresh(row.steps);
    if (row.value) {
      EXPECT_EQ(modify(endpoint(row.endpoint), {{row.name, row.value}}), CimFailure{});
    } else {
      EXPECT_EQ(invoke(endpoint(row.endpoint), row.name),
                std::make_pair(CIMValue(OpenWBEM::UInt32(1)), CimFailure{}));
    }
    EXPECT_EQ(brief(appliance::journal()), row.journal);
    if (row.value) {
      EXPECT_EQ(valueOf(endpoint(row.endpoint), row.name), row.back ? row.back : value);
    }
  }
}

// Out-of-range values are refused with the setter's status and change nothing; a start script
// without its gate line and an unknown method are the client's errors too.
TEST_F(PPPTest, RefusalsCarryTheirCodesAndChangeNothing) {
  const std::pair<const char*, std::vector<unsigned short>> ranges[] = {
      {"maxConfigureRequest", {0, 16}}, {"maxConfigureNak", {0, 11}}, {"maxTerminateReq", {0, 6}},
      {"IdleTimeout", {36001}},         {"MRU", {127, 16385}},        {"MTU", {127, 16385}}};
  for (const char* name : {kIn, kOut}) {
    for (int status = 6; status < 12; ++status) {
      const auto& [property, values] = ranges[status - 6];
      const std::string old = valueOf(endpoint(name), property);
      for (unsigned short value : values) {
        SCOPED_TRACE(std::string(name) + " " + property + "=" + std::to_string(value));
        const std::string id = "#RAS_MODEM_" + std::to_string(status) + "#";
        appliance::clearJournal();
        EXPECT_EQ(modify(endpoint(name), {{property, u16(value)}}),
                  (CimFailure{CIMException::FAILED, kSource, 388, id}));
        EXPECT_EQ(appliance::journal(), Lines{});
        EXPECT_EQ(valueOf(endpoint(name), property), old);
      }
    }
  }
  EXPECT_EQ(invoke(endpoint(kOut), "Reconnect").second,
            (CimFailure{CIMException::METHOD_NOT_FOUND, kSource, 432, std::nullopt}));
  client::replaceLine("/qv/etc/ppp/mgetty_v2k", "#$IF_ENABLE_CMD", "");
  EXPECT_EQ(getFailure(endpoint(kIn)),
            (CimFailure{CIMException::INVALID_PARAMETER, "../src/Zeph_PPPProtocolEndpointImpl", 0,
                        "Invalid configuration in the config File"}));
}

}  // namespace
