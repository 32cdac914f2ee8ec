#include "spots/membership.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/sim/world.h"

namespace spots {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kNoLotw = " LoTW database is Empty.  Click to Update. ";
constexpr auto kNoEqsl = " eQSL database is Empty.  Click to Update. ";
constexpr std::size_t kFiftyMegabytes = 50'000'000;

std::string LotwText(const std::string& lines) {
  std::string text = "LOTW\r\n" + lines;
  for (int i = 0; i < 1000; ++i) text += "&\r\n";
  return text;
}

std::string EqslText(const std::string& lines) {
  return "eQSL list of AG members as of 20-Nov-2026\r\n" + lines;
}

class MembershipTest : public testing::Test {
 protected:
  // K1BOTH is on both lists, K1LOTW and K1EQSL on one each.
  void HaveBoth() {
    world.files.content["/f/lotw.txt"] = LotwText("K1BOTH        K1LOTW\r\n");
    world.files.content["/f/eqsl.txt"] = EqslText("k1eqsl\r\nk1both\r\n");
    membership.ReadLotw();
    membership.ReadeQSL();
  }
  FileState ReadLotw() {
    membership.ReadLotw();
    return membership.LotwFile.Get();
  }
  FileState ReadeQSL() {
    membership.ReadeQSL();
    return membership.EqslFile.Get();
  }
  void Use(bool lotw, bool eqsl) {
    membership.showlotw.UserSets(lotw);
    membership.showeqsl.UserSets(eqsl);
  }
  // The mark; "dropped" for a spot that is rejected.
  std::string Mark(const std::string& call) {
    Spot spot;
    spot.DxCall = call;
    spot.LotwMark = "?";
    return membership.MarkSpot(spot) ? spot.LotwMark : "dropped";
  }
  std::string Ask(const std::string& call) {
    membership.txtLotw.UserTypes(call);
    membership.txtLotw.UserPressesReturn();
    return membership.lblLotw.Caption.Get() + "/" + membership.txtLotw.Hint.Get();
  }
  std::string RejectCaption() const { return membership.RejectNot.Caption.Get(); }

