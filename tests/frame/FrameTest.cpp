// The provider frame driven as a CIMOM drives it: the module library's entry points, class
// selection and the handler set of every dispatching operation, instance managers, and the
// per-class provider template (change sequence, lookups, create, delete, warnings).
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <stdexcept>
#include <thread>
#include <type_traits>

#include "CFG_Exception.h"
#include "CimFailure.h"
#include "OW_CIMClass.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_ResultHandlers.hpp"
#include "TestEnvironment.h"
#include "ThreadCount.h"
#include "Zeph_CallInSettingDataProvider.h"
#include "Zeph_DialOutSettingDataProvider.h"
#include "Zeph_DispatchOperations.h"
#include "Zeph_ModuleClasses.h"
#include "Zeph_ModuleGlobals.h"
#include "Zeph_ModuleProviders.h"
#include "Zeph_RASProvider.h"

// LeakSanitizer's switches, present only in a sanitizer build.
extern "C" void __lsan_disable() __attribute__((weak));
extern "C" void __lsan_enable() __attribute__((weak));

namespace {

using namespace OpenWBEM;
using WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, WBEMFlags::E_EXCLUDE_QUALIFIERS;
using Properties = std::vector<std::pair<const char*, CIMValue>>;
using Names = std::vector<std::string>;

const String kNs("root/cimv2");
const CIMClass kNoClass(CIMNULL);
constexpr char kDispatcher[] = "../src/Zeph_RASProvider";
constexpr char kCallInClass[] = "Zeph_CallInSettingData";
constexpr char kCallIn[] = "Velmar:Zeph_CallInSettingData";

CIMInstance instanceOf(const char* cls, const Properties& properties) {
  CIMInstance instance(cls);
  for (const auto& [name, value] : properties) instance.setProperty(name, value);
  return instance;
}
template <class P>
CimFailure modify(P& p, const CIMInstance& i, const TestEnvRef& env) {
  return cimFailureOf([&] { p.modifyInstance(env, kNs, i, i, E_EXCLUDE_QUALIFIERS, 0, kNoClass); });
}
template <class P>
CIMInstance fetch(P& p, const CIMObjectPath& path, const TestEnvRef& env) {
  return p.getInstance(env, kNs, path, WBEMFlags::E_NOT_LOCAL_ONLY, E_EXCLUDE_QUALIFIERS,
                       E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
}
template <class P>
CIMObjectPathArray names(P& p, const char* cls, const TestEnvRef& env) {
  CIMObjectPathArray paths;
  CIMObjectPathArrayBuilder result(paths);
  p.enumInstanceNames(env, kNs, cls, result, kNoClass);
  return paths;
}

// The dispatcher's fixed lines, written out independently of the module.
struct OperationLines {
  const char* name;
  const ras::Operation* operation;
  bool writes;  // write operations map CFG_WriteError, read operations CFG_ReadError
  int readWriteError, stdException, unknownThrow, unknownClass;
  int invokeWriteError;  // invokeMethod maps both; this is its CFG_WriteError line
};
const std::vector<OperationLines> kLines = [] {
  using namespace ras::operations;
  return std::vector<OperationLines>{
      {"enumInstanceNames", &kEnumInstanceNames, false, 188, 203, 211, 216, 0},
      {"enumInstances", &kEnumInstances, false, 323, 338, 346, 351, 0},
      {"getInstance", &kGetInstance, false, 452, 467, 475, 479, 0},
      {"createInstance", &kCreateInstance, true, 567, 582, 590, 595, 0},
      {"deleteInstance", &kDeleteInstance, true, 676, 691, 699, 704, 0},
      {"modifyInstance", &kModifyInstance, true, 797, 812, 820, 825, 0},
      {"invokeMethod", &kInvokeMethod, false, 906, 925, 933, 936, 910},
      {"associators", &kAssociators, false, 972, 987, 995, 1000, 0},
      {"associatorNames", &kAssociatorNames, false, 1031, 1046, 1054, 1059, 0},
      {"references", &kReferences, false, 1092, 1107, 1115, 1120, 0},
      {"referenceNames", &kReferenceNames, false, 1148, 1163, 1171, 1176, 0}};
}();
bool isAssociation(const OperationLines& op) {
  return op.readWriteError > 950;
}

// Calls `operation` on the dispatcher. Instance and method operations name `cls` with the
// call-in settings' key; association operations name it as the association class.
void request(const std::string& operation, Zeph_RASProvider& p, const TestEnvRef& env,
             const String& cls) {
  CIMObjectPath path(CIMName(cls), kNs);
  CIMInstance instance(cls.c_str());
  path.setKeyValue("InstanceID", CIMValue(String(kCallIn)));
  instance.setProperty("InstanceID", CIMValue(String(kCallIn)));
  CIMObjectPathArray paths;
  CIMObjectPathArrayBuilder names(paths);
  CIMInstanceArray instances;
  CIMInstanceArrayBuilder objects(instances);
  CIMParamValueArray out;
  const CIMObjectPath source(CIMName("Zeph_DialOutSettingData"), kNs);
  if (operation == "enumInstanceNames") p.enumInstanceNames(env, kNs, cls, names, kNoClass);
  if (operation == "enumInstances")
    p.enumInstances(env, kNs, cls, objects, WBEMFlags::E_NOT_LOCAL_ONLY, WBEMFlags::E_DEEP,
                    E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass, kNoClass);
  if (operation == "getInstance") fetch(p, path, env);
  if (operation == "createInstance") p.createInstance(env, kNs, instance);
  if (operation == "deleteInstance") p.deleteInstance(env, kNs, path);
  if (operation == "modifyInstance")
    p.modifyInstance(env, kNs, instance, instance, E_EXCLUDE_QUALIFIERS, 0, kNoClass);
  if (operation == "invokeMethod") p.invokeMethod(env, kNs, path, "ConnectLink", {}, out);
  if (operation == "associators")
    p.associators(env, objects, kNs, source, cls, "", "", "", E_EXCLUDE_QUALIFIERS,
                  E_EXCLUDE_CLASS_ORIGIN, 0);
  if (operation == "associatorNames") p.associatorNames(env, names, kNs, source, cls, "", "", "");
  if (operation == "references")
    p.references(env, objects, kNs, source, cls, "", E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN,
                 0);
  if (operation == "referenceNames") p.referenceNames(env, names, kNs, source, cls, "");
}

// What escapes a per-class provider. A lookup failure is neither configuration error, so it is
// reported as an unknown std::exception.
enum class Escape { ReadError, WriteError, NoInstance, StdException, UnknownThrow };
constexpr Escape kEscapes[] = {Escape::ReadError, Escape::WriteError, Escape::NoInstance,
                               Escape::StdException, Escape::UnknownThrow};
void raise(Escape escape) {
  if (escape == Escape::ReadError) throw CFG_ReadError();
  if (escape == Escape::WriteError) throw CFG_WriteError();
  if (escape == Escape::NoInstance) throw CFG_NoInstance();
  if (escape == Escape::StdException) throw std::runtime_error("disk on fire");
  throw 42;
}

// Runs `call` with a fresh environment: the failure it raises for `escape`, and its message,
// if any, logged once to that environment as an error.
void expectHandled(const OperationLines& op, Escape escape,
                   const std::function<void(const TestEnvRef&)>& call) {
  const std::string tail =
      std::string(" while performing ") + op.name + " operation on " + kCallInClass + "\n";
  CimFailure expected{CIMException::FAILED, kDispatcher, op.readWriteError, std::string()};
  if (escape == Escape::WriteError && op.invokeWriteError) expected.line = op.invokeWriteError;
  if ((escape == Escape::ReadError && op.writes) ||
      (escape == Escape::WriteError && !op.writes && !op.invokeWriteError) ||
      escape == Escape::NoInstance || escape == Escape::StdException) {
    expected.line = op.stdException;
    expected.message = "Unknown std::exception caught in Zeph_RASProvider\n" + tail +
                       (escape == Escape::StdException ? "disk on fire\n" : "std::exception\n");
  }
  if (escape == Escape::UnknownThrow) {
    expected = {CIMException::FAILED, kDispatcher, op.unknownThrow,
                "Unknown throw caught in Zeph_RASProvider\n" + tail};
  }
  const TestEnvRef env = TestEnvironment::make();
  const std::string label = op.name + std::string(" escape ") + std::to_string(int(escape));
  EXPECT_EQ(cimFailureOf([&] { call(env); }), expected) << label;
  std::vector<std::string> logged;
  for (const LogLine& line : env->logged()) logged.push_back(line.category + "|" + line.text);
  EXPECT_EQ(logged, expected.message->empty() ? Names{} : Names{"ERROR|" + *expected.message})
      << label;
}

// Call-in settings whose change statuses a test scripts, recording the setters it ran.
struct CallInScript {
  CallInScript(int start = 0, int end = 0, std::map<std::string, int> setters = {})
      : start(start), end(end), setterStatus(std::move(setters)) {}
  int start, end, keyStatus = 0;
  std::map<std::string, int> setterStatus;
  Names applied;
  std::function<void()> hook;  // run by the key getter, startChange and the manager
} script;
class ScriptedCallIn : public Zeph_CallInSettingData {
 public:
  using Zeph_CallInSettingData::Zeph_CallInSettingData;
  int startChange() override { return hook(), script.start; }
  static void hook() {
    if (script.hook) script.hook();
  }
  int endChange() override { return script.end; }
  int getInstanceID(std::string& value, ras::Qualifiers& qualifiers) const override {
    Zeph_CallInSettingData::getInstanceID(value, qualifiers);
    return hook(), script.keyStatus;
  }
  int getRingsBeforeAnswer(unsigned short& value, ras::Qualifiers& qualifiers) const override {
    value = 4;
    ShowWarningMessage(qualifiers);
    return ras::kStatusOk;
  }
  int getAutoDisableFlag(bool& value, ras::Qualifiers&) const override {
    return value = true, ras::kStatusOk;
  }
  int setLineToAnswer(unsigned short) override { return record("LineToAnswer"); }
  int setRingsBeforeAnswer(unsigned short) override { return record("RingsBeforeAnswer"); }
  static int record(const std::string& property) {
    script.applied.push_back(property);
    return script.setterStatus[property];
  }
};
class ScriptedCallInManager
    : public ras::ImplInstanceManager<Zeph_CallInSettingDataInstanceManager, ScriptedCallIn> {
 public:
  int init() override { return new ScriptedCallIn(kCallIn), ras::kStatusOk; }
  Zeph_CallInSettingData* create(const KeyValues& keys) override {
    return ScriptedCallIn::hook(), ImplInstanceManager::create(keys);
  }
  void destroy(Zeph_CallInSettingData* object) override {
    ScriptedCallIn::hook();
    ImplInstanceManager::destroy(object);
  }
};
// Installs a fresh scripted manager for its lifetime.
struct ScriptedCallInInstaller {
  ScriptedCallInInstaller() {
    script = CallInScript();
    Zeph_CallInSettingData::SetInstanceManager(&manager);
  }
  ~ScriptedCallInInstaller() {
    script = CallInScript();
    for (manager.startIteration(); manager.hasNext();) delete manager.next();
    Zeph_CallInSettingData::ClearInstanceManager();
  }
  ScriptedCallInManager manager;
};

template <class... Provider>
struct ManagersOf {
  static std::vector<const void*> get() {
    return {static_cast<const void*>(Provider::W::getInstanceManager())...};
  }
};

class DispatcherTest : public ::testing::Test {
 protected:
  IntrusiveReference<Zeph_RASProvider> dispatcher_ = new Zeph_RASProvider;
};

// Loaded and unloaded as a CIMOM does (at shutdown and on SIGHUP): the "ModemStatus"
// subscription that initialize starts (a platform library thread) is replaced by a second
// initialize and ends with the library, or that thread calls into unmapped code.
TEST(ModuleLibrary, UnloadingEndsTheModemStatusSubscription) {
  // The installed managers are never freed; the test is about the thread.
  if (__lsan_disable != nullptr) __lsan_disable();
  const std::size_t before = threadCount();
  void* library = dlopen(ZEPH_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  const auto version = reinterpret_cast<const char* (*)()>(dlsym(library, "getOWVersion"));
  const auto factory =
      reinterpret_cast<CppProviderBaseIFC* (*)()>(dlsym(library, "createProviderZeph_RASProvider"));
  ASSERT_TRUE(version && factory);
  EXPECT_STREQ(version(), "3.0.3");
  IntrusiveReference<CppProviderBaseIFC> provider(factory());
  EXPECT_TRUE(provider->getInstanceProvider() && provider->getMethodProvider() &&
              provider->getAssociatorProvider());
  provider->initialize(TestEnvironment::make());
  provider->initialize(TestEnvironment::make());
  EXPECT_EQ(threadCountSettlingAt(before + 1), before + 1);
  provider = 0;
  ASSERT_EQ(dlclose(library), 0);
  EXPECT_EQ(threadCountSettlingAt(before), before);
  if (__lsan_enable != nullptr) __lsan_enable();
}

// Foreign names (class names match exactly) are refused with the operation's line and no
// message; the module's classes reach their providers.
TEST_F(DispatcherTest, ClassSelection) {
  for (const OperationLines& op : kLines) {
    Names foreign = {"zeph_callinsettingdata", "Zeph_CallInSettingDataX", ""};
    if (isAssociation(op)) foreign.insert(foreign.end(), {kCallInClass, "zeph_dialoutroutes"});
    for (const std::string& name : foreign) {
      const TestEnvRef env = TestEnvironment::make();
      EXPECT_EQ(cimFailureOf([&] { request(op.name, *dispatcher_, env, name.c_str()); }),
                (CimFailure{CIMException::INVALID_CLASS, kDispatcher, op.unknownClass, {}}))
          << op.name << " on '" << name << "'";
      EXPECT_TRUE(env->logged().empty()) << op.name;
    }
  }
  const auto codeOf = [&](const char* op, const std::string& cls) {
    return cimFailureOf([&] { request(op, *dispatcher_, TestEnvironment::make(), cls.c_str()); })
        .code;
  };
  for (const std::string& cls : ras::moduleClassNames()) {
    EXPECT_EQ(codeOf("enumInstanceNames", cls), -1) << cls;
    // Only the PPP endpoint has ConnectLink, and the keys name none of its instances.
    EXPECT_EQ(codeOf("invokeMethod", cls), cls == "Zeph_PPPProtocolEndpoint"
                                               ? CIMException::NOT_FOUND
                                               : CIMException::METHOD_NOT_FOUND)
        << cls;
  }
  // The association provider answers: the source path names no InstanceID.
  for (const char* op : {"associators", "associatorNames", "references", "referenceNames"}) {
    EXPECT_EQ(codeOf(op, "Zeph_DialOutRoutes"), CIMException::FAILED) << op;
  }
}

// Every cell of the line table through the handler set; for the instance operations also from
// inside a real per-class provider, logging through the request's environment, not the one
// initialize kept.
TEST_F(DispatcherTest, EveryEscapeMapsToItsLineAndMessage) {
  for (const OperationLines& op : kLines) {
    for (Escape escape : kEscapes) {
      expectHandled(op, escape, [&](const TestEnvRef& env) {
        ras::guarded(env, *op.operation, kCallInClass, [&] { return raise(escape), true; });
      });
    }
  }
  const TestEnvRef initEnv = TestEnvironment::make();
  dispatcher_->initialize(initEnv);
  const std::size_t loggedByInitialize = initEnv->logged().size();
  ScriptedCallInInstaller installed;
  for (const OperationLines& op : kLines) {
    if (isAssociation(op) || op.invokeWriteError != 0) continue;
    for (Escape escape : kEscapes) {
      script.hook = [escape] { raise(escape); };
      expectHandled(op, escape, [&](const TestEnvRef& env) {
        request(op.name, *dispatcher_, env, kCallInClass);
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
  for (std::size_t i = 0; i < after.size(); ++i) EXPECT_NE(after[i], before[i]) << i;
  dispatcher_->cleanup();
}

// During a request `hdl` is that request's own CIMOM handle, and nothing outside one; requests
// from several threads are served one at a time.
TEST_F(DispatcherTest, HdlIsTheCurrentRequestsHandleAndRequestsRunOneAtATime) {
  dispatcher_->initialize(TestEnvironment::make());
  EXPECT_FALSE(hdl);
  ScriptedCallInInstaller installed;
  std::atomic<int> inside{0}, overlaps{0}, foreignHandles{0};
  thread_local const CIMOMHandleIFC* expected = nullptr;
  script.hook = [&] {
    if (++inside != 1) ++overlaps;
    if (!hdl || hdl.operator->() != expected) ++foreignHandles;
    std::this_thread::yield();
    --inside;
  };
  std::vector<std::thread> clients;
  for (int c = 0; c < 4; ++c) {
    clients.emplace_back([&] {
      for (int i = 0; i < 200; ++i) {
        const TestEnvRef env = TestEnvironment::make();
        expected = env->getCIMOMHandle().getPtr();
        request("getInstance", *dispatcher_, env, kCallInClass);
        if (hdl) ++foreignHandles;
      }
    });
  }
  for (std::thread& c : clients) c.join();
  EXPECT_EQ(overlaps, 0);
  EXPECT_EQ(foreignHandles, 0);
}

class CallInProviderTest : public ::testing::Test {
 protected:
  void TearDown() override {
    ConnectionStatus = DialOutConnectionStatus = false;
    check_key.clear();
  }
  static CIMInstance callIn(const char* id, const Properties& properties) {
    CIMInstance instance = instanceOf("Zeph_CallInSettingData", properties);
    instance.setProperty("InstanceID", CIMValue(String(id)));
    return instance;
  }
  Names listedIDs() {
    Names ids;
    for (const CIMObjectPath& p : names(provider_, "Zeph_CallInSettingData", env_))
      ids.push_back(p.getKeyValue("InstanceID").toString().c_str());
    return ids;
  }

  TestEnvRef env_ = TestEnvironment::make();
  ScriptedCallInInstaller installed_;
  Zeph_CallInSettingDataProvider provider_;
};

constexpr char kCallInSource[] = "../src/Zeph_CallInSettingDataProvider";
CimFailure failed(int line, std::string text, int code = CIMException::FAILED) {
  return {code, kCallInSource, line, text};
}
CimFailure refused(int line, std::string text) {
  return failed(line, text, CIMException::INVALID_PARAMETER);
}
CIMValue u16(unsigned short v) {
  return CIMValue(UInt16(v));
}

TEST_F(CallInProviderTest, ModifySequenceAppliesChecksAndReportsStatuses) {
  const std::string changeFailed = "Could not make the requested change.\n";
  const std::string invalid =
      "The value of $prop.getName() is invalid.\n"
      "#CFG_000_0000,MOF_Props_Zeph_CallInSettingData_$prop.getName()#";
  const std::string valuesInvalid =
      "One or more of the values specified for the Zeph_CallInSettingData was invalid.\n"
      "#CFG_000_0001#";
  const std::string rings = "The value of RingsBeforeAnswer must be ";
  const std::string above = rings +
                            "<= 20\n#CFG_000_0003,MOF_Props_Zeph_CallInSettingData_"
                            "RingsBeforeAnswer,20#";
  const std::string below = rings +
                            ">= 1\n#CFG_000_0002,MOF_Props_Zeph_CallInSettingData_"
                            "RingsBeforeAnswer,1#";
  const Properties line{{"LineToAnswer", u16(2)}};
  const Names lineSet{"LineToAnswer"}, ringsSet{"RingsBeforeAnswer"};
  const struct {
    Properties properties;
    CallInScript script;  // statuses of startChange, endChange and the setters
    CimFailure expected;
    Names applied;
  } cases[] = {
      {line, {301}, failed(299, changeFailed + "#CFG_000_0001#"), {}},
      {line, {302}, failed(299, changeFailed + "#CFG_000_0001#"), {}},
      {line, {5}, failed(299, changeFailed + "#RAS_MODEM_5#"), {}},
      {line, {0, 0, {{"LineToAnswer", 301}}}, refused(382, invalid), lineSet},
      {line, {0, 0, {{"LineToAnswer", 7}}}, failed(388, "#RAS_MODEM_7#"), lineSet},
      {line, {0, 0, {{"LineToAnswer", 302}}}, failed(388, "#RAS_MODEM_302#"), lineSet},
      {line, {0, 302}, refused(402, valuesInvalid), lineSet},
      {line, {0, 301}, refused(402, valuesInvalid), lineSet},
      {line, {0, 9}, failed(409, "#RAS_MODEM_9#"), lineSet},
      // A refused value or a failed setter stops the walk, in the instance's order.
      {{{"LineToAnswer", u16(2)}, {"RingsBeforeAnswer", u16(21)}, {"AutoDisableTimer", u16(5)}},
       {},
       refused(334, above),
       lineSet},
      {{{"RingsBeforeAnswer", u16(0)}}, {}, refused(342, below), {}},
      {{{"RingsBeforeAnswer", u16(20)}}, {}, {}, ringsSet},
      {{{"RingsBeforeAnswer", u16(1)}}, {}, {}, ringsSet},
      {{{"RingsBeforeAnswer", u16(5)}, {"LineToAnswer", u16(1)}},
       {0, 0, {{"RingsBeforeAnswer", 7}}},
       failed(388, "#RAS_MODEM_7#"),
       ringsSet},
      // Read-only, unknown, miscased and null properties are skipped.
      {{{"ElementName", CIMValue(String("x"))},
        {"linetoanswer", u16(1)},
        {"Bogus", u16(1)},
        {"AutoDisableTimer", CIMValue(CIMNULL)}},
       {},
       {},
       {}},
  };
  for (const auto& c : cases) {
    script = c.script;
    EXPECT_EQ(modify(provider_, callIn(kCallIn, c.properties), env_), c.expected) << c.expected;
    EXPECT_EQ(script.applied, c.applied) << c.expected;
  }
}

TEST_F(CallInProviderTest, LookupsFailWithNotFoundAndNoMessage) {
  const auto notFound = [](int line) {
    return CimFailure{CIMException::NOT_FOUND, kCallInSource, line, std::nullopt};
  };
  const auto getFailure = [&](const CIMObjectPath& path) {
    return cimFailureOf([&] { fetch(provider_, path, env_); });
  };
  CIMPropertyArray nullKey;
  nullKey.push_back(CIMProperty("InstanceID"));
  CIMObjectPath other(CIMName("Zeph_CallInSettingData"), kNs);
  EXPECT_EQ(getFailure(other), notFound(540));
  other.setKeyValue("InstanceID", CIMValue(String("Velmar:Other")));
  EXPECT_EQ(getFailure(other), notFound(559));
  EXPECT_EQ(getFailure(CIMObjectPath(CIMName("Zeph_CallInSettingData"), nullKey)), notFound(545));
  EXPECT_EQ(modify(provider_, CIMInstance("Zeph_CallInSettingData"), env_), notFound(571));
  CIMInstance nullID = callIn("", {});
  nullID.setProperty("InstanceID", CIMValue(CIMNULL));
  EXPECT_EQ(modify(provider_, nullID, env_), notFound(576));
  EXPECT_EQ(modify(provider_, callIn("Velmar:Other", {}), env_), notFound(590));
  script.keyStatus = ras::kStatusNotProvided;
  EXPECT_EQ(cimFailureOf([&] { listedIDs(); }), notFound(527));
}

// getInstance fills the properties whose getters succeed, with their warnings, which follow the
// session flags of the last read endpoint.
TEST_F(CallInProviderTest, GetInstanceFillsSucceedingGettersWithTheirWarnings) {
  const std::string in =
      "Dial-In Session is in Progress.Change will take effect for Next Dial-In Session";
  const std::string out =
      "Dial-Out Session is in Progress.Change will take effect for Next Dial-Out Session";
  const struct {
    bool dialIn, dialOut;
    const char* key;
    Names warnings;
  } rows[] = {{true, false, "DialOutEndpoint", {}},
              {true, true, "DialInEndpoint", {in}},
              {true, true, "DialOutEndpoint", {out}},
              {false, true, "DialInEndpoint", {}},
              {true, true, "", {}}};
  CIMObjectPath path(CIMName("Zeph_CallInSettingData"), kNs);
  path.setKeyValue("InstanceID", CIMValue(String(kCallIn)));
  for (const auto& row : rows) {
    ConnectionStatus = row.dialIn;
    DialOutConnectionStatus = row.dialOut;
    check_key = row.key;
    const CIMInstance instance = fetch(provider_, path, env_);
    Names properties, warnings;
    for (const CIMProperty& p : instance.getProperties()) properties.push_back(p.getName().c_str());
    EXPECT_EQ(properties, (Names{"InstanceID", "RingsBeforeAnswer", "AutoDisableFlag"}));
    EXPECT_TRUE(instance.getProperty("InstanceID").getQualifiers().empty());
    for (const CIMQualifier& q : instance.getProperty("RingsBeforeAnswer").getQualifiers()) {
      EXPECT_EQ(q.getName(), "ImpactWarning");
      warnings.push_back(q.getValue().toString().c_str());
    }
    EXPECT_EQ(warnings, row.warnings) << row.key;
  }
}

TEST_F(CallInProviderTest, CreateListsTheNewObjectAndRollsBackAFailedModify) {
  const auto create = [&](const char* id, unsigned short rings) {
    return cimFailureOf([&] {
      const CIMObjectPath path =
          provider_.createInstance(env_, kNs, callIn(id, {{"RingsBeforeAnswer", u16(rings)}}));
      EXPECT_EQ(path.getKeyValue("InstanceID"), CIMValue(String(id)));
      EXPECT_EQ(path.getClassName(), "Zeph_CallInSettingData");
    });
  };
  EXPECT_EQ(create("Velmar:Added", 3), CimFailure{});
  EXPECT_EQ(create("Velmar:Refused", 21).line, 334);
  // Under a key that is taken, the new object replaces the old one, which is freed.
  EXPECT_EQ(create(kCallIn, 4), CimFailure{});
  EXPECT_EQ(listedIDs(), (Names{"Velmar:Added", kCallIn}));
  CIMObjectPath added(CIMName("Zeph_CallInSettingData"), kNs);
  added.setKeyValue("InstanceID", CIMValue(String("Velmar:Added")));
  provider_.deleteInstance(env_, kNs, added);
  EXPECT_EQ(listedIDs(), (Names{kCallIn}));
}

// Longer than 32 characters is refused before the setter; 32 characters of two-byte UTF-8 pass.
TEST(DialOutSettingsProvider, TextLongerThan32CharactersIsRefusedBeforeTheSetter) {
  Zeph_DialOutSettingData settings("Velmar:Zeph_DialOutSettingData");
  Zeph_DialOutSettingDataProvider provider;
  const std::string source = "../src/Zeph_DialOutSettingDataProvider";
  std::string twoByte;
  for (int i = 0; i < 32; ++i) twoByte += "\xC3\xA9";
  for (const char* property : {"DialOutNumber", "DialOutUserName", "DialOutPassword"}) {
    const auto modifyTo = [&](const std::string& value) {
      return modify(provider,
                    instanceOf("Zeph_DialOutSettingData",
                               {{"InstanceID", CIMValue(String("Velmar:Zeph_DialOutSettingData"))},
                                {property, CIMValue(String(value.c_str()))}}),
                    TestEnvironment::make());
    };
    EXPECT_EQ(
        modifyTo(std::string(33, 'x')),
        (CimFailure{CIMException::INVALID_PARAMETER, source, 334,
                    std::string("The length of ") + property + " must be <= 32\n" +
                        "#CFG_000_0004,MOF_Props_Zeph_DialOutSettingData_" + property + ",32#"}));
    EXPECT_EQ(modifyTo(twoByte), (CimFailure{CIMException::FAILED, source, 388, "#RAS_MODEM_101#"}))
        << property;
  }
}

// The provider template's contract for each of the ten classes: with a class's abstract
// manager nothing is listed or created; a bare wrapper shows only its keys, is found again by
// its path, cannot be deleted, and every writable property reaches the wrapper's default setter.
template <class P>
class ProviderContract : public ::testing::Test {};
using Providers = ras::WithModuleProviders<::testing::Types>;
TYPED_TEST_SUITE(ProviderContract, Providers);

template <class W, std::size_t... I>
std::unique_ptr<W> bareWrapper(std::index_sequence<I...>) {
  return std::make_unique<W>(("key" + std::to_string(I))...);
}

TYPED_TEST(ProviderContract, AbstractManagerAndBareWrapper) {
  using W = typename TypeParam::W;
  using Traits = typename TypeParam::Traits;
  const bool association = std::is_base_of_v<CppAssociatorProviderIFC, TypeParam>;
  const std::string source =
      std::string("../src/") + Traits::kClass + (association ? "InstProvider" : "Provider");
  const TestEnvRef env = TestEnvironment::make();
  TypeParam provider;
  typename TypeParam::M abstractManager;
  if constexpr (std::is_same_v<typename Traits::ImplManager, typename Traits::Manager>) {
    provider.initialize(env);
  } else {
    W::SetInstanceManager(&abstractManager);
  }
  EXPECT_EQ(names(provider, Traits::kClass, env).size(), 0u);
  EXPECT_EQ(cimFailureOf([&] { provider.createInstance(env, kNs, CIMInstance("Anything")); }),
            (association ? CimFailure{CIMException::INVALID_PARAMETER, source, 0,
                                      "Invalid reference objectPath"}
                         : CimFailure{CIMException::NOT_SUPPORTED, source, 206,
                                      "The system cannot create the instance specified.\n"
                                      "#CFG_000_0005#"}));
  CIMParamValueArray out;
  EXPECT_EQ(cimFailureOf(
                [&] { provider.invokeMethod(env, kNs, CIMObjectPath(), "NoSuchMethod", {}, out); }),
            (CimFailure{CIMException::METHOD_NOT_FOUND, source, 432, std::nullopt}));

  const auto wrapper = bareWrapper<W>(std::make_index_sequence<W::kKeyCount>{});
  const CIMObjectPathArray paths = names(provider, Traits::kClass, env);
  ASSERT_EQ(paths.size(), 1u);
  const CIMInstance instance = fetch(provider, paths[0], env);
  Names keys;
  for (const auto& row : Traits::properties()) {
    if (row.role != ras::Role::Key) continue;
    keys.push_back(row.name);
    EXPECT_EQ(instance.getPropertyValue(row.name), paths[0].getKeyValue(row.name)) << row.name;
    EXPECT_TRUE(instance.getPropertyValue(row.name)) << row.name;
  }
  EXPECT_EQ(instance.getProperties().size(), keys.size());
  EXPECT_EQ(keys.size(), W::kKeyCount);
  EXPECT_EQ(cimFailureOf([&] { provider.deleteInstance(env, kNs, paths[0]); }),
            (CimFailure{CIMException::NOT_SUPPORTED, source, 253,
                        "The system cannot delete the instance specified.\n#CFG_000_0006#"}));
  for (const auto& row : Traits::properties()) {
    if (row.role != ras::Role::Writable) continue;
    CIMInstance modified(paths[0].getClassName().c_str());
    for (const CIMProperty& key : paths[0].getKeys()) modified.setProperty(key);
    using ras::CimType;
    modified.setProperty(row.name, row.type == CimType::UInt16    ? CIMValue(UInt16(5))
                                   : row.type == CimType::UInt8   ? CIMValue(UInt8(1))
                                   : row.type == CimType::Boolean ? CIMValue(true)
                                                                  : CIMValue(String("x")));
    EXPECT_EQ(modify(provider, modified, env),
              (CimFailure{CIMException::FAILED, source, 388, "#RAS_MODEM_101#"}))
        << row.name;
  }
  if (W::getInstanceManager() == &abstractManager) W::ClearInstanceManager();
}

}  // namespace
