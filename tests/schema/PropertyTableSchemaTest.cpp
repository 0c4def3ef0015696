// Every class's property table against the CIM schema the CIMOM loads: the same properties in
// the same order (keys first, as a set, since their order is the manager's), the same CIM
// type, key and Write qualifiers, and every MaxLen, MinValue and MaxValue either checked by
// the table with the same value or on the written-out list of limits an implementation checks
// itself (with its own status). The schema is read independently of the module, so a wrong
// row fails here.
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

using OpenWBEM::CIMProperty;

// One property as both sides describe it, in comparable form.
struct Declared {
  std::string name;
  std::string type;  // MOF spelling; a reference carries its class: "ref Zeph_X"
  bool key;
  bool writable;
  std::optional<unsigned> maxLen, minValue, maxValue;

  bool operator==(const Declared& o) const {
    return name == o.name && type == o.type && key == o.key && writable == o.writable &&
           maxLen == o.maxLen && minValue == o.minValue && maxValue == o.maxValue;
  }
};

std::ostream& operator<<(std::ostream& out, const std::optional<unsigned>& v) {
  return v ? out << *v : out << "-";
}
std::ostream& operator<<(std::ostream& out, const Declared& d) {
  return out << d.name << " " << d.type << (d.key ? " key" : "") << (d.writable ? " write" : "")
             << " maxLen=" << d.maxLen << " min=" << d.minValue << " max=" << d.maxValue;
}

// Limits that the implementation checks in its setter, reporting its own status instead of
// the provider's range or length message; the table must not check them too.
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

// The schema's side of a property, with the limits the table is expected to check.
Declared expectedRow(const char* className, Declared declared) {
  if (kCheckedByImplementation.count(std::string(className) + "." + declared.name) != 0) {
    declared.maxLen = declared.minValue = declared.maxValue = std::nullopt;
  }
  return declared;
}

std::optional<unsigned> number(const CIMProperty& p, const char* qualifier) {
  const OpenWBEM::CIMQualifier q = p.getQualifier(qualifier);
  if (!q || !q.getValue()) return std::nullopt;
  return static_cast<unsigned>(std::stoul(q.getValue().toString().c_str()));
}

Declared fromSchema(const CIMProperty& p) {
  const OpenWBEM::CIMDataType type = p.getDataType();
  return {p.getName().c_str(),
          type.isReferenceType() ? "ref " + std::string(type.getRefClassName().c_str())
                                 : std::string(type.toString().c_str()),
          hasQualifier(p, "Key"),
          hasQualifier(p, "Write"),
          number(p, "MaxLen"),
          number(p, "MinValue"),
          number(p, "MaxValue")};
}

std::string typeName(ras::CimType type, const char* referenceClass) {
  switch (type) {
    case ras::CimType::String:
      return "string";
    case ras::CimType::UInt16:
      return "uint16";
    case ras::CimType::UInt8:
      return "uint8";
    case ras::CimType::Boolean:
      return "boolean";
    case ras::CimType::DateTime:
      return "datetime";
    case ras::CimType::Reference:
      return std::string("ref ") + referenceClass;
  }
  return "?";
}

template <class W>
Declared fromTable(const ras::Property<W>& row) {
  return {row.name,
          typeName(row.type, row.referenceClass),
          row.role == ras::Role::Key,
          row.role == ras::Role::Writable,
          row.limits.maximumLength,
          row.limits.minimum,
          row.limits.maximum};
}

// Keys as a set (their table order is the manager's key order), then the rest in order.
struct Split {
  std::set<std::string> keys;
  std::vector<Declared> keyRows;
  std::vector<Declared> others;
};

Split split(const std::vector<Declared>& all) {
  Split s;
  for (const Declared& d : all) {
    if (d.key) {
      s.keys.insert(d.name);
      s.keyRows.push_back(d);
    } else {
      s.others.push_back(d);
    }
  }
  return s;
}

template <class Provider>
class PropertyTableSchema : public ::testing::Test {};

using Providers = ras::WithModuleProviders<::testing::Types>;
TYPED_TEST_SUITE(PropertyTableSchema, Providers);

TYPED_TEST(PropertyTableSchema, RowsMatchTheSchemaInOrderTypeKeyWriteAndLimits) {
  using Traits = typename TypeParam::Traits;
  std::vector<Declared> schema;
  for (const CIMProperty& p : schemaClass(Traits::kClass).getAllProperties()) {
    schema.push_back(expectedRow(Traits::kClass, fromSchema(p)));
  }
  std::vector<Declared> table;
  for (const auto& row : Traits::properties()) table.push_back(fromTable(row));

  const Split expected = split(schema);
  const Split actual = split(table);
  EXPECT_EQ(actual.keys, expected.keys) << Traits::kClass;
  for (std::size_t i = 0; i < actual.keyRows.size(); ++i) {
    EXPECT_EQ(table[i].key, true) << Traits::kClass << ": keys come first, row " << i;
  }
  for (const Declared& key : actual.keyRows) {
    for (const Declared& want : expected.keyRows) {
      if (want.name == key.name) {
        EXPECT_EQ(key, want) << Traits::kClass;
      }
    }
  }
  ASSERT_EQ(actual.others.size(), expected.others.size()) << Traits::kClass;
  for (std::size_t i = 0; i < actual.others.size(); ++i) {
    EXPECT_EQ(actual.others[i], expected.others[i]) << Traits::kClass << " row " << i;
  }
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
