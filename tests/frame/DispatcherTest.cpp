// The dispatcher: entry points, class selection, the handler set of every operation with its
// messages, logging and fixed lines, and initialize.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <thread>

#include "CFG_Exception.h"
#include "CimFailure.h"
#include "DispatchFixture.h"
#include "ThreadCount.h"
#include "TrapSoftModem.h"
#include "Zeph_ModuleClasses.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_ModuleProviders.h"

// LeakSanitizer's switches, present only in a sanitizer build.
extern "C" void __lsan_disable() __attribute__((weak));
extern "C" void __lsan_enable() __attribute__((weak));

namespace {

using OpenWBEM::CIMException;

constexpr char kSource[] = "../src/Zeph_RASProvider";
// The module's classes, from its own table; the schema test holds that table to the MOF.
// (Read when a test runs: the table is built with the module's objects.)
std::vector<std::string> moduleClasses() {
  return ras::moduleClassNames();
}

// What escapes a per-class provider, and what the handler set makes of it. A lookup failure
// is neither configuration error, so it is reported as an unknown std::exception.
enum class Escape { ReadError, WriteError, NoInstance, StdException, UnknownThrow };
constexpr Escape kEscapes[] = {Escape::ReadError, Escape::WriteError, Escape::NoInstance,
                               Escape::StdException, Escape::UnknownThrow};

void raise(Escape escape) {
  switch (escape) {
    case Escape::ReadError:
      throw CFG_ReadError();
    case Escape::WriteError:
      throw CFG_WriteError();
    case Escape::NoInstance:
      throw CFG_NoInstance();
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

// The current instance manager of each of the ten classes, in the order of moduleClasses().
template <class... Provider>
struct ManagersOf {
  static std::vector<const void*> get() {
    return {static_cast<const void*>(Provider::W::getInstanceManager())...};
  }
};

// Runs `call` with a fresh request environment and checks the failure it raises for
// `escape`, and that its message, if any, went to that environment's log once, as an error.
void expectHandled(const OperationLines& lines, Escape escape,
                   const std::function<void(const TestEnvRef&)>& call) {
  const std::string label = lines.name + std::string(" escape ") + std::to_string(int(escape));
  const TestEnvRef env = TestEnvironment::make();
  const CimFailure expected = expectedFailure(lines, escape, "Zeph_SoftModem");
  EXPECT_EQ(cimFailureOf([&] { call(env); }), expected) << label;
  if (expected.message->empty()) {
    EXPECT_TRUE(env->logged().empty()) << label;
    return;
  }
  ASSERT_EQ(env->logged().size(), 1u) << label;
  EXPECT_EQ(env->logged()[0].category, "ERROR") << label;
  EXPECT_EQ(env->logged()[0].text, *expected.message) << label;
}

class DispatcherTest : public ::testing::Test {
 protected:
  OpenWBEM::IntrusiveReference<Zeph_RASProvider> dispatcher_ = new Zeph_RASProvider;
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

// A CIMOM unloads the module at shutdown and on SIGHUP. The "ModemStatus" subscription that
// initialize started (the platform library's notification thread) must end with it, or that
// thread goes on calling into unmapped code; initialising again replaces it.
TEST(ModuleLibrary, UnloadingEndsTheModemStatusSubscription) {
  // The managers a module installs live until it is unloaded and are not freed then; the
  // leak checker would report them once the library is gone. What this test is about is
  // the thread, so its allocations are left out of the leak check.
  if (__lsan_disable != nullptr) __lsan_disable();
  const std::size_t before = threadCount();
  void* library = dlopen(ZEPH_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  const auto factory = reinterpret_cast<OpenWBEM::CppProviderBaseIFC* (*)()>(
      dlsym(library, "createProviderZeph_RASProvider"));
  ASSERT_NE(factory, nullptr);
  OpenWBEM::IntrusiveReference<OpenWBEM::CppProviderBaseIFC> provider(factory());
  provider->initialize(TestEnvironment::make());
  provider->initialize(TestEnvironment::make());
  EXPECT_EQ(threadCountSettlingAt(before + 1), before + 1);
  provider = 0;
  ASSERT_EQ(dlclose(library), 0);
  EXPECT_EQ(threadCountSettlingAt(before), before);
  if (__lsan_enable != nullptr) __lsan_enable();
}

TEST_F(DispatcherTest, UnknownClassIsRefusedWithoutMessageAfterForwarding) {
  const std::vector<std::string> foreign = {"zeph_softmodem", "ZEPH_SOFTMODEM",
                                            "Zeph_SoftModemSubclass", "CIM_Modem", ""};
  for (const OperationLines& op : kDispatcherLines) {
    std::vector<std::string> names = foreign;
    if (op.association) {
      names.insert(names.end(),
                   {"Zeph_SoftModem", "Zeph_DialOutSettingData", "zeph_dialoutroutes"});
    }
    for (const std::string& name : names) {
      const TestEnvRef env = TestEnvironment::make();
      const CimFailure failure =
          cimFailureOf([&] { request(op.name, *dispatcher_, env, name.c_str()); });
      EXPECT_EQ(failure,
                (CimFailure{CIMException::INVALID_CLASS, kSource, op.unknownClass, std::nullopt}))
          << op.name << " on '" << name << "'";
      EXPECT_TRUE(env->logged().empty()) << op.name;
    }
  }
}

TEST_F(DispatcherTest, ModuleClassesReachTheirProviders) {
  const auto codeOf = [&](const char* operation, const std::string& cls) {
    return cimFailureOf(
               [&] { request(operation, *dispatcher_, TestEnvironment::make(), cls.c_str()); })
        .code;
  };
  for (const std::string& cls : moduleClasses()) {
    EXPECT_EQ(codeOf("enumInstanceNames", cls), -1) << cls;
    // The per-class provider answers invokeMethod itself: no method, no class error. The PPP
    // endpoint has ConnectLink, and the soft modem's keys name none of its instances.
    const int expected = cls == "Zeph_PPPProtocolEndpoint" ? CIMException::NOT_FOUND
                                                           : CIMException::METHOD_NOT_FOUND;
    EXPECT_EQ(codeOf("invokeMethod", cls), expected) << cls;
  }
  // The association provider answers: the source path names no InstanceID.
  for (const char* op : {"associators", "associatorNames", "references", "referenceNames"}) {
    EXPECT_EQ(codeOf(op, "Zeph_DialOutRoutes"), CIMException::FAILED) << op;
  }
}

// Every cell of the dispatcher's line table, through the handler set of each operation.
TEST(DispatcherHandlerSet, EveryOperationMapsEveryEscapeToItsLineAndMessage) {
  for (const OperationLines& lines : kDispatcherLines) {
    for (Escape escape : kEscapes) {
      expectHandled(lines, escape, [&](const TestEnvRef& env) {
        ras::guarded(env, *lines.operation, "Zeph_SoftModem", [&] {
          raise(escape);
          return true;
        });
      });
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
    if (lines.association || lines.invokeWriteError != 0) continue;
    for (Escape escape : kEscapes) {
      trap.arm([escape] { raise(escape); });
      expectHandled(lines, escape, [&](const TestEnvRef& env) {
        request(lines.name, *dispatcher_, env, "Zeph_SoftModem");
      });
    }
  }
  EXPECT_EQ(initEnv->logged().size(), loggedByInitialize);
}

TEST_F(DispatcherTest, SecondInitializeReplacesGlobalsAndEveryManager) {
  const auto managers = ras::WithModuleProviders<ManagersOf>::get;
  dispatcher_->initialize(TestEnvironment::make());
  const std::vector<const void*> before = managers();
  const TestEnvRef second = TestEnvironment::make();
  dispatcher_->initialize(second);
  EXPECT_TRUE(logger == second->loggerRef());
  EXPECT_FALSE(hdl);  // the CIMOM handle of initialize's call is not kept
  const std::vector<const void*> after = managers();
  ASSERT_EQ(after.size(), 10u);
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_NE(after[i], before[i]) << moduleClasses()[i];
  }
  dispatcher_->cleanup();
}

// During a request `hdl` is that request's own CIMOM handle, and nothing outside one. Requests
// from several threads at once are served one at a time, each seeing its own handle.
TEST_F(DispatcherTest, HdlIsTheCurrentRequestsHandleAndRequestsRunOneAtATime) {
  dispatcher_->initialize(TestEnvironment::make());
  EXPECT_FALSE(hdl);
  TrapSoftModemInstaller trap;
  std::atomic<int> inside{0};
  std::atomic<int> overlaps{0};
  std::atomic<int> foreignHandles{0};
  thread_local const OpenWBEM::CIMOMHandleIFC* expected = nullptr;
  trap.arm([&] {
    if (++inside != 1) ++overlaps;
    if (!hdl || hdl.operator->() != expected) ++foreignHandles;
    std::this_thread::yield();
    --inside;
  });
  const auto client = [&] {
    for (int i = 0; i < 200; ++i) {
      const TestEnvRef env = TestEnvironment::make();
      expected = env->getCIMOMHandle().getPtr();
      request("getInstance", *dispatcher_, env, "Zeph_SoftModem");
      if (hdl) ++foreignHandles;
    }
  };
  std::vector<std::thread> clients;
  for (int i = 0; i < 4; ++i) clients.emplace_back(client);
  for (std::thread& c : clients) c.join();
  EXPECT_EQ(overlaps, 0);
  EXPECT_EQ(foreignHandles, 0);
}

}  // namespace
