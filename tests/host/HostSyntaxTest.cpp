// HostSyntaxTest.cpp: wbemcli object paths, binding lists and batch-line splitting.
#include <gtest/gtest.h>

#include "PathSyntax.hpp"

using rascim::Binding;
using rascim::parseBindings;
using rascim::parsePath;
using rascim::splitWords;
using rascim::SyntaxError;

namespace {

struct PathRow {
  std::string text, nameSpace, className;
  std::vector<std::pair<std::string, std::string>> keys;  // name, unescaped value
};

TEST(PathSyntax, ParsesWbemcliPaths) {
  const PathRow rows[] = {
      {"zeph_softmodem.DeviceID=\"SoftModemIn\"",
       "",
       "zeph_softmodem",
       {{"DeviceID", "SoftModemIn"}}},
      {"http://root:pw@localhost:5988/root/cimv2:Zeph_RASService.Name=\"RASService\","
       "SystemName=\"Zeph\"",
       "root/cimv2",
       "Zeph_RASService",
       {{"Name", "RASService"}, {"SystemName", "Zeph"}}},
      {"/root/cimv2:Zeph_NextHopIPRoute", "root/cimv2", "Zeph_NextHopIPRoute", {}},
      {"Zeph_X.A=\"a,b.c\",B=12", "", "Zeph_X", {{"A", "a,b.c"}, {"B", "12"}}},
      {"Zeph_X.A=\"say \\\"hi\\\" \\\\ \"", "", "Zeph_X", {{"A", "say \"hi\" \\ "}}},
      {"Zeph_DialOutRoutes.Antecedent=\"Zeph_DialOutSettingData.InstanceID=\\\"Velmar:X\\\"\"",
       "",
       "Zeph_DialOutRoutes",
       {{"Antecedent", "Zeph_DialOutSettingData.InstanceID=\"Velmar:X\""}}},
  };
  for (const PathRow& row : rows) {
    SCOPED_TRACE(row.text);
    const rascim::PathText p = parsePath(row.text);
    EXPECT_EQ(p.nameSpace, row.nameSpace);
    EXPECT_EQ(p.className, row.className);
    ASSERT_EQ(p.keys.size(), row.keys.size());
    for (size_t i = 0; i < row.keys.size(); ++i) {
      EXPECT_EQ(p.keys[i].name, row.keys[i].first);
      EXPECT_EQ(p.keys[i].value.text, row.keys[i].second);
    }
  }
}

TEST(PathSyntax, RejectsBrokenText) {
  const char* const paths[] = {
      "", ".Name=\"x\"", "Zeph_X.Name", "Zeph_X.Name=\"open", "Zeph_X.=\"v\"", "http://host"};
  for (const char* text : paths) EXPECT_THROW(parsePath(text), SyntaxError) << text;
  const char* const lists[] = {"MTU", "MTU=1,", "A={1,2", "A=\"x\"junk"};
  for (const char* text : lists) EXPECT_THROW(parseBindings(text), SyntaxError) << text;
}

TEST(PathSyntax, BindingValuesKeepTheirShape) {
  const std::vector<Binding> b = parseBindings("MTU=1400,Name=\"\",Flags={true,false},Empty={}");
  ASSERT_EQ(b.size(), 4u);
  EXPECT_FALSE(b[0].value.quoted);
  EXPECT_EQ(b[0].value.text, "1400");
  EXPECT_TRUE(b[1].value.quoted);
  EXPECT_EQ(b[1].value.text, "");
  ASSERT_TRUE(b[2].value.isArray);
  ASSERT_EQ(b[2].value.items.size(), 2u);
  EXPECT_EQ(b[2].value.items[1].text, "false");
  EXPECT_TRUE(b[3].value.isArray);
  EXPECT_TRUE(b[3].value.items.empty());
}

TEST(PathSyntax, SplitsBatchLinesLikeAShell) {
  const std::pair<std::string, std::vector<std::string>> rows[] = {
      {"gi 'Zeph_X.Name=\"a b\"'", {"gi", "Zeph_X.Name=\"a b\""}},
      {"  mi \"Zeph_X.Name=\\\"a\\\"\"  MTU=1 ", {"mi", "Zeph_X.Name=\"a\"", "MTU=1"}},
      {"ei Zeph_X # all of them", {"ei", "Zeph_X"}},
      {"cm a\\ b c#d", {"cm", "a b", "c#d"}},
      {"# only a comment", {}},
      {"ein ''", {"ein", ""}},
  };
  for (const auto& row : rows) EXPECT_EQ(splitWords(row.first), row.second) << row.first;
  EXPECT_THROW(splitWords("gi 'open"), SyntaxError);
}

}  // namespace
