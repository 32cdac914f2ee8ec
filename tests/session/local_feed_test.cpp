#include "session/local_feed.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Lines = std::vector<std::string>;

class FakeLoggers : public session::LoggerServer {
 public:
  bool connected = true;
  bool fails = false;
  Lines lines;
  Lines raw;

  bool EnableLogger(int) override { return true; }
  int LoggersConnected() const override { return connected ? 1 : 0; }
  void SendLogger(std::string_view line) override { Take(lines, line); }
  void LoggerRaw(std::string_view line) override { Take(raw, line); }

 private:
  void Take(Lines& into, std::string_view line) const {
    if (fails) throw std::runtime_error("boom");
    into.emplace_back(line);
  }
};

class LocalFeedTest : public testing::Test {
 protected:
  static constexpr const char* kPrompt = "K1TST-2 de N0NODE arc >";

  core::Settings settings;
  session::SessionState state;
  FakeLoggers loggers;
  Lines rs232;
  Lines faults;
  session::LocalFeed feed{settings,
                          state,
                          loggers,
                          {.sendRS232 = [this](std::string_view line) { rs232.emplace_back(line); },
                           .onFault =
                               [this](std::string_view name, std::string_view what) {
                                 faults.push_back(std::string(name) + ": " + std::string(what));
                               }}};
};

TEST_F(LocalFeedTest, LineGoesToTheLoggersAndWithoutALocalNetworkNowhereElse) {
  feed.SendLocal("a line");
  EXPECT_THAT(loggers.lines, ElementsAre("a line"));
  EXPECT_THAT(rs232, IsEmpty());
}

TEST_F(LocalFeedTest, LineGoesToTheLocalNetworkWithoutAnyLogger) {
  settings.LocalNetwork = true;
  loggers.connected = false;
  feed.SendLocal("a line");
  EXPECT_THAT(loggers.lines, IsEmpty());
  EXPECT_THAT(rs232, ElementsAre("a line"));
}

TEST_F(LocalFeedTest, LineGoesToBoth) {
  settings.LocalNetwork = true;
  feed.SendLocal("a line");
  EXPECT_THAT(loggers.lines, ElementsAre("a line"));
  EXPECT_THAT(rs232, ElementsAre("a line"));
}

TEST_F(LocalFeedTest, PromptBehindTextThatWasSentIsDroppedOnce) {
  state.LastSendWasUser = true;
  feed.SendLocal(kPrompt);
  EXPECT_FALSE(state.LastSendWasUser);
  EXPECT_THAT(loggers.lines, IsEmpty());
  feed.SendLocal(kPrompt);
  EXPECT_THAT(loggers.lines, ElementsAre(kPrompt));
}

TEST_F(LocalFeedTest, LinesBeforeThePromptPass) {
  state.LastSendWasUser = true;
  feed.SendLocal("answer");
  EXPECT_TRUE(state.LastSendWasUser);
  EXPECT_THAT(loggers.lines, ElementsAre("answer"));
}

TEST_F(LocalFeedTest, AnswersToAKeepAliveAreDroppedOnArCluster) {
  state.Kind = session::NodeKind::ArCluster;
  state.LastSendWasUser = true;
  feed.SendLocal("Tx 5");
  feed.SendLocal("Rx 5");
  feed.SendLocal("Txt");
  feed.SendLocal("tx 5");
  EXPECT_THAT(loggers.lines, ElementsAre("Txt", "tx 5"));
  EXPECT_TRUE(state.LastSendWasUser);
}

TEST_F(LocalFeedTest, LinesLikeAnswersToAKeepAlivePassOnOtherNodes) {
  state.Kind = session::NodeKind::Spider;
  state.LastSendWasUser = true;
  feed.SendLocal("Tx 5");
  EXPECT_THAT(loggers.lines, ElementsAre("Tx 5"));
}

TEST_F(LocalFeedTest, LinesLikeAnswersToAKeepAlivePassWhenNothingWasSent) {
  state.Kind = session::NodeKind::ArCluster;
  feed.SendLocal("Tx 5");
  EXPECT_THAT(loggers.lines, ElementsAre("Tx 5"));
}

TEST_F(LocalFeedTest, WithNobodyToHearThePromptTheMarkStays) {
  loggers.connected = false;
  state.LastSendWasUser = true;
  feed.SendLocal(kPrompt);
  EXPECT_TRUE(state.LastSendWasUser);
}

TEST_F(LocalFeedTest, MarkOfASkimmerIsTakenOut) {
  settings.LocalNetwork = true;
  feed.SendLocal("DX de K1TST-#:  14025.0");
  feed.SendLocal("-#: -#: -#:");
  EXPECT_THAT(loggers.lines, ElementsAre("DX de K1TST:    14025.0", ":   :   -#:"));
  EXPECT_EQ(rs232, loggers.lines);
}

TEST_F(LocalFeedTest, MarkOfASkimmerStaysByItsOption) {
  settings.SendToLog = 1 << 20;
  feed.SendLocal("DX de K1TST-#:  14025.0");
  EXPECT_THAT(loggers.lines, ElementsAre("DX de K1TST-#:  14025.0"));
}

TEST_F(LocalFeedTest, OtherOptionsDoNotKeepTheMarkOfASkimmer) {
  settings.SendToLog = ~(1 << 20);
  feed.SendLocal("K1TST-#: ");
  EXPECT_THAT(loggers.lines, ElementsAre("K1TST:   "));
}

TEST_F(LocalFeedTest, FailureIsReportedAndTheNextLineIsServed) {
  loggers.fails = true;
  feed.SendLocal("one");
  EXPECT_THAT(faults, ElementsAre("SendLocal: boom"));
  loggers.fails = false;
  feed.SendLocal("two");
  EXPECT_THAT(loggers.lines, ElementsAre("two"));
}

TEST_F(LocalFeedTest, RawLineGoesToTheLoggersAsItCame) {
  state.LastSendWasUser = true;
  feed.RawLine("DX de K1TST-#:  14025.0");
  feed.RawLine(kPrompt);
  EXPECT_THAT(loggers.raw, ElementsAre("DX de K1TST-#:  14025.0", kPrompt));
  EXPECT_TRUE(state.LastSendWasUser);
}

TEST_F(LocalFeedTest, FailureOfARawLineIsReported) {
  loggers.fails = true;
  feed.RawLine("one");
  EXPECT_THAT(faults, ElementsAre("LoggerRaw: boom"));
}

}  // namespace
