// What each PPP endpoint's Name selects (its files, scripts and processes), and the edits and
// restarts every concern of the endpoint shares. Calls nothing of the other endpoint files.
#include <array>

#include "Zeph_CommandRunner.h"
#include "Zeph_DialServiceSteps.h"
#include "Zeph_ImpactWarning.h"
#include "Zeph_PPPProtocolEndpointImpl.h"
#include "Zeph_PlatformAccess.h"

using namespace ras;

namespace {

const std::array<PPPLink, 2> kLinks = {{
    {kDialInEndpointName, true, false, kDialInOptions, "_dialin", kDialInScript, "mgetty_v2k",
     "DIN", kLogDialInInterface},
    {kDialOutEndpointName, false, true, kDialOutOptions, "_dialout", kDialOutScript, "ppp_add_v2k",
     "ADDO", kLogDialOutInterface},
}};
const PPPLink kUnknownLink = {"", false, false, "", "", "", "", "", ""};

}  // namespace

const PPPLink& ras::pppLinkNamed(const std::string& name) {
  for (const PPPLink& link : kLinks) {
    if (name == link.name) return link;
  }
  return kUnknownLink;
}

const std::array<PPPLink, 2>& ras::pppLinks() {
  return kLinks;
}

const PPPLink& Zeph_PPPProtocolEndpointImpl::link() const {
  std::string name;
  ras::Qualifiers unused;
  getName(name, unused);
  return pppLinkNamed(name);
}

void Zeph_PPPProtocolEndpointImpl::editOptions(const char* format) const {
  runCommand(format, {kSed, link().options});
}

void Zeph_PPPProtocolEndpointImpl::restartIfDialOut() const {
  if (link().dialOut) Restart_ppp_add_v2k();
}
