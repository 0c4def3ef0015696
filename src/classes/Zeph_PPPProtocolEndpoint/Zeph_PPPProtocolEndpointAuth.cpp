// Authentication of a PPP endpoint: which of PAP, CHAP, MS-CHAP and MS-CHAPv2 the link
// demands (require- lines) or refuses (refuse- lines), read once at construction and switched
// by sed edits of the options file; the level and clean-up edits kept beside them.
#include "Zeph_CommandRunner.h"
#include "Zeph_PPPProtocolEndpointImpl.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_TextFormat.h"

using namespace ras;

namespace {

// The four edits of one protocol's lines in an options file.
struct AuthLines {
  const char* requireOn;
  const char* requireOff;
  const char* refuseOn;
  const char* refuseOff;
};

const AuthLines kPap = {
    "%s -i 's/^#\\?require-pap/require-pap/' %s", "%s -i 's/^#\\?require-pap/#require-pap/' %s",
    "%s -i 's/^#\\?refuse-pap/refuse-pap/' %s", "%s -i 's/^#\\?refuse-pap/#refuse-pap/' %s"};
const AuthLines kChap = {
    "%s -i 's/^#\\?require-chap/require-chap/' %s", "%s -i 's/^#\\?require-chap/#require-chap/' %s",
    "%s -i 's/^#\\?refuse-chap/refuse-chap/' %s", "%s -i 's/^#\\?refuse-chap/#refuse-chap/' %s"};
// Unanchored: these also match the "-v2" lines, which the level edits rely on.
const AuthLines kMschap = {"%s -i 's/^#\\?require-mschap/require-mschap/' %s",
                           "%s -i 's/^#\\?require-mschap/#require-mschap/' %s",
                           "%s -i 's/^#\\?refuse-mschap/refuse-mschap/' %s",
                           "%s -i 's/^#\\?refuse-mschap/#refuse-mschap/' %s"};
// Anchored at the line end, so that the status setter leaves the "-v2" lines alone.
const AuthLines kMschapOnly = {"%s -i 's/^#\\?require-mschap$/require-mschap/' %s",
                               "%s -i 's/^#\\?require-mschap$/#require-mschap/' %s",
                               "%s -i 's/^#\\?refuse-mschap$/refuse-mschap/' %s",
                               "%s -i 's/^#\\?refuse-mschap$/#refuse-mschap/' %s"};
const AuthLines kMschapv2 = {"%s -i 's/^#\\?require-mschap-v2/require-mschap-v2/' %s",
                             "%s -i 's/^#\\?require-mschap-v2/#require-mschap-v2/' %s",
                             "%s -i 's/^#\\?refuse-mschap-v2/refuse-mschap-v2/' %s",
                             "%s -i 's/^#\\?refuse-mschap-v2/#refuse-mschap-v2/' %s"};
// The level edits' order: mschap before mschap-v2, so that the "-v2" edit wins.
const AuthLines* const kLevelOrder[] = {&kPap, &kChap, &kMschap, &kMschapv2};
constexpr unsigned char kMaxLevel = 3;
constexpr int kStatusUnknownLevel = 100;

const char* const kRequirePap = "require-pap";
const char* const kRequireChap = "require-chap";
const char* const kRequireMschap = "require-mschap";
const char* const kRequireMschapv2 = "require-mschap-v2";
const char* const kRefusePapOff = "#refuse-pap";
const char* const kRefuseMschapOff = "#refuse-mschap";
const char* const kRefuseMschapv2Off = "#refuse-mschap-v2";
const char* const kFirstWord = "%s";

const char* const kLogReadDialIn = "In ReadNewAuthenticationDialIn";
const char* const kLogReadDialOut = "In ReadNewAuthenticationDialOut";
const char* const kLogPapTrue = "Setting to True";
const char* const kLogPapFalse = "Setting to False";
const char* const kLogChapTrue = "Setting MSchap to True";
const char* const kLogChapFalse = "Setting MSchap to False";
const char* const kLogMschapTrue = "Setting MSCHAP  to True";
const char* const kLogMschapFalse = "Setting MSCHAP  to false";
const char* const kTraceSetPap = "Zeph_PPPProtocolEndpointImpl::setPapStatus";
const char* const kLogPapDialIn = "Setting value true to chap";
const char* const kLogPapOffDialIn = "Setting value false to Pap";
const char* const kTraceSetMschap = "Zeph_PPPProtocolEndPointImpl::setMschapStatus";
const char* const kLogMschapDialIn = "In Mschap Status";
const char* const kLogMschapOnDialIn = "Setting MSCHAP Status";
const char* const kLogMschapDialOutOn =
    "Zeph_PPPProtocolEndPointImpl::setMschapStatus::Dialout::Enabled";
const char* const kLogMschapDialOutOff =
    "Zeph_PPPProtocolEndPointImpl::setMschapStatus::Dialout::Disabled";
const char* const kTraceSetMschapv2 = "Zeph_PPPProtocolEndpoint::setMschapv2Status";
const char* const kLogMschapv2DialIn = "Setting MSCHAPV2";
const char* const kLogMschapv2DialOutOn =
    "Zeph_PPPProtocolEndPointImpl::setMschapv2Status::Dialout::Enabled";
const char* const kLogMschapv2DialOutOff =
    "Zeph_PPPProtocolEndPointImpl::setMschapv2Status::Dialout::Disabled";
const char* const kTraceGetPap = "Zeph_PPPProtocolEndpointImpl::getPapStatus";
const char* const kTraceGetChap = "Zeph_PPPProtocolEndpointImpl::getchapStatus";
const char* const kTraceGetMschap = "Zeph_PPPProtocolEndpointImpl::getMschapStatus";
const char* const kTraceGetMschapv2 = "Zeph_PPPProtocolEndpointImpl::getMschapv2Status";
const char* const kLogGetPap = "PapStatus=%d";
const char* const kLogGetChap = "ChapStatus=%d";
const char* const kLogGetMschap = "theMschapStatus=%d";
const char* const kLogGetMschapv2 = "theMschapv2=%d";
const char* const kLogSetAuthLevel = "setauthLevel\n";
const char* const kLogSetCsAuth = "setcsAuth\n";
const char* const kLogNumberLine = "%d\n";
const char* const kLogLevelDialIn = "setAuthenticationnToFile_DialIn %c\n";
const char* const kLogUnknownLevel = "Unknown authentication level value : %d\n";
const char* const kLogUnsetDialIn = "unsetAuthenticationFromFile_dialIn\n";
const char* const kLogSetEarlier[] = {"PAP is set Earlier", "CHAP is set Earlier",
                                      "MSCHAP is set Earlier", "MSCHAPV2is set Earlier"};

void edit(const PPPLink& link, const char* format) {
  runCommand(format, {kSed, link.options});
}

// A status change: the require- line, and for the dial-in link the refuse- line opposite.
void editStatus(const PPPLink& link, const AuthLines& lines, bool value) {
  edit(link, value ? lines.requireOn : lines.requireOff);
  if (link.dialIn) edit(link, value ? lines.refuseOff : lines.refuseOn);
}

// Protocol `index` (PAP, CHAP, MS-CHAP, MS-CHAPv2) is the one a level admits: PAP and CHAP
// at level 0, else the level's own protocol.
bool admitted(unsigned char level, std::size_t index) {
  return level == 0 ? index < 2 : index == level;
}

bool found(const char* options, const char* line) {
  return getConfigParameter(options, line) == 1;
}

// The first word of the last line that begins with `prefix` equals `line`.
bool firstWordIs(const char* options, const char* line) {
  std::string word;
  getParameterFromFile(options, kFirstWord, line, word);
  return word == line;
}

int report(const char* trace, const char* format, bool field, bool& value) {
  platformLogDebug(trace);
  platformLogDebug(formatText(format, field ? 1 : 0));
  value = field;
  return kStatusOk;
}

}  // namespace

