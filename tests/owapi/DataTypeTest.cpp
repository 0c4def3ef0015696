// CIMDataType names and truth, and value casts between scalar and array types.
#include <gtest/gtest.h>

#include "OW_Bool.hpp"
#include "OW_CIM.hpp"
#include "OW_CIMValueCast.hpp"

using namespace OpenWBEM;

namespace {

TEST(CIMDataTypeTest, NamesArraysAndTruth) {
  struct Row {
    CIMDataType type;
    const char* name;
    bool isArray;
    bool truth;
  } rows[] = {
      {CIMDataType(), "NULL", false, false},
      {CIMDataType(CIMDataType::UINT16), "uint16", false, true},
      {CIMDataType(CIMDataType::STRING, 0), "string", true, true},
      {CIMDataType(CIMDataType::UINT8, 4), "uint8", true, true},
      {CIMDataType(CIMName("Zeph_X")), "REF", false, true},
      {CIMDataType(CIMDataType::INVALID), "INVALID", false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_STREQ(row.name, row.type.toString().c_str());
    EXPECT_EQ(row.isArray, row.type.isArrayType());
    EXPECT_EQ(row.truth, static_cast<bool>(row.type));
  }
  EXPECT_EQ(-1, CIMDataType(CIMDataType::STRING, 0).getSize());
  EXPECT_EQ(4, CIMDataType(CIMDataType::UINT8, 4).getSize());
  EXPECT_STREQ("Zeph_X REF", CIMDataType(CIMName("Zeph_X")).toMOF().c_str());
  EXPECT_EQ(CIMDataType::BOOLEAN, CIMDataType::strToSimpleType("Boolean"));
  EXPECT_EQ(CIMDataType::INVALID, CIMDataType::strToSimpleType("bool"));
  EXPECT_FALSE(CIMDataType(CIMNULL));
}

TEST(CIMValueCastTest, ArraysConvertElementByElement) {
  StringArray texts;
  texts.push_back("1");
  texts.push_back("20");
  CIMValue numbers =
      CIMValueCast::castValueToDataType(CIMValue(texts), CIMDataType(CIMDataType::UINT16, 0));
  ASSERT_EQ(CIMDataType::UINT16, numbers.getType());
  ASSERT_TRUE(numbers.isArray());
  const UInt16Array values = numbers.toUInt16Array();
  EXPECT_EQ(20, values[1]);

  CIMValue back = CIMValueCast::castValueToDataType(numbers, CIMDataType(CIMDataType::STRING, 0));
  EXPECT_EQ(CIMValue(texts), back);

  texts.push_back("x");
  EXPECT_THROW(
      CIMValueCast::castValueToDataType(CIMValue(texts), CIMDataType(CIMDataType::UINT16, 0)),
      CIMException);
  EXPECT_THROW(CIMValueCast::castValueToDataType(numbers, CIMDataType(CIMDataType::UINT16)),
               CIMException);
}

TEST(CIMValueCastTest, NullsAndSameTypesPassThrough) {
  CIMValue v(UInt16(3));
  EXPECT_EQ(v, CIMValueCast::castValueToDataType(v, CIMDataType(CIMDataType::UINT16)));
  EXPECT_EQ(v, CIMValueCast::castValueToDataType(v, CIMDataType()));
  EXPECT_FALSE(
      CIMValueCast::castValueToDataType(CIMValue(CIMNULL), CIMDataType(CIMDataType::UINT16)));
}

TEST(CIMValueTest, MofFormQuotesTextAndBracesArrays) {
  StringArray texts;
  texts.push_back("a,b");
  texts.push_back("c\"d");
  EXPECT_STREQ("{\"a,b\", \"c\\\"d\"}", CIMValue(texts).toMOF().c_str());
  EXPECT_STREQ("5", CIMValue(UInt8(5)).toMOF().c_str());
  EXPECT_STREQ("\"x\"", CIMValue("x").toMOF().c_str());
}

TEST(CIMQualifierTest, ValueIsStoredAsGiven) {
  CIMQualifier key = CIMQualifier::createKeyQualifier();
  EXPECT_STREQ("Key", key.getName().c_str());
  EXPECT_EQ(CIMValue(Bool(true)), key.getValue());
  EXPECT_TRUE(key.isKeyQualifier());

  CIMQualifier warning("ImpactWarning");
  EXPECT_FALSE(warning.hasValue());
  EXPECT_THROW(warning.getValueT(), Exception);
  warning.setValue(CIMValue(UInt32(3)));
  EXPECT_EQ(CIMDataType::UINT32, warning.getValue().getType());
  warning.setValue(CIMValue("text"));
  EXPECT_EQ(CIMDataType::STRING, warning.getValue().getType());
  EXPECT_TRUE(warning.equals(CIMQualifier("impactwarning")));
}

}  // namespace
