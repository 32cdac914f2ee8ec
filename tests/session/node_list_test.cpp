#include "session/node_list.h"

#include <gmock/gmock.h>

namespace session {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// "call|host|port|info" of each row.
std::vector<std::string> RowsOf(const std::string& text, const NodeListFormat& format) {
  std::vector<std::string> rows;
  const std::string without = WithoutQuotes(text);
  for (const auto& row : ParseNodeList(without, format).rows) {
    std::string line;
    for (const auto part : {row.call, row.host, row.port, row.info})
      line += (line.empty() ? "" : "|") + std::string(part);
    rows.push_back(line);
  }
  return rows;
}

TEST(NodeList, ALineIsCallHostPortAndText) {
  EXPECT_THAT(RowsOf("W1XYZ-2,dx.example.org,7300,Club node\r\n", kNewNodeFormat),
              ElementsAre("W1XYZ-2|dx.example.org|7300|Club node"));
}

TEST(NodeList, QuotesAreIgnored) {
  EXPECT_THAT(RowsOf("\"W1XYZ\",\"10.1.2.3\",\"23\",\"a \"\"b\"\"\"\r\n", kNewNodeFormat),
              ElementsAre("W1XYZ|10.1.2.3|23|a b"));
}

TEST(NodeList, TheNewFormatDoesWithoutAText) {
  EXPECT_THAT(RowsOf("W1XYZ,host,23\r\nW2XYZ,host,23,", kNewNodeFormat),
              ElementsAre("W1XYZ|host|23|", "W2XYZ|host|23|"));
}

TEST(NodeList, TheTextOfTheNewFormatIsOneField) {
  EXPECT_THAT(RowsOf("W1XYZ,host,23,one,two\r\n", kNewNodeFormat),
              ElementsAre("W1XYZ|host|23|one"));
}

TEST(NodeList, TheOldFormatTakesLinesOfThreeFieldsAlone) {
  EXPECT_THAT(RowsOf("W1XYZ,host\r\nW2XYZ,host,23\r\nW3XYZ,host,23,text\r\n", kOldNodeFormat),
              ElementsAre("W2XYZ|host|23|"));
}

TEST(NodeList, TheVersionLineIsNoNode) {
  const NodeList list = ParseNodeList("VERSION,12,0\r\nW1XYZ,host,23\r\n", kOldNodeFormat);
  EXPECT_EQ(list.version, "12");
  ASSERT_THAT(list.rows, SizeIs(1));
  EXPECT_EQ(list.rows[0].call, "W1XYZ");
  EXPECT_EQ(ParseNodeList("W1XYZ,host,23\r\n", kOldNodeFormat).version, "");
}

TEST(NodeList, BlockedCallsAreSkipped) {
  EXPECT_THAT(RowsOf("MOLVA,h,23\r\nMOLVA-1,h,23\r\nMOLVA-2,h,23\r\nMOLVA-3,h,23\r\n"
                     "MOLVA-4,h,23\r\n",
                     kNewNodeFormat),
              ElementsAre("MOLVA-1|h|23|", "MOLVA-4|h|23|"));
}

TEST(NodeList, BrokenLinesAreSkippedAndTheOthersRead) {
  for (const char* broken :
       {"", ",", ",,,", "W9XYZ", "W9XYZ,host", ",host,23", "W9XYZ,,23", "W9XYZ,host,",
        "W9XYZ,host,telnet", "W9XYZ,host,0", "W9XYZ,host,65536", "W9XYZ,host,-1", "W9XYZ,host,23x",
        "W9XYZ,host,99999999999999999999", "<html>", "\xff\xfe,\x01", " , , "})
    EXPECT_THAT(
        RowsOf("W1XYZ,host,23\r\n" + std::string(broken) + "\r\nW2XYZ,host,23\r\n", kNewNodeFormat),
        ElementsAre("W1XYZ|host|23|", "W2XYZ|host|23|"))
        << broken;
}

TEST(NodeList, LinesThatUnixEndedAreReadToo) {
  EXPECT_THAT(RowsOf("W1XYZ,host,23\nW2XYZ,host,24", kNewNodeFormat),
              ElementsAre("W1XYZ|host|23|", "W2XYZ|host|24|"));
}

TEST(NodeList, BlanksAroundFieldsGo) {
  EXPECT_THAT(RowsOf(" W1XYZ , host , 23 , a text \r\n", kOldNodeFormat), IsEmpty());
  EXPECT_THAT(RowsOf(" W1XYZ , host , 23 , a text \r\n", kNewNodeFormat),
              ElementsAre("W1XYZ|host|23|a text"));
}

TEST(NodeList, EmptyTextHasNoNodes) { EXPECT_THAT(RowsOf("", kNewNodeFormat), IsEmpty()); }

TEST(NodeList, AFieldHasNoCommasQuotesOrControlCharacters) {
  EXPECT_EQ(NodeField("a,b"), "a b");
  EXPECT_EQ(NodeField(" \"a\r\nb\t\" "), "a  b");
  EXPECT_EQ(NodeField(",,"), "");
  EXPECT_EQ(NodeField("K1TTT  DXC"), "K1TTT  DXC");
}

TEST(NodeList, WhatIsWrittenReadsBack) {
  const NodeRow row{"W1XYZ", "host", "23", "a text"};
  std::string now, before;
  AppendNodeLine(now, row, kNewNodeFormat);
  EXPECT_EQ(now, "W1XYZ,host,23,a text\r\n");
  EXPECT_THAT(RowsOf(now, kNewNodeFormat), ElementsAre("W1XYZ|host|23|a text"));
  AppendNodeVersion(before, "12", kOldNodeFormat);
  AppendNodeLine(before, row, kOldNodeFormat);
  EXPECT_EQ(before, "VERSION,12,\r\nW1XYZ,host,23\r\n");
  EXPECT_EQ(ParseNodeList(before, kOldNodeFormat).version, "12");
}

}  // namespace
}  // namespace session
