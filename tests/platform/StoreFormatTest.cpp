// StoreFormatTest.cpp: edits keep the store's text readable and every untouched line in place,
// and values that would not read back are refused without touching the file.
#include <gtest/gtest.h>

#include "QvlShared.h"
#include "QvlStandIn.h"
#include "TempRegistry.hpp"

namespace {

using qvltest::TempRegistry;

TEST(StoreFormat, EditsKeepCommentsOrderAndUntouchedLines) {
  TempRegistry registry;
  registry.write(
      "# header comment\n"
      "\n"
      "[SoftModem/ModemCC]\n"
      "ModemStatus=ENABLED\n"
      "# trailing comment of the block\n"
      "MinLine=1\n"
      "\n"
      "# leads into the next block\n"
      "[Other/Group/Deep]\n"
      "Key=a=b\n"
      "Empty=\n"
      "[privileges]\n"
      "# kind userId privilege\n"
      "1 500 11\n");
  EXPECT_EQ(0, QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", "DISABLED"));
  EXPECT_EQ(0, QvlSetRegEntryString("SoftModem", "ModemCC", "MaxLine", "268"));
  EXPECT_EQ(0, QvlSetRegEntryString("Other", "Group/Deep", "Key", "x = y"));
  EXPECT_EQ(0, QvlDeleteRegEntryString("Other", "Group/Deep", "Empty"));
  EXPECT_EQ(0, QvlSetRegEntryString("New", "Grp", "Name", ""));
  EXPECT_EQ(0, QvlGrantPriv(2, 7, 3));
  EXPECT_EQ(registry.read(),
            "# header comment\n"
            "\n"
            "[SoftModem/ModemCC]\n"
            "ModemStatus=DISABLED\n"
            "# trailing comment of the block\n"
            "MinLine=1\n"
            "MaxLine=268\n"
            "\n"
            "# leads into the next block\n"
            "[Other/Group/Deep]\n"
            "Key=x = y\n"
            "[privileges]\n"
            "# kind userId privilege\n"
            "1 500 11\n"
            "2 7 3\n"
            "\n"
            "[New/Grp]\n"
            "Name=\n");
}

TEST(StoreFormat, SetCreatesTheStore) {
  TempRegistry registry;
  ASSERT_EQ(0, QvlSetRegEntryString("SoftModem", "ModemCC", "ModemStatus", "ENABLED"));
  EXPECT_EQ(registry.read(), "[SoftModem/ModemCC]\nModemStatus=ENABLED\n");
}

TEST(StoreFormat, RefusesWhatWouldNotReadBack) {
  struct Row {
    const char* section;
    const char* group;
    const char* name;
    const char* value;
  };
  const Row rows[] = {
      {"SoftModem", "ModemCC", "ModemStatus", "DISABLED\nInjected=1"},
      {"SoftModem", "ModemCC", "Two\nLines", "x"},
      {"SoftModem", "ModemCC\n[Evil/Group]", "Name", "x"},
      {"Soft\nModem", "ModemCC", "Name", "x"},
      {"SoftModem", "ModemCC", "Name=Part", "x"},
      {"Soft/Modem", "ModemCC", "Name", "x"},
      {"SoftModem", "ModemCC", "", "x"},
      {"", "ModemCC", "Name", "x"},
      {"SoftModem", "", "Name", "x"},
      {"SoftModem", "ModemCC", "#Name", "x"},
      {"SoftModem", "ModemCC", "[Name", "x"},
      {"SoftModem", "ModemCC", " Name", "x"},
  };
  TempRegistry registry;
  registry.write(qvltest::kSampleStore);
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.section) + "|" + row.group + "|" + row.name + "|" + row.value);
    EXPECT_NE(0, QvlSetRegEntryString(row.section, row.group, row.name, row.value));
    EXPECT_EQ(registry.read(), qvltest::kSampleStore);
  }
}

}  // namespace
