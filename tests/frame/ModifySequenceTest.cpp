// The provider template on call-in settings with a scripted implementation: the change
// sequence with its checks and messages, create with roll-back, delete, lookups, and the
// length checks of the dial-out settings.
#include <gtest/gtest.h>

#include <utility>

#include "CimFailure.h"
#include "OW_CIMClass.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_ResultHandlers.hpp"
#include "ScriptedCallIn.h"
#include "TestEnvironment.h"
#include "Zeph_CallInSettingDataProvider.h"
#include "Zeph_DialOutSettingDataProvider.h"
#include "Zeph_ModuleGlobals.h"

namespace {

using namespace OpenWBEM;

constexpr char kSource[] = "../src/Zeph_CallInSettingDataProvider";
constexpr char kInstanceID[] = "Velmar:Zeph_CallInSettingData";
const String kNs("root/cimv2");
const CIMClass kNoClass(CIMNULL);
const CimFailure kSuccess{};

using Properties = std::vector<std::pair<const char*, CIMValue>>;

CIMInstance callIn(const std::string& id, const Properties& properties) {
  CIMInstance instance("Zeph_CallInSettingData");
  instance.setProperty("InstanceID", CIMValue(String(id.c_str())));
  for (const auto& [name, value] : properties) instance.setProperty(name, value);
  return instance;
}

CIMValue u16(unsigned short v) {
  return CIMValue(UInt16(v));
}

class CallInProviderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    callInScript = CallInScript();
    Zeph_CallInSettingData::SetInstanceManager(&manager_);
  }
  void TearDown() override {
    for (manager_.startIteration(); manager_.hasNext();) delete manager_.next();
    Zeph_CallInSettingData::ClearInstanceManager();
    ConnectionStatus = false;
    check_key.clear();
  }

  CimFailure modify(const CIMInstance& instance) {
    return cimFailureOf([&] {
      provider_.modifyInstance(env_, kNs, instance, instance, WBEMFlags::E_EXCLUDE_QUALIFIERS, 0,
                               kNoClass);
    });
  }

  static CIMObjectPath pathOf(const char* id) {
    CIMObjectPath path(CIMName("Zeph_CallInSettingData"), kNs);
    if (id != nullptr) path.setKeyValue("InstanceID", CIMValue(String(id)));
    return path;
  }

  CIMInstance get(const CIMObjectPath& path) {
    return provider_.getInstance(env_, kNs, path, WBEMFlags::E_NOT_LOCAL_ONLY,
                                 WBEMFlags::E_EXCLUDE_QUALIFIERS, WBEMFlags::E_EXCLUDE_CLASS_ORIGIN,
                                 0, kNoClass);
  }

  std::vector<std::string> listedIDs() {
    CIMObjectPathArray paths;
    CIMObjectPathArrayBuilder result(paths);
    provider_.enumInstanceNames(env_, kNs, "Zeph_CallInSettingData", result, kNoClass);
    std::vector<std::string> ids;
    for (const CIMObjectPath& path : paths)
      ids.push_back(path.getKeyValue("InstanceID").toString().c_str());
    return ids;
  }

  TestEnvRef env_ = TestEnvironment::make();
  ScriptedCallInManager manager_;
  Zeph_CallInSettingDataProvider provider_;
};

const auto failed = [](int line, std::string text) {
  return CimFailure{CIMException::FAILED, kSource, line, text};
};
const auto badParameter = [](int line, std::string text) {
  return CimFailure{CIMException::INVALID_PARAMETER, kSource, line, text};
};
const auto notFound = [](int line) {
  return CimFailure{CIMException::NOT_FOUND, kSource, line, std::nullopt};
};

// The texts of the change sequence's refusals.
const std::string kChangeFailed = "Could not make the requested change.\n";
const std::string kInvalid =
    "The value of $prop.getName() is invalid.\n"
    "#CFG_000_0000,MOF_Props_Zeph_CallInSettingData_$prop.getName()#";
const std::string kValuesInvalid =
    "One or more of the values specified for the Zeph_CallInSettingData was invalid.\n"
    "#CFG_000_0001#";
const std::string kRingsAbove =
    "The value of RingsBeforeAnswer must be <= 20\n"
    "#CFG_000_0003,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,20#";
const std::string kRingsBelow =
    "The value of RingsBeforeAnswer must be >= 1\n"
    "#CFG_000_0002,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,1#";

struct ModifyCase {
  const char* title;
  Properties properties;
  CallInScript script;  // statuses of startChange, endChange and the setters
  CimFailure expected;
  std::vector<std::string> applied;
};

