#include <gmock/gmock.h>

#include <stdexcept>

#include "session_fixture.h"

using namespace std::chrono_literals;
using platform::SocketState;
using testing::ElementsAre;
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
  LetPass(1min);
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

}  // namespace
