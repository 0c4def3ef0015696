// Malformed requests on every implemented class: each is a CIM error with a code that says
// what was wrong, nothing crashes, and no file changes and no command runs.
#include <gmock/gmock.h>

#include <functional>

#include "HostileFixture.h"
#include "OW_CIMClass.hpp"
#include "OW_CIMProperty.hpp"
#include "SchemaClasses.h"

namespace {

using OpenWBEM::CIMException;

const client::Target* const kTargets[] = {&kCallIn, &kDialOut, &kService,    &kPppOut, &kModemOut,
                                          &kPortIn, &kPoolOut, &kEndpointIn, &kRoute};

const std::string kLong(10 * 1024, '7');

bool isString(const OpenWBEM::CIMProperty& property) {
  return property.getDataType().getType() == OpenWBEM::CIMDataType::STRING;
}

// A value of another CIM type than the property's.
OpenWBEM::CIMValue wronglyTyped(const OpenWBEM::CIMProperty& property) {
  if (isString(property)) return OpenWBEM::CIMValue(OpenWBEM::UInt32(5));
  return text(property.getDataType().getType() == OpenWBEM::CIMDataType::BOOLEAN ? "true" : "5");
}

class HostileCimInput : public HostileTest {
 protected:
  struct Row {
    std::string what;
    std::function<CimFailure()> request;
    int code;  // -1: the request is served and changes nothing
  };

  std::vector<Row> rowsFor(const client::Target& target) {
    std::vector<Row> rows;
    const std::string name = target.className;
    const auto path = [&target] { return target.path(); };
    rows.push_back({name + " gi without a key",
                    [=] {
                      auto p = path();
                      auto keys = p.getKeys();
                      keys.pop_back();
                      p.setKeys(keys);
                      return getFailure(p);
                    },
                    CIMException::NOT_FOUND});
    rows.push_back({name + " gi with a null key",
                    [=] {
                      auto p = path();
                      auto keys = p.getKeys();
                      keys.back() = OpenWBEM::CIMProperty(target.keys.back().first.c_str());
                      p.setKeys(keys);
                      return getFailure(p);
                    },
                    CIMException::NOT_FOUND});
    rows.push_back({name + " gi with an extra key",
                    [=] {
                      auto p = path();
                      p.setKeyValue("Bogus", text("x"));
                      return getFailure(p);
                    },
                    CIMException::NOT_FOUND});
    for (const OpenWBEM::CIMValue& key :
         {text(""), text(kLong), OpenWBEM::CIMValue(OpenWBEM::UInt16(1))}) {
      rows.push_back({name + " gi with key " + std::string(key.toString().c_str()).substr(0, 8),
                      [=] {
                        auto p = path();
                        p.setKeyValue(target.keys.back().first.c_str(), key);
                        return getFailure(p);
                      },
                      CIMException::NOT_FOUND});
    }
    rows.push_back({name + " cm unknown", [=] { return invoke(target, "Reboot").second; },
                    CIMException::METHOD_NOT_FOUND});
    // Unknown and null properties are skipped as the modify sequence prescribes.
    rows.push_back({name + " mi unknown property",
                    [=] {
                      return modify(target, {{"Reboot", text("now")}});
                    },
                    -1});
    for (const OpenWBEM::CIMProperty& property : schemaClass(target.className).getAllProperties()) {
      if (!hasQualifier(property, "Write")) continue;
      const std::string propertyName = property.getName().c_str();
      const std::string prop = name + "." + propertyName;
      const std::vector<Change> wrong = {{propertyName, wronglyTyped(property)}};
      const std::vector<Change> array = {
          {propertyName, OpenWBEM::CIMValue(OpenWBEM::StringArray(1, "1"))}};
      const std::vector<Change> null = {{propertyName, OpenWBEM::CIMValue(OpenWBEM::CIMNULL)}};
      rows.push_back({prop + " wrongly typed", [=] { return modify(target, wrong); },
                      CIMException::INVALID_PARAMETER});
      rows.push_back({prop + " array", [=] { return modify(target, array); },
                      CIMException::INVALID_PARAMETER});
      rows.push_back({prop + " null", [=] { return modify(target, null); }, -1});
      if (isString(property)) {
        const std::vector<Change> huge = {{propertyName, text(kLong)}};
        rows.push_back({prop + " 10 KB", [=] { return modify(target, huge); },
                        CIMException::INVALID_PARAMETER});
      }
    }
    return rows;
  }

