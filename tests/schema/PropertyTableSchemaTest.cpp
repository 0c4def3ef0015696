// Every class's property table against the CIM schema the CIMOM loads, read independently of
// the module: the same properties in the same order (keys first, as a set, since their order is
// the manager's), the same CIM type, key and Write qualifiers, and every MaxLen, MinValue and
// MaxValue either checked by the table with the same value or on the list of limits an
// implementation checks itself (with its own status).
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValue.hpp"
#include "SchemaClasses.h"
#include "Zeph_ModuleClasses.h"
#include "Zeph_ModuleProviders.h"

namespace {

// Limits that the implementation checks in its setter; the table must not check them too.
const std::set<std::string> kCheckedByImplementation = {
    "Zeph_CallInSettingData.AutoDisableTimer",
    "Zeph_DialOutSettingData.DialRetries",
    "Zeph_DialOutSettingData.DialInterval",
    "Zeph_PPPProtocolEndpoint.IdleTimeout",
    "Zeph_PPPProtocolEndpoint.MRU",
    "Zeph_PPPProtocolEndpoint.MTU",
    "Zeph_PPPProtocolEndpoint.maxConfigureNak",
    "Zeph_PPPProtocolEndpoint.maxConfigureRequest",
    "Zeph_PPPProtocolEndpoint.maxTerminateReq",
};

std::string limit(std::optional<unsigned> value) {
  return value ? std::to_string(*value) : "-";
}

// One property as "name type [key|write] maxLen min max"; rows are listed keys first, sorted.
struct Rows {
  std::vector<std::string> keys, others;
  void add(bool key, std::string row) { (key ? keys : others).push_back(std::move(row)); }
  std::vector<std::string> all() {
    std::sort(keys.begin(), keys.end());
    keys.insert(keys.end(), others.begin(), others.end());
    return keys;
  }
};

std::optional<unsigned> number(const OpenWBEM::CIMProperty& p, const char* qualifier) {
  const OpenWBEM::CIMQualifier q = p.getQualifier(qualifier);
  if (!q || !q.getValue()) return std::nullopt;
  return static_cast<unsigned>(std::stoul(q.getValue().toString().c_str()));
}

template <class Provider>
class PropertyTableSchema : public ::testing::Test {};
using Providers = ras::WithModuleProviders<::testing::Types>;
TYPED_TEST_SUITE(PropertyTableSchema, Providers);

TYPED_TEST(PropertyTableSchema, RowsMatchTheSchemaInOrderTypeKeyWriteAndLimits) {
  using Traits = typename TypeParam::Traits;
  Rows schema, table;
  for (const OpenWBEM::CIMProperty& p : schemaClass(Traits::kClass).getAllProperties()) {
    const OpenWBEM::CIMDataType type = p.getDataType();
    const bool key = hasQualifier(p, "Key");
    std::string row = std::string(p.getName().c_str()) + " " +
                      (type.isReferenceType() ? "ref " + std::string(type.getRefClassName().c_str())
                                              : std::string(type.toString().c_str())) +
                      (key                        ? " key"
                       : hasQualifier(p, "Write") ? " write"
                                                  : "");
    if (kCheckedByImplementation.count(std::string(Traits::kClass) + "." +
                                       row.substr(0, row.find(' '))))
      row += " - - -";
    else
      row += " " + limit(number(p, "MaxLen")) + " " + limit(number(p, "MinValue")) + " " +
             limit(number(p, "MaxValue"));
    schema.add(key, row);
  }
  const char* const types[] = {"string", "uint16", "uint8", "boolean", "datetime", "ref "};
  std::size_t leadingKeys = 0;
  for (const auto& row : Traits::properties()) {
    const bool key = row.role == ras::Role::Key;
    if (key && leadingKeys == table.keys.size()) ++leadingKeys;
    const std::string type =
        types[static_cast<int>(row.type)] +
        std::string(row.type == ras::CimType::Reference ? row.referenceClass : "");
    table.add(key, std::string(row.name) + " " + type +
                       (key                               ? " key"
                        : row.role == ras::Role::Writable ? " write"
                                                          : "") +
                       " " + limit(row.limits.maximumLength) + " " + limit(row.limits.minimum) +
                       " " + limit(row.limits.maximum));
  }
  EXPECT_EQ(leadingKeys, table.keys.size()) << Traits::kClass << ": keys come first";
  EXPECT_EQ(table.all(), schema.all()) << Traits::kClass;
}

// The module's class table holds every class of its schema, and no other.
TEST(ModuleClassTable, HoldsTheClassesOfTheSchema) {
  std::vector<std::string> schema = moduleSchemaClassNames();
  std::vector<std::string> table = ras::moduleClassNames();
  std::sort(schema.begin(), schema.end());
  std::sort(table.begin(), table.end());
  EXPECT_EQ(table, schema);
}

}  // namespace
