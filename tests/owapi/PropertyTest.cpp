// CIMProperty: conversion of values to the declared type, qualifiers and isKey.
#include <gtest/gtest.h>

#include "OW_CIM.hpp"
#include "OW_NULLValueException.hpp"

using namespace OpenWBEM;

namespace {

struct ConvertRow {
  const char* what;
  CIMDataType declared;
  CIMValue value;
  bool fails;
  CIMDataType::Type storedType;
  const char* storedText;
};

TEST(CIMPropertyTest, SetValueConvertsToTheDeclaredType) {
  const ConvertRow rows[] = {
      {"sint32 to uint16", CIMDataType::UINT16, CIMValue(Int32(5)), false, CIMDataType::UINT16,
       "5"},
      {"string to uint16", CIMDataType::UINT16, CIMValue("1500"), false, CIMDataType::UINT16,
       "1500"},
      {"text to uint16", CIMDataType::UINT16, CIMValue("abc"), true, CIMDataType::CIMNULL, ""},
      {"out of range", CIMDataType::UINT16, CIMValue(UInt32(70000)), true, CIMDataType::CIMNULL,
       ""},
      {"negative to unsigned", CIMDataType::UINT8, CIMValue(Int32(-1)), true, CIMDataType::CIMNULL,
       ""},
      {"number to string", CIMDataType::STRING, CIMValue(UInt16(7)), false, CIMDataType::STRING,
       "7"},
      {"string to boolean", CIMDataType::BOOLEAN, CIMValue("False"), false, CIMDataType::BOOLEAN,
       "false"},
      {"1 is no boolean", CIMDataType::BOOLEAN, CIMValue(UInt8(1)), true, CIMDataType::CIMNULL, ""},
      {"string to datetime", CIMDataType::DATETIME, CIMValue("00000101000001.000000+000"), false,
       CIMDataType::DATETIME, "00000101000001.000000+000"},
      {"number to datetime", CIMDataType::DATETIME, CIMValue(UInt32(1)), true, CIMDataType::CIMNULL,
       ""},
  };
  for (const ConvertRow& row : rows) {
    SCOPED_TRACE(row.what);
    CIMProperty p("P", row.declared);
    if (row.fails) {
      EXPECT_THROW(p.setValue(row.value), CIMException);
      continue;
    }
    p.setValue(row.value);
    EXPECT_EQ(row.storedType, p.getValue().getType());
    EXPECT_STREQ(row.storedText, p.getValue().toString().c_str());
    EXPECT_EQ(row.declared.getType(), p.getDataType().getType());
  }
}

TEST(CIMPropertyTest, ConversionFailureIsFailedCode) {
  CIMProperty p("MTU", CIMDataType::UINT16);
  try {
    p.setValue(CIMValue("abc"));
    FAIL() << "no exception";
  } catch (const CIMException& e) {
    EXPECT_EQ(CIMException::FAILED, e.getErrNo());
  }
}

TEST(CIMPropertyTest, NullAndUntypedValues) {
  CIMProperty typed("P", CIMDataType::UINT16);
  typed.setValue(CIMValue(CIMNULL));
  EXPECT_FALSE(typed.getValue());
  EXPECT_THROW(typed.getValueT(), NULLValueException);

  CIMProperty untyped("P");
  EXPECT_FALSE(untyped.getDataType());
  untyped.setValue(CIMValue(UInt32(9)));
  EXPECT_EQ(CIMDataType::UINT32, untyped.getDataType().getType());

  EXPECT_THROW(CIMProperty("P", CIMValue(CIMNULL)), Exception);
}

TEST(CIMPropertyTest, KeyComesFromTrueKeyQualifierOrReferenceType) {
  struct Row {
    const char* what;
    CIMProperty prop;
    bool key;
  } rows[] = {
      {"plain", CIMProperty("A", CIMValue("x")), false},
      {"Key true", CIMProperty("A", CIMValue("x")).addQualifier(CIMQualifier::createKeyQualifier()),
       true},
      {"key lower case",
       CIMProperty("A", CIMValue("x")).addQualifier(CIMQualifier("key").setValue(CIMValue(true))),
       true},
      {"Key false",
       CIMProperty("A", CIMValue("x")).addQualifier(CIMQualifier("Key").setValue(CIMValue(false))),
       false},
      {"Key without value", CIMProperty("A", CIMValue("x")).addQualifier(CIMQualifier("Key")),
       false},
      {"reference", CIMProperty("A", CIMValue(CIMObjectPath("Zeph_X"))), true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(row.key, row.prop.isKey());
  }
}

TEST(CIMPropertyTest, QualifiersByName) {
  CIMProperty p("A", CIMValue("x"));
  p.addQualifier(CIMQualifier("Write"));
  EXPECT_THROW(p.addQualifier(CIMQualifier("WRITE")), CIMException);
  EXPECT_TRUE(p.getQualifier("write"));
  EXPECT_FALSE(p.getQualifier("Read"));
  p.setQualifier(CIMQualifier("Write").setValue(CIMValue(true)));
  p.setQualifier(CIMQualifier(CIMNULL));
  ASSERT_EQ(1u, p.getQualifiers().size());
  EXPECT_TRUE(p.hasTrueQualifier("Write"));
}

TEST(CIMPropertyTest, CopiesAreIndependent) {
  CIMProperty a("A", CIMValue(UInt16(1)));
  CIMProperty b(a);
  b.setValue(CIMValue(UInt16(2)));
  EXPECT_EQ(CIMValue(UInt16(1)), a.getValue());
  EXPECT_EQ(CIMValue(UInt16(2)), b.getValue());
}

}  // namespace
