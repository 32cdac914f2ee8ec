#include "spots/call_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace spots {
namespace {

TEST(CallTableTest, EmptyTableHoldsNoCall) {
  const CallTable table;
  EXPECT_TRUE(table.Empty());
  EXPECT_FALSE(table.Contains("K1ABC"));
  EXPECT_FALSE(table.Contains(""));
  EXPECT_EQ(table.Lines("\n"), "");
}

TEST(CallTableTest, CallsAreFoundWholeAndByteForByte) {
  const CallTable table({"K1ABC", "A B", "\xE9K1", "K1"});
  for (const char* call : {"K1ABC", "A B", "\xE9K1", "K1"})
    EXPECT_TRUE(table.Contains(call)) << call;
  for (const char* call : {"", "K", "K1A", "K1ABCD", "k1abc", "ABC", "A", "B", "K1\n"})
    EXPECT_FALSE(table.Contains(call)) << call;
}

TEST(CallTableTest, CallThatStandsTwiceCountsTwice) {
  const CallTable table({"K1ABC", "K1ABC"});
  EXPECT_EQ(table.Count(), 2u);
  EXPECT_EQ(table.Lines("\r\n"), "K1ABC\r\nK1ABC\r\n");
}

TEST(CallTableTest, EachOfManyCallsIsFoundAndNoOther) {
  std::vector<std::string> calls;
  calls.reserve(30'000);
  for (int i = 0; i < 30'000; ++i) calls.push_back("K" + std::to_string(i) + "AB");
  const CallTable table({calls.begin(), calls.end()});
  EXPECT_EQ(table.Count(), calls.size());
  for (const std::string& call : calls) {
    ASSERT_TRUE(table.Contains(call)) << call;
    ASSERT_FALSE(table.Contains(call + "C")) << call;
  }
}

TEST(CallTableTest, TableTakesFewBytesACall) {
  std::vector<std::string> calls;
  calls.reserve(300'000);
  for (int i = 100'000; i < 400'000; ++i) calls.push_back("K" + std::to_string(i));
  const CallTable table({calls.begin(), calls.end()});
  EXPECT_LT(table.Memory(), calls.size() * 20);
}

}  // namespace
}  // namespace spots
