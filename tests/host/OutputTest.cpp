// OutputTest.cpp: the JSON and human forms of outcomes: instances with types and the
// qualifiers the module attached, CIM errors with code, message, file and line.
#include <gtest/gtest.h>

#include <sstream>

#include "OW_Array.hpp"
#include "OW_Bool.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_String.hpp"
#include "Output.hpp"

using namespace OpenWBEM;
using rascim::Outcome;

namespace {

const char kSchema[] = "class Zeph_T { [Key] string Id; uint16 MTU; string User; };";

Outcome instanceOutcome() {
  CIMInstance inst("Zeph_T");
  inst.setProperty("Id", CIMValue(String("a\"b")));
  CIMProperty user("User", CIMValue(String("0")));
  StringArray names;
  names.push_back("dialer");
  names.push_back("backup");
  CIMQualifierArray qs;
  qs.push_back(CIMQualifier("Values").setValue(CIMValue(names)));
  qs.push_back(CIMQualifier("Write").setValue(CIMValue(Bool(false))));
  user.setQualifiers(qs);
  inst.setProperty(user);
  inst.setProperty("MTU", CIMValue(UInt16(1500)));
  Outcome o;
  o.verb = "gi";
  o.shape = Outcome::kInstance;
  o.instances.push_back(inst);
  return o;
}

class OutputTest : public ::testing::Test {
 protected:
  void SetUp() override { schema.addText(kSchema, "t.mof"); }
  rascim::MofSchema schema;
};

TEST_F(OutputTest, JsonInstanceCarriesTypesValuesAndQualifiers) {
  EXPECT_EQ(rascim::toJson(instanceOutcome(), schema),
            "{\"verb\":\"gi\",\"ok\":true,\"instance\":{\"path\":\"Zeph_T.Id=\\\"a\\\\\\\"b\\\"\","
            "\"class\":\"Zeph_T\",\"properties\":["
            "{\"name\":\"Id\",\"type\":\"string\",\"value\":\"a\\\"b\",\"qualifiers\":[]},"
            "{\"name\":\"User\",\"type\":\"string\",\"value\":\"0\",\"qualifiers\":["
            "{\"name\":\"Values\",\"type\":\"string[]\",\"value\":[\"dialer\",\"backup\"]},"
            "{\"name\":\"Write\",\"type\":\"boolean\",\"value\":false}]},"
            "{\"name\":\"MTU\",\"type\":\"uint16\",\"value\":1500,\"qualifiers\":[]}]}}");
}

TEST_F(OutputTest, JsonErrorsCarryCodeMessageFileAndLine) {
  Outcome o;
  o.verb = "gi";
  o.hasCimError = true;
  o.cimError = rascim::CimError{5, "", "../src/Zeph_RASProvider", 479};
  EXPECT_EQ(
      rascim::toJson(o, schema),
      "{\"verb\":\"gi\",\"ok\":false,\"error\":{\"code\":5,\"name\":\"CIM_ERR_INVALID_CLASS\","
      "\"message\":\"\",\"file\":\"../src/Zeph_RASProvider\",\"line\":479}}");
  EXPECT_EQ(o.status(), Outcome::kCimError);
  Outcome usage;
  usage.verb = "zz";
  usage.failure = "unknown verb 'zz'";
  usage.usageError = true;
  usage.schemaErrors.push_back("x");
  EXPECT_EQ(rascim::toJson(usage, schema),
            "{\"verb\":\"zz\",\"ok\":false,\"error\":{\"message\":\"unknown verb 'zz'\","
            "\"usage\":true},\"schemaErrors\":[\"x\"]}");
  EXPECT_EQ(usage.status(), Outcome::kUsageError);
}

TEST_F(OutputTest, TextShowsOnePropertyPerLineAndErrorsApart) {
  std::ostringstream out, err;
  rascim::printText(instanceOutcome(), schema, out, err);
  EXPECT_EQ(out.str(),
            "Zeph_T.Id=\"a\\\"b\"\n"
            "    Id    string   = \"a\\\"b\"\n"
            "    User  string   = \"0\"  [Values{\"dialer\",\"backup\"}, Write(false)]\n"
            "    MTU   uint16   = 1500\n");
  EXPECT_EQ(err.str(), "");
  Outcome failed;
  failed.verb = "mi";
  failed.hasCimError = true;
  failed.cimError = rascim::CimError{4, "The value of MTU must be <= 16384\n#CFG_000_0003#",
                                     "../src/Zeph_PPPProtocolEndpointProvider", 334};
  std::ostringstream out2, err2;
  rascim::printText(failed, schema, out2, err2);
  EXPECT_EQ(out2.str(), "");
  EXPECT_EQ(err2.str(),
            "ras-cim: mi: CIM_ERR_INVALID_PARAMETER (4) at "
            "../src/Zeph_PPPProtocolEndpointProvider:334\n"
            "The value of MTU must be <= 16384\n#CFG_000_0003#\n");
}

}  // namespace
