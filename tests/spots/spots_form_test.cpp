#include "spots/spots_form.h"

#include <gmock/gmock.h>

#include "platform/sim/world.h"
#include "spots/spot_numbers.h"

namespace spots {
namespace {

using namespace std::chrono_literals;

class SpotsFormTest : public testing::Test {
 protected:
  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::Settings settings;
  int changed = 0;
  int loggingChanged = 0;
  int numbersSetUp = 0;
  int shown = 0;
  SpotReload reload{world.scheduler,
                    world.files,
                    calendar,
                    settings,
                    "/home",
                    {.closeLog = [] {},
                     .holdIntake = [] { return platform::Registration(); },
                     .showRaw = [](std::string_view) {},
                     .isDupe = [](const Spot&) { return false; },
                     .record = [](const Spot&) {},
                     .rejectCounty = [](const Spot&) { return false; },
                     .show = [this](Spot&) { ++shown; }},
                    [](std::string_view, std::string_view) {}};
  SpotsForm form{settings,
                 reload,
                 {.settingsChanged = [this] { ++changed; },
                  .loggingChanged = [this] { ++loggingChanged; },
                  .setupSpotNrs = [this] { ++numbersSetUp; }}};
};

TEST_F(SpotsFormTest, HasItsWords) {
  EXPECT_STREQ(SpotsForm::kTitle, "Dx Spot Log File ");
  EXPECT_EQ(form.chkSave.Caption.Get(), "Save Dx Spots To Log File");
  EXPECT_EQ(form.chkLoad.Caption.Get(), "Load Old Spots from File on Restart");
  EXPECT_EQ(form.chkDelete.Caption.Get(), "Delete Old DX Log Files");
  EXPECT_EQ(form.chkShowNrs.Caption.Get(), "Show Spot Nrs");
  EXPECT_EQ(form.Text1.Caption.Get(), "Number of days to keep");
  EXPECT_EQ(form.txtReloadNr.Caption.Get(), "Number of hours to reload");
  EXPECT_EQ(form.lblMemory.Caption.Get(), "Max Spots Displayed");
  EXPECT_EQ(form.txtMemory[0].Caption.Get(), "ALL");
  EXPECT_EQ(form.txtMemory[1].Caption.Get(), "Single");
  EXPECT_EQ(form.cmdStop.Caption.Get(), "Stop");
}

TEST_F(SpotsFormTest, OpensWithTheSettings) {
  settings.LogDxSpots = settings.DeleteDxLogs = true;
  settings.KeepSpotsDays = 9;
  settings.ReloadHours = 48;
  settings.SpotMemoryAll = 2000;
  form.Show();
  EXPECT_TRUE(form.Open.Get());
  EXPECT_TRUE(form.chkSave.Value.Get());
  EXPECT_FALSE(form.chkLoad.Value.Get());
  EXPECT_TRUE(form.chkDelete.Value.Get());
  EXPECT_EQ(form.Text1.Text.Get(), "9");
  EXPECT_EQ(form.txtReloadNr.Text.Get(), "48");
  EXPECT_EQ(form.txtMemory[0].Text.Get(), "2000");
  EXPECT_EQ(form.txtMemory[1].Text.Get(), "200");
  EXPECT_EQ(changed, 0);
}

TEST_F(SpotsFormTest, TickCountsAtOnceAndNumbersWhenTheyAreWhole) {
  form.Show();
  form.chkSave.UserSets(true);
  form.chkLoad.UserSets(true);
  form.chkDelete.UserSets(true);
  form.chkShowNrs.UserSets(true);
  EXPECT_TRUE(settings.LogDxSpots && settings.LoadLogFileOnStartup && settings.DeleteDxLogs &&
              settings.ShowSpotNrs);
  EXPECT_EQ(loggingChanged, 1);
  EXPECT_EQ(numbersSetUp, 1);
  form.Text1.UserTypes("3");
  form.txtReloadNr.UserTypes("24");
  form.txtMemory[0].UserTypes("1000");
  form.txtMemory[1].UserTypes("500");
  EXPECT_EQ(settings.SpotMemorySingle, 200);
  form.txtMemory[1].UserPressesReturn();
  EXPECT_EQ(settings.KeepSpotsDays, 3);
  EXPECT_EQ(settings.ReloadHours, 24);
  EXPECT_EQ(settings.SpotMemoryAll, 1000);
  EXPECT_EQ(settings.SpotMemorySingle, 500);
  EXPECT_EQ(changed, 8);
}

TEST_F(SpotsFormTest, ClosingTheFormTakesItsNumbers) {
  form.Show();
  form.txtMemory[0].UserTypes("1000");
  form.Open.Set(false);
  EXPECT_EQ(settings.SpotMemoryAll, 1000);
}

TEST_F(SpotsFormTest, ReloadTakesItsNumbersFirst) {
  form.Show();
  form.txtReloadNr.UserTypes("3");
  form.cmdReload.Press();
  EXPECT_EQ(settings.ReloadHours, 3);
}

TEST_F(SpotsFormTest, NumbersThatMakeNoSenseCountAsTheDefault) {
  for (const char* typed : {"", "0", "-7", "many"}) {
    for (core::TextBox* box :
         {&form.Text1, &form.txtReloadNr, &form.txtMemory[0], &form.txtMemory[1]})
      box->UserTypes(typed);
    form.Text1.UserPressesReturn();
    EXPECT_EQ(settings.KeepSpotsDays, 1) << typed;
    EXPECT_EQ(settings.ReloadHours, 0) << typed;
    EXPECT_EQ(settings.SpotMemoryAll, 200) << typed;
    EXPECT_EQ(settings.SpotMemorySingle, 200) << typed;
  }
}

TEST_F(SpotsFormTest, NumbersBeyondAllMeasureAreCutToTheMost) {
  for (core::TextBox* box :
       {&form.Text1, &form.txtReloadNr, &form.txtMemory[0], &form.txtMemory[1]})
    box->UserTypes("99999999999");
  form.Text1.UserPressesReturn();
  EXPECT_EQ(settings.KeepSpotsDays, 3650);
  EXPECT_EQ(settings.ReloadHours, SpotReload::kMostHours);
  EXPECT_EQ(settings.SpotMemoryAll, 100'000);
  EXPECT_EQ(settings.SpotMemorySingle, 100'000);
}

TEST_F(SpotsFormTest, TheBoxesShowWhatHolds) {
  form.Text1.UserTypes("0");
  form.txtReloadNr.UserTypes("9999");
  form.txtMemory[0].UserTypes("5");
  form.Text1.UserPressesReturn();
  EXPECT_EQ(form.Text1.Text.Get(), "1");
  EXPECT_EQ(form.txtReloadNr.Text.Get(), "8784");
  EXPECT_EQ(form.txtMemory[0].Text.Get(), "200");
  settings.SpotMemorySingle = 2'000'000;
  form.Show();
  EXPECT_EQ(form.txtMemory[1].Text.Get(), "100000");
}

TEST_F(SpotsFormTest, MemoryHasALeastNumber) {
  form.txtMemory[0].UserTypes("20");
  form.txtMemory[1].UserTypes("19");
  form.Text1.UserPressesReturn();
  EXPECT_EQ(settings.SpotMemoryAll, 20);
  EXPECT_EQ(settings.SpotMemorySingle, 200);
}

TEST_F(SpotsFormTest, ReloadCountsAndCanBeStopped) {
  std::string& file = world.files.content["/home/2026/dx-20-Nov-2026.txt"];
  for (int i = 0; i < 250; ++i) file += "2050,14025.0,3Y0J,DL1ABC,,,~\n";
  EXPECT_FALSE(form.cmdStop.Enabled.Get());
  form.cmdReload.Press();
  EXPECT_TRUE(form.cmdStop.Enabled.Get());
  EXPECT_FALSE(form.cmdReload.Enabled.Get());
  EXPECT_EQ(form.lblCount.Caption.Get(), "100");
  form.cmdStop.Press();
  world.Run(1s);
  EXPECT_EQ(form.lblCount.Caption.Get(), "100");
  EXPECT_EQ(shown, 100);
  EXPECT_FALSE(form.cmdStop.Enabled.Get());
  EXPECT_TRUE(form.cmdReload.Enabled.Get());
}

TEST_F(SpotsFormTest, SpotNumbersAreShownAsTheSettingSays) {
  SpotNumbers numbers(settings);
  numbers.ShowRows(57);
  EXPECT_FALSE(numbers.txtrtb2.Visible.Get());
  settings.ShowSpotNrs = true;
  numbers.SetupSpotNrs();
  EXPECT_TRUE(numbers.txtrtb2.Visible.Get());
  EXPECT_EQ(numbers.txtrtb2.Caption.Get(), "57");
}

}  // namespace
}  // namespace spots