  CimFailure createRoute(const std::vector<Change>& properties) {
    OpenWBEM::CIMInstance instance("Zeph_NextHopIPRoute");
    for (const auto& [name, value] : properties) instance.setProperty(name.c_str(), value);
    return cimFailureOf(
        [&] { call([&](const auto& env) { provider_->createInstance(env, kNs, instance); }); });
  }

  // The association, named by references or by text where references belong.
  CimFailure getAssociation(const OpenWBEM::CIMValue& antecedent,
                            const OpenWBEM::CIMValue& dependent) {
    OpenWBEM::CIMObjectPath path(OpenWBEM::CIMName("Zeph_DialOutRoutes"), kNs);
    path.setKeyValue("Antecedent", antecedent);
    path.setKeyValue("Dependent", dependent);
    return getFailure(path);
  }

  // Creations of routes and requests on their association, which the generic rows do not
  // reach.
  std::vector<Row> routeRows() {
    const OpenWBEM::CIMValue settings(
        client::settingData("Zeph_DialOutSettingData", "Velmar:Zeph_DialOutSettingData").path());
    const OpenWBEM::CIMValue known(kRoute.path());
    const OpenWBEM::CIMValue unknown(client::settingData("Zeph_NextHopIPRoute", "10.9.9.9").path());
    using V = OpenWBEM::CIMValue;
    return {
        {"ci route without an address", [=] { return createRoute({}); }, CIMException::FAILED},
        {"ci route with a null address",
         [=] {
           return createRoute({{"DestinationAddress", V(OpenWBEM::CIMNULL)}});
         },
         CIMException::FAILED},
        {"ci route with a numeric address",
         [=] {
           return createRoute({{"DestinationAddress", V(OpenWBEM::UInt32(10))}});
         },
         CIMException::FAILED},
        {"ci route with an empty address",
         [=] {
           return createRoute({{"DestinationAddress", text("")}});
         },
         CIMException::FAILED},
        {"ci route with a 10 KB address",
         [=] {
           return createRoute({{"DestinationAddress", text(kLong)}});
         },
         CIMException::FAILED},
        {"ci route with a hostile address",
         [=] {
           return createRoute({{"DestinationAddress", text("10.1.1.1;reboot")}});
         },
         CIMException::FAILED},
        {"gi association by text keys",
         [=] { return getAssociation(text("Zeph_DialOutSettingData"), text("10.1.0.0")); },
         CIMException::NOT_FOUND},
        {"gi association of an unknown route", [=] { return getAssociation(settings, unknown); },
         CIMException::NOT_FOUND},
        {"gi association with swapped ends", [=] { return getAssociation(known, settings); },
         CIMException::NOT_FOUND},
    };
  }
};

TEST_F(HostileCimInput, EveryMalformedRequestIsACimErrorThatChangesNothing) {
  std::vector<Row> rows;
  for (const client::Target* target : kTargets) {
    for (Row& row : rowsFor(*target)) rows.push_back(std::move(row));
  }
  for (Row& row : routeRows()) rows.push_back(std::move(row));
  rows.push_back(
      {"gi of an unknown class",
       [this] { return getFailure(OpenWBEM::CIMObjectPath(OpenWBEM::CIMName("Zeph_Bogus"), kNs)); },
       CIMException::INVALID_CLASS});
  get();  // the account list, so that a user-name index would be taken if it got through
  const auto before = editedFiles();
  for (const Row& row : rows) {
    appliance::clearJournal();
    try {
      EXPECT_EQ(row.request().code, row.code) << row.what;
    } catch (const std::exception& e) {
      ADD_FAILURE() << row.what << ": not a CIM error: " << e.what();
    }
    EXPECT_THAT(appliance::journal(), testing::IsEmpty()) << row.what;
    EXPECT_EQ(editedFiles(), before) << row.what;
  }
  EXPECT_GT(rows.size(), 60u);
}

}  // namespace
