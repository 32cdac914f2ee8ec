#include <gmock/gmock.h>

#include <stdexcept>

#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::SocketState;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class IntakeTest : public SessionFixture {
 protected:
  IntakeTest() { LogIn(); }

  void Claims(const std::string& row, Claim claim) {
    on[row] = [claim](std::string_view) { return claim; };
  }
};

TEST_F(IntakeTest, LineGoesToTheRawViewThenToTheRawFeedThenThroughTheRowsThenIsForwarded) {
  Receive("hello");
  EXPECT_THAT(log.entries, ElementsAre("raw view: hello", "feed: hello", "First: hello",
                                       "Second: hello", "Third: hello", "forwarded: hello"));
}

TEST_F(IntakeTest, RowThatClaimsALineWithATailEndsTheChainAndTheLineIsForwarded) {
  Claims("Second", Claim::Tail);
  Receive("hello");
  EXPECT_THAT(log.entries, ElementsAre("raw view: hello", "feed: hello", "First: hello",
                                       "Second: hello", "forwarded: hello"));
}

TEST_F(IntakeTest, RowThatClaimsALineWithoutATailEndsTheLineAtOnce) {
  Claims("Second", Claim::Quiet);
  Receive("DX de K1ABC:     14025.0  K2DEF");
  EXPECT_THAT(log.entries, ElementsAre(StartsWith("raw view: DX"), StartsWith("feed: DX"),
                                       StartsWith("First: DX"), StartsWith("Second: DX")));
}

TEST_F(IntakeTest, ClaimedLineLeavesNothingBehindForTheNextOne) {
  on["First"] = [](std::string_view line) { return line == "a" ? Claim::Quiet : Claim::None; };
  Receive("a");
  Receive("b");
  EXPECT_THAT(log.Of("Second"), ElementsAre("b"));
  EXPECT_THAT(log.Of("forwarded"), ElementsAre("b"));
}

TEST_F(IntakeTest, RowThatClaimedALineIsTold) {
  Lines claimed;
  program.intake.onClaimed = [&](int row, std::string_view line) {
    claimed.push_back(std::string(chain.Name(row)) + ": " + std::string(line));
  };
  on["Second"] = [](std::string_view line) { return line == "a" ? Claim::Tail : Claim::None; };
  on["Third"] = [](std::string_view line) { return line == "b" ? Claim::Quiet : Claim::None; };
  Receive("a");
  Receive("b");
  Receive("c");
  EXPECT_THAT(claimed, ElementsAre("Second: a", "Third: b"));
}

TEST_F(IntakeTest, LineThatBeginsWithZv11DoesNotGoToTheRawFeed) {
  Receive("ZV11^14025.0^K1ABC");
  Receive(" ZV11");
  Receive("ZV1");
  EXPECT_THAT(log.Of("feed"), ElementsAre(" ZV11", "ZV1"));
  EXPECT_THAT(log.Of("raw view"), ElementsAre("ZV11^14025.0^K1ABC", " ZV11", "ZV1"));
}

TEST_F(IntakeTest, LineThatAHandlerKeepsBackIsNotForwardedAndTheNextOneIs) {
  on["First"] = [this](std::string_view line) {
    if (line == "settings") program.intake.ForwardSuppressed = true;
    return Claim::None;
  };
  Receive("settings");
  Receive("hello");
  EXPECT_THAT(log.Of("forwarded"), ElementsAre("hello"));
}

TEST_F(IntakeTest, NothingIsForwardedBeforeTheLogin) {
  NodeCloses();
  LetRetry();
  log.entries.clear();
  Receive("welcome");
  EXPECT_THAT(log.Of("feed"), ElementsAre("welcome"));
  EXPECT_THAT(log.Of("forwarded"), IsEmpty());
}

TEST_F(IntakeTest, AnswersToOwnCommandsAreNotForwarded) {
  program.intake.stopLists.Build("K1TST-2");
  Receive("Operation successful");
  Receive("hello");
  EXPECT_THAT(log.Of("forwarded"), ElementsAre("hello"));
}

TEST_F(IntakeTest, HandlerThatFailsIsReportedByItsNameAndTheNextRowIsServed) {
  on["Second"] = [](std::string_view) -> Claim { throw std::runtime_error("boom"); };
  Receive("one");
  EXPECT_THAT(faults, ElementsAre("Second: boom"));
  EXPECT_THAT(log.Of("Third"), ElementsAre("one"));
  EXPECT_THAT(log.Of("forwarded"), ElementsAre("one"));
}

TEST_F(IntakeTest, HandlerThatFailsDoesNotLoseTheNextLine) {
  on["First"] = [](std::string_view line) -> Claim {
    if (line == "bad") throw std::runtime_error("boom");
    return Claim::None;
  };
  ReceiveBytes("good\r\nbad\r\ngood again\r\n");
  EXPECT_THAT(log.Of("Third"), ElementsAre("good", "bad", "good again"));
}

TEST_F(IntakeTest, TncSessionIsOpenToTheFirstRowsOnlyUntilItsLogin) {
  program.state.TncMode = true;
  program.state.LoggedIn = false;
  program.intake.InputLine("welcome");
  EXPECT_THAT(log.entries, ElementsAre("raw view: welcome", "feed: welcome", "First: welcome"));
  program.state.LoggedIn = true;
  log.entries.clear();
  program.intake.InputLine("hello");
  EXPECT_THAT(log.Of("Third"), ElementsAre("hello"));
}

