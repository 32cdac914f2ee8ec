#include "spots/reject_form.h"

#include <gmock/gmock.h>

#include "platform/sim/sim_files.h"

namespace spots {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFormPath = "/home/op/reject.dat";
constexpr auto kDx = RejectLists::kDx;
constexpr auto kComment = RejectLists::kComment;

class RejectFormTest : public testing::Test {
 protected:
  void Add(RejectLists::Kind kind, const std::string& text) {
    form.txtReject[kind].UserTypes(text);
    form.cmdAdd[kind].Press();
  }

  platform::sim::SimFiles files;
  core::Settings settings;
  int written = 0;
  RejectLists lists{files, settings, kFormPath};
  RejectForm form{lists, settings, {.delayedWriteCfg = [this] { ++written; }}};
};

TEST_F(RejectFormTest, AddedEntryIsInForceAndInTheFile) {
  Add(kDx, "K1*");
  EXPECT_THAT(lists.lstReject[kDx].Items(), ElementsAre("K1*"));
  EXPECT_EQ(files.content[kFormPath], "\"Dx\",\"K1*\"\r\n");
  EXPECT_EQ(form.txtReject[kDx].Text.Get(), "");
  EXPECT_FALSE(form.lblNotSaved.Visible.Get());
}

TEST_F(RejectFormTest, ReturnAddsToo) {
  form.txtReject[kDx].UserTypes("P5DX");
  form.txtReject[kDx].UserPressesReturn();
  EXPECT_THAT(lists.lstReject[kDx].Items(), ElementsAre("P5DX"));
}

TEST_F(RejectFormTest, CallsAreKeptInUpperCaseAndCommentsAsTheyAre) {
  Add(kDx, " p5dx ");
  Add(kComment, " ft8");
  EXPECT_THAT(lists.lstReject[kDx].Items(), ElementsAre("P5DX"));
  EXPECT_THAT(lists.lstReject[kComment].Items(), ElementsAre(" ft8"));
}

TEST_F(RejectFormTest, BlankEntriesCanNotBeAdded) {
  EXPECT_FALSE(form.cmdAdd[kDx].Enabled.Get());
  form.txtReject[kDx].UserTypes("  ");
  EXPECT_FALSE(form.cmdAdd[kDx].Enabled.Get());
  form.txtReject[kDx].UserPressesReturn();
  EXPECT_THAT(lists.lstReject[kDx].Items(), IsEmpty());
  form.txtReject[kDx].UserTypes("K");
  EXPECT_TRUE(form.cmdAdd[kDx].Enabled.Get());
}

TEST_F(RejectFormTest, SelectedEntryCanBeDeleted) {
  Add(kDx, "K1*");
  Add(kDx, "P5DX");
  EXPECT_FALSE(form.cmdDelete[kDx].Enabled.Get());
  lists.lstReject[kDx].UserSelects(0);
  EXPECT_TRUE(form.cmdDelete[kDx].Enabled.Get());
  form.cmdDelete[kDx].Press();
  EXPECT_THAT(lists.lstReject[kDx].Items(), ElementsAre("P5DX"));
  EXPECT_EQ(files.content[kFormPath], "\"Dx\",\"P5DX\"\r\n");
  EXPECT_FALSE(form.cmdDelete[kDx].Enabled.Get());
}

TEST_F(RejectFormTest, ListThatCanNotBeSavedIsToldAndHoldsAllTheSame) {
  files.denied.insert(kFormPath);
  Add(kDx, "P5DX");
  EXPECT_TRUE(form.lblNotSaved.Visible.Get());
  EXPECT_THAT(lists.lstReject[kDx].Items(), ElementsAre("P5DX"));
  files.denied.clear();
  Add(kDx, "K1ABC");
  EXPECT_FALSE(form.lblNotSaved.Visible.Get());
}

TEST_F(RejectFormTest, SwitchesGoIntoTheSettings) {
  form.chkEnabled.UserSets(true);
  EXPECT_TRUE(settings.RejSpots);
  form.chkInvalid.UserSets(true);
  EXPECT_TRUE(settings.RejectInvalidCountry);
  form.chkCounty.UserSets(true);
  EXPECT_TRUE(settings.RejectCounties);
  form.chkDupes.UserSets(true);
  EXPECT_TRUE(settings.AllowSkimmerDupes);
  form.chkOwnCall.UserSets(true);
  EXPECT_TRUE(settings.ShowOwnSkimmerSpots);
  EXPECT_EQ(written, 5);
}

TEST_F(RejectFormTest, SwitchesShowTheSettingsOnceTheyAreRead) {
  settings.RejSpots = settings.RejectCounties = true;
  form.Load();
  EXPECT_TRUE(form.chkEnabled.Value.Get());
  EXPECT_FALSE(form.chkInvalid.Value.Get());
  EXPECT_TRUE(form.chkCounty.Value.Get());
  EXPECT_EQ(written, 0);
}

TEST_F(RejectFormTest, SwitchForCountriesSaysThatItRejectsNothingYet) {
  EXPECT_FALSE(form.lblInvalid.Visible.Get());
  form.chkInvalid.UserSets(true);
  EXPECT_TRUE(form.lblInvalid.Visible.Get());
  lists.NoteCountryWord();
  EXPECT_FALSE(form.lblInvalid.Visible.Get());
  lists.SessionEnded();
  EXPECT_TRUE(form.lblInvalid.Visible.Get());
}

}  // namespace
}  // namespace spots
