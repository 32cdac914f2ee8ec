#include "core/call.h"

#include <gtest/gtest.h>

namespace core {
namespace {

TEST(Nossid, CutsTheSsidOff) {
  EXPECT_EQ(Nossid("N0CALL-3"), "N0CALL");
  EXPECT_EQ(Nossid("N0CALL-15-2"), "N0CALL");
}

TEST(Nossid, CutsTheSkimmerMarkOff) { EXPECT_EQ(Nossid("N0CALL-#"), "N0CALL"); }

TEST(Nossid, CutsTheSkimmerMarkOffBeforeTheParentheses) {
  EXPECT_EQ(Nossid("(N0CALL)-#"), "N0CALL");
}

TEST(Nossid, GivesUpperCase) { EXPECT_EQ(Nossid("n0call"), "N0CALL"); }

TEST(Nossid, OfNothingIsEmpty) {
  EXPECT_EQ(Nossid(""), "");
  EXPECT_EQ(Nossid("-#"), "");
  EXPECT_EQ(Nossid("("), "");
  EXPECT_EQ(Nossid("()"), "");
  EXPECT_EQ(Nossid("/"), "");
  EXPECT_EQ(Nossid("+"), "");
}

TEST(Nossid, TakesTheCallOutOfItsParentheses) {
  EXPECT_EQ(Nossid("(N0CALL-3)"), "N0CALL");
  EXPECT_EQ(Nossid("(N0CALL)"), "N0CALL");
}

TEST(Nossid, CutsTheLastByteWithALeadingParenthesisWhateverItIs) {
  EXPECT_EQ(Nossid("(N0CALL"), "N0CAL");
  EXPECT_EQ(Nossid("N0CALL)"), "N0CALL)");
}

TEST(Nossid, EndsAtTheFirstBlankOrStar) {
  EXPECT_EQ(Nossid("N0CALL *"), "N0CALL");
  EXPECT_EQ(Nossid("N0CALL*"), "N0CALL");
  EXPECT_EQ(Nossid(" N0CALL"), "");
}

TEST(Nossid, TakesTheLongestPieceBetweenSlashes) {
  EXPECT_EQ(Nossid("F/N0CALL/P"), "N0CALL");
  EXPECT_EQ(Nossid("N0CALL/MM"), "N0CALL");
  EXPECT_EQ(Nossid("n0call/mm-2"), "N0CALL");
  EXPECT_EQ(Nossid("VP2E/N0CALL"), "N0CALL");
  EXPECT_EQ(Nossid("/N0CALL/"), "N0CALL");
}

TEST(Nossid, TakesTheFirstOfEquallyLongPieces) {
  EXPECT_EQ(Nossid("AA1A/BB2B"), "AA1A");
  EXPECT_EQ(Nossid("N0/MM"), "N0");
}

TEST(Nossid, CutsALeadingPlus) {
  EXPECT_EQ(Nossid("+N0CALL"), "N0CALL");
  EXPECT_EQ(Nossid("++N0CALL"), "+N0CALL");
}

TEST(Nossid, CountsThePlusInThePieceItStandsIn) { EXPECT_EQ(Nossid("+N0/K1A"), "N0"); }

TEST(Nossid, CutsAtADashInFrontOfTheLongerPiece) { EXPECT_EQ(Nossid("K1A-3/VP2E"), "K1A"); }

TEST(BaseCall, IsTheCallBeforeItsSsid) {
  EXPECT_EQ(BaseCall("K1TST-2"), "K1TST");
  EXPECT_EQ(BaseCall("K1TST"), "K1TST");
  EXPECT_EQ(BaseCall("F/K1TST-2-3"), "F/K1TST");
  EXPECT_EQ(BaseCall(""), "");
}

}  // namespace
}  // namespace core
