// Dial-out settings: the number in the dial-out connect script, the call-back retries and
// interval in the call-back script, the dial-out account in the dial-out options and its
// secret in the PAP and CHAP secrets files; the accounts offered are the CIMOM's Zeph_Account
// instances whose users may dial out.
#include "Zeph_DialOutSettingDataImpl.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>

#include "OW_CIMInstance.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "QvlShared.h"
#include "Zeph_CommandRunner.h"
#include "Zeph_ImpactWarning.h"
#include "Zeph_PlatformAccess.h"
#include "Zeph_PlatformLog.h"
#include "Zeph_RestingPlace.h"
#include "Zeph_ShellVariable.h"
#include "Zeph_TextFormat.h"

using namespace ras;

OpenWBEM::StringArray vUserName;
OpenWBEM::StringArray UserValueMap;
std::vector<std::string> UserNames;

namespace {

const char* const kInstanceID = Zeph_DialOutSettingDataInstanceID;
const char* const kElementName = "Dial-Out Settings";

const char* const kCallbackScript = "/qv/etc/ppp/callback_v2k";
const char* const kPapSecrets = "/etc/ppp/pap-secrets";
const char* const kChapSecrets = "/etc/ppp/chap-secrets";
const char* const kPasswordFile = "/tmp/passwd";
const char* const kDialOutSuffix = "_dialout";
constexpr auto kAddPasswordScript = helperScript("addPassword");

const ShellVariable kNumber{kCallScript, "declare TELEPHONE_NUMBER", ShellVariable::Kind::Text};
const ShellVariable kDelay{kCallbackScript, "declare CALLBACK_DELAY", ShellVariable::Kind::Number};
const ShellVariable kRetry{kCallbackScript, "declare CALLBACK_RETRY", ShellVariable::Kind::Number};
const char* const kUserFormat = "name %s";
const char* const kQuotedFormat = "\"%s";

const char* const kCmdReadPassword = "grep \"\\\"\\<%s\\>\" %s | cut -f3 > /tmp/passwd";
const char* const kCmdSetUser = "%s name %s";
const char* const kCmdAddPassword = "%s %s %s %s %s";

const char* const kAccountNamespace = "root/cimv2";
const char* const kAccountClass = "Zeph_Account";
const char* const kAccountName = "Name";
const char* const kAccountUserId = "TextualUserID";
const char* const kValueMap = "ValueMap";
const char* const kValues = "Values";
constexpr int kPrivilegeKind = 1;
constexpr int kDialOutPrivilege = 11;

const char* const kLogNumber = "DialOutNumber =%s\n";
const char* const kLogInterval = "Config DialInterval =%d\n";
const char* const kLogRetries = "Dial iRetries =%d\n";
const char* const kLogReadingAccounts = "Reading Zeph_Account";
const char* const kTraceGetUser = "Zeph_DialOutAccountImpl::getDialOutUserName\n";
const char* const kLogUserCount = "Out Value in get Number of Users is %d";
const char* const kLogSelected = "The Selected Value is %s";

// Statuses of the setters, reported to the client as RAS_MODEM_<status>.
constexpr int kStatusRetriesOutOfRange = 2;
constexpr int kStatusIntervalOutOfRange = 3;
constexpr int kStatusNumberTooLong = 15;
constexpr int kStatusNumberNotDigits = 16;

constexpr std::size_t kMaxNumberDigits = 25;
constexpr unsigned short kMinRetries = 1;
constexpr unsigned short kMaxRetries = 10;
constexpr unsigned short kMinInterval = 1;
constexpr unsigned short kMaxInterval = 299;

// A value scanned with a format ending in "%s" keeps its closing quote; this removes it.
void cutClosingQuote(std::string& value) {
  if (!value.empty()) value.pop_back();
}

// The number's check: digits only, at most 25 of them.
int checkNumber(const std::string& number) {
  for (std::size_t i = 0;; ++i) {
    if (i == number.size()) return ras::kStatusOk;
    if (i == kMaxNumberDigits) return kStatusNumberTooLong;
    if (!std::isdigit(static_cast<unsigned char>(number[i]))) return kStatusNumberNotDigits;
  }
}

std::string textOf(const OpenWBEM::CIMValue& value) {
  return value ? std::string(value.toString().c_str()) : std::string();
}

// Adds the account to the list when its user holds the dial-out privilege.
void admitAccount(const OpenWBEM::CIMInstance& account, int& count) {
  if (!account.getProperty(kAccountName)) return;
  const int userId = std::atoi(textOf(account.getPropertyValue(kAccountName)).c_str());
  if (QvlAuthCheckPriv(kPrivilegeKind, userId, kDialOutPrivilege) != 0) return;
  vUserName.push_back(textOf(account.getPropertyValue(kAccountUserId)).c_str());
  char index[16] = {};
  itoa(count, index);
  UserValueMap.push_back(index);
  ++count;
}

// Fills vUserName and UserValueMap from the CIMOM's accounts; the number admitted.
int readAccounts() {
  int count = 0;
  platformLogDebug(kLogReadingAccounts);
  if (!hdl) return count;
  const OpenWBEM::CIMInstanceArray accounts =
      hdl->enumInstancesA(kAccountNamespace, kAccountClass, OpenWBEM::WBEMFlags::E_DEEP,
                          OpenWBEM::WBEMFlags::E_NOT_LOCAL_ONLY);
  for (const OpenWBEM::CIMInstance& account : accounts) admitAccount(account, count);
  return count;
}

void appendQualifier(ras::Qualifiers& qualifiers, const char* name,
                     const OpenWBEM::StringArray& values) {
  OpenWBEM::CIMQualifier qualifier(name);
  qualifier.setValue(OpenWBEM::CIMValue(values));
  qualifiers.push_back(qualifier);
}

// The user-name setter's index as atoi reads it, or -1 when it names no entry of the list.
// The index is kept and later handed to addPassword, the account name lands in the pppd
// options: both must be plain words, or a client could smuggle text into those files.
long userIndex(const std::string& text) {
  if (!ras::isPlainShellValue(text)) return -1;
  const long index = std::strtol(text.c_str(), nullptr, 10);
  if (index < 0 || index >= static_cast<long>(UserNames.size())) return -1;
  if (!ras::isPlainShellValue(UserNames[index])) return -1;
  return index;
}

}  // namespace

