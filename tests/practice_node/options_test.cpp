#include "practice_node/options.h"

#include "visit.h"

namespace practice_node {
namespace {

ParsedOptions Parse(std::initializer_list<std::string_view> arguments) {
  return ParseOptions(std::vector<std::string_view>(arguments));
}

TEST(OptionsTest, WithoutAnyItIsADxSpiderOnTheUsualPortOfThisMachine) {
  const auto parsed = Parse({});
  EXPECT_EQ(parsed.wrong, "");
  EXPECT_EQ(parsed.options.kind, Kind::Spider);
  EXPECT_EQ(parsed.options.address, "127.0.0.1");
  EXPECT_EQ(parsed.options.port, 7373);
  EXPECT_EQ(parsed.options.nodeCall, "N0DE-1");
  EXPECT_EQ(parsed.options.rate, 1.0);
  EXPECT_EQ(parsed.options.mischief, MischiefPlan());
}

TEST(OptionsTest, AValueFollowsBehindEqualsOrAsTheNextArgument) {
  EXPECT_EQ(Parse({"--port", "8000"}).options.port, 8000);
  EXPECT_EQ(Parse({"--port=8000"}).options.port, 8000);
}

TEST(OptionsTest, EachDialectHasAName) {
  constexpr std::pair<std::string_view, Kind> kNames[] = {
      {"ar", Kind::ArCluster},   {"spider", Kind::Spider},         {"clx", Kind::Clx},
      {"dxnet", Kind::DxNet},    {"wincluster", Kind::WinCluster}, {"zelva", Kind::Zelva},
      {"skimmer", Kind::Skimmer}};
  for (const auto& [name, kind] : kNames)
    EXPECT_EQ(Parse({"--dialect", name}).options.kind, kind) << name;
}

TEST(OptionsTest, AllStartsTheSevenInTheirOrder) {
  const auto kinds = KindsOf(Parse({"--all"}).options);
  EXPECT_EQ(kinds, (std::vector<Kind>{Kind::ArCluster, Kind::Spider, Kind::Clx, Kind::DxNet,
                                      Kind::WinCluster, Kind::Zelva, Kind::Skimmer}));
}

TEST(OptionsTest, EveryOptionArrives) {
  constexpr std::string_view mischief =
      "--misbehave=nuls,escapes,iac,no-line-ends,close,refuse,silent,stall,"
      "close-after=4,flood=100";
  const auto parsed = Parse({"--address=0.0.0.0", "--call=db0x", "--rate=0.5", "--seed=7",
                             "--play=f.txt", "--loop", "--version-string=1.55", "--password=x=y",
                             "--refuse-arpc", "--skimmers=60", "--prompt-first", mischief});
  ASSERT_EQ(parsed.wrong, "");
  const Options& options = parsed.options;
  EXPECT_EQ(options.address, "0.0.0.0");
  EXPECT_EQ(options.nodeCall, "DB0X");
  EXPECT_EQ(options.rate, 0.5);
  EXPECT_EQ(options.seed, 7u);
  EXPECT_EQ(options.playFile, "f.txt");
  EXPECT_TRUE(options.loop);
  EXPECT_EQ(options.spiderVersion, "1.55");
  EXPECT_EQ(options.password, "x=y");
  EXPECT_TRUE(options.refuseArpc);
  EXPECT_EQ(options.skimmersPercent, 60u);
  EXPECT_TRUE(options.promptFirst);
  EXPECT_EQ(options.mischief, (MischiefPlan{.close = true,
                                            .refuse = true,
                                            .silent = true,
                                            .nuls = true,
                                            .escapes = true,
                                            .iac = true,
                                            .noLineEnds = true,
                                            .closeAfterLines = 4,
                                            .stallAtLine = 10,
                                            .floodMegabytes = 100}));
}

TEST(OptionsTest, PasswordAloneTakesNoOtherArgument) {
  const auto parsed = Parse({"--password", "--loop", "--play", "f"});
  EXPECT_EQ(parsed.wrong, "");
  EXPECT_EQ(parsed.options.password, "");
  EXPECT_TRUE(parsed.options.loop);
}

TEST(OptionsTest, WhatIsWrongIsToldInPlainWords) {
  EXPECT_EQ(Parse({"--colour"}).wrong, "unknown option --colour");
  EXPECT_EQ(Parse({"7373"}).wrong, "unknown option 7373");
  EXPECT_EQ(Parse({""}).wrong, "unknown option ");
  EXPECT_EQ(Parse({"--port"}).wrong, "--port needs a value");
  EXPECT_EQ(Parse({"--all=yes"}).wrong, "--all takes no value");
  for (const auto port : {"", "x", "-1", "65536", "80x", " 80"})
    EXPECT_EQ(Parse({"--port", port}).wrong, "--port: a port is a number from 0 to 65535") << port;
  for (const auto rate : {"", "x", "-1", "nan", "inf", "1e9", "1 "})
    EXPECT_THAT(Parse({"--rate", rate}).wrong, StartsWith("--rate: a rate is a number")) << rate;
  EXPECT_THAT(Parse({"--seed=-1"}).wrong, StartsWith("--seed: "));
  EXPECT_EQ(Parse({"--skimmers=101"}).wrong,
            "--skimmers: the part of the Skimmers is a number from 0 to 100");
  EXPECT_EQ(Parse({"--dialect=morse"}).wrong, "--dialect: there is no dialect \"morse\"");
  EXPECT_EQ(Parse({"--version-string=2"}).wrong,
            "--version-string: the versions of DXSpider are 1.55 and 1.57");
  EXPECT_EQ(Parse({"--misbehave=sulk"}).wrong, "--misbehave: unknown misbehaviour \"sulk\"");
  EXPECT_EQ(Parse({"--call", "A B"}).wrong, "--call: a call holds no blanks");
  EXPECT_EQ(Parse({"--loop"}).wrong, "--loop needs --play");
  EXPECT_EQ(Parse({"--all", "--port=65530"}).wrong, "--all needs seven ports from --port on");
}

TEST(OptionsTest, HelpListsEveryOption) {
  const std::string help = HelpText();
  for (const auto option :
       {"--dialect", "--all", "--port", "--address", "--call", "--rate", "--seed", "--play",
        "--loop", "--version-string", "--password", "--misbehave", "--skimmers", "--prompt-first",
        "--refuse-arpc", "--help"})
    EXPECT_THAT(help, HasSubstr(std::string("\n  ") + option));
}

}  // namespace
}  // namespace practice_node
