// The test environment: recording logger and a CIMOM handle that refuses every request.
#include "TestEnvironment.h"

#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_CIMValue.hpp"
#include "OW_LogMessage.hpp"

using namespace OpenWBEM;

namespace {

using Q = WBEMFlags::EIncludeQualifiersFlag;
using CO = WBEMFlags::EIncludeClassOriginFlag;
using LO = WBEMFlags::ELocalOnlyFlag;
using D = WBEMFlags::EDeepFlag;
using S = const String&;
using Path = const CIMObjectPath&;
using List = const StringArray*;
using Names = CIMObjectPathResultHandlerIFC&;
using Objects = CIMInstanceResultHandlerIFC&;
using Classes = CIMClassResultHandlerIFC&;

[[noreturn]] void refuse() {
  throw CIMException(__FILE__, 0, CIMException::NOT_SUPPORTED);
}

// The frame itself never reads other classes; a test that reached the handle would fail.
class StubCIMOMHandle : public CIMOMHandleIFC {
 public:
  void close() override {}
  void enumClass(S, S, Classes, D, LO, Q, CO) override { refuse(); }
  void enumClassNames(S, S, StringResultHandlerIFC&, D) override { refuse(); }
  void enumInstances(S, S, Objects, D, LO, Q, CO, List) override { refuse(); }
  void enumInstanceNames(S, S, Names) override { refuse(); }
  CIMClass getClass(S, S, LO, Q, CO, List) override { refuse(); }
  CIMInstance getInstance(S, Path, LO, Q, CO, List) override { refuse(); }
  CIMValue invokeMethod(S, Path, S, const CIMParamValueArray&, CIMParamValueArray&) override {
    refuse();
  }
  CIMQualifierType getQualifierType(S, S) override { refuse(); }
  void setQualifierType(S, const CIMQualifierType&) override { refuse(); }
  void deleteQualifierType(S, S) override { refuse(); }
  void enumQualifierTypes(S, CIMQualifierTypeResultHandlerIFC&) override { refuse(); }
  void modifyClass(S, const CIMClass&) override { refuse(); }
  void createClass(S, const CIMClass&) override { refuse(); }
  void deleteClass(S, S) override { refuse(); }
  void modifyInstance(S, const CIMInstance&, Q, List) override { refuse(); }
  CIMObjectPath createInstance(S, const CIMInstance&) override { refuse(); }
  void deleteInstance(S, Path) override { refuse(); }
  void setProperty(S, Path, S, const CIMValue&) override { refuse(); }
  CIMValue getProperty(S, Path, S) override { refuse(); }
  void associatorNames(S, Path, Names, S, S, S, S) override { refuse(); }
  void associators(S, Path, Objects, S, S, S, S, Q, CO, List) override { refuse(); }
  void associatorsClasses(S, Path, Classes, S, S, S, S, Q, CO, List) override { refuse(); }
  void referenceNames(S, Path, Names, S, S) override { refuse(); }
  void references(S, Path, Objects, S, S, Q, CO, List) override { refuse(); }
  void referencesClasses(S, Path, Classes, S, S, Q, CO, List) override { refuse(); }
  void execQuery(S, Objects, S, S) override { refuse(); }
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