  platform::sim::World world;
  core::Settings settings;
  std::vector<Membership::List> updates;
  Membership membership{world.files, "/f", settings,
                        [this](Membership::List list) { updates.push_back(list); }};
};

TEST_F(MembershipTest, MarkSaysOnWhichListsTheCallIs) {
  HaveBoth();
  Use(true, true);
  EXPECT_EQ(Mark("K1BOTH"), "=");
  EXPECT_EQ(Mark("K1EQSL"), "-");
  EXPECT_EQ(Mark("K1LOTW"), "+");
  EXPECT_EQ(Mark("K1NONE"), " ");
}

TEST_F(MembershipTest, ListThatIsOffMarksNothing) {
  HaveBoth();
  EXPECT_EQ(Mark("K1BOTH"), " ");
  Use(true, false);
  EXPECT_EQ(Mark("K1BOTH"), "+");
  EXPECT_EQ(Mark("K1EQSL"), " ");
  Use(false, true);
  EXPECT_EQ(Mark("K1BOTH"), "-");
  EXPECT_EQ(Mark("K1LOTW"), " ");
}

TEST_F(MembershipTest, FindClearsBothFlagsFirst) {
  HaveBoth();
  Use(true, true);
  membership.FindLotw("K1BOTH");
  EXPECT_TRUE(membership.OnLotw && membership.OnEqsl);
  membership.FindLotw("K1EQSL");
  EXPECT_FALSE(membership.OnLotw);
  EXPECT_TRUE(membership.OnEqsl);
  membership.FindLotw("k1both");
  EXPECT_FALSE(membership.OnLotw || membership.OnEqsl);
}

TEST_F(MembershipTest, EveryCallOfALongUnsortedListIsFound) {
  std::string lines;
  for (int i = 0; i < 20'000; ++i) lines += "K" + std::to_string(i * 7919 % 20'000) + "X\r\n";
  world.files.content["/f/lotw.txt"] = LotwText(lines);
  membership.ReadLotw();
  Use(true, false);
  for (int i = 0; i < 20'000; ++i) ASSERT_EQ(Mark("K" + std::to_string(i) + "X"), "+") << i;
}

TEST_F(MembershipTest, EmptyListsLeaveTheMarkBlankAndRejectNothing) {
  Use(true, true);
  membership.RejectNot.UserSets(true);
  EXPECT_EQ(Mark("K1BOTH"), " ");
}

TEST_F(MembershipTest, RejectNotDropsWhoIsOnNeitherList) {
  HaveBoth();
  Use(true, true);
  membership.RejectNot.UserSets(true);
  EXPECT_EQ(Mark("K1NONE"), "dropped");
  EXPECT_EQ(Mark("K1EQSL"), "-");
}

TEST_F(MembershipTest, WithEqslAloneOnlyItsMembersPass) {
  HaveBoth();
  Use(false, true);
  membership.RejectNot.UserSets(true);
  EXPECT_EQ(RejectCaption(), "Reject All Except eQSL");
  EXPECT_EQ(Mark("K1LOTW"), "dropped");
  EXPECT_EQ(Mark("K1BOTH"), "-");
}

TEST_F(MembershipTest, RejectNotSaysOfWhomAndIsOffWithBothListsOff) {
  HaveBoth();
  membership.RejectNot.UserSets(true);
  EXPECT_EQ(RejectCaption(), "");
  EXPECT_FALSE(membership.RejectNot.Visible.Get());
  EXPECT_EQ(Mark("K1NONE"), " ");
  Use(true, false);
  EXPECT_EQ(RejectCaption(), "Reject All Except LoTW");
  EXPECT_TRUE(membership.RejectNot.Visible.Get());
  Use(true, true);
  EXPECT_EQ(RejectCaption(), "Reject All Except LoTW + eQSL");
}

TEST_F(MembershipTest, CaptionsCountTheUsers) {
  EXPECT_EQ(membership.showlotw.Caption.Get(), kNoLotw);
  EXPECT_EQ(membership.showeqsl.Caption.Get(), kNoEqsl);
  HaveBoth();
  EXPECT_EQ(membership.showlotw.Caption.Get(), "Show LoTW (2 users)");
  EXPECT_EQ(membership.showeqsl.Caption.Get(), "Show eQSL (2 users)");
  EXPECT_EQ(membership.LotwCount(), 2u);
  EXPECT_EQ(membership.EqslCount(), 2u);
}

TEST_F(MembershipTest, ClickOnAnEmptyListStartsItsUpdate) {
  membership.showeqsl.UserSets(true);
  EXPECT_THAT(updates, ElementsAre(Membership::List::Eqsl));
  membership.showlotw.UserSets(true);
  EXPECT_THAT(updates, ElementsAre(Membership::List::Eqsl, Membership::List::Lotw));
  HaveBoth();
  updates.clear();
  Use(false, false);
  EXPECT_THAT(updates, IsEmpty());
}

TEST_F(MembershipTest, FileOfNoGoodEmptiesTheListAndLeavesTheCaption) {
  HaveBoth();
  Use(true, true);
  world.files.content["/f/lotw.txt"] = "LOTW\r\nK1BOTH\r\n";
  world.files.content.erase("/f/eqsl.txt");
  membership.ReadLotw();
  membership.ReadeQSL();
  EXPECT_EQ(membership.LotwCount() + membership.EqslCount(), 0u);
  EXPECT_EQ(membership.showlotw.Caption.Get(), "Show LoTW (2 users)");
  EXPECT_EQ(membership.showeqsl.Caption.Get(), "Show eQSL (2 users)");
  EXPECT_EQ(Mark("K1BOTH"), " ");
}

TEST_F(MembershipTest, FileWithoutAnyCallIsAnEmptyList) {
  world.files.content["/f/lotw.txt"] = LotwText("");
  world.files.content["/f/eqsl.txt"] = EqslText("");
  membership.ReadLotw();
  membership.ReadeQSL();
  EXPECT_EQ(membership.showlotw.Caption.Get(), kNoLotw);
  EXPECT_EQ(membership.showeqsl.Caption.Get(), kNoEqsl);
}

TEST_F(MembershipTest, FileThatMayNotBeReadIsAnEmptyList) {
  world.files.content["/f/lotw.txt"] = LotwText("K1LOTW\r\n");
  world.files.denied.insert("/f");
  membership.ReadLotw();
  membership.ReadeQSL();
  EXPECT_EQ(membership.LotwCount(), 0u);
}

TEST_F(MembershipTest, ReadingSaysWhatBecameOfTheFile) {
  EXPECT_EQ(ReadLotw(), FileState::Missing);
  EXPECT_EQ(ReadeQSL(), FileState::Missing);
  world.files.content["/f/lotw.txt"] = "";
  world.files.content["/f/eqsl.txt"] = "<html>";
  EXPECT_EQ(ReadLotw(), FileState::Damaged);
  EXPECT_EQ(ReadeQSL(), FileState::Damaged);
  world.files.content["/f/lotw.txt"] = LotwText("K1LOTW\r\n");
  world.files.content["/f/eqsl.txt"] = EqslText("k1eqsl\r\n");
  EXPECT_EQ(ReadLotw(), FileState::Read);
  EXPECT_EQ(ReadeQSL(), FileState::Read);
  EXPECT_EQ(ReadeQSL(), FileState::Read) << "in order";
  world.files.denied.insert("/f");
  EXPECT_EQ(ReadLotw(), FileState::Unreadable);
  EXPECT_EQ(ReadeQSL(), FileState::Unreadable);
}

TEST_F(MembershipTest, FileThatIsCutIsDamagedAndItsCallsCount) {
  world.files.content["/f/lotw.txt"] = LotwText("") + "K1LOTW        K1CU";
  world.files.content["/f/eqsl.txt"] = " 3 MOLVA SORTED LIST OF AG MEMBERS\r\nK1EQSL\r\nK1";
  EXPECT_EQ(ReadLotw(), FileState::Damaged);
  EXPECT_EQ(ReadeQSL(), FileState::Damaged);
  EXPECT_EQ(membership.LotwCount(), 2u);
  EXPECT_EQ(membership.EqslCount(), 2u);
  world.files.content["/f/lotw.txt"] = LotwText("K1LOTW\r\n") + "&& end";
  EXPECT_EQ(ReadLotw(), FileState::Read) << "the list ends before its last line";
}

TEST_F(MembershipTest, FiftyMegabytesOfCallsAreReadInPartAndNotWrittenOver) {
  std::string calls;
  while (calls.size() < kFiftyMegabytes) calls += "K1ABC\n";
  const std::string text = EqslText(calls);
  world.files.content["/f/eqsl.txt"] = text;
  EXPECT_EQ(ReadeQSL(), FileState::TooLong);
  EXPECT_EQ(membership.EqslCount(), kMostMembers);
  EXPECT_EQ(world.files.content["/f/eqsl.txt"], text);
  EXPECT_LT(membership.Memory(), 50u << 20);
}

TEST_F(MembershipTest, FiftyMegabytesWithoutALineEndAreNoCall) {
  world.files.content["/f/eqsl.txt"] = EqslText("k1abc\r\n" + std::string(kFiftyMegabytes, 'K'));
  world.files.content["/f/lotw.txt"] = LotwText(std::string(kFiftyMegabytes, 'K'));
  membership.ReadLotw();
  membership.ReadeQSL();
  EXPECT_EQ(membership.LotwCount(), 5u);
  EXPECT_EQ(membership.EqslCount(), 1u);
  EXPECT_LT(membership.Memory(), 10'000u);
}

TEST_F(MembershipTest, FileThatIsCutAnywhereGivesTheCallsBeforeTheCut) {
  const std::string lotw = LotwText("K1BOTH        K1LOTW\r\n");
  const std::string eqsl = EqslText("k1eqsl\r\nk1both\r\n");
  for (std::size_t end = 0; end <= eqsl.size(); ++end) {
    world.files.content["/f/lotw.txt"] = lotw.substr(0, end);
    world.files.content["/f/eqsl.txt"] = eqsl.substr(0, end);
    membership.ReadLotw();
    membership.ReadeQSL();
    EXPECT_EQ(membership.LotwCount(), 0u) << "damaged";
    EXPECT_LE(membership.EqslCount(), 2u);
  }
  EXPECT_EQ(membership.EqslCount(), 2u);
}

TEST_F(MembershipTest, FetchedLotwListIsWrittenOutACallALine) {
  world.files.content["/f/lotw.txt"] = LotwText("K1BOTH        K1LOTW(5)     K1(9+)\r\n");
  membership.ReadLotw();
  EXPECT_FALSE(world.files.Exists("/f/lotwlist.txt"));
  EXPECT_EQ(membership.SkippedLotw(), 1u);
  membership.ReadLotw(Membership::Origin::Fetched);
  EXPECT_EQ(world.files.content["/f/lotwlist.txt"], "K1BOTH\r\nK1LOTW\r\n");
}

TEST_F(MembershipTest, FetchedFileOfNoGoodWritesNoList) {
  world.files.content["/f/lotw.txt"] = "<html>";
  membership.ReadLotw(Membership::Origin::Fetched);
  EXPECT_FALSE(world.files.Exists("/f/lotwlist.txt"));
}

TEST_F(MembershipTest, EqslFileIsRewrittenInOrderOnce) {
  HaveBoth();
  const std::string sorted =
      " 2 MOLVA SORTED EQSL LIST OF AG MEMBERS AS OF 20-NOV-2026\r\nK1BOTH\r\nK1EQSL\r\n";
  EXPECT_EQ(world.files.content["/f/eqsl.txt"], sorted);
  world.files.bytesFree = 0;
  membership.ReadeQSL();
  EXPECT_EQ(world.files.content["/f/eqsl.txt"], sorted);
  EXPECT_EQ(membership.showeqsl.Caption.Get(), "Show eQSL (2 users)");
}

TEST_F(MembershipTest, FullDiskLeavesTheFetchedEqslFileWholeAndTheListInUse) {
  world.files.content["/f/eqsl.txt"] = EqslText("k1both\r\n");
  world.files.bytesFree = 10;
  membership.ReadeQSL();
  EXPECT_EQ(world.files.content["/f/eqsl.txt"], EqslText("k1both\r\n"));
  EXPECT_EQ(membership.EqslCount(), 1u);
}

TEST_F(MembershipTest, SwitchesStandInTheSettings) {
  settings.ShLoTW = settings.RejectNotLoTWeQSL = settings.eQSLChecking = true;
  membership.TakeSettings();
  EXPECT_TRUE(membership.showlotw.Value.Get());
  EXPECT_FALSE(membership.showeqsl.Value.Get());
  EXPECT_TRUE(membership.RejectNot.Value.Get());
  EXPECT_FALSE(membership.LotwChecker.Value.Get());
  EXPECT_TRUE(membership.eQSLchecker.Value.Get());
  EXPECT_THAT(updates, IsEmpty());
  Use(false, true);
  membership.RejectNot.UserSets(false);
  membership.LotwChecker.UserSets(true);
  membership.eQSLchecker.UserSets(false);
  EXPECT_FALSE(settings.ShLoTW || settings.RejectNotLoTWeQSL || settings.eQSLChecking);
  EXPECT_TRUE(settings.SheQSL && settings.LoTWChecking);
}

TEST_F(MembershipTest, CheckersShowTheBoxWithItsHintAndTips) {
  EXPECT_FALSE(membership.txtLotw.Visible.Get());
  membership.LotwChecker.UserSets(true);
  EXPECT_TRUE(membership.txtLotw.Visible.Get());
  EXPECT_EQ(membership.txtLotw.Hint.Get(), "LoTW Check - Enter a callsign. ");
  EXPECT_EQ(membership.LotwChecker.ToolTip.Get(), "Enter a call sign.  LoTW Checker");
  membership.eQSLchecker.UserSets(true);
  EXPECT_EQ(membership.txtLotw.Hint.Get(), "LoTW and eQSL Check - Enter a callsign. ");
  EXPECT_EQ(membership.eQSLchecker.ToolTip.Get(), "Enter a call sign.  LoTW and eQSL Checker");
  membership.LotwChecker.UserSets(false);
  EXPECT_EQ(membership.txtLotw.Hint.Get(), "eQSL Check - Enter a callsign. ");
  EXPECT_EQ(membership.eQSLchecker.ToolTip.Get(), "Enter a call sign.  eQSL Checker");
  membership.eQSLchecker.UserSets(false);
  EXPECT_FALSE(membership.txtLotw.Visible.Get());
}

TEST_F(MembershipTest, ReturnAnswersForTheTypedCall) {
  HaveBoth();
  membership.LotwChecker.UserSets(true);
  membership.eQSLchecker.UserSets(true);
  EXPECT_EQ(Ask("k1both"), "Both/LoTW and eQSL User ");
  EXPECT_EQ(Ask(" K1LOTW "), "LoTW/LoTW User only");
  EXPECT_EQ(Ask("K1EQSL"), "eQSL/eQSL User only ");
  EXPECT_EQ(Ask("K1NONE"), "NO/No");
  EXPECT_EQ(membership.txtLotw.Text.Get(), "");
}

TEST_F(MembershipTest, QueryGoesByTheListsOfTheCheckers) {
  HaveBoth();
  Use(false, true);
  membership.LotwChecker.UserSets(true);
  EXPECT_EQ(Ask("K1LOTW"), "LoTW/LoTW User");
  EXPECT_EQ(Ask("K1EQSL"), "NO/No");
}

TEST_F(MembershipTest, ReturnInAnEmptyBoxAnswersNothing) {
  membership.LotwChecker.UserSets(true);
  EXPECT_EQ(Ask("  "), "/LoTW Check - Enter a callsign. ");
}

}  // namespace
}  // namespace spots
