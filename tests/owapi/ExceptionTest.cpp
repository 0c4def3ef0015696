// CIMException: where it was thrown, its code, the provider's text and the long message.
#include <gtest/gtest.h>

#include <sstream>

#include "OW_CIMException.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace {

struct ExceptionRow {
  const char* what;
  CIMException::ErrNoType code;
  const char* msg;
  const char* message;
};

TEST(CIMExceptionTest, CarriesFileLineCodeAndDescription) {
  const ExceptionRow rows[] = {
      {"no text", CIMException::INVALID_CLASS, 0, "the specified Class does not exist"},
      {"empty text", CIMException::FAILED, "", "general error"},
      {"provider text", CIMException::NOT_FOUND, "#CFG_000_0001#",
       "the requested object could not be found (#CFG_000_0001#)"},
      {"text starting with the description", CIMException::FAILED, "general error: disk",
       "general error: disk"},
      {"method not found", CIMException::METHOD_NOT_FOUND, "Foo",
       "the specified extrinsic method does not exist (Foo)"},
  };
  for (const ExceptionRow& row : rows) {
    SCOPED_TRACE(row.what);
    try {
      throw CIMException("../src/Zeph_RASProvider", 216, row.code, row.msg);
    } catch (const Exception& e) {
      const CIMException* ce = dynamic_cast<const CIMException*>(&e);
      ASSERT_NE(nullptr, ce);
      EXPECT_STREQ("../src/Zeph_RASProvider", e.getFile());
      EXPECT_EQ(216, e.getLine());
      EXPECT_EQ(row.code, ce->getErrNo());
      EXPECT_EQ(int(row.code), e.getErrorCode());
      if (row.msg == 0) {
        EXPECT_EQ(nullptr, ce->getDescription());
      } else {
        EXPECT_STREQ(row.msg, ce->getDescription());
      }
      EXPECT_STREQ(row.message, e.getMessage());
      EXPECT_STREQ(row.message, e.what());
      EXPECT_STREQ("CIMException", e.type());
    }
  }
}

TEST(CIMExceptionTest, CopiesAndClonesKeepEverything) {
  CIMException original("f.cpp", 7, CIMException::ACCESS_DENIED, "no");
  CIMException copy(original);
  CIMException* clone = original.clone();
  const CIMException* const copies[] = {&copy, clone};
  for (const CIMException* e : copies) {
    EXPECT_STREQ("f.cpp", e->getFile());
    EXPECT_EQ(7, e->getLine());
    EXPECT_EQ(CIMException::ACCESS_DENIED, e->getErrNo());
    EXPECT_STREQ("no", e->getDescription());
  }
  delete clone;
}

TEST(CIMExceptionTest, CodeDescriptions) {
  EXPECT_STREQ("general error", CIMException::getCodeDescription(CIMException::FAILED));
  EXPECT_STREQ("unknown error", CIMException::getCodeDescription(CIMException::ErrNoType(99)));
}

TEST(CIMExceptionTest, ThrowMacrosRecordTheThrowSite) {
  try {
    OW_THROWCIMMSG(CIMException::INVALID_PARAMETER, String("bad").c_str());
  } catch (const CIMException& e) {
    EXPECT_STREQ(__FILE__, e.getFile());
    EXPECT_GT(e.getLine(), 0);
    EXPECT_STREQ("bad", e.getDescription());
    std::ostringstream os;
    os << e;
    EXPECT_NE(std::string::npos, os.str().find("CIMException"));
  }
}

}  // namespace
