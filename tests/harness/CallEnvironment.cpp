// CallEnvironment.cpp: a per-call environment over a longer-lived one, and the CIMOM handle
// that stops working when its call ends.
#include "CallEnvironment.h"

#include <stdexcept>

#include "OW_Array.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_CIMValue.hpp"
#include "OW_Logger.hpp"
#include "OW_OperationContext.hpp"
#include "OW_RepositoryIFC.hpp"

using namespace OpenWBEM;

namespace harness {
namespace {

using Open = std::shared_ptr<const std::atomic<bool>>;
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
using Params = CIMParamValueArray;

// What OpenWBEM throws when a handle's operation context is gone.
constexpr char kDeadHandle[] = "NULL COWReference dereferenced";

// Forwards every operation to the call's real handle while the call is open.
class CallHandle : public CIMOMHandleIFC {
 public:
  CallHandle(CIMOMHandleIFCRef inner, Open open)
      : inner_(std::move(inner)), open_(std::move(open)) {}

  void close() override {}
  void enumClass(S n, S c, Classes r, D d, LO l, Q q, CO o) override {
    live()->enumClass(n, c, r, d, l, q, o);
  }
  void enumClassNames(S n, S c, StringResultHandlerIFC& r, D d) override {
    live()->enumClassNames(n, c, r, d);
  }
  void enumInstances(S n, S c, Objects r, D d, LO l, Q q, CO o, List p) override {
    live()->enumInstances(n, c, r, d, l, q, o, p);
  }
  void enumInstanceNames(S n, S c, Names r) override { live()->enumInstanceNames(n, c, r); }
  CIMClass getClass(S n, S c, LO l, Q q, CO o, List p) override {
    return live()->getClass(n, c, l, q, o, p);
  }
  CIMInstance getInstance(S n, Path i, LO l, Q q, CO o, List p) override {
    return live()->getInstance(n, i, l, q, o, p);
  }
  CIMValue invokeMethod(S n, Path i, S m, const Params& in, Params& out) override {
    return live()->invokeMethod(n, i, m, in, out);
  }
  CIMQualifierType getQualifierType(S n, S q) override { return live()->getQualifierType(n, q); }
  void setQualifierType(S n, const CIMQualifierType& q) override { live()->setQualifierType(n, q); }
  void deleteQualifierType(S n, S q) override { live()->deleteQualifierType(n, q); }
  void enumQualifierTypes(S n, CIMQualifierTypeResultHandlerIFC& r) override {
    live()->enumQualifierTypes(n, r);
  }
  void modifyClass(S n, const CIMClass& c) override { live()->modifyClass(n, c); }
  void createClass(S n, const CIMClass& c) override { live()->createClass(n, c); }
  void deleteClass(S n, S c) override { live()->deleteClass(n, c); }
  void modifyInstance(S n, const CIMInstance& i, Q q, List p) override {
    live()->modifyInstance(n, i, q, p);
  }
  CIMObjectPath createInstance(S n, const CIMInstance& i) override {
    return live()->createInstance(n, i);
  }
  void deleteInstance(S n, Path i) override { live()->deleteInstance(n, i); }
  void setProperty(S n, Path i, S p, const CIMValue& v) override {
    live()->setProperty(n, i, p, v);
  }
  CIMValue getProperty(S n, Path i, S p) override { return live()->getProperty(n, i, p); }
  void associatorNames(S n, Path i, Names r, S a, S c, S ro, S rr) override {
    live()->associatorNames(n, i, r, a, c, ro, rr);
  }
  void associators(S n, Path i, Objects r, S a, S c, S ro, S rr, Q q, CO o, List p) override {
    live()->associators(n, i, r, a, c, ro, rr, q, o, p);
  }
  void associatorsClasses(S n, Path i, Classes r, S a, S c, S ro, S rr, Q q, CO o,
                          List p) override {
    live()->associatorsClasses(n, i, r, a, c, ro, rr, q, o, p);
  }
  void referenceNames(S n, Path i, Names r, S c, S ro) override {
    live()->referenceNames(n, i, r, c, ro);
  }
  void references(S n, Path i, Objects r, S c, S ro, Q q, CO o, List p) override {
    live()->references(n, i, r, c, ro, q, o, p);
  }
  void referencesClasses(S n, Path i, Classes r, S c, S ro, Q q, CO o, List p) override {
    live()->referencesClasses(n, i, r, c, ro, q, o, p);
  }
  void execQuery(S n, Objects r, S q, S l) override { live()->execQuery(n, r, q, l); }

 private:
  CIMOMHandleIFC* live() const {
    if (!*open_ || !inner_) throw std::runtime_error(kDeadHandle);
    return inner_.getPtr();
  }

  CIMOMHandleIFCRef inner_;
  Open open_;
};

// The call's view of the base environment: everything but the CIMOM handles is the base's.
class CallEnvironment : public ProviderEnvironmentIFC {
 public:
  CallEnvironment(ProviderEnvironmentIFCRef base, Open open)
      : base_(std::move(base)), open_(std::move(open)) {}

  CIMOMHandleIFCRef getCIMOMHandle() const override {
    return new CallHandle(base_->getCIMOMHandle(), open_);
  }
  CIMOMHandleIFCRef getRepositoryCIMOMHandle() const override {
    return new CallHandle(base_->getRepositoryCIMOMHandle(), open_);
  }
  RepositoryIFCRef getRepository() const override { return base_->getRepository(); }
  // Forwarding the deprecated overload is the one use of it that cannot be avoided.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  LoggerRef getLogger() const override {
    return base_->getLogger();
  }
#pragma GCC diagnostic pop
  LoggerRef getLogger(const String& component) const override {
    return base_->getLogger(component);
  }
  String getConfigItem(const String& name, const String& fallback) const override {
    return base_->getConfigItem(name, fallback);
  }
  StringArray getMultiConfigItem(const String& name, const StringArray& fallback,
                                 const char* separator) const override {
    return base_->getMultiConfigItem(name, fallback, separator);
  }
  String getUserName() const override {
    return base_->getUserName();
  }
  OperationContext& getOperationContext() override {
    return base_->getOperationContext();
  }
  ProviderEnvironmentIFCRef clone() const override {
    return new CallEnvironment(base_, open_);
  }

 private:
  ProviderEnvironmentIFCRef base_;
  Open open_;
};

}  // namespace

ProviderCall::ProviderCall(const ProviderEnvironmentIFCRef& base)
    : open_(std::make_shared<std::atomic<bool>>(true)), env_(new CallEnvironment(base, open_)) {}

ProviderCall::~ProviderCall() {
  *open_ = false;
}

}  // namespace harness
