// AccountHandle.cpp: the CIMOM handle that serves Zeph_Account from the account list.
#include "AccountHandle.hpp"

#include <fstream>
#include <sstream>

#include "CimBuild.hpp"
#include "OW_Array.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ResultHandlerIFC.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const char kAccountClass[] = "Zeph_Account";
const char kAccountNamespace[] = "root/cimv2";
const char kNameProperty[] = "Name";
const char kUserIdProperty[] = "TextualUserID";
const char kNotServed[] = "ras-cim's CIMOM handle serves only Zeph_Account instances";

TextValue quoted(const std::string& text) {
  TextValue v;
  v.quoted = true;
  v.text = text;
  return v;
}

// "NAME TEXTUALUSERID" lines; blank lines and lines starting with # are skipped.
std::vector<std::vector<Binding>> readAccounts(const std::string& file) {
  std::vector<std::vector<Binding>> out;
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    std::istringstream words(line);
    std::string name, userId;
    if (!(words >> name) || name[0] == '#') continue;
    words >> userId;
    out.push_back({Binding{kNameProperty, quoted(name)}, Binding{kUserIdProperty, quoted(userId)}});
  }
  return out;
}

}  // namespace

AccountHandle::AccountHandle(std::string accountsFile, std::shared_ptr<const MofSchema> schema)
    : RefusingHandle(kHostErrorFile, kHostErrorLine, kNotServed),
      accountsFile_(std::move(accountsFile)),
      schema_(std::move(schema)) {}

CIMInstanceArray AccountHandle::accounts(const String& ns, const String& className) const {
  if (!className.equalsIgnoreCase(kAccountClass))
    throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::INVALID_CLASS, kNotServed);
  if (!ns.equalsIgnoreCase(kAccountNamespace))
    throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::INVALID_NAMESPACE);
  CIMInstanceArray out;
  for (const std::vector<Binding>& account : readAccounts(accountsFile_))
    out.push_back(buildInstance(kAccountClass, account, *schema_, true));
  return out;
}

void AccountHandle::enumInstances(const String& ns, const String& className,
                                  CIMInstanceResultHandlerIFC& result, Deep, LocalOnly, Qualifiers,
                                  ClassOrigin, PropertyList) {
  const CIMInstanceArray all = accounts(ns, className);
  for (size_t i = 0; i < all.size(); ++i) result.handle(all[i]);
}

void AccountHandle::enumInstanceNames(const String& ns, const String& className,
                                      CIMObjectPathResultHandlerIFC& result) {
  const CIMInstanceArray all = accounts(ns, className);
  for (size_t i = 0; i < all.size(); ++i) result.handle(instancePath(all[i], *schema_));
}

CIMInstance AccountHandle::getInstance(const String& ns, const Path& instanceName, LocalOnly,
                                       Qualifiers, ClassOrigin, PropertyList) {
  const CIMInstanceArray all = accounts(ns, instanceName.getClassName());
  const CIMValue wanted = instanceName.getKeyValue(kNameProperty);
  for (size_t i = 0; i < all.size(); ++i)
    if (wanted && all[i].getPropertyValue(kNameProperty).equal(wanted)) return all[i];
  throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::NOT_FOUND);
}

}  // namespace rascim