// A status is on when its require- line is active and its refuse- line commented out;
// CHAP looks at the require- line alone.
void Zeph_PPPProtocolEndpointImpl::ReadNewAuthenticationDialIn() {
  platformLogDebug(kLogReadDialIn);
  const char* options = link().options;
  const bool pap = found(options, kRequirePap);
  const bool chap = found(options, kRequireChap);
  const bool mschap = found(options, kRequireMschap);
  const bool mschapv2 = found(options, kRequireMschapv2);
  papStatus_ = pap && found(options, kRefusePapOff);
  platformLogDebug(papStatus_ ? kLogPapTrue : kLogPapFalse);
  chapStatus_ = chap;
  platformLogDebug(chapStatus_ ? kLogChapTrue : kLogChapFalse);
  mschapv2Status_ = mschapv2 && found(options, kRefuseMschapv2Off);
  mschapStatus_ = mschap && found(options, kRefuseMschapOff);
  platformLogDebug(mschapStatus_ ? kLogMschapTrue : kLogMschapFalse);
}

// The dial-out link reads its require- lines only. The require-mschap line lands in
// chapStatus, replacing the require-chap reading; MschapStatus is not read from the file.
void Zeph_PPPProtocolEndpointImpl::ReadNewAuthenticationDialOut() {
  platformLogDebug(kLogReadDialOut);
  const char* options = link().options;
  const bool pap = found(options, kRequirePap);
  chapStatus_ = firstWordIs(options, kRequireChap);
  papStatus_ = pap;
  mschapv2Status_ = firstWordIs(options, kRequireMschapv2);
  chapStatus_ = firstWordIs(options, kRequireMschap);
}

int Zeph_PPPProtocolEndpointImpl::getPapStatus(bool& value, ras::Qualifiers&) const {
  return report(kTraceGetPap, kLogGetPap, papStatus_, value);
}

