#include "spots/display_choice.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace spots {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DisplayChoiceTest : public testing::Test {
 protected:
  void Apply() { Form().cmdApply.Press(); }
  DisplayChoice& Form() {
    if (!form) {
      form = std::make_unique<DisplayChoice>(
          settings,
          DisplayChoice::Needs{.nodeAddsWords = [this] { return nodeAddsWords; },
                               .send = [this](std::string_view text) { sent.emplace_back(text); },
                               .tell = [this](std::string_view text) { told.emplace_back(text); }});
      applied = form->Applied.Add([this] { ++timesApplied; });
    }
    return *form;
  }
  std::string Width(const std::string& typed) {
    Form().txtSpotWidth.UserTypes(typed);
    Apply();
    return Form().txtSpotWidth.Text.Get();
  }

  core::Settings settings;
  bool nodeAddsWords = true;
  std::vector<std::string> sent;
  std::vector<std::string> told;
  int timesApplied = 0;
  std::unique_ptr<DisplayChoice> form;
  platform::Registration applied;
};

TEST_F(DisplayChoiceTest, WithoutAChoiceItIsClassicAndSeventyNineWide) {
  EXPECT_FALSE(Form().Shown().Expanded);
  EXPECT_EQ(Form().txtSpotWidth.Text.Get(), "79");
  EXPECT_EQ(Form().fraFormat.Caption.Get(), "Classic DX Spot Display");
}

TEST_F(DisplayChoiceTest, FrameSaysWhichDisplayIsChosen) {
  Form().optFormat.UserSelects(DisplayChoice::kExpanded);
  EXPECT_EQ(Form().fraFormat.Caption.Get(), "Expanded Dx Spot Display");
  EXPECT_FALSE(Form().Shown().Expanded);
}

TEST_F(DisplayChoiceTest, SettingsHoldAtOnce) {
  settings.SpotWidth = 100;
  settings.dxsOrigITU = true;
  settings.SpotterGrid = true;
  EXPECT_TRUE(Form().Shown().Expanded);
  EXPECT_TRUE(Form().Shown().OrigItu);
  EXPECT_TRUE(Form().Shown().OrigGrid);
  EXPECT_EQ(Form().Layout().shape.spotWidth, 100);
}

TEST_F(DisplayChoiceTest, EachColumnHasItsOwnSetting) {
  for (int check = 0; check < DisplayChoice::kChecks; ++check) {
    settings = {};
    settings.SpotWidth = 79;
    Form().Read();
    Form().chkAr17[static_cast<std::size_t>(check)].UserSets(true);
    Apply();
    const core::Settings written = settings;
    settings = {};
    Form().Read();
    settings = written;
    Form().Read();
    for (int other = 0; other < DisplayChoice::kChecks; ++other)
      EXPECT_EQ(Form().chkAr17[static_cast<std::size_t>(other)].Value.Get(), other == check)
          << check << " " << other;
  }
}

TEST_F(DisplayChoiceTest, NumberedChecksAreWhereTheyBelong) {
  EXPECT_EQ(Form().chkAr17[4].Caption.Get(), "DX Cty");
  EXPECT_EQ(Form().chkAr17[7].Caption.Get(), "Orig Cty");
  EXPECT_EQ(Form().chkAr17[12].Caption.Get(), "Don't use AR17");
}

TEST_F(DisplayChoiceTest, NothingHoldsBeforeItIsApplied) {
  Form().chkAr17[DisplayChoice::kDxGrid].UserSets(true);
  EXPECT_FALSE(Form().Shown().DxGrid);
  EXPECT_FALSE(settings.DxGrid);
  Apply();
  EXPECT_TRUE(Form().Shown().DxGrid);
  EXPECT_TRUE(settings.DxGrid);
  EXPECT_EQ(timesApplied, 1);
}

TEST_F(DisplayChoiceTest, WidthIsForcedInto45To130) {
  EXPECT_EQ(Width("44"), "45");
  EXPECT_EQ(Width("45"), "45");
  EXPECT_EQ(Width("130"), "130");
  EXPECT_EQ(Width("131"), "130");
  EXPECT_EQ(Width("wide"), "45");
  EXPECT_EQ(Form().Layout().FullWidth, 48);  // the head, the time and the tail at least
  EXPECT_EQ(settings.SpotWidth, 45);
}

TEST_F(DisplayChoiceTest, WidthOfABrokenConfigurationIsForcedToo) {
  settings.SpotWidth = 1'000'000;
  EXPECT_EQ(Form().txtSpotWidth.Text.Get(), "130");
}

TEST_F(DisplayChoiceTest, ClassicDisplayAsksTheNodeForWordsOnBothStations) {
  Form().chkAr17[DisplayChoice::kDxCty].UserSets(true);
  Apply();
  EXPECT_THAT(sent, ElementsAre("Set/dxscty", "Set/nodxsqth"));
  sent.clear();
  Form().chkAr17[DisplayChoice::kDxCty].UserSets(false);
  Form().chkAr17[DisplayChoice::kOrigCty].UserSets(true);
  Apply();
  EXPECT_THAT(sent, ElementsAre("Set/nodxscty", "Set/dxsqth"));
}

TEST_F(DisplayChoiceTest, NodeThatAddsNoWordsIsNotAsked) {
  nodeAddsWords = false;
  Apply();
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_EQ(told.size(), 1u);
}

TEST_F(DisplayChoiceTest, ClassicDisplayTellsHowToSeeTheSpotsAnew) {
  Apply();
  EXPECT_THAT(told, ElementsAre("DX Display Format Updated\r\n\r\nSelect \"Clear Spots\"\r\n"
                                "Then \"Get Spots\""));
}

TEST_F(DisplayChoiceTest, ExpandedDisplayTellsAndAsksNothing) {
  Form().optFormat.UserSelects(DisplayChoice::kExpanded);
  Apply();
  EXPECT_THAT(told, IsEmpty());
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_TRUE(Form().Shown().Expanded);
  EXPECT_FALSE(settings.ClassicDisplay);
}

}  // namespace
}  // namespace spots
