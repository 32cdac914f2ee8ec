#include "program/dx_look.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using program::DxLook;
using program::SpotFont;
using program::TextSizes;
using testing::HasSubstr;

namespace {

class DxLookTest : public testing::Test {
 protected:
  DxLookTest() { Load(); }

  void Load() {
    sizes.Load();
    look.Load();
  }
  void HasFamilies() { look.TakeFamilies({"Hack", "JetBrains Mono", "Noto Mono"}, "Hack"); }
  std::string ShownFamily() const {
    return look.optFont.Options.Get()[static_cast<std::size_t>(look.optFont.Selected.Get())];
  }
  std::string ShownSize() const {
    return look.optSize.Options.Get()[static_cast<std::size_t>(look.optSize.Selected.Get())];
  }
  int Pixels() const { return sizes.Size[TextSizes::Dx].Get(); }

  core::Settings settings;
  int writes = 0;
  TextSizes sizes{settings, [this] { ++writes; }};
  DxLook look{settings, sizes, [this] { ++writes; }};
};

TEST_F(DxLookTest, ItsControlsSayWhatTheyDo) {
  EXPECT_EQ(look.optFont.Caption.Get(), "Select Font");
  EXPECT_EQ(look.optSize.Caption.Get(), "Size");
  EXPECT_EQ(look.chkBold.Caption.Get(), "Bold");
  EXPECT_EQ(look.chkItalic.Caption.Get(), "Italic");
  EXPECT_EQ(look.cmdDefaultFont.Caption.Get(), "Default Font");
  EXPECT_EQ(look.chkTitle.Caption.Get(), "Show DX Tab Title");
}

TEST_F(DxLookTest, AtFirstItIsTheProgramsOwnFontWithHeads) {
  EXPECT_EQ(look.Font.Get(), SpotFont());
  EXPECT_TRUE(look.chkTitle.Value.Get());
  EXPECT_EQ(ShownSize(), "13");
  EXPECT_FALSE(look.cmdDefaultFont.Enabled.Get());
  EXPECT_NE(look.cmdDefaultFont.ToolTip.Get(), "");
  EXPECT_EQ(writes, 0);
}

TEST_F(DxLookTest, AFamilyIsSeenAtOnceAndKept) {
  HasFamilies();
  EXPECT_EQ(ShownFamily(), "Hack") << "what is drawn while none is chosen";
  look.optFont.UserSelects(2);
  EXPECT_EQ(look.Font.Get().family, "Noto Mono");
  EXPECT_EQ(settings.DxFont, "Noto Mono");
  EXPECT_EQ(writes, 1);
  EXPECT_TRUE(look.cmdDefaultFont.Enabled.Get());
}

TEST_F(DxLookTest, AFamilyThatThisSystemLacksIsKeptAndTheUsualOneShown) {
  settings.DxFont = "Lucida Console";
  Load();
  HasFamilies();
  EXPECT_EQ(ShownFamily(), "Hack");
  look.chkBold.UserSets(true);
  EXPECT_EQ(settings.DxFont, "Lucida Console");
}

TEST_F(DxLookTest, BoldAndItalicAreSeenAtOnceAndKept) {
  look.chkBold.UserSets(true);
  EXPECT_EQ(look.Font.Get(), (SpotFont{"", true, false}));
  look.chkItalic.UserSets(true);
  EXPECT_EQ(look.Font.Get(), (SpotFont{"", true, true}));
  EXPECT_TRUE(settings.DxBold);
  EXPECT_TRUE(settings.DxItalic);
  EXPECT_EQ(writes, 2);
}

TEST_F(DxLookTest, EverySizeCanBeChosen) {
  for (int size = TextSizes::kLeast; size <= TextSizes::kMost; ++size) {
    look.optSize.UserSelects(size - TextSizes::kLeast);
    EXPECT_EQ(Pixels(), size);
    EXPECT_EQ(ShownSize(), std::to_string(size));
  }
  EXPECT_EQ(look.optSize.Options.Get().size(), 25U);
  EXPECT_EQ(settings.DxSize, 24) << "in points";
}

TEST_F(DxLookTest, TheSizeFollowsTheKeysThatMakeTheTextLarger) {
  look.chkBold.UserSets(true);
  sizes.Change(TextSizes::Dx, 4);
  EXPECT_EQ(ShownSize(), "17");
  EXPECT_TRUE(look.Font.Get().bold);
  look.optSize.UserSelects(20 - TextSizes::kLeast);
  sizes.Change(TextSizes::Dx, -1);
  EXPECT_EQ(Pixels(), 19);
  EXPECT_TRUE(look.cmdDefaultFont.Enabled.Get());
}

TEST_F(DxLookTest, DefaultFontIsThatOfTheFirstStart) {
  HasFamilies();
  look.optFont.UserSelects(2);
  look.optSize.UserSelects(0);
  look.chkBold.UserSets(true);
  look.chkItalic.UserSets(true);
  look.cmdDefaultFont.Press();
  EXPECT_EQ(look.Font.Get(), SpotFont());
  EXPECT_EQ(ShownFamily(), "Hack");
  EXPECT_EQ(Pixels(), TextSizes::kUsual);
  EXPECT_FALSE(look.chkBold.Value.Get());
  EXPECT_FALSE(look.chkItalic.Value.Get());
  EXPECT_EQ(settings.DxFont, "");
  EXPECT_FALSE(settings.DxBold);
  EXPECT_FALSE(look.cmdDefaultFont.Enabled.Get());
}

TEST_F(DxLookTest, DefaultFontLeavesTheHeadsAlone) {
  look.chkTitle.UserSets(false);
  look.chkBold.UserSets(true);
  look.cmdDefaultFont.Press();
  EXPECT_FALSE(look.chkTitle.Value.Get());
  EXPECT_FALSE(settings.DxTitleVisible);
}

TEST(DxLookInTheProgramTest, SurvivesARestart) {
  Desk desk;
  desk.HasUsualConfiguration();
  DxLook& look = desk.Start().dxLook;
  look.TakeFamilies({"Hack", "Noto Mono"}, "Hack");
  look.optFont.UserSelects(1);
  look.chkItalic.UserSets(true);
  look.optSize.UserSelects(17 - TextSizes::kLeast);
  look.chkTitle.UserSets(false);
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"Dx Font\",\"Noto Mono\"\r\n"));
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"Dx Title Visible\",0\r\n"));
  const SpotFont chosen = look.Font.Get();
  desk.program.reset();
  program::Program& again = desk.Start();
  EXPECT_EQ(again.dxLook.Font.Get(), chosen);
  EXPECT_EQ(again.textSizes.Size[TextSizes::Dx].Get(), 17);
  EXPECT_FALSE(again.dxLook.chkTitle.Value.Get());
}

}  // namespace
