// The dispatcher: entry points, class selection, the handler set of every operation with its
// messages, logging and fixed lines, and initialize.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "CFG_Exception.h"
#include "CimFailure.h"
#include "DispatchFixture.h"
#include "ModuleManagers.h"
#include "TrapSoftModem.h"
#include "Zeph_DispatchOperations.h"
#include "Zeph_ModuleGlobals.h"

namespace {

using OpenWBEM::CIMException;

constexpr char kSource[] = "../src/Zeph_RASProvider";
constexpr char kModuleClasses[][32] = {"Zeph_CallInSettingData",   "Zeph_DialOutSettingData",
                                       "Zeph_RASService",          "Zeph_RASStaticIPAddressPool",
                                       "Zeph_NextHopIPRoute",      "Zeph_RASIPProtocolEndpoint",
                                       "Zeph_PPPProtocolEndpoint", "Zeph_SoftModem",
                                       "Zeph_SerialPort",          "Zeph_DialOutRoutes"};

// What escapes a per-class provider, and what the handler set makes of it.
enum class Escape { ReadError, WriteError, StdException, UnknownThrow };

void raise(Escape escape) {
  switch (escape) {
    case Escape::ReadError:
      throw CFG_ReadError();
    case Escape::WriteError:
      throw CFG_WriteError();
    case Escape::StdException:
      throw std::runtime_error("disk on fire");
    case Escape::UnknownThrow:
      throw 42;
  }
}

CimFailure expectedFailure(const OperationLines& op, Escape escape, const std::string& cls) {
  const std::string tail =
      std::string(" while performing ") + op.name + " operation on " + cls + "\n";
  const bool invoke = op.invokeWriteError != 0;
  if (escape == Escape::ReadError && (invoke || !op.writes)) {
    return {CIMException::FAILED, kSource, op.readWriteError, std::string()};
  }
  if (escape == Escape::WriteError && invoke) {
    return {CIMException::FAILED, kSource, op.invokeWriteError, std::string()};
  }
  if (escape == Escape::WriteError && op.writes) {
    return {CIMException::FAILED, kSource, op.readWriteError, std::string()};
  }
  if (escape == Escape::UnknownThrow) {
    return {CIMException::FAILED, kSource, op.unknownThrow,
            "Unknown throw caught in Zeph_RASProvider\n" + tail};
  }
  const std::string what = escape == Escape::StdException ? "disk on fire" : "std::exception";
  return {CIMException::FAILED, kSource, op.stdException,
          "Unknown std::exception caught in Zeph_RASProvider\n" + tail + what + "\n"};
}

const ras::Operation& moduleOperation(const std::string& name) {
  using namespace ras::operations;
  static const std::vector<std::pair<std::string, const ras::Operation*>> table = {
      {"enumInstanceNames", &kEnumInstanceNames},
      {"enumInstances", &kEnumInstances},
      {"getInstance", &kGetInstance},
      {"createInstance", &kCreateInstance},
      {"deleteInstance", &kDeleteInstance},
      {"modifyInstance", &kModifyInstance},
      {"invokeMethod", &kInvokeMethod},
      {"associators", &kAssociators},
      {"associatorNames", &kAssociatorNames},
      {"references", &kReferences},
      {"referenceNames", &kReferenceNames}};
  for (const auto& [key, op] : table) {
    if (key == name) return *op;
  }
  throw std::logic_error("no such operation " + name);
}

class DispatcherTest : public ::testing::Test {
 protected:
  void SetUp() override {
    provider_ = new Zeph_RASProvider;
    dispatcher_ = dynamic_cast<Zeph_RASProvider*>(provider_.getPtr());
    ASSERT_NE(dispatcher_, nullptr);
  }

  void expectLoggedOnce(const TestEnvRef& env, const CimFailure& failure) {
    if (failure.message->empty()) {
      EXPECT_TRUE(env->logged().empty());
      return;
    }
    ASSERT_EQ(env->logged().size(), 1u);
    EXPECT_EQ(env->logged()[0].category, "ERROR");
    EXPECT_EQ(env->logged()[0].text, *failure.message);
  }

