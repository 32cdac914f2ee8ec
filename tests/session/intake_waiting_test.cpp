#include <gmock/gmock.h>

#include <stdexcept>

#include "session_fixture.h"

using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

class Waiting : public SessionFixture {
 protected:
  Waiting() { LogIn(); }

  // That row hands a step over for a line that begins with "wait".
  void WaitsIn(const std::string& row, Claim claim = Claim::None) {
    on[row] = [this, row, claim](std::string_view line) {
      if (!line.starts_with("wait")) return Claim::None;
      const std::string name = row + "'s";
      program.intake.PushStep(name, Step(name, 1s));
      return claim;
    };
  }

  // The log without the views.
  Lines Way() const {
    Lines way;
    for (const auto& entry : log.entries)
      if (!entry.starts_with("raw view") && !entry.starts_with("feed")) way.push_back(entry);
    return way;
  }
};

TEST_F(Waiting, RowsBehindTheOneThatWaitsSeeTheLineWhenItsStepIsDone) {
  WaitsIn("First");
  Receive("wait");
  EXPECT_THAT(Way(), ElementsAre("First: wait", "begins: First's"));
  EXPECT_TRUE(program.intake.Held());
  LetPass(1s);
  EXPECT_THAT(Way(), ElementsAre("First: wait", "begins: First's", "ends: First's", "Second: wait",
                                 "Third: wait", "forwarded: wait"));
  EXPECT_FALSE(program.intake.Held());
}

TEST_F(Waiting, LineWhoseRowWaitsAndClosesTheSessionEndsThere) {
  on["First"] = [this](std::string_view) {
    program.intake.PushStep("never", Step("never", 1s));
    program.connection.ForceClose();
    return Claim::None;
  };
  Receive("wait");
  LetPass(5s);
  EXPECT_THAT(Way(), ElementsAre("First: wait"));
  EXPECT_FALSE(program.intake.Held());
}

TEST_F(Waiting, LaterLinesWaitForTheWholeWayOfTheEarlierOne) {
  WaitsIn("First");
  ReceiveBytes("wait\r\nnext\r\n");
  Receive("last");
  LetPass(2s);
  EXPECT_THAT(Way(), ElementsAre("First: wait", "begins: First's", "ends: First's", "Second: wait",
                                 "Third: wait", "forwarded: wait", "First: next", "Second: next",
                                 "Third: next", "forwarded: next", "First: last", "Second: last",
                                 "Third: last", "forwarded: last"));
}

TEST_F(Waiting, LaterLinesDoNotEvenReachTheRawViewBefore) {
  WaitsIn("First");
  ReceiveBytes("wait\r\nnext\r\n");
  EXPECT_THAT(log.Of("raw view"), ElementsAre("wait"));
  LetPass(2s);
  EXPECT_THAT(log.Of("raw view"), ElementsAre("wait", "next"));
}

TEST_F(Waiting, TwoRowsThatWaitDoSoOneAfterTheOther) {
  WaitsIn("First");
  WaitsIn("Second");
  ReceiveBytes("wait\r\nnext\r\n");
  LetPass(3s);
  EXPECT_THAT(Way(),
              ElementsAre("First: wait", "begins: First's", "ends: First's", "Second: wait",
                          "begins: Second's", "ends: Second's", "Third: wait", "forwarded: wait",
                          "First: next", "Second: next", "Third: next", "forwarded: next"));
}

TEST_F(Waiting, StepsOfOneRowAreDoneInTheOrderOfPushing) {
  on["First"] = [this](std::string_view line) {
    if (line != "wait") return Claim::None;
    program.intake.PushStep("a", Step("a", 1s));
    program.intake.PushStep("b", Step("b", 1ms));
    return Claim::None;
  };
  Receive("wait");
  LetPass(2s);
  EXPECT_THAT(Way(), ElementsAre("First: wait", "begins: a", "ends: a", "begins: b", "ends: b",
                                 "Second: wait", "Third: wait", "forwarded: wait"));
}

TEST_F(Waiting, RowThatWaitsAndClaimsHasItsTailBehindTheStep) {
  WaitsIn("First", Claim::Tail);
  Receive("wait");
  LetPass(2s);
  EXPECT_THAT(Way(),
              ElementsAre("First: wait", "begins: First's", "ends: First's", "forwarded: wait"));
}

TEST_F(Waiting, RowThatWaitsAndClaimsWithoutATailEndsTheLine) {
  WaitsIn("First", Claim::Quiet);
  ReceiveBytes("wait\r\nnext\r\n");
  LetPass(2s);
  EXPECT_THAT(Way(), ElementsAre("First: wait", "begins: First's", "ends: First's", "First: next",
                                 "Second: next", "Third: next", "forwarded: next"));
}