int Zeph_PPPProtocolEndpointImpl::setPapStatus(bool value) {
  platformLogDebug(kTraceSetPap);
  const PPPLink& options = link();
  if (options.dialIn) platformLogDebug(kLogPapDialIn);
  if (options.dialIn && !value) platformLogDebug(kLogPapOffDialIn);
  editStatus(options, kPap, value);
  papStatus_ = value;
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getchapStatus(bool& value, ras::Qualifiers&) const {
  return report(kTraceGetChap, kLogGetChap, chapStatus_, value);
}

int Zeph_PPPProtocolEndpointImpl::setchapStatus(bool value) {
  editStatus(link(), kChap, value);
  chapStatus_ = value;
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getMschapStatus(bool& value, ras::Qualifiers&) const {
  return report(kTraceGetMschap, kLogGetMschap, mschapStatus_, value);
}

int Zeph_PPPProtocolEndpointImpl::setMschapStatus(bool value) {
  platformLogDebug(kTraceSetMschap);
  const PPPLink& options = link();
  if (options.dialIn) platformLogDebug(kLogMschapDialIn);
  if (options.dialIn && value) platformLogDebug(kLogMschapOnDialIn);
  editStatus(options, kMschapOnly, value);
  if (options.dialOut) platformLogDebug(value ? kLogMschapDialOutOn : kLogMschapDialOutOff);
  mschapStatus_ = value;
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getMschapv2Status(bool& value, ras::Qualifiers&) const {
  return report(kTraceGetMschapv2, kLogGetMschapv2, mschapv2Status_, value);
}

int Zeph_PPPProtocolEndpointImpl::setMschapv2Status(bool value) {
  platformLogDebug(kTraceSetMschapv2);
  const PPPLink& options = link();
  if (options.dialIn) platformLogDebug(kLogMschapv2DialIn);
  editStatus(options, kMschapv2, value);
  if (options.dialOut) platformLogDebug(value ? kLogMschapv2DialOutOn : kLogMschapv2DialOutOff);
  mschapv2Status_ = value;
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getauthLevel(unsigned char& value, ras::Qualifiers&) const {
  value = authLevel_;
  return kStatusOk;
}

// Held for the manager; no file carries it.
int Zeph_PPPProtocolEndpointImpl::setauthLevel(unsigned char value) {
  platformLogDebug(kLogSetAuthLevel);
  authLevel_ = value;
  restartIfDialOut();
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::getcsAuth(bool& value, ras::Qualifiers&) const {
  value = csAuth_;
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::setcsAuth(bool value) {
  platformLogDebug(kLogSetCsAuth);
  platformLogDebug(formatText(kLogNumberLine, value ? 1 : 0));
  csAuth_ = value;
  restartIfDialOut();
  return kStatusOk;
}

// The dial-in link demands exactly the level's protocols.
int Zeph_PPPProtocolEndpointImpl::setAuthenticationToFile_DialIn(unsigned char level) {
  platformLogDebug(formatText(kLogLevelDialIn, level));
  if (level > kMaxLevel) {
    platformLogDebug(formatText(kLogUnknownLevel, level));
    return kStatusUnknownLevel;
  }
  for (std::size_t i = 0; i < std::size(kLevelOrder); ++i) {
    edit(link(), admitted(level, i) ? kLevelOrder[i]->requireOn : kLevelOrder[i]->requireOff);
  }
  authLevel_ = level;
  return kStatusOk;
}

// The dial-out link refuses every protocol but the level's.
int Zeph_PPPProtocolEndpointImpl::setAuthenticationToFile_DialOut(unsigned char level) {
  if (level > kMaxLevel) {
    platformLogDebug(formatText(kLogUnknownLevel, level));
    return kStatusUnknownLevel;
  }
  for (std::size_t i = 0; i < std::size(kLevelOrder); ++i) {
    edit(link(), admitted(level, i) ? kLevelOrder[i]->refuseOff : kLevelOrder[i]->refuseOn);
  }
  authLevel_ = level;
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::unsetAuthenticationFromFile_dialIn(unsigned char) {
  platformLogDebug(kLogUnsetDialIn);
  for (const AuthLines* lines : kLevelOrder) runCommand(lines->requireOff, {kSed, kDialInOptions});
  return kStatusOk;
}

int Zeph_PPPProtocolEndpointImpl::unsetAuthenticationFromFile_dialOut(unsigned char) {
  for (const AuthLines* lines : kLevelOrder) runCommand(lines->refuseOff, {kSed, kDialOutOptions});
  return kStatusOk;
}

void Zeph_PPPProtocolEndpointImpl::CheckSingleSelection(bool* flags) {
  int (Zeph_PPPProtocolEndpointImpl::*const setters[])(bool) = {
      &Zeph_PPPProtocolEndpointImpl::setPapStatus, &Zeph_PPPProtocolEndpointImpl::setchapStatus,
      &Zeph_PPPProtocolEndpointImpl::setMschapStatus,
      &Zeph_PPPProtocolEndpointImpl::setMschapv2Status};
  for (std::size_t i = 0; i < std::size(setters); ++i) {
    if (!flags[i]) continue;
    platformLogDebug(kLogSetEarlier[i]);
    (this->*setters[i])(false);
  }
  for (std::size_t i = 0; i < std::size(setters); ++i) flags[i] = true;
}
