#include "program/colour_form.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using program::ColourForm;
using program::ColourKey;
using testing::HasSubstr;

namespace {

constexpr core::Colour kNavy = 0x7F0000;

class ColourFormTest : public testing::Test {
 protected:
  ColourFormTest() { form.Load(); }

  void Select(ColourKey key) { form.optColour.UserSelects(static_cast<int>(key)); }
  void Choose(ColourKey key, core::Colour colour) {
    Select(key);
    form.cmdChoose.Press();
    form.UserTries(colour);
    form.UserTakes();
  }

  core::Settings settings;
  int writes = 0;
  int changes = 0;
  ColourForm form{settings,
                  {.delayedWriteCfg = [this] { ++writes; }, .changed = [this] { ++changes; }}};
};

TEST_F(ColourFormTest, OffersEveryColourByItsWords) {
  EXPECT_EQ(form.optColour.Options.Get().size(), 21U);
  EXPECT_EQ(form.optColour.Options.Get().front(), "Raw view");
  EXPECT_EQ(form.cmdDefault.Caption.Get(), "Default Colour");
  EXPECT_EQ(form.lblChosen.Caption.Get(), "All as the theme has them.");
}

TEST_F(ColourFormTest, WhatTheUserLooksAtIsSeenAtOnceAndKeptWhenHeTakesIt) {
  Select(ColourKey::Raw);
  form.cmdChoose.Press();
  EXPECT_TRUE(form.Picking.Get());
  changes = 0;
  form.UserTries(kNavy);
  EXPECT_EQ(form.OnShow.Get()[ColourKey::Raw], kNavy);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(writes, 0);
  form.UserTakes();
  EXPECT_FALSE(form.Picking.Get());
  EXPECT_EQ(settings.ColourRaw, kNavy);
  EXPECT_EQ(writes, 1);
  EXPECT_EQ(form.lblChosen.Caption.Get(), "1 of 21 are your own.");
}

TEST_F(ColourFormTest, WhatTheUserLeavesIsAsItWas) {
  Choose(ColourKey::Raw, kNavy);
  form.cmdChoose.Press();
  form.UserTries(0x00FF00);
  form.UserLeaves();
  EXPECT_EQ(settings.ColourRaw, kNavy);
  EXPECT_EQ(form.OnShow.Get()[ColourKey::Raw], kNavy);
  EXPECT_FALSE(form.Picking.Get());
}

TEST_F(ColourFormTest, TakenAsItWasItStillFollowsTheTheme) {
  form.cmdChoose.Press();
  form.UserTakes();
  EXPECT_EQ(settings, core::Settings());
}

TEST_F(ColourFormTest, ClosingWhilePickingLeavesThingsAsTheyWere) {
  form.Show();
  form.cmdChoose.Press();
  form.UserTries(kNavy);
  form.cmdClose.Press();
  EXPECT_FALSE(form.Picking.Get());
  EXPECT_EQ(settings.ColourRaw, 0);
}

TEST_F(ColourFormTest, AColourThatComesWithoutPickingChangesNothing) {
  form.UserTries(kNavy);
  form.UserTakes();
  form.UserLeaves();
  EXPECT_EQ(settings, core::Settings());
  EXPECT_EQ(writes, 0);
}

TEST_F(ColourFormTest, AChosenBlackIsKeptAsOne) {
  Choose(ColourKey::Dx, 0);
  EXPECT_EQ(settings.ColourDx, 1);
}

TEST_F(ColourFormTest, TheSelectedOneIsGivenBackToTheTheme) {
  Choose(ColourKey::Raw, kNavy);
  Choose(ColourKey::Dx, kNavy);
  form.cmdTheme.Press();
  EXPECT_EQ(settings.ColourDx, core::Settings().ColourDx);
  EXPECT_EQ(settings.ColourRaw, kNavy);
  EXPECT_EQ(writes, 3);
}

TEST_F(ColourFormTest, DefaultColourRestoresTheDefaults) {
  for (const program::ColourRow& row : program::kColourTable) Choose(row.key, kNavy);
  EXPECT_EQ(form.lblChosen.Caption.Get(), "21 of 21 are your own.");
  form.cmdDefault.Press();
  EXPECT_EQ(settings, core::Settings());
  EXPECT_EQ(form.OnShow.Get(), program::ValuesOf(core::Settings()));
}

TEST_F(ColourFormTest, WhereThereIsNothingToGiveBackTheButtonsSayWhy) {
  EXPECT_FALSE(form.cmdTheme.Enabled.Get());
  EXPECT_FALSE(form.cmdDefault.Enabled.Get());
  EXPECT_NE(form.cmdTheme.ToolTip.Get(), "");
  EXPECT_NE(form.cmdDefault.ToolTip.Get(), "");
  Choose(ColourKey::Raw, kNavy);
  EXPECT_TRUE(form.cmdTheme.Enabled.Get());
  EXPECT_TRUE(form.cmdDefault.Enabled.Get());
  EXPECT_EQ(form.cmdDefault.ToolTip.Get(), "");
  Select(ColourKey::Dx);
  EXPECT_FALSE(form.cmdTheme.Enabled.Get());
  EXPECT_TRUE(form.cmdDefault.Enabled.Get());
}

TEST_F(ColourFormTest, WhatTheFileHoldsIsOnShowWithoutBeingWrittenAgain) {
  settings.ColourRaw = kNavy;
  changes = 0;
  form.Load();
  EXPECT_EQ(form.OnShow.Get()[ColourKey::Raw], kNavy);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(writes, 0);
}

class ColoursInTheProgramTest : public testing::Test {
 protected:
  void Choose(ColourKey key, core::Colour colour) {
    ColourForm& form = desk.program->colourForm;
    form.optColour.UserSelects(static_cast<int>(key));
    form.cmdChoose.Press();
    form.UserTries(colour);
    form.UserTakes();
  }