TEST_F(CallInProviderTest, ModifySequenceAppliesChecksAndReportsStatuses) {
  const Properties line{{"LineToAnswer", u16(2)}};
  const std::vector<std::string> lineSet{"LineToAnswer"};
  const Properties ringsThenTimer{
      {"LineToAnswer", u16(2)}, {"RingsBeforeAnswer", u16(21)}, {"AutoDisableTimer", u16(5)}};
  const Properties flagRingsLine{
      {"AutoDisableFlag", CIMValue(true)}, {"RingsBeforeAnswer", u16(5)}, {"LineToAnswer", u16(1)}};
  const Properties ignored{{"ElementName", CIMValue(String("x"))},
                           {"DNNumber", CIMValue(String("1"))},
                           {"linetoanswer", u16(1)},
                           {"Bogus", u16(1)},
                           {"AutoDisableTimer", CIMValue(CIMNULL)}};
  const auto setter = [](const char* property, int status) {
    return CallInScript(0, 0, {{property, status}});
  };
  const std::vector<ModifyCase> cases = {
      {"start 301", line, {301}, failed(299, kChangeFailed + "#CFG_000_0001#"), {}},
      {"start 302", line, {302}, failed(299, kChangeFailed + "#CFG_000_0001#"), {}},
      {"start 5", line, {5}, failed(299, kChangeFailed + "#RAS_MODEM_5#"), {}},
      {"setter 301", line, setter("LineToAnswer", 301), badParameter(382, kInvalid), lineSet},
      {"setter 7", line, setter("LineToAnswer", 7), failed(388, "#RAS_MODEM_7#"), lineSet},
      {"setter 302", line, setter("LineToAnswer", 302), failed(388, "#RAS_MODEM_302#"), lineSet},
      {"end 302", line, {0, 302}, badParameter(402, kValuesInvalid), lineSet},
      {"end 301", line, {0, 301}, badParameter(402, kValuesInvalid), lineSet},
      {"end 9", line, {0, 9}, failed(409, "#RAS_MODEM_9#"), lineSet},
      {"rings above 20 stops the walk",
       ringsThenTimer,
       {},
       badParameter(334, kRingsAbove),
       lineSet},
      {"rings below 1", {{"RingsBeforeAnswer", u16(0)}}, {}, badParameter(342, kRingsBelow), {}},
      {"rings 20", {{"RingsBeforeAnswer", u16(20)}}, {}, kSuccess, {"RingsBeforeAnswer"}},
      {"rings 1", {{"RingsBeforeAnswer", u16(1)}}, {}, kSuccess, {"RingsBeforeAnswer"}},
      {"setter failure stops the walk",
       flagRingsLine,
       setter("RingsBeforeAnswer", 7),
       failed(388, "#RAS_MODEM_7#"),
       {"AutoDisableFlag", "RingsBeforeAnswer"}},
      {"read-only, unknown, miscased and null properties are skipped", ignored, {}, kSuccess, {}},
  };
  for (const ModifyCase& c : cases) {
    callInScript = c.script;
    EXPECT_EQ(modify(callIn(kInstanceID, c.properties)), c.expected) << c.title;
    EXPECT_EQ(callInScript.applied, c.applied) << c.title;
  }
}

TEST_F(CallInProviderTest, LookupsFailWithNotFoundAndNoMessage) {
  const auto getFailure = [&](const CIMObjectPath& path) {
    return cimFailureOf([&] { get(path); });
  };
  CIMPropertyArray nullKey;
  nullKey.push_back(CIMProperty("InstanceID"));
  EXPECT_EQ(getFailure(pathOf("Velmar:Other")), notFound(559));
  EXPECT_EQ(getFailure(pathOf(nullptr)), notFound(540));
  EXPECT_EQ(getFailure(CIMObjectPath(CIMName("Zeph_CallInSettingData"), nullKey)), notFound(545));

  CIMInstance noKey("Zeph_CallInSettingData"), nullID = callIn("", {});
  nullID.setProperty("InstanceID", CIMValue(CIMNULL));
  EXPECT_EQ(modify(noKey), notFound(571));
  EXPECT_EQ(modify(nullID), notFound(576));
  EXPECT_EQ(modify(callIn("Velmar:Other", {})), notFound(590));

  callInScript.keyStatus = ras::kStatusNotProvided;
  EXPECT_EQ(cimFailureOf([&] { listedIDs(); }), notFound(527));
}

TEST_F(CallInProviderTest, GetInstanceFillsSucceedingGettersWithTheirWarnings) {
  ConnectionStatus = true;
  check_key = "DialInEndpoint";
  const CIMInstance instance = get(pathOf(kInstanceID));
  std::vector<std::string> names;
  for (const CIMProperty& property : instance.getProperties())
    names.push_back(property.getName().c_str());
  EXPECT_EQ(names, (std::vector<std::string>{"InstanceID", "ElementName", "LineToAnswer",
                                             "RingsBeforeAnswer", "AutoDisableFlag"}));
  EXPECT_EQ(instance.getPropertyValue("LineToAnswer"), u16(3));
  const CIMQualifierArray warnings = instance.getProperty("RingsBeforeAnswer").getQualifiers();
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_EQ(warnings[0].getName(), "ImpactWarning");
  EXPECT_TRUE(instance.getProperty("LineToAnswer").getQualifiers().empty());
}

