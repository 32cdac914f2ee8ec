#include "spots/reject_lists.h"

#include <gmock/gmock.h>

#include "platform/sim/sim_files.h"
#include "session/memory_meter.h"

namespace spots {
namespace {

using Fault = platform::Files::Fault;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kListsPath = "/home/op/reject.dat";
constexpr const char* kBadPath = "/home/op/reject.dat.bad";
constexpr std::size_t kFarTooMuch = 50'000'000;

class RejectListsTest : public testing::Test {
 protected:
  RejectListsTest() { settings.RejSpots = true; }

  void Keep(const std::string& text) {
    files.content[kListsPath] = text;
    lists.ReadReject();
  }
  const std::vector<std::string>& Entries(RejectLists::Kind kind) const {
    return lists.lstReject[kind].Items();
  }
  FileState State() const { return lists.file.State.Get(); }
  bool Rejects(const std::string& call) {
    spot.DxCall = call;
    return lists.RejectDX(spot);
  }
  std::string Reason() const { return lists.lblRejected.ToolTip.Get(); }

  platform::sim::SimFiles files;
  core::Settings settings;
  RejectLists lists{files, settings, kListsPath};
  Spot spot = [] {
    Spot heard;
    heard.DxCall = "3Y0J";
    heard.Spotter = "W1ABC-5";
    heard.Node = "GB7MBC-1";
    heard.Comment = "CW up 2";
    heard.DxCty = "3Y";
    return heard;
  }();
};

// The file.

TEST_F(RejectListsTest, EntriesComeFromTheFileByTheirKind) {
  Keep("\"Dx\",\"K1*\"\r\n\"Comment\",\"FT8, weak\"\r\n\"Call\",\"W1ABC\"\r\n\"Dx\",\"P5DX\"\r\n");
  EXPECT_THAT(Entries(RejectLists::kDx), ElementsAre("K1*", "P5DX"));
  EXPECT_THAT(Entries(RejectLists::kCall), ElementsAre("W1ABC"));
  EXPECT_THAT(Entries(RejectLists::kComment), ElementsAre("FT8, weak"));
}

TEST_F(RejectListsTest, BlankValuesOtherKindsAndRepetitionsAreSkipped) {
  Keep(
      "\"Dx\",\"P5DX\"\n\"Dx\",\"  \"\n\"Dx\",\"\"\n\"Dx\"\n\n\"Ann\",\"P5DX\"\n\"dx\",\"K1ABC\"\n"
      "\"Dx\",\"P5DX\"\n\"Comment\",\"a\"\n\"Comment\",\"a\"\n\"Comment\",\"A\"\n");
  EXPECT_THAT(Entries(RejectLists::kDx), ElementsAre("P5DX"));
  EXPECT_THAT(Entries(RejectLists::kCall), IsEmpty());
  EXPECT_THAT(Entries(RejectLists::kComment), ElementsAre("a", "A"));
}

TEST_F(RejectListsTest, ReadingEmptiesTheListsFirst) {
  Keep("\"Dx\",\"P5DX\"\n\"Call\",\"W1ABC-5\"\n\"Comment\",\"up\"\n");
  Keep("\"Dx\",\"K1ABC\"\n");
  EXPECT_THAT(Entries(RejectLists::kDx), ElementsAre("K1ABC"));
  EXPECT_FALSE(Rejects("P5DX"));
  EXPECT_TRUE(Rejects("K1ABC"));
}

TEST_F(RejectListsTest, MissingFileLeavesThemEmpty) {
  Keep("\"Dx\",\"P5DX\"\n");
  files.content.clear();
  lists.ReadReject();
  EXPECT_THAT(Entries(RejectLists::kDx), IsEmpty());
  EXPECT_FALSE(Rejects("P5DX"));
}

TEST_F(RejectListsTest, FileIsWrittenKindByKind) {
  lists.Add(RejectLists::kComment, "FT8, weak");
  lists.Add(RejectLists::kCall, "W1ABC");
  lists.Add(RejectLists::kDx, "K1*");
  lists.Add(RejectLists::kDx, "P5DX");
  EXPECT_EQ(lists.WriteReject(), Fault::None);
  EXPECT_EQ(files.content[kListsPath],
            "\"Dx\",\"K1*\"\r\n\"Dx\",\"P5DX\"\r\n\"Call\",\"W1ABC\"\r\n"
            "\"Comment\",\"FT8, weak\"\r\n");
}

TEST_F(RejectListsTest, FileThatCanNotBeWrittenIsTold) {
  files.denied.insert(kListsPath);
  EXPECT_EQ(lists.WriteReject(), Fault::Denied);
}

TEST_F(RejectListsTest, FileThatMayNotBeReadIsNotWrittenOver) {
  files.content[kListsPath] = "\"Dx\",\"P5DX\"\r\n";
  files.denied.insert(kListsPath);
  lists.ReadReject();
  files.denied.clear();
  lists.Add(RejectLists::kDx, "K1ABC");
  EXPECT_EQ(lists.WriteReject(), Fault::Other);
  EXPECT_EQ(files.content[kListsPath], "\"Dx\",\"P5DX\"\r\n");
  lists.ReadReject();
  EXPECT_EQ(lists.WriteReject(), Fault::None);
}

TEST_F(RejectListsTest, FileThatHoldsNothingOfAListIsDamagedAndSetAsideWhenItIsWritten) {
  for (const std::string text : {"<html>\r\n", "\"K1ABC\",\"K\"\r\n", "\x01\x02\xFF"}) {
    files.content.clear();
    Keep(text);
    EXPECT_EQ(State(), FileState::Damaged) << text;
    lists.Add(RejectLists::kDx, "K1ABC");
    EXPECT_EQ(lists.WriteReject(), Fault::None);
    EXPECT_EQ(files.content[kBadPath], text);
    lists.ReadReject();
    EXPECT_EQ(State(), FileState::Read);
    EXPECT_TRUE(Rejects("K1ABC"));
  }
}

TEST_F(RejectListsTest, LineOfAnotherKindIsSetAsideWhenTheFileIsWritten) {
  const std::string text = "\"Dx\",\"P5DX\"\r\n\"Grid\",\"JO62\"\r\n";
  Keep(text);
  EXPECT_EQ(State(), FileState::Read);
  EXPECT_EQ(lists.WriteReject(), Fault::None);
  EXPECT_EQ(files.content[kBadPath], text);
  EXPECT_EQ(State(), FileState::SetAside);
}

TEST_F(RejectListsTest, FileThatIsCutIsDamagedAndItsEntriesHold) {
  const std::string text = "\"Dx\",\"P5DX\"\r\n\"Call\",\"W1A";
  Keep(text);
  EXPECT_EQ(State(), FileState::Damaged);
  EXPECT_TRUE(Rejects("P5DX"));
  EXPECT_EQ(lists.WriteReject(), Fault::None);
  EXPECT_EQ(files.content[kBadPath], text);
}

TEST_F(RejectListsTest, EmptyFileAndOneWithoutItsLastLineEndAreGood) {
  for (const char* text : {"", "\r\n", "\"Dx\",\"\"\r\n", "\"Dx\",\"P5DX\"", "Dx,P5DX"}) {
    Keep(text);
    EXPECT_EQ(State(), FileState::Read) << text;
    EXPECT_EQ(lists.WriteReject(), Fault::None) << text;
    EXPECT_FALSE(files.content.contains(kBadPath)) << text;
  }
  files.content.clear();
  lists.ReadReject();
  EXPECT_EQ(State(), FileState::Missing);
}

TEST_F(RejectListsTest, FileBeyondMeasureIsReadInPartAndSetAsideWhenItIsWritten) {
  std::string text;
  for (std::size_t i = 0; i <= RejectLists::kMostEntries; ++i)
    text += "\"Dx\",\"K" + std::to_string(i) + "\"\r\n";
  Keep(text + "\"Call\",\"W1ABC\"\r\n");
  EXPECT_EQ(State(), FileState::TooLong);
  EXPECT_EQ(Entries(RejectLists::kDx).size(), RejectLists::kMostEntries);
  EXPECT_THAT(Entries(RejectLists::kCall), ElementsAre("W1ABC"));
  EXPECT_FALSE(lists.Add(RejectLists::kDx, "P5DX"));
  EXPECT_EQ(lists.WriteReject(), Fault::None);
  EXPECT_EQ(files.content[kBadPath], text + "\"Call\",\"W1ABC\"\r\n");
}

TEST_F(RejectListsTest, FiftyMegabytesTakeNoMoreThanTheListsHold) {
  files.content[kListsPath] = "\"Dx\",\"" + std::string(kFarTooMuch, 'K');
  const std::size_t before = MemoryMeter::Live();
  lists.ReadReject();
  EXPECT_LT(MemoryMeter::Live(), before + 5 * RejectLists::kMostBytes);
  EXPECT_EQ(State(), FileState::TooLong);
}

TEST_F(RejectListsTest, EntriesAreHeldAsTheFileGivesThemBack) {
  EXPECT_TRUE(lists.Add(RejectLists::kComment, "\"big\"\nsignal"));
  EXPECT_THAT(Entries(RejectLists::kComment), ElementsAre("big signal"));
  EXPECT_FALSE(lists.Add(RejectLists::kComment, "big signal"));
  EXPECT_FALSE(lists.Add(RejectLists::kComment, " \" \" "));
  lists.WriteReject();
  lists.ReadReject();
  EXPECT_THAT(Entries(RejectLists::kComment), ElementsAre("big signal"));
}

TEST_F(RejectListsTest, EntryThatWasTakenOutRejectsNoMore) {
  for (const char* entry : {"K1*", "P5DX", "*/MM"}) lists.Add(RejectLists::kDx, entry);
  lists.Remove(RejectLists::kDx, 0);
  EXPECT_FALSE(Rejects("K1ABC"));
  EXPECT_TRUE(Rejects("P5DX"));
  EXPECT_TRUE(Rejects("G4AAA/MM"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"*/MM\") = ");
  lists.Add(RejectLists::kComment, "up");
  lists.Remove(RejectLists::kComment, 0);
  EXPECT_FALSE(Rejects("3Y0J"));
}

// Spots.

TEST_F(RejectListsTest, NothingIsRejectedUnlessEnabled) {
  lists.Add(RejectLists::kDx, "3Y0J");
  settings.RejSpots = false;
  EXPECT_FALSE(Rejects("3Y0J"));
  EXPECT_FALSE(lists.lblRejected.Visible.Get());
}

TEST_F(RejectListsTest, RejectedSpotsAreCounted) {
  lists.Add(RejectLists::kDx, "3Y0J");
  EXPECT_FALSE(lists.lblRejected.Visible.Get());
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_FALSE(Rejects("3Y0K"));
  EXPECT_EQ(lists.lblRejected.Caption.Get(), "Dx Spots Rejected = 2");
  EXPECT_TRUE(lists.lblRejected.Visible.Get());
}

TEST_F(RejectListsTest, DxCallIsComparedToTheLetter) {
  lists.Add(RejectLists::kDx, "P5DX");
  EXPECT_TRUE(Rejects("P5DX"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"P5DX\") = ");
  for (const char* call : {"p5dx", "P5DX/P", "P5D"}) EXPECT_FALSE(Rejects(call)) << call;
}

TEST_F(RejectListsTest, StarAtTheBeginningRejectsByTheEnding) {
  lists.Add(RejectLists::kDx, "*/MM");
  EXPECT_TRUE(Rejects("G4AAA/MM"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"*/MM\") = ");
  for (const char* call : {"G4AAA/M", "MM", "G4AAA/MM/P"}) EXPECT_FALSE(Rejects(call)) << call;
}

TEST_F(RejectListsTest, StarFartherInRejectsByTheBeginning) {
  lists.Add(RejectLists::kDx, "K1*");
  lists.Add(RejectLists::kDx, "W*X");
  for (const char* call : {"K1ABC", "K1", "W1AW"}) EXPECT_TRUE(Rejects(call)) << call;
  for (const char* call : {"K2ABC", "AK1A", "K"}) EXPECT_FALSE(Rejects(call)) << call;
}

TEST_F(RejectListsTest, StarAloneRejectsAll) {
  lists.Add(RejectLists::kDx, "*");
  EXPECT_TRUE(Rejects("3Y0J"));
}

TEST_F(RejectListsTest, FirstEntryThatFitsIsTheReason) {
  for (const char* entry : {"K1A*", "K1ABC", "K1*", "*BC", "K1XYZ"})
    lists.Add(RejectLists::kDx, entry);
  EXPECT_TRUE(Rejects("K1ABC"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"K1A*\") = ");
  EXPECT_TRUE(Rejects("K1XYZ"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"K1*\") = ");
  lists.Remove(RejectLists::kDx, 0);
  EXPECT_TRUE(Rejects("K1ABC"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"K1ABC\") = ");
  EXPECT_TRUE(Rejects("W2BC"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"*BC\") = ");
}

TEST_F(RejectListsTest, SpotterIsComparedToTheLetter) {
  lists.Add(RejectLists::kCall, "W1ABC");
  EXPECT_FALSE(Rejects("3Y0J"));
  lists.Add(RejectLists::kCall, "W1ABC-5");
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_EQ(Reason(), "Rejected by Call (\"W1ABC-5\")");
}

TEST_F(RejectListsTest, NodeIsComparedWithoutItsSsid) {
  lists.Add(RejectLists::kCall, "GB7MBC-1");
  EXPECT_FALSE(Rejects("3Y0J"));
  lists.Add(RejectLists::kCall, "GB7MBC");
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_EQ(Reason(), "Rejected by Call (\"GB7MBC\")");
}

TEST_F(RejectListsTest, EntryForTheSpotterGoesBeforeAnEarlierOneForTheNode) {
  lists.Add(RejectLists::kCall, "GB7MBC");
  lists.Add(RejectLists::kCall, "W1ABC-5");
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_EQ(Reason(), "Rejected by Call (\"W1ABC-5\")");
}

TEST_F(RejectListsTest, StarMeansNothingInACall) {
  lists.Add(RejectLists::kCall, "W1*");
  EXPECT_FALSE(Rejects("3Y0J"));
}

TEST_F(RejectListsTest, CommentRejectsByAnyPartOfItWithoutRegardToCase) {
  lists.Add(RejectLists::kComment, "FT8");
  EXPECT_FALSE(Rejects("3Y0J"));
  spot.Comment = "tnx ft8 qso";
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_EQ(Reason(), "Rejected by Comment (\"FT8\")");
  spot.Comment = "";
  EXPECT_FALSE(Rejects("3Y0J"));
}

TEST_F(RejectListsTest, DxCallGoesBeforeCallAndCallBeforeComment) {
  lists.Add(RejectLists::kComment, "up");
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_EQ(Reason(), "Rejected by Comment (\"up\")");
  lists.Add(RejectLists::kCall, "W1ABC-5");
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_EQ(Reason(), "Rejected by Call (\"W1ABC-5\")");
  lists.Add(RejectLists::kDx, "3Y0J");
  EXPECT_TRUE(Rejects("3Y0J"));
  EXPECT_EQ(Reason(), "Rejected by DX Call (\"3Y0J\") = ");
}

// Countries.

TEST_F(RejectListsTest, InvalidCountryIsRejectedWithoutAReason) {
  settings.RejectInvalidCountry = true;
  lists.NoteCountryWord();
  lists.Add(RejectLists::kDx, "P5DX");
  ASSERT_TRUE(Rejects("P5DX"));
  for (const char* country : {"", "QQ", "??"}) {
    spot.DxCty = country;
    EXPECT_TRUE(Rejects("P5DX")) << country;
    EXPECT_EQ(Reason(), "") << country;
  }
  EXPECT_EQ(lists.lblRejected.Caption.Get(), "Dx Spots Rejected = 4");
  spot.DxCty = "3Y";
  EXPECT_FALSE(Rejects("3Y0J"));
}

TEST_F(RejectListsTest, InvalidCountryIsRejectedOnlyIfItsSwitchAndTheListsAreOn) {
  lists.NoteCountryWord();
  spot.DxCty = "";
  EXPECT_FALSE(Rejects("3Y0J"));
  settings.RejectInvalidCountry = true;
  settings.RejSpots = false;
  EXPECT_FALSE(Rejects("3Y0J"));
}

TEST_F(RejectListsTest, InvalidCountryStaysUntilTheSessionHasNamedOne) {
  settings.RejectInvalidCountry = true;
  spot.DxCty = "";
  EXPECT_FALSE(Rejects("3Y0J"));
  lists.NoteCountryWord();
  EXPECT_TRUE(Rejects("3Y0J"));
  lists.SessionEnded();
  EXPECT_FALSE(Rejects("3Y0J"));
}

// Announcements.

TEST_F(RejectListsTest, AnnouncementIsRejectedByAnyOfTheLists) {
  lists.Add(RejectLists::kDx, "ALL");
  lists.Add(RejectLists::kDx, "K1*");
  lists.Add(RejectLists::kCall, "W1ABC");
  lists.Add(RejectLists::kComment, "contest");
  EXPECT_TRUE(lists.RejectAnn("ALL", "G4AAA", "hello"));
  EXPECT_TRUE(lists.RejectAnn("LOCAL", "W1ABC", "hello"));
  EXPECT_TRUE(lists.RejectAnn("LOCAL", "G4AAA", "a Contest today"));
  EXPECT_FALSE(lists.RejectAnn("LOCAL", "G4AAA", "hello"));
  EXPECT_FALSE(lists.RejectAnn("K1ABC", "W1ABC-5", "")) << "to the letter alone";
  EXPECT_FALSE(lists.lblRejected.Visible.Get());
  settings.RejSpots = false;
  EXPECT_FALSE(lists.RejectAnn("ALL", "W1ABC", "contest"));
}

}  // namespace
}  // namespace spots
