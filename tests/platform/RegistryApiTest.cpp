// RegistryApiTest.cpp: reading entries and checking privileges through the C functions.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <string>

#include "QvlShared.h"
#include "TempRegistry.hpp"

namespace {

using qvltest::TempRegistry;

constexpr char kUntouched[] = "untouched";

constexpr char kParsedStore[] =
    "Before=any header\n"
    "[SoftModem/ModemCC]\n"
    "Plain=value\n"
    "WithEq=a=b=c\n"
    "Dup=first\n"
    "Dup=second\n"
    "# Commented=yes\n"
    "  # Indented=yes\n"
    "NoEquals\n"
    "Long=ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZ\n"
    "[SoftModem/Other/Deep]\n"
    "Plain=deep group\n"
    "[Loose]\n"
    "Plain=no group\n"
    "[privileges]\n"
    "Plain=not an entry\n";

struct GetRow {
  const char* section;
  const char* group;
  const char* name;
  int bufferSize;
  bool found;
  const char* expected;  // buffer content afterwards
};

TEST(RegistryApi, GetReadsEntriesAndTruncates) {
  const GetRow rows[] = {
      {"SoftModem", "ModemCC", "Plain", 60, true, "value"},
      {"SoftModem", "ModemCC", "WithEq", 60, true, "a=b=c"},
      {"SoftModem", "ModemCC", "Dup", 60, true, "first"},
      {"SoftModem", "Other/Deep", "Plain", 60, true, "deep group"},
      {"SoftModem", "ModemCC", "Plain", 4, true, "val"},
      {"SoftModem", "ModemCC", "Plain", 1, true, ""},
      {"SoftModem", "ModemCC", "Long", 60, true,
       "ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFG"},
      {"SoftModem", "ModemCC", "Plain", 0, false, kUntouched},
      {"SoftModem", "ModemCC", "Missing", 60, false, kUntouched},
      {"SoftModem", "ModemCC", "# Commented", 60, false, kUntouched},
      {"SoftModem", "ModemCC", "NoEquals", 60, false, kUntouched},
      {"SoftModem", "Other", "Plain", 60, false, kUntouched},
      {"", "", "Before", 60, false, kUntouched},
      {"Loose", "", "Plain", 60, false, kUntouched},
      {"privileges", "", "Plain", 60, false, kUntouched},
  };
  TempRegistry registry;
  registry.write(kParsedStore);
  for (const GetRow& row : rows) {
    SCOPED_TRACE(std::string(row.group) + "/" + row.name + " size " +
                 std::to_string(row.bufferSize));
    char buffer[64];
    std::strcpy(buffer, kUntouched);
    const int rc = QvlGetRegEntryString(row.section, row.group, row.name, buffer, row.bufferSize);
    EXPECT_EQ(row.found, rc == 0);
    EXPECT_STREQ(row.expected, buffer);
  }
}

TEST(RegistryApi, FailsWhenTheStoreCannotBeRead) {
  TempRegistry registry;
  char buffer[64];
  std::strcpy(buffer, kUntouched);
  EXPECT_NE(0, QvlGetRegEntryString("SoftModem", "ModemCC", "ModemStatus", buffer, 60));
  EXPECT_NE(0, QvlAuthCheckPriv(1, 500, 11));
  std::filesystem::create_directory(registry.path());
  EXPECT_NE(0, QvlGetRegEntryString("SoftModem", "ModemCC", "ModemStatus", buffer, 60));
  EXPECT_NE(0, QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", "ENABLED"));
  EXPECT_STREQ(kUntouched, buffer);
  const appliance::ScopedEnv missing("QVL_REGISTRY",
                                     (registry.dir() / "no-such-dir" / "registry").string());
  EXPECT_NE(0, QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", "ENABLED"));
}

TEST(RegistryApi, PrivilegeCheckMatchesWholeGrantLines) {
  struct Row {
    int kind, userId, privilege;
    bool granted;
  };
  const Row rows[] = {
      {1, 500, 11, true},  {2, 7, 3, true},     {1, 500, 12, false},
      {1, 501, 11, false}, {0, 500, 11, false}, {1, 502, 11, false},
      {1, 503, 11, false}, {1, 600, 11, false}, {11, 500, 1, false},
  };
  TempRegistry registry;
  registry.write(
      "[SoftModem/ModemCC]\n1 600 11\n"
      "[privileges]\n1 500 11\n  2\t7   3 \n1 502 x\n1 503 11 extra\n# 1 501 11\n");
  for (const Row& row : rows) {
    SCOPED_TRACE(std::to_string(row.kind) + " " + std::to_string(row.userId) + " " +
                 std::to_string(row.privilege));
    EXPECT_EQ(row.granted, QvlAuthCheckPriv(row.kind, row.userId, row.privilege) == 0);
  }
}

}  // namespace