TEST_F(Waiting, LineThatARowKeptBackBeforeItsStepIsNotForwardedBehindIt) {
  on["First"] = [this](std::string_view line) {
    if (line != "wait") return Claim::None;
    program.intake.ForwardSuppressed = true;
    program.intake.PushStep("a", Step("a", 1s));
    return Claim::None;
  };
  ReceiveBytes("wait\r\nnext\r\n");
  LetPass(2s);
  EXPECT_THAT(log.Of("forwarded"), ElementsAre("next"));
}

TEST_F(Waiting, TextInTheReadBufferDoesNotChangeTheLineThatWaits) {
  WaitsIn("First");
  Receive("wait for this longer line");
  node.Say("x\r\ny\r\n" + std::string(5000, 'z') + "\r\n");
  LetPass(2s);
  EXPECT_EQ(log.Of("Third").front(), "wait for this longer line");
}

platform::Task<> FailingStep() {
  co_await platform::Delay(1ms);
  throw std::runtime_error("boom");
}

TEST_F(Waiting, StepThatFailsIsReportedByItsNameAndEverythingGoesOn) {
  on["First"] = [this](std::string_view line) {
    if (line == "wait") program.intake.PushStep("Profile", FailingStep());
    return Claim::None;
  };
  ReceiveBytes("wait\r\nnext\r\n");
  LetPass(1s);
  EXPECT_THAT(faults, ElementsAre("Profile: boom"));
  EXPECT_THAT(log.Of("Third"), ElementsAre("wait", "next"));
  EXPECT_FALSE(program.intake.Held());
}

TEST_F(Waiting, HandlerThatPushesAStepAndFailsIsReportedAndItsStepIsDone) {
  on["First"] = [this](std::string_view line) -> Claim {
    if (line != "wait") return Claim::None;
    program.intake.PushStep("a", Step("a", 1s));
    throw std::runtime_error("boom");
  };
  ReceiveBytes("wait\r\nnext\r\n");
  LetPass(2s);
  EXPECT_THAT(faults, ElementsAre("First: boom"));
  EXPECT_THAT(log.Of("Third"), ElementsAre("wait", "next"));
}

TEST_F(Waiting, HandlerThatFailsInTheRestOfALineIsReportedUnderItsOwnName) {
  WaitsIn("First");
  on["Second"] = [](std::string_view) -> Claim { throw std::runtime_error("boom"); };
  Receive("wait");
  LetPass(2s);
  EXPECT_THAT(faults, ElementsAre("Second: boom"));
  EXPECT_THAT(log.Of("Third"), ElementsAre("wait"));
}

TEST_F(Waiting, PeersCloseWaitsForTheSteps) {
  WaitsIn("First");
  node.Say("wait\r\nlast words\r\n");
  node.Close();
  LetPass(500ms);
  EXPECT_TRUE(program.state.LoggedIn);
  LetPass(2s);
  EXPECT_THAT(log.Of("Third"), ElementsAre("wait", "last words"));
  EXPECT_FALSE(program.state.LoggedIn);
}

TEST_F(Waiting, OwnCloseDropsTheStepsNotYetBegunAndTheRestOfTheLine) {
  on["First"] = [this](std::string_view) {
    program.intake.PushStep("a", Step("a", 1s));
    program.intake.PushStep("b", Step("b", 1s));
    return Claim::None;
  };
  Receive("wait");
  program.connection.ForceClose();
  LetPass(5s);
  EXPECT_THAT(Way(), ElementsAre("First: wait", "begins: a", "ends: a"));
  EXPECT_FALSE(program.intake.Held());
}

TEST_F(Waiting, NextSessionIsServedAfterAnOwnCloseBetweenSteps) {
  WaitsIn("First");
  Receive("wait");
  program.connection.ForceClose();
  LetRetry();
  log.entries.clear();
  Receive("welcome");
  EXPECT_THAT(log.Of("Third"), ElementsAre("welcome"));
}

platform::Task<> ClosingStep(session::Connection& connection, Station::Log& log) {
  co_await platform::Delay(100ms);
  connection.ForceClose();
  co_await platform::Delay(100ms);
  log.Add("ends", "closing");
}

TEST_F(Waiting, StepThatClosesTheSessionRunsToItsEnd) {
  on["First"] = [this](std::string_view) {
    program.intake.PushStep("closing", ClosingStep(program.connection, log));
    program.intake.PushStep("b", Step("b", 1s));
    return Claim::None;
  };
  ReceiveBytes("wait\r\nnext\r\n");
  LetPass(5s);
  EXPECT_THAT(Way(), ElementsAre("First: wait", "ends: closing"));
}

TEST_F(Waiting, ThousandsOfLinesThatAllWaitKeepTheirOrder) {
  on["Second"] = [this](std::string_view) {
    program.intake.PushStep("a", Step("a", 1ms));
    return Claim::None;
  };
  std::string flood;
  Lines expected;
  for (int i = 0; i < 3000; ++i) {
    expected.push_back("line " + std::to_string(i));
    flood += expected.back() + "\r\n";
  }
  node.Say(flood);
  LetPass(1min);
  EXPECT_EQ(log.Of("Third"), expected);
}

}  // namespace