TEST_F(IntakeTest, ClaimInTheFirstRowsOfATncSessionHasItsTailAndStopsThere) {
  program.state.TncMode = true;
  program.state.LoggedIn = false;
  Claims("First", Claim::Tail);
  program.intake.InputLine("*** CONNECTED");
  EXPECT_THAT(log.Of("Second"), IsEmpty());
  EXPECT_THAT(log.Of("forwarded"), IsEmpty());
}

TEST_F(IntakeTest, TimeOfTheLastLineIsKept) {
  LetPass(30s);
  const auto before = world.scheduler.Now();
  Receive("hello");
  EXPECT_GE(program.intake.LastLineAt, before);
  EXPECT_LE(program.intake.LastLineAt, world.scheduler.Now());
}

// Holding.

TEST_F(IntakeTest, TextWaitsWhileIntakeIsHeld) {
  auto hold = program.intake.Hold();
  Receive("later");
  LetPass(1h);
  EXPECT_THAT(log.entries, IsEmpty());
  hold.Release();
  LetPass(20ms);
  EXPECT_THAT(log.Of("First"), ElementsAre("later"));
}

TEST_F(IntakeTest, IntakeIsHeldUntilTheLastHolderLetsGo) {
  auto first = program.intake.Hold();
  auto second = program.intake.Hold();
  Receive("later");
  first.Release();
  LetPass(1min);
  EXPECT_TRUE(program.intake.Held());
  EXPECT_THAT(log.Of("First"), IsEmpty());
  second.Release();
  LetPass(20ms);
  EXPECT_FALSE(program.intake.Held());
  EXPECT_THAT(log.Of("First"), ElementsAre("later"));
}

TEST_F(IntakeTest, RestOfTheBatchInWhichAHandlerHoldsWaitsToo) {
  platform::Registration hold;
  on["First"] = [&](std::string_view line) {
    if (line == "one") hold = program.intake.Hold();
    return Claim::None;
  };
  ReceiveBytes("one\r\ntwo\r\nthr");
  ReceiveBytes("ee\r\n");
  LetPass(1min);
  EXPECT_THAT(log.Of("First"), ElementsAre("one"));
  hold.Release();
  LetPass(20ms);
  EXPECT_THAT(log.Of("First"), ElementsAre("one", "two", "three"));
}

TEST_F(IntakeTest, PeersCloseWaitsForHeldIntakeAndForTheTextBeforeIt) {
  auto hold = program.intake.Hold();
  Receive("last words");
  NodeCloses();
  LetPass(1min);
  EXPECT_EQ(SocketState(), SocketState::Connected);
  EXPECT_TRUE(program.state.LoggedIn);
  hold.Release();
  LetPass(20ms);
  EXPECT_THAT(log.Of("First"), ElementsAre("last words"));
  EXPECT_FALSE(program.state.LoggedIn);
  EXPECT_EQ(SocketState(), SocketState::Closed);
}

TEST_F(IntakeTest, ResetWaitsForHeldIntakeAndForTheTextBeforeIt) {
  auto hold = program.intake.Hold();
  Receive("last words");
  NodeResets();
  LetPass(1min);
  EXPECT_TRUE(program.state.LoggedIn);
  hold.Release();
  LetPass(20ms);
  EXPECT_THAT(log.Of("First"), ElementsAre("last words"));
  EXPECT_FALSE(program.state.LoggedIn);
}

TEST_F(IntakeTest, PeersCloseComesBehindTheRestOfItsLastBatch) {
  bool loggedInAtTheEnd = false;
  on["First"] = [&](std::string_view line) {
    if (line == "bye") loggedInAtTheEnd = program.state.LoggedIn;
    return Claim::None;
  };
  node.Say("one\r\ntwo\r\nbye\r\n");
  node.Close();
  LetPass(1s);
  EXPECT_THAT(log.Of("First"), ElementsAre("one", "two", "bye"));
  EXPECT_TRUE(loggedInAtTheEnd);
}

TEST_F(IntakeTest, WhatIsSentWhileThePeersCloseWaitsIsLost) {
  auto hold = program.intake.Hold();
  NodeCloses();
  program.outgoing.SendAsIs("lost");
  LetPass(1s);
  EXPECT_TRUE(program.state.LoggedIn);
  hold.Release();
  LetRetry();
  ExpectNothingSent();
}

TEST_F(IntakeTest, OwnCloseDropsTheRestOfTheBatch) {
  on["First"] = [this](std::string_view line) {
    if (line == "two") program.connection.ForceClose();
    return Claim::None;
  };
  ReceiveBytes("one\r\ntwo\r\nthree\r\nfour\r\n");
  LetPass(1s);
  EXPECT_THAT(log.Of("First"), ElementsAre("one", "two"));
  EXPECT_EQ(SocketState(), SocketState::Closed);
}

TEST_F(IntakeTest, OwnCloseDropsWhatWaitsUnread) {
  auto hold = program.intake.Hold();
  ReceiveBytes("one\r\ntwo\r\n");
  program.connection.ForceClose();
  hold.Release();
  LetPass(1s);
  EXPECT_THAT(log.Of("First"), IsEmpty());
}

// Steps.

class Waiting : public IntakeTest {
 protected:
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
