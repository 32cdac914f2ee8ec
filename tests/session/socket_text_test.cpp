#include "session/socket_text.h"

#include <gtest/gtest.h>

using platform::SocketState;
using session::GreetingCall;
using session::StateText;

namespace {

std::string CallIn(std::string_view line) { return GreetingCall(line, "K1TST-2", "N0NODE"); }

TEST(StateText, EachStateHasItsText) {
  EXPECT_EQ(StateText(SocketState::Closed, false), "Disconnected  ");
  EXPECT_EQ(StateText(SocketState::Pending, false), "Connection pending  ");
  EXPECT_EQ(StateText(SocketState::Resolving, false), "Resolving     ");
  EXPECT_EQ(StateText(SocketState::Resolved, false), "Host Resolved ");
  EXPECT_EQ(StateText(SocketState::Connecting, false), "Connecting    ");
  EXPECT_EQ(StateText(SocketState::PeerClosing, false), "Peer is Closing the Connection  ");
  EXPECT_EQ(StateText(SocketState::Error, false), "Error  ");
}

TEST(StateText, ConnectedTellsWhetherTheLoginIsAwaited) {
  EXPECT_EQ(StateText(SocketState::Connected, false), "Connected & Waiting for Std Login Msg @ ");
  EXPECT_EQ(StateText(SocketState::Connected, true), "Connected to:  ");
}

TEST(StateText, AnyOtherStateIsTwoBlanksAndItsNumber) {
  EXPECT_EQ(StateText(SocketState::Listening, false), "  2");
}

TEST(GreetingCall, GreetingForAnotherCallIsNone) {
  EXPECT_EQ(CallIn(" de K2AAA N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(CallIn("K2AAA de N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(CallIn(" de K1TST-22 N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(CallIn("K1TST-22 de N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(CallIn("K1TST de N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(CallIn("XK1TST-2 de N0NODE 20-Nov-2026"), "");
}

TEST(GreetingCall, GreetingElsewhereThanAtTheStartIsNone) {
  EXPECT_EQ(CallIn("Hello K1TST-2 de N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(CallIn("DX de K1TST-2 N0NODE 20-Nov-2026"), "");
  EXPECT_EQ(CallIn("x de K1TST-2 N0NODE 20-Nov-2026"), "");
}

TEST(GreetingCall, WordThatEndsInAColonIsNoNode) {
  EXPECT_EQ(CallIn("K1TST-2 de K2AAA: hi"), "");
  EXPECT_EQ(CallIn(" de K1TST-2 K2AAA: hi"), "");
}

TEST(GreetingCall, LineWithoutANodeIsNone) {
  EXPECT_EQ(CallIn(""), "");
  EXPECT_EQ(CallIn(" de "), "");
  EXPECT_EQ(CallIn(" de K1TST-2"), "");
  EXPECT_EQ(CallIn(" de K1TST-2    "), "");
  EXPECT_EQ(CallIn("K1TST-2"), "");
  EXPECT_EQ(CallIn("K1TST-2 de"), "");
  EXPECT_EQ(CallIn("K1TST-2 de   "), "");
}

TEST(GreetingCall, NodeMustBeFollowedByABlankBehindTheOwnCall) {
  EXPECT_EQ(CallIn(" de K1TST-2 N0NODE"), "");
}

TEST(GreetingCall, NoOwnCallMatchesNothing) {
  EXPECT_EQ(GreetingCall(" de N0NODE hello", "", "N0NODE"), "");
}

TEST(GreetingCall, NodeIsTakenFromEitherFormInUpperCase) {
  EXPECT_EQ(CallIn(" de K1TST-2 n0node 20-Nov-2026 2148Z"), "N0NODE");
  EXPECT_EQ(CallIn("K1TST-2 de N0NODE 20-Nov-2026 2148Z dxspider >"), "N0NODE");
  EXPECT_EQ(CallIn("K1TST-2 de gb7abc-3 20-Nov-2026 2148Z dxspider >"), "GB7ABC-3");
}

TEST(GreetingCall, OwnCallCountsInAnyLetterCase) {
  EXPECT_EQ(CallIn("k1tst-2 de n0node 20-Nov-2026 2148Z dxspider >"), "N0NODE");
  EXPECT_EQ(CallIn(" DE k1tst-2 n0node 2148Z clx >"), "N0NODE");
}

TEST(GreetingCall, LeadingBlanksDoNotMatter) {
  EXPECT_EQ(CallIn("   K1TST-2 de N0NODE 20-Nov-2026 2148Z"), "N0NODE");
  EXPECT_EQ(CallIn("    de K1TST-2 N0NODE 20-Nov-2026"), "N0NODE");
}

TEST(GreetingCall, UnexpandedGreetingStandsForTheChosenNode) {
  EXPECT_EQ(CallIn("%C de %M %D %T"), "N0NODE");
  EXPECT_EQ(CallIn("%C de %M"), "N0NODE");
  EXPECT_EQ(CallIn("say %C de %M"), "");
}

}  // namespace
