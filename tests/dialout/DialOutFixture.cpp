// The dial-out fixture: the account-serving environment, the module loaded into a fresh
// appliance, and get and modify as a CIMOM calls them.
#include "DialOutFixture.h"

#include <memory>

#include "AccountHandle.hpp"
#include "MofSchema.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "Zeph_ModuleGlobals.h"

using namespace OpenWBEM;

namespace {

const String kNs("root/cimv2");
const CIMClass kNoClass(CIMNULL);

std::shared_ptr<const rascim::MofSchema> schema() {
  static const std::shared_ptr<const rascim::MofSchema> loaded = [] {
    auto mof = std::make_shared<rascim::MofSchema>();
    mof->load(RAS_MOF_DIR);
    return mof;
  }();
  return loaded;
}

}  // namespace

AccountEnvironment::AccountEnvironment()
    : accounts_(new rascim::AccountHandle(kAccountsFile, schema())) {}

void DialOutTest::SetUp() {
  ApplianceTest::SetUp();
  ConnectionStatus = DialOutConnectionStatus = false;
  check_key.clear();
  initializeModule();
}

void DialOutTest::initializeModule() {
  env_ = AccountEnvironment::make();
  module_ = new Zeph_RASProvider;
  dispatcher_ = dynamic_cast<Zeph_RASProvider*>(module_.getPtr());
  dispatcher_->initialize(env_);
}

CIMObjectPath DialOutTest::path() const {
  CIMObjectPath p(CIMName(kDialOutClass), kNs);
  p.setKeyValue("InstanceID", CIMValue(String(kDialOutID)));
  return p;
}

CIMInstance DialOutTest::get() {
  return dispatcher_->getInstance(env_, kNs, path(), WBEMFlags::E_NOT_LOCAL_ONLY,
                                  WBEMFlags::E_INCLUDE_QUALIFIERS,
                                  WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
}

CimFailure DialOutTest::modify(const std::vector<Change>& changes) {
  CIMInstance instance(kDialOutClass);
  instance.setProperty("InstanceID", CIMValue(String(kDialOutID)));
  for (const Change& change : changes) instance.setProperty(change.first.c_str(), change.second);
  return cimFailureOf([&] {
    dispatcher_->modifyInstance(env_, kNs, instance, instance, WBEMFlags::E_EXCLUDE_QUALIFIERS, 0,
                                kNoClass);
  });
}

std::map<std::string, std::string> DialOutTest::files() {
  std::map<std::string, std::string> content;
  for (const std::string& file : kDialOutFiles) content[file] = appliance::readFile(file);
  return content;
}

std::vector<std::string> DialOutTest::logged() const {
  std::vector<std::string> texts;
  for (const LogLine& line : env_->logged()) texts.push_back(line.text);
  return texts;
}

std::string textOf(const CIMValue& value) {
  return value ? value.toString().c_str() : "<null>";
}

std::vector<std::string> textsOf(const CIMValue& value) {
  StringArray array;
  if (value) value.get(array);
  std::vector<std::string> texts;
  for (const String& text : array) texts.push_back(text.c_str());
  return texts;
}
