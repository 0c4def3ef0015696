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
using CimCode = CIMException::ErrNoType;

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
    callInScript() = CallInScript();
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

struct ModifyCase {
  const char* title;
  Properties properties;
  CallInScript script;
  CimFailure expected;
  std::vector<std::string> applied;
};

TEST_F(CallInProviderTest, ModifySequenceAppliesChecksAndReportsStatuses) {
  const Properties line{{"LineToAnswer", u16(2)}};
  const std::string changeFailed = "Could not make the requested change.\n";
  const std::string invalid =
      "The value of $prop.getName() is invalid.\n"
      "#CFG_000_0000,MOF_Props_Zeph_CallInSettingData_$prop.getName()#";
  const std::string valuesInvalid =
      "One or more of the values specified for the Zeph_CallInSettingData was invalid.\n"
      "#CFG_000_0001#";
  const CimCode failed = CIMException::FAILED, badParam = CIMException::INVALID_PARAMETER;
  const std::vector<ModifyCase> cases = {
      {"start 301",
       line,
       scripted(301),
       {failed, kSource, 299, changeFailed + "#CFG_000_0001#"},
       {}},
      {"start 302",
       line,
       scripted(302),
       {failed, kSource, 299, changeFailed + "#CFG_000_0001#"},
       {}},
      {"start 5", line, scripted(5), {failed, kSource, 299, changeFailed + "#RAS_MODEM_5#"}, {}},
      {"setter 301",
       line,
       scripted(0, 0, {{"LineToAnswer", 301}}),
       {badParam, kSource, 382, invalid},
       {"LineToAnswer"}},
      {"setter 7",
       line,
       scripted(0, 0, {{"LineToAnswer", 7}}),
       {failed, kSource, 388, "#RAS_MODEM_7#"},
       {"LineToAnswer"}},
      {"setter 302",
       line,
       scripted(0, 0, {{"LineToAnswer", 302}}),
       {failed, kSource, 388, "#RAS_MODEM_302#"},
       {"LineToAnswer"}},
      {"end 302",
       line,
       scripted(0, 302),
       {badParam, kSource, 402, valuesInvalid},
       {"LineToAnswer"}},
      {"end 301",
       line,
       scripted(0, 301),
       {badParam, kSource, 402, valuesInvalid},
       {"LineToAnswer"}},
      {"end 9", line, scripted(0, 9), {failed, kSource, 409, "#RAS_MODEM_9#"}, {"LineToAnswer"}},
      {"rings above 20 stops before later properties",
       {{"LineToAnswer", u16(2)}, {"RingsBeforeAnswer", u16(21)}, {"AutoDisableTimer", u16(5)}},
       scripted(0),
       {badParam, kSource, 334,
        "The value of RingsBeforeAnswer must be <= 20\n"
        "#CFG_000_0003,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,20#"},
       {"LineToAnswer"}},
      {"rings below 1",
       {{"RingsBeforeAnswer", u16(0)}},
       scripted(0),
       {badParam, kSource, 342,
        "The value of RingsBeforeAnswer must be >= 1\n"
        "#CFG_000_0002,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,1#"},
       {}},
      {"rings 20", {{"RingsBeforeAnswer", u16(20)}}, scripted(0), kSuccess, {"RingsBeforeAnswer"}},
      {"rings 1", {{"RingsBeforeAnswer", u16(1)}}, scripted(0), kSuccess, {"RingsBeforeAnswer"}},
      {"setter failure stops the walk",
       {{"AutoDisableFlag", CIMValue(true)},
        {"RingsBeforeAnswer", u16(5)},
        {"LineToAnswer", u16(1)}},
       scripted(0, 0, {{"RingsBeforeAnswer", 7}}),
       {failed, kSource, 388, "#RAS_MODEM_7#"},
       {"AutoDisableFlag", "RingsBeforeAnswer"}},
      {"read-only, unknown, miscased and null properties are skipped",
       {{"ElementName", CIMValue(String("x"))},
        {"DNNumber", CIMValue(String("1"))},
        {"linetoanswer", u16(1)},
        {"Bogus", u16(1)},
        {"AutoDisableTimer", CIMValue(CIMNULL)}},
       scripted(0),
       kSuccess,
       {}},
  };
  for (const ModifyCase& c : cases) {
    callInScript() = c.script;
    EXPECT_EQ(modify(callIn(kInstanceID, c.properties)), c.expected) << c.title;
    EXPECT_EQ(callInScript().applied, c.applied) << c.title;
  }
}

