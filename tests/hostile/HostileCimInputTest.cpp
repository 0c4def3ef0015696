// Malformed requests on every class: each is a CIM error with a code that says what was
// wrong, nothing crashes, no file changes and no command runs.
#include <gmock/gmock.h>

#include <functional>

#include "HostileFixture.h"
#include "OW_CIMClass.hpp"
#include "OW_CIMProperty.hpp"
#include "SchemaClasses.h"

namespace {

using OpenWBEM::CIMException;
using OpenWBEM::CIMValue;
using Path = OpenWBEM::CIMObjectPath;

const client::Target* const kTargets[] = {&kCallIn, &kDialOut, &kService,    &kPppOut, &kModemOut,
                                          &kPortIn, &kPoolOut, &kEndpointIn, &kRoute};
const std::string kLong(10 * 1024, '7');

// Ways of spoiling an instance's path: each names no instance.
const std::vector<std::function<void(Path&, const std::string& lastKey)>> kSpoiledKeys = {
    [](Path& p, const std::string&) {
      auto keys = p.getKeys();
      keys.pop_back();
      p.setKeys(keys);
    },
    [](Path& p, const std::string& key) {
      p.setKeyValue(key.c_str(), CIMValue(OpenWBEM::CIMNULL));
    },
    [](Path& p, const std::string&) { p.setKeyValue("Bogus", text("x")); },
    [](Path& p, const std::string& key) { p.setKeyValue(key.c_str(), text("")); },
    [](Path& p, const std::string& key) { p.setKeyValue(key.c_str(), text(kLong)); },
    [](Path& p, const std::string& key) {
      p.setKeyValue(key.c_str(), CIMValue(OpenWBEM::UInt16(1)));
    },
};

// A value of another CIM type than the property's.
CIMValue wronglyTyped(const OpenWBEM::CIMProperty& property) {
  const auto type = property.getDataType().getType();
  if (type == OpenWBEM::CIMDataType::STRING) return CIMValue(OpenWBEM::UInt32(5));
  return text(type == OpenWBEM::CIMDataType::BOOLEAN ? "true" : "5");
}

class HostileCimInput : public HostileTest {
 protected:
  struct Row {
    std::string what;
    std::function<CimFailure()> request;
    int code;  // -1: the request is served and changes nothing
  };

  CimFailure createRoute(const std::vector<Change>& properties) {
    OpenWBEM::CIMInstance instance("Zeph_NextHopIPRoute");
    for (const auto& [name, value] : properties) instance.setProperty(name.c_str(), value);
    return cimFailureOf(
        [&] { call([&](const auto& env) { provider_->createInstance(env, kNs, instance); }); });
  }

  std::vector<Row> rows() {
    std::vector<Row> rows;
    for (const client::Target* target : kTargets) {
      const std::string name = target->className;
      for (const auto& spoil : kSpoiledKeys) {
        rows.push_back({name + " gi with a spoiled key",
                        [=] {
                          Path p = target->path();
                          spoil(p, target->keys.back().first);
                          return getFailure(p);
                        },
                        CIMException::NOT_FOUND});
      }
      rows.push_back({name + " cm unknown", [=] { return invoke(*target, "Reboot").second; },
                      CIMException::METHOD_NOT_FOUND});
      // Unknown and null properties are skipped.
      rows.push_back({name + " mi unknown",
                      [=] {
                        return modify(*target, {{"Reboot", text("now")}});
                      },
                      -1});
      for (const OpenWBEM::CIMProperty& property : schemaClass(name).getAllProperties()) {
        if (!hasQualifier(property, "Write")) continue;
        const std::string prop = property.getName().c_str();
        const auto change = [=](const CIMValue& value) {
          return [=] { return modify(*target, {{prop, value}}); };
        };
        rows.push_back({name + "." + prop + " wrongly typed", change(wronglyTyped(property)),
                        CIMException::INVALID_PARAMETER});
        rows.push_back({name + "." + prop + " array",
                        change(CIMValue(OpenWBEM::StringArray(1, "1"))),
                        CIMException::INVALID_PARAMETER});
        rows.push_back({name + "." + prop + " null", change(CIMValue(OpenWBEM::CIMNULL)), -1});
        if (property.getDataType().getType() == OpenWBEM::CIMDataType::STRING) {
          rows.push_back(
              {name + "." + prop + " 10 KB", change(text(kLong)), CIMException::INVALID_PARAMETER});
        }
      }
    }
    // Route creations without a usable address.
    for (const CIMValue& address : {CIMValue(OpenWBEM::CIMNULL), CIMValue(OpenWBEM::UInt32(10)),
                                    text(""), text(kLong), text("10.1.1.1;reboot")}) {
      rows.push_back({"ci route with address " + client::textOf(address).substr(0, 16),
                      [=] {
                        return createRoute({{"DestinationAddress", address}});
                      },
                      CIMException::FAILED});
    }
    rows.push_back(
        {"ci route without an address", [=] { return createRoute({}); }, CIMException::FAILED});
    // The association named by text keys, by an unknown route or with its ends swapped.
    const CIMValue settings(
        client::settingData("Zeph_DialOutSettingData", "Velmar:Zeph_DialOutSettingData").path());
    const CIMValue route(kRoute.path());
    const CIMValue unknown(client::settingData("Zeph_NextHopIPRoute", "10.9.9.9").path());
    for (const auto& [antecedent, dependent] : std::vector<std::pair<CIMValue, CIMValue>>{
             {text("Zeph_DialOutSettingData"), text("10.1.0.0")},
             {settings, unknown},
             {route, settings}}) {
      rows.push_back({"gi association " + client::textOf(dependent).substr(0, 40),
                      [=] {
                        Path path(OpenWBEM::CIMName("Zeph_DialOutRoutes"), kNs);
                        path.setKeyValue("Antecedent", antecedent);
                        path.setKeyValue("Dependent", dependent);
                        return getFailure(path);
                      },
                      CIMException::NOT_FOUND});
    }
    rows.push_back({"gi of an unknown class",
                    [this] { return getFailure(Path(OpenWBEM::CIMName("Zeph_Bogus"), kNs)); },
                    CIMException::INVALID_CLASS});
    return rows;
  }
};

TEST_F(HostileCimInput, EveryMalformedRequestIsACimErrorThatChangesNothing) {
  const std::vector<Row> all = rows();
  get();  // the account list, so that a user-name index would be taken if it got through
  const auto before = editedFiles();
  for (const Row& row : all) {
    appliance::clearJournal();
    try {
      EXPECT_EQ(row.request().code, row.code) << row.what;
    } catch (const std::exception& e) {
      ADD_FAILURE() << row.what << ": not a CIM error: " << e.what();
    }
    EXPECT_THAT(appliance::journal(), testing::IsEmpty()) << row.what;
    EXPECT_EQ(editedFiles(), before) << row.what;
  }
  EXPECT_GT(all.size(), 60u);
}

}  // namespace
