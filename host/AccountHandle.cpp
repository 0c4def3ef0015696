// AccountHandle.cpp: the CIMOM handle that serves Zeph_Account from the account list.
#include "AccountHandle.hpp"

#include <fstream>
#include <sstream>

#include "CimBuild.hpp"
#include "OW_Array.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifierType.hpp"
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

[[noreturn]] void notServed() {
  throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::NOT_SUPPORTED, kNotServed);
}

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
    : accountsFile_(std::move(accountsFile)), schema_(std::move(schema)) {}

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

void AccountHandle::close() {}

void AccountHandle::enumClass(const String&, const String&, CIMClassResultHandlerIFC&, Deep,
                              LocalOnly, Qualifiers, ClassOrigin) {
  notServed();
}
void AccountHandle::enumClassNames(const String&, const String&, StringResultHandlerIFC&, Deep) {
  notServed();
}
CIMClass AccountHandle::getClass(const String&, const String&, LocalOnly, Qualifiers, ClassOrigin,
                                 PropertyList) {
  notServed();
}
CIMValue AccountHandle::invokeMethod(const String&, const Path&, const String&,
                                     const CIMParamValueArray&, CIMParamValueArray&) {
  notServed();
}
CIMQualifierType AccountHandle::getQualifierType(const String&, const String&) {
  notServed();
}
void AccountHandle::setQualifierType(const String&, const CIMQualifierType&) {
  notServed();
}
void AccountHandle::deleteQualifierType(const String&, const String&) {
  notServed();
}
void AccountHandle::enumQualifierTypes(const String&, CIMQualifierTypeResultHandlerIFC&) {
  notServed();
}
void AccountHandle::modifyClass(const String&, const CIMClass&) {
  notServed();
}
void AccountHandle::createClass(const String&, const CIMClass&) {
  notServed();
}
void AccountHandle::deleteClass(const String&, const String&) {
  notServed();
}
void AccountHandle::modifyInstance(const String&, const CIMInstance&, Qualifiers, PropertyList) {
  notServed();
}
CIMObjectPath AccountHandle::createInstance(const String&, const CIMInstance&) {
  notServed();
}
void AccountHandle::deleteInstance(const String&, const Path&) {
  notServed();
}
void AccountHandle::setProperty(const String&, const Path&, const String&, const CIMValue&) {
  notServed();
}
CIMValue AccountHandle::getProperty(const String&, const Path&, const String&) {
  notServed();
}
void AccountHandle::associatorNames(const String&, const Path&, CIMObjectPathResultHandlerIFC&,
                                    const String&, const String&, const String&, const String&) {
  notServed();
}
void AccountHandle::associators(const String&, const Path&, CIMInstanceResultHandlerIFC&,
                                const String&, const String&, const String&, const String&,
                                Qualifiers, ClassOrigin, PropertyList) {
  notServed();
}
void AccountHandle::associatorsClasses(const String&, const Path&, CIMClassResultHandlerIFC&,
                                       const String&, const String&, const String&, const String&,
                                       Qualifiers, ClassOrigin, PropertyList) {
  notServed();
}
void AccountHandle::referenceNames(const String&, const Path&, CIMObjectPathResultHandlerIFC&,
                                   const String&, const String&) {
  notServed();
}
void AccountHandle::references(const String&, const Path&, CIMInstanceResultHandlerIFC&,
                               const String&, const String&, Qualifiers, ClassOrigin,
                               PropertyList) {
  notServed();
}
void AccountHandle::referencesClasses(const String&, const Path&, CIMClassResultHandlerIFC&,
                                      const String&, const String&, Qualifiers, ClassOrigin,
                                      PropertyList) {
  notServed();
}
void AccountHandle::execQuery(const String&, CIMInstanceResultHandlerIFC&, const String&,
                              const String&) {
  notServed();
}

}  // namespace rascim
