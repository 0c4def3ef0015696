// Builds the client-visible provider messages with their identifier blocks and throws them.
#include "Zeph_ProviderErrors.h"

#include <initializer_list>

namespace ras {
namespace {

constexpr char kBlockMark[] = "#";
constexpr char kParamMark[] = ",";
constexpr char kStatusIdPrefix[] = "RAS_MODEM_";
constexpr char kDisplayKeyPrefix[] = "MOF_Props_";

constexpr char kIdInvalidValue[] = "CFG_000_0000";
constexpr char kIdChangeFailed[] = "CFG_000_0001";
constexpr char kIdBelowMinimum[] = "CFG_000_0002";
constexpr char kIdAboveMaximum[] = "CFG_000_0003";
constexpr char kIdTooLong[] = "CFG_000_0004";
constexpr char kIdCannotCreate[] = "CFG_000_0005";
constexpr char kIdCannotDelete[] = "CFG_000_0006";

// The property-name placeholder is emitted as stored, never expanded: clients match on it.
constexpr char kInvalidValueText[] = "The value of $prop.getName() is invalid.\n";
constexpr char kInvalidValueKeyTail[] = "_$prop.getName()";
constexpr char kChangeFailedText[] = "Could not make the requested change.\n";
constexpr char kValuesInvalidHead[] = "One or more of the values specified for the ";
constexpr char kValuesInvalidTail[] = " was invalid.\n";
constexpr char kValueOf[] = "The value of ";
constexpr char kLengthOf[] = "The length of ";
constexpr char kAtMost[] = " must be <= ";
constexpr char kAtLeast[] = " must be >= ";
constexpr char kLineEnd[] = "\n";
constexpr char kCannotCreateText[] = "The system cannot create the instance specified.\n";
constexpr char kCannotDeleteText[] = "The system cannot delete the instance specified.\n";

std::string block(const std::string& id, std::initializer_list<std::string> params = {}) {
  std::string text = kBlockMark + id;
  for (const std::string& param : params) text += kParamMark + param;
  return text + kBlockMark;
}

std::string statusId(int status) {
  return kStatusIdPrefix + std::to_string(status);
}

std::string displayKey(const std::string& className, const std::string& property) {
  return kDisplayKeyPrefix + className + "_" + property;
}

bool isInvalidStatus(int status) {
  return status == kStatusInvalidValue || status == kStatusInvalidValues;
}

}  // namespace

void throwProviderError(ErrorSite site, CimCode code, const std::string& message) {
  throw OpenWBEM::CIMException(site.file, site.line, code, message.c_str());
}

void throwWithoutMessage(ErrorSite site, CimCode code) {
  throw OpenWBEM::CIMException(site.file, site.line, code);
}

std::string changeNotStartedMessage(int status) {
  return kChangeFailedText + block(isInvalidStatus(status) ? kIdChangeFailed : statusId(status));
}

std::string valuesInvalidMessage(const std::string& className) {
  return kValuesInvalidHead + className + kValuesInvalidTail + block(kIdChangeFailed);
}

std::string invalidValueMessage(const std::string& className) {
  return kInvalidValueText +
         block(kIdInvalidValue, {kDisplayKeyPrefix + className + kInvalidValueKeyTail});
}

std::string statusMessage(int status) {
  return block(statusId(status));
}

std::string aboveMaximumMessage(const std::string& className, const std::string& property,
                                unsigned maximum) {
  const std::string limit = std::to_string(maximum);
  return kValueOf + property + kAtMost + limit + kLineEnd +
         block(kIdAboveMaximum, {displayKey(className, property), limit});
}

std::string belowMinimumMessage(const std::string& className, const std::string& property,
                                unsigned minimum) {
  const std::string limit = std::to_string(minimum);
  return kValueOf + property + kAtLeast + limit + kLineEnd +
         block(kIdBelowMinimum, {displayKey(className, property), limit});
}

std::string tooLongMessage(const std::string& className, const std::string& property,
                           unsigned maximumLength) {
  const std::string limit = std::to_string(maximumLength);
  return kLengthOf + property + kAtMost + limit + kLineEnd +
         block(kIdTooLong, {displayKey(className, property), limit});
}

std::string cannotCreateMessage() {
  return kCannotCreateText + block(kIdCannotCreate);
}

std::string cannotDeleteMessage() {
  return kCannotDeleteText + block(kIdCannotDelete);
}

}  // namespace ras
