#include "program/appearance.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using platform::ColourScheme;
using program::Appearance;
using testing::HasSubstr;
using testing::Not;

namespace {

enum Option { System, Light, Dark };

class AppearanceTest : public testing::Test {
 protected:
  core::Settings settings;
  int writes = 0;
  Appearance appearance{settings, [this] { ++writes; }};
};

TEST_F(AppearanceTest, FollowsTheSystemUnlessTheUserSaysOtherwise) {
  appearance.Load();
  EXPECT_EQ(appearance.OnShow.Get(), ColourScheme::Light);
  appearance.SystemHas(ColourScheme::Dark);
  EXPECT_EQ(appearance.OnShow.Get(), ColourScheme::Dark);
  appearance.SystemHas(ColourScheme::Light);
  EXPECT_EQ(appearance.OnShow.Get(), ColourScheme::Light);
}

TEST_F(AppearanceTest, TheUsersChoiceHoldsWhateverTheSystemHas) {
  settings.Theme = "Light";
  appearance.SystemHas(ColourScheme::Dark);
  appearance.Load();
  EXPECT_EQ(appearance.optTheme.Selected.Get(), Light);
  EXPECT_EQ(appearance.OnShow.Get(), ColourScheme::Light);
  appearance.optTheme.UserSelects(Dark);
  appearance.SystemHas(ColourScheme::Light);
  EXPECT_EQ(appearance.OnShow.Get(), ColourScheme::Dark);
}

TEST_F(AppearanceTest, BackToTheSystemIsWhatTheSystemHasByThen) {
  settings.Theme = "Light";
  appearance.Load();
  appearance.SystemHas(ColourScheme::Dark);
  appearance.optTheme.UserSelects(System);
  EXPECT_EQ(appearance.OnShow.Get(), ColourScheme::Dark);
  EXPECT_EQ(settings.Theme, "");
}

TEST_F(AppearanceTest, OnlyTheUsersChoiceIsWritten) {
  settings.Theme = "Dark";
  appearance.Load();
  appearance.SystemHas(ColourScheme::Light);
  EXPECT_EQ(writes, 0);
  appearance.optTheme.UserSelects(Light);
  EXPECT_EQ(writes, 1);
  EXPECT_EQ(settings.Theme, "Light");
}

TEST(AppearanceInTheProgramTest, IsReadAtTheStartAndWrittenOnlyIfItIsNotTheSystems) {
  Desk desk;
  desk.HasUsualConfiguration("\"Theme\",\"Dark\"\r\n");
  Appearance& appearance = desk.Start().appearance;
  EXPECT_EQ(appearance.OnShow.Get(), ColourScheme::Dark);
  appearance.optTheme.UserSelects(Light);
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"Theme\",\"Light\"\r\n"));
  appearance.optTheme.UserSelects(System);
  desk.world.Run(3s);
  EXPECT_THAT(desk.Content("molva.cfg"), Not(HasSubstr("Theme")));
}

}  // namespace