  OpenWBEM::IntrusiveReference<OpenWBEM::CppProviderBaseIFC> provider_;
  Zeph_RASProvider* dispatcher_ = nullptr;
};

// Loaded as a CIMOM loads it (and, like a CIMOM, never unloaded).
TEST(ModuleLibrary, ExportsTheFactoryAndTheInterfaceVersion) {
  void* library = dlopen(ZEPH_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  const auto version = reinterpret_cast<const char* (*)()>(dlsym(library, "getOWVersion"));
  const auto factory = reinterpret_cast<OpenWBEM::CppProviderBaseIFC* (*)()>(
      dlsym(library, "createProviderZeph_RASProvider"));
  ASSERT_NE(version, nullptr);
  ASSERT_NE(factory, nullptr);
  EXPECT_STREQ(version(), "3.0.3");
  OpenWBEM::IntrusiveReference<OpenWBEM::CppProviderBaseIFC> provider(factory());
  EXPECT_NE(provider->getInstanceProvider(), nullptr);
  EXPECT_NE(provider->getMethodProvider(), nullptr);
  EXPECT_NE(provider->getAssociatorProvider(), nullptr);
  provider->initialize(TestEnvironment::make());
  EXPECT_STREQ(version(), "3.0.3");
}

TEST_F(DispatcherTest, UnknownClassIsRefusedWithoutMessageAfterForwarding) {
  const std::vector<std::string> foreign = {"zeph_softmodem", "ZEPH_SOFTMODEM",
                                            "Zeph_SoftModemSubclass", "CIM_Modem", ""};
  for (const OperationLines& op : kDispatcherLines) {
    std::vector<std::string> names = foreign;
    if (isAssociationOperation(op.name)) {
      names.insert(names.end(),
                   {"Zeph_SoftModem", "Zeph_DialOutSettingData", "zeph_dialoutroutes"});
    }
    for (const std::string& name : names) {
      const TestEnvRef env = TestEnvironment::make();
      const CimFailure failure =
          cimFailureOf([&] { requestFor(op.name)(*dispatcher_, env, name.c_str()); });
      EXPECT_EQ(failure,
                (CimFailure{CIMException::INVALID_CLASS, kSource, op.unknownClass, std::nullopt}))
          << op.name << " on '" << name << "'";
      EXPECT_TRUE(env->logged().empty()) << op.name;
    }
  }
}

TEST_F(DispatcherTest, ModuleClassesReachTheirProviders) {
  for (const std::string cls : kModuleClasses) {
    EXPECT_EQ(cimFailureOf([&] {
                requestFor("enumInstanceNames")(*dispatcher_, TestEnvironment::make(), cls.c_str());
              }).code,
              -1)
        << cls;
    // The per-class provider answers invokeMethod itself: no method, no class error.
    const CimFailure invoke = cimFailureOf(
        [&] { requestFor("invokeMethod")(*dispatcher_, TestEnvironment::make(), cls.c_str()); });
    EXPECT_EQ(invoke.code, CIMException::METHOD_NOT_FOUND) << cls;
  }
  for (const char* op : {"associators", "associatorNames", "references", "referenceNames"}) {
    EXPECT_EQ(cimFailureOf([&] {
                requestFor(op)(*dispatcher_, TestEnvironment::make(), "Zeph_DialOutRoutes");
              }).code,
              -1)
        << op;
  }
}

// Every cell of the dispatcher's line table, through the handler set of each operation.
TEST(DispatcherHandlerSet, EveryOperationMapsEveryEscapeToItsLineAndMessage) {
  for (const OperationLines& lines : kDispatcherLines) {
    for (Escape escape :
         {Escape::ReadError, Escape::WriteError, Escape::StdException, Escape::UnknownThrow}) {
      const TestEnvRef env = TestEnvironment::make();
      const CimFailure expected = expectedFailure(lines, escape, "Zeph_SoftModem");
      const CimFailure failure = cimFailureOf([&] {
        ras::guarded(env, moduleOperation(lines.name), "Zeph_SoftModem", [&] {
          raise(escape);
          return true;
        });
      });
      EXPECT_EQ(failure, expected) << lines.name << " escape " << static_cast<int>(escape);
      const std::size_t logged = expected.message->empty() ? 0u : 1u;
      ASSERT_EQ(env->logged().size(), logged) << lines.name;
      if (logged == 1u) {
        EXPECT_EQ(env->logged()[0].text, *expected.message);
      }
    }
  }
}

// The instance operations reach the handler set from inside a real per-class provider, and
// log through the request's environment, not the one kept by initialize.
TEST_F(DispatcherTest, EscapesFromTheSoftModemProviderTakeTheHandlerSet) {
  const TestEnvRef initEnv = TestEnvironment::make();
  dispatcher_->initialize(initEnv);
  const std::size_t loggedByInitialize = initEnv->logged().size();
  TrapSoftModemInstaller trap;
  for (const OperationLines& lines : kDispatcherLines) {
    if (isAssociationOperation(lines.name) || lines.invokeWriteError != 0) continue;
    for (Escape escape :
         {Escape::ReadError, Escape::WriteError, Escape::StdException, Escape::UnknownThrow}) {
      const TestEnvRef env = TestEnvironment::make();
      trap.arm([escape] { raise(escape); });
      const CimFailure failure =
          cimFailureOf([&] { requestFor(lines.name)(*dispatcher_, env, "Zeph_SoftModem"); });
      trap.disarm();
      const CimFailure expected = expectedFailure(lines, escape, "Zeph_SoftModem");
      EXPECT_EQ(failure, expected) << lines.name << " escape " << static_cast<int>(escape);
      expectLoggedOnce(env, expected);
    }
  }
  EXPECT_EQ(initEnv->logged().size(), loggedByInitialize);
}

TEST_F(DispatcherTest, LookupFailureEscapingAGetterIsAnUnknownStdException) {
  TrapSoftModemInstaller trap;
  trap.arm([] { throw CFG_NoInstance(); });
  const TestEnvRef env = TestEnvironment::make();
  const CimFailure failure =
      cimFailureOf([&] { requestFor("getInstance")(*dispatcher_, env, "Zeph_SoftModem"); });
  const std::string message =
      "Unknown std::exception caught in Zeph_RASProvider\n while performing getInstance "
      "operation on Zeph_SoftModem\nstd::exception\n";
  EXPECT_EQ(failure, (CimFailure{CIMException::FAILED, kSource, 467, message}));
  expectLoggedOnce(env, failure);
}

TEST_F(DispatcherTest, SecondInitializeReplacesGlobalsAndEveryManager) {
  const TestEnvRef first = TestEnvironment::make();
  dispatcher_->initialize(first);
  const std::vector<const void*> before = currentManagers();
  const TestEnvRef second = TestEnvironment::make();
  dispatcher_->initialize(second);
  EXPECT_TRUE(logger == second->loggerRef());
  EXPECT_TRUE(hdl == second->getCIMOMHandle());
  const std::vector<const void*> after = currentManagers();
  ASSERT_EQ(after.size(), 10u);
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_NE(after[i], before[i]) << kModuleClasses[i];
  }
  dispatcher_->cleanup();
}

}  // namespace