  Desk desk;
};

TEST_F(ColoursInTheProgramTest, SurviveARestart) {
  desk.HasUsualConfiguration();
  desk.Start();
  for (const program::ColourRow& row : program::kColourTable)
    Choose(row.key, 0x100000 + static_cast<int>(row.key));
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"ColourMissed2\",1048596\r\n"));
  const program::ColourValues chosen = desk.program->colourForm.OnShow.Get();
  desk.program.reset();
  EXPECT_EQ(desk.Start().colourForm.OnShow.Get(), chosen);
}

TEST_F(ColoursInTheProgramTest, OfTheNodeAreItsColoursInEachPhaseFromTheStartOn) {
  desk.HasUsualConfiguration("\"ColourNodeDisc\",1111\r\n\"ColourNodeConn\",3333\r\n");
  desk.StartNode();
  program::Program& program = desk.Start();
  const auto& colour = program.session.state.txtNode.ForeColour;
  EXPECT_EQ(colour.Get(), 1111);
  program.session.connection.cmdConnect.Press();
  desk.world.Run(10s);
  EXPECT_EQ(colour.Get(), 3333);
}

TEST_F(ColoursInTheProgramTest, OfTheNodeChangeWhileItIsConnected) {
  desk.HasUsualConfiguration();
  desk.StartNode();
  program::Program& program = desk.Start();
  program.session.connection.cmdConnect.Press();
  desk.world.Run(10s);
  ASSERT_EQ(program.session.state.Phase.Get(), session::LinkPhase::Connected);
  Choose(ColourKey::NodeDisc, kNavy);
  EXPECT_EQ(program.session.state.txtNode.ForeColour.Get(), core::kGreen);
  Choose(ColourKey::NodeConn, kNavy);
  EXPECT_EQ(program.session.state.txtNode.ForeColour.Get(), kNavy);
  program.colourForm.cmdDefault.Press();
  EXPECT_EQ(program.session.state.txtNode.ForeColour.Get(), core::kGreen);
}

}  // namespace
