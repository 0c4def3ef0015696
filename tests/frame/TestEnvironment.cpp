// The test environment: recording logger and a CIMOM handle that refuses every request.
#include "TestEnvironment.h"

#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_CIMValue.hpp"
#include "OW_LogMessage.hpp"
#include "OW_RepositoryIFC.hpp"

using namespace OpenWBEM;

namespace {

using Q = WBEMFlags::EIncludeQualifiersFlag;
using CO = WBEMFlags::EIncludeClassOriginFlag;
using LO = WBEMFlags::ELocalOnlyFlag;
using D = WBEMFlags::EDeepFlag;

[[noreturn]] void refuse() {
  throw CIMException(__FILE__, 0, CIMException::NOT_SUPPORTED);
}

// The frame itself never reads other classes; a test that reached the handle would fail.
class StubCIMOMHandle : public CIMOMHandleIFC {
 public:
  void close() override {}
  void enumClass(const String&, const String&, CIMClassResultHandlerIFC&, D, LO, Q, CO) override {
    refuse();
  }
  void enumClassNames(const String&, const String&, StringResultHandlerIFC&, D) override {
    refuse();
  }
  void enumInstances(const String&, const String&, CIMInstanceResultHandlerIFC&, D, LO, Q, CO,
                     const StringArray*) override {
    refuse();
  }
  void enumInstanceNames(const String&, const String&, CIMObjectPathResultHandlerIFC&) override {
    refuse();
  }
  CIMClass getClass(const String&, const String&, LO, Q, CO, const StringArray*) override {
    refuse();
  }
  CIMInstance getInstance(const String&, const CIMObjectPath&, LO, Q, CO,
                          const StringArray*) override {
    refuse();
  }
  CIMValue invokeMethod(const String&, const CIMObjectPath&, const String&,
                        const CIMParamValueArray&, CIMParamValueArray&) override {
    refuse();
  }
  CIMQualifierType getQualifierType(const String&, const String&) override { refuse(); }
  void setQualifierType(const String&, const CIMQualifierType&) override { refuse(); }
  void deleteQualifierType(const String&, const String&) override { refuse(); }
  void enumQualifierTypes(const String&, CIMQualifierTypeResultHandlerIFC&) override { refuse(); }
  void modifyClass(const String&, const CIMClass&) override { refuse(); }
  void createClass(const String&, const CIMClass&) override { refuse(); }
  void deleteClass(const String&, const String&) override { refuse(); }
  void modifyInstance(const String&, const CIMInstance&, Q, const StringArray*) override {
    refuse();
  }
  CIMObjectPath createInstance(const String&, const CIMInstance&) override { refuse(); }
  void deleteInstance(const String&, const CIMObjectPath&) override { refuse(); }
  void setProperty(const String&, const CIMObjectPath&, const String&, const CIMValue&) override {
    refuse();
  }
  CIMValue getProperty(const String&, const CIMObjectPath&, const String&) override { refuse(); }
  void associatorNames(const String&, const CIMObjectPath&, CIMObjectPathResultHandlerIFC&,
                       const String&, const String&, const String&, const String&) override {
    refuse();
  }
  void associators(const String&, const CIMObjectPath&, CIMInstanceResultHandlerIFC&, const String&,
                   const String&, const String&, const String&, Q, CO,
                   const StringArray*) override {
    refuse();
  }
  void associatorsClasses(const String&, const CIMObjectPath&, CIMClassResultHandlerIFC&,
                          const String&, const String&, const String&, const String&, Q, CO,
                          const StringArray*) override {
    refuse();
  }
  void referenceNames(const String&, const CIMObjectPath&, CIMObjectPathResultHandlerIFC&,
                      const String&, const String&) override {
    refuse();
  }
  void references(const String&, const CIMObjectPath&, CIMInstanceResultHandlerIFC&, const String&,
                  const String&, Q, CO, const StringArray*) override {
    refuse();
  }
  void referencesClasses(const String&, const CIMObjectPath&, CIMClassResultHandlerIFC&,
                         const String&, const String&, Q, CO, const StringArray*) override {
    refuse();
  }
  void execQuery(const String&, CIMInstanceResultHandlerIFC&, const String&,
                 const String&) override {
    refuse();
  }
};

}  // namespace

RecordingLogger::RecordingLogger(std::shared_ptr<std::vector<LogLine>> lines)
    : Logger("frame_tests", E_ALL_LEVEL), lines_(std::move(lines)) {}

void RecordingLogger::doProcessLogMessage(const LogMessage& message) const {
  lines_->push_back({message.category.c_str(), message.message.c_str()});
}

LoggerRef RecordingLogger::doClone() const {
  return new RecordingLogger(lines_);
}

TestEnvironment::TestEnvironment()
    : lines_(std::make_shared<std::vector<LogLine>>()),
      logger_(new RecordingLogger(lines_)),
      handle_(new StubCIMOMHandle) {}

RepositoryIFCRef TestEnvironment::getRepository() const {
  return RepositoryIFCRef();
}