Zeph_DialOutSettingDataImpl::Zeph_DialOutSettingDataImpl(const std::string& instanceID)
    : Zeph_DialOutSettingData(instanceID) {
  Initialize_Parameters();
}

void Zeph_DialOutSettingDataImpl::Initialize_Parameters() {
  kNumber.read(dialOutNumber_);
  cutClosingQuote(dialOutNumber_);
  platformLogDebug(formatText(kLogNumber, dialOutNumber_.c_str()));
  int interval = 0;
  kDelay.read(interval);
  dialInterval_ = static_cast<unsigned short>(interval);
  platformLogDebug(formatText(kLogInterval, interval));
  int retries = 0;
  kRetry.read(retries);
  dialRetries_ = static_cast<unsigned short>(retries);
  platformLogDebug(formatText(kLogRetries, retries));
  initializePassword();
}

// The password is the third field of the user's line in the PAP secrets, in double quotes.
void Zeph_DialOutSettingDataImpl::initializePassword() {
  runCommand(kCmdReadPassword, {userName_, kPapSecrets});
  std::string password;
  getConfigParameter(kPasswordFile, kQuotedFormat, &password);
  cutClosingQuote(password);
  password_ = password;
}

int Zeph_DialOutSettingDataImpl::getElementName(std::string& value, ras::Qualifiers&) const {
  value = kElementName;
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::getDialOutNumber(std::string& value,
                                                  ras::Qualifiers& qualifiers) const {
  value = dialOutNumber_;
  ShowWarningMessage(qualifiers);
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::setDialOutNumber(std::string value) {
  const int status = checkNumber(value);
  if (status != ras::kStatusOk) return status;
  const ShellCommand edit = kNumber.edit(value);
  if (!edit.valid()) return ras::kStatusInvalidValue;
  edit.run();
  dialOutNumber_ = value;
  Restart_ppp_add_v2k();
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::getDialRetries(unsigned short& value, ras::Qualifiers&) const {
  value = dialRetries_;
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::setDialRetries(unsigned short value) {
  if (value < kMinRetries || value > kMaxRetries) return kStatusRetriesOutOfRange;
  kRetry.edit(static_cast<int>(value)).run();
  dialRetries_ = value;
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::getDialInterval(unsigned short& value, ras::Qualifiers&) const {
  value = dialInterval_;
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::setDialInterval(unsigned short value) {
  unsigned short current = 0;
  ras::Qualifiers unused;
  getDialInterval(current, unused);
  if (value < kMinInterval || value > kMaxInterval) return kStatusIntervalOutOfRange;
  kDelay.edit(static_cast<int>(value)).run();
  dialInterval_ = value;
  return ras::kStatusOk;
}

// The index of the dial-out options' "name" user in the list of accounts that may dial out;
// the qualifiers carry the list ("ValueMap": the indices, "Values": the user names).
int Zeph_DialOutSettingDataImpl::getDialOutUserName(std::string& value,
                                                    ras::Qualifiers& qualifiers) const {
  const int count = readAccounts();
  appendQualifier(qualifiers, kValueMap, UserValueMap);
  appendQualifier(qualifiers, kValues, vUserName);
  std::string current;
  getConfigParameter(kDialOutOptions, kUserFormat, &current);
  value = "0";
  UserNames.clear();
  for (int i = 0; i < count; ++i) {
    UserNames.emplace_back(vUserName[i].c_str());
    if (UserNames.back() == current) value = std::to_string(i);
  }
  vUserName.clear();
  UserValueMap.clear();
  platformLogDebug(kTraceGetUser);
  platformLogDebug(formatText(kLogUserCount, count));
  return ras::kStatusOk;
}

// Selects the user by its index in the list of the last get; an index outside that list
// names no account and is refused.
int Zeph_DialOutSettingDataImpl::setDialOutUserName(std::string value) {
  const long index = userIndex(value);
  if (index < 0) return ras::kStatusInvalidValue;
  const std::string script = std::string(kSetLineScript) + kDialOutSuffix;
  const ShellCommand select(kCmdSetUser, {script, UserNames[index]});
  if (!select.valid()) return ras::kStatusInvalidValue;
  select.run();
  platformLogDebug(formatText(kLogSelected, value.c_str()));
  userName_ = value;
  Restart_ppp_add_v2k();
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::getDialOutPassword(std::string& value, ras::Qualifiers&) const {
  value = password_;
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImpl::setDialOutPassword(std::string value) {
  // The secret is stored between double quotes of a tab-separated secrets line.
  if (!ras::staysData(value, ras::RestingPlace::SecretColumn)) return ras::kStatusInvalidValue;
  ras::CommandSequence store;
  for (const char* secrets : {kPapSecrets, kChapSecrets}) {
    store.add(kCmdAddPassword, {kAddPasswordScript, userName_, password_, value, secrets});
  }
  if (!store.run()) return ras::kStatusInvalidValue;
  password_ = value;
  return ras::kStatusOk;
}

int Zeph_DialOutSettingDataImplInstanceManager::init() {
  new Zeph_DialOutSettingDataImpl(kInstanceID);
  return ras::kStatusOk;
}