TEST_F(CallInProviderTest, LookupsFailWithNotFoundAndNoMessage) {
  const auto get = [&](const CIMObjectPath& path) {
    return cimFailureOf([&] {
      provider_.getInstance(env_, kNs, path, WBEMFlags::E_NOT_LOCAL_ONLY,
                            WBEMFlags::E_EXCLUDE_QUALIFIERS, WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0,
                            kNoClass);
    });
  };
  CIMObjectPath other(CIMName("Zeph_CallInSettingData"), kNs);
  other.setKeyValue("InstanceID", CIMValue(String("Velmar:Other")));
  CIMPropertyArray nullKey;
  nullKey.push_back(CIMProperty("InstanceID"));
  const CimCode notFound = CIMException::NOT_FOUND;
  EXPECT_EQ(get(other), (CimFailure{notFound, kSource, 559, std::nullopt}));
  EXPECT_EQ(get(CIMObjectPath(CIMName("Zeph_CallInSettingData"), kNs)),
            (CimFailure{notFound, kSource, 540, std::nullopt}));
  EXPECT_EQ(get(CIMObjectPath(CIMName("Zeph_CallInSettingData"), nullKey)),
            (CimFailure{notFound, kSource, 545, std::nullopt}));

  CIMInstance noKey("Zeph_CallInSettingData"), nullID = callIn("", {});
  nullID.setProperty("InstanceID", CIMValue(CIMNULL));
  EXPECT_EQ(modify(noKey), (CimFailure{notFound, kSource, 571, std::nullopt}));
  EXPECT_EQ(modify(nullID), (CimFailure{notFound, kSource, 576, std::nullopt}));
  EXPECT_EQ(modify(callIn("Velmar:Other", {})), (CimFailure{notFound, kSource, 590, std::nullopt}));

  callInScript().keyStatus = ras::kStatusNotProvided;
  EXPECT_EQ(cimFailureOf([&] { listedIDs(); }), (CimFailure{notFound, kSource, 527, std::nullopt}));
}

TEST_F(CallInProviderTest, GetInstanceFillsSucceedingGettersWithTheirWarnings) {
  ConnectionStatus = true;
  check_key = "DialInEndpoint";
  CIMObjectPath path(CIMName("Zeph_CallInSettingData"), kNs);
  path.setKeyValue("InstanceID", CIMValue(String(kInstanceID)));
  const CIMInstance instance = provider_.getInstance(
      env_, kNs, path, WBEMFlags::E_NOT_LOCAL_ONLY, WBEMFlags::E_EXCLUDE_QUALIFIERS,
      WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0, kNoClass);
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

  CIMObjectPath added(CIMName("Zeph_CallInSettingData"), kNs);
  added.setKeyValue("InstanceID", CIMValue(String("Velmar:Added")));
  provider_.deleteInstance(env_, kNs, added);
  EXPECT_EQ(listedIDs(), (std::vector<std::string>{kInstanceID}));
}

TEST_F(CallInProviderTest, DefaultManagerRefusesCreateAndDeleteAndMethodsAreUnknown) {
  Zeph_CallInSettingData::ClearInstanceManager();
  Zeph_CallInSettingData fixed(kInstanceID);
  const CimCode notSupported = CIMException::NOT_SUPPORTED;
  EXPECT_EQ(cimFailureOf([&] { provider_.createInstance(env_, kNs, callIn("Velmar:New", {})); }),
            (CimFailure{notSupported, kSource, 206,
                        "The system cannot create the instance specified.\n#CFG_000_0005#"}));
  CIMObjectPath path(CIMName("Zeph_CallInSettingData"), kNs);
  path.setKeyValue("InstanceID", CIMValue(String(kInstanceID)));
  EXPECT_EQ(cimFailureOf([&] { provider_.deleteInstance(env_, kNs, path); }),
            (CimFailure{notSupported, kSource, 253,
                        "The system cannot delete the instance specified.\n#CFG_000_0006#"}));
  CIMParamValueArray out;
  EXPECT_EQ(cimFailureOf([&] {
              provider_.invokeMethod(env_, kNs, path, "ConnectLink", CIMParamValueArray(), out);
            }),
            (CimFailure{CIMException::METHOD_NOT_FOUND, kSource, 432, std::nullopt}));
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