TEST_F(CallInProviderTest, CreateListsTheNewObjectAndRollsBackAFailedModify) {
  const auto create = [&](const char* id, const Properties& properties) {
    return cimFailureOf([&] {
      const CIMObjectPath path = provider_.createInstance(env_, kNs, callIn(id, properties));
      EXPECT_EQ(path.getKeyValue("InstanceID"), CIMValue(String(id)));
      EXPECT_EQ(path.getClassName(), "Zeph_CallInSettingData");
    });
  };
  EXPECT_EQ(create("Velmar:Added", {{"RingsBeforeAnswer", u16(3)}}), kSuccess);
  EXPECT_EQ(listedIDs(), (std::vector<std::string>{"Velmar:Added", kInstanceID}));

  const CimFailure refused = create("Velmar:Refused", {{"RingsBeforeAnswer", u16(21)}});
  EXPECT_EQ(refused.line, 334);
  EXPECT_EQ(listedIDs(), (std::vector<std::string>{"Velmar:Added", kInstanceID}));

  // Under a key that is taken, the new object replaces the old one, which is freed (the
  // sanitizer build reports it if it leaks).
  EXPECT_EQ(create(kInstanceID, {{"RingsBeforeAnswer", u16(4)}}), kSuccess);
  EXPECT_EQ(listedIDs(), (std::vector<std::string>{"Velmar:Added", kInstanceID}));

  provider_.deleteInstance(env_, kNs, pathOf("Velmar:Added"));
  EXPECT_EQ(listedIDs(), (std::vector<std::string>{kInstanceID}));
}

TEST(DialOutSettingsProvider, TextLongerThan32CharactersIsRefusedBeforeTheSetter) {
  Zeph_DialOutSettingData settings("Velmar:Zeph_DialOutSettingData");
  Zeph_DialOutSettingDataProvider provider;
  const std::string source = "../src/Zeph_DialOutSettingDataProvider";
  const std::vector<std::pair<const char*, std::string>> rows = {
      {"DialOutNumber", std::string(33, '1')},
      {"DialOutUserName", std::string(33, 'u')},
      {"DialOutPassword", std::string(33, 'p')}};
  for (const auto& [property, tooLong] : rows) {
    const auto modify = [&, name = property](const std::string& value) {
      CIMInstance instance("Zeph_DialOutSettingData");
      instance.setProperty("InstanceID", CIMValue(String("Velmar:Zeph_DialOutSettingData")));
      instance.setProperty(name, CIMValue(String(value.c_str())));
      return cimFailureOf([&] {
        provider.modifyInstance(TestEnvironment::make(), kNs, instance, instance,
                                WBEMFlags::E_EXCLUDE_QUALIFIERS, 0, kNoClass);
      });
    };
    const std::string text = std::string("The length of ") + property + " must be <= 32\n" +
                             "#CFG_000_0004,MOF_Props_Zeph_DialOutSettingData_" + property + ",32#";
    EXPECT_EQ(modify(tooLong), (CimFailure{CIMException::INVALID_PARAMETER, source, 334, text}));
    // 32 characters (64 bytes of UTF-8) pass the check and reach the wrapper's default setter.
    std::string twoByte;
    for (int i = 0; i < 32; ++i) twoByte += "\xC3\xA9";
    EXPECT_EQ(modify(twoByte), (CimFailure{CIMException::FAILED, source, 388, "#RAS_MODEM_101#"}))
        << property;
  }
}

TEST(ImpactWarning, FollowsTheSessionFlagsOfTheLastReadEndpoint) {
  struct Row {
    bool dialIn, dialOut;
    const char* key;
    std::vector<std::string> expected;
  };
  const std::string in =
      "Dial-In Session is in Progress.Change will take effect for Next Dial-In Session";
  const std::string out =
      "Dial-Out Session is in Progress.Change will take effect for Next Dial-Out Session";
  const std::vector<Row> rows = {{true, false, "DialOutEndpoint", {}},
                                 {true, true, "DialInEndpoint", {in}},
                                 {true, true, "DialOutEndpoint", {out}},
                                 {false, true, "DialInEndpoint", {}},
                                 {true, true, "", {}}};
  for (const Row& row : rows) {
    ConnectionStatus = row.dialIn;
    DialOutConnectionStatus = row.dialOut;
    check_key = row.key;
    CIMQualifierArray qualifiers;
    ShowWarningMessage(qualifiers);
    std::vector<std::string> texts;
    for (const CIMQualifier& q : qualifiers) {
      EXPECT_EQ(q.getName(), "ImpactWarning");
      texts.push_back(q.getValue().toString().c_str());
    }
    EXPECT_EQ(texts, row.expected) << row.key;
  }
  ConnectionStatus = DialOutConnectionStatus = false;
  check_key.clear();
}

}  // namespace
