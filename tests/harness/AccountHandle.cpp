// AccountHandle.cpp: Zeph_Account instances from the account list.
#include "AccountHandle.h"

#include <fstream>
#include <sstream>

#include "OW_Array.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ResultHandlerIFC.hpp"

using namespace OpenWBEM;

namespace harness {
namespace {

const char kAccountClass[] = "Zeph_Account";
const char kAccountNamespace[] = "root/cimv2";
const char kNameProperty[] = "Name";
const char kUserIdProperty[] = "TextualUserID";
const char kNotServed[] = "the test's CIMOM handle serves only Zeph_Account instances";

}  // namespace

AccountHandle::AccountHandle(std::string accountsFile)
    : RefusingHandle(__FILE__, 0, kNotServed), accountsFile_(std::move(accountsFile)) {}

// "NAME TEXTUALUSERID" lines; blank lines and lines starting with # are skipped.
CIMInstanceArray AccountHandle::accounts(const String& ns, const String& className) const {
  if (!className.equalsIgnoreCase(kAccountClass))
    throw CIMException(__FILE__, __LINE__, CIMException::INVALID_CLASS, kNotServed);
  if (!ns.equalsIgnoreCase(kAccountNamespace))
    throw CIMException(__FILE__, __LINE__, CIMException::INVALID_NAMESPACE);
  CIMInstanceArray out;
  std::ifstream in(accountsFile_);
  std::string line;
  while (std::getline(in, line)) {
    std::istringstream words(line);
    std::string name, userId;
    if (!(words >> name) || name[0] == '#') continue;
    words >> userId;
    CIMInstance account(kAccountClass);
    const CIMProperty key(kNameProperty, CIMValue(String(name.c_str())));
    account.setProperty(key);
    account.setProperty(kUserIdProperty, CIMValue(String(userId.c_str())));
    account.setKeys(CIMPropertyArray(1, key));
    out.push_back(account);
  }
  return out;
}

void AccountHandle::enumInstances(const String& ns, const String& className,
                                  CIMInstanceResultHandlerIFC& result, Deep, LocalOnly, Qualifiers,
                                  ClassOrigin, PropertyList) {
  for (const CIMInstance& account : accounts(ns, className)) result.handle(account);
}

void AccountHandle::enumInstanceNames(const String& ns, const String& className,
                                      CIMObjectPathResultHandlerIFC& result) {
  for (const CIMInstance& account : accounts(ns, className))
    result.handle(CIMObjectPath(ns, account));
}

CIMInstance AccountHandle::getInstance(const String& ns, const Path& instanceName, LocalOnly,
                                       Qualifiers, ClassOrigin, PropertyList) {
  const CIMValue wanted = instanceName.getKeyValue(kNameProperty);
  for (const CIMInstance& account : accounts(ns, instanceName.getClassName()))
    if (wanted && account.getPropertyValue(kNameProperty).equal(wanted)) return account;
  throw CIMException(__FILE__, __LINE__, CIMException::NOT_FOUND);
}

}  // namespace harness
