#include "practice_tnc/options.h"

#include <gmock/gmock.h>

#include <vector>

namespace practice_tnc {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;

ParsedOptions Parse(const std::vector<std::string_view>& arguments) {
  return ParseOptions(arguments);
}

TEST(TncOptions, WithoutAnyItHasANodeOfItsOwnAndBehaves) {
  const auto parsed = Parse({});
  EXPECT_EQ(parsed.wrong, "");
  EXPECT_TRUE(parsed.options.ownNode);
  EXPECT_EQ(parsed.options.plan.failures, 0u);
  EXPECT_FALSE(parsed.options.plan.garbage);
}

TEST(TncOptions, ValueFollowsBehindAnEqualsSignOrAsTheNextArgument) {
  for (const auto& arguments :
       {std::vector<std::string_view>{"--retry-out=3", "--call=k2tst-1"},
        std::vector<std::string_view>{"--retry-out", "3", "--call", "k2tst-1"}}) {
    const auto parsed = Parse(arguments);
    EXPECT_EQ(parsed.wrong, "");
    EXPECT_EQ(parsed.options.plan.failures, 3u);
    EXPECT_EQ(parsed.options.plan.call, "K2TST-1");
  }
}

TEST(TncOptions, NodeIsAHostAndAPort) {
  const auto parsed = Parse({"--node", "node.example:7300"});
  EXPECT_EQ(parsed.wrong, "");
  EXPECT_FALSE(parsed.options.ownNode);
  EXPECT_EQ(parsed.options.plan.host, "node.example");
  EXPECT_EQ(parsed.options.plan.port, 7300);
}

TEST(TncOptions, SecondsMayHaveAFraction) {
  const auto parsed = Parse({"--try-seconds=0.25", "--drop-after=90"});
  EXPECT_EQ(parsed.wrong, "");
  EXPECT_EQ(parsed.options.plan.perTry, 250ms);
  EXPECT_EQ(parsed.options.plan.dropAfter, 90s);
}

TEST(TncOptions, WhatIsWrongIsSaidWithTheOption) {
  const std::pair<std::vector<std::string_view>, const char*> kWrong[] = {
      {{"--node", "7300"}, "--node: a node is HOST:PORT"},
      {{"--node", ":7300"}, "--node: a node is HOST:PORT"},
      {{"--node", "host:0"}, "--node: a node is HOST:PORT"},
      {{"--retry-out", "-1"}, "--retry-out: a count is"},
      {{"--rate", "fast"}, "--rate: a rate is"},
      {{"--try-seconds", "nan"}, "--try-seconds: seconds are"},
      {{"--seed"}, "--seed needs a value"},
      {{"--echo=1"}, "--echo takes no value"},
      {{"--call="}, "--call: a call holds no blanks"},
      {{"--baud", "9600"}, "unknown option --baud"},
      {{"x"}, "unknown option x"}};
  for (const auto& [arguments, wrong] : kWrong)
    EXPECT_THAT(Parse(arguments).wrong, HasSubstr(wrong)) << arguments.front();
}

TEST(TncOptions, HelpNamesEachOption) {
  EXPECT_TRUE(Parse({"--help"}).options.help);
  for (const char* name : {"--call CALL", "--node HOST:PORT", "--link PATH", "--retry-out COUNT",
                           "--drop-after SECONDS", "--reconnect", "--garbage", "--silent"})
    EXPECT_THAT(HelpText(), HasSubstr(name));
}

}  // namespace
}  // namespace practice_tnc
