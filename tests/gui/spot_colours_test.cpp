#include "ui/spot_colours.h"

#include <gtest/gtest.h>

#include "gui/by_name.h"

namespace gui {
namespace {

using ui::Theme;
using ui::Token;

const Theme kSpotsInLight(Theme::Kind::Light);
const Theme kSpotsInDark(Theme::Kind::Dark);

constexpr core::Colour Stored(int red, int green, int blue) {
  return red + (green << 8) + (blue << 16);
}

TEST(SpotColoursTest, WithoutAChoiceTheyAreTheThemes) {
  const core::Settings usual;
  core::Settings none;
  none.ColourDx = 0;
  for (const Theme& theme : {kSpotsInLight, kSpotsInDark})
    for (const core::Settings& settings : {usual, none}) {
      const ui::SpotColours colours = ui::ColoursOf(settings, theme);
      EXPECT_EQ(colours.ground, theme[Token::Ground]);
      EXPECT_EQ(colours.text, theme[Token::Text]);
      EXPECT_EQ(colours.dim, theme[Token::DimText]);
      EXPECT_EQ(colours.OfBand(1), theme[ui::BandColour::M160]);
      EXPECT_EQ(colours.OfBand(12), theme[ui::BandColour::M2]);
      EXPECT_EQ(colours.OfBand(15), theme[ui::BandColour::Mw]);
      EXPECT_EQ(colours.OfBand(16), theme[ui::BandColour::M4]);
      EXPECT_EQ(colours.OfBand(0), theme[Token::Text]);
    }
}

TEST(SpotColoursTest, ABandColourThatTheUserChoseHoldsInBothThemes) {
  core::Settings settings;
  settings.SpotColor[5] = Stored(0x12, 0x34, 0x56);
  for (const Theme& theme : {kSpotsInLight, kSpotsInDark}) {
    EXPECT_EQ(ui::ColoursOf(settings, theme).OfBand(6), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(ui::BandColourOf(6, settings, theme), QColor(0x12, 0x34, 0x56));
  }
}

TEST(SpotColoursTest, AGroundThatTheUserChoseHoldsInBothThemesAndEverythingCanBeReadOnIt) {
  for (const int red : {0, 60, 120, 180, 255})
    for (const int green : {0, 60, 120, 180, 255})
      for (const int blue : {0, 120, 255}) {
        core::Settings settings;
        settings.ColourDx = std::max(Stored(red, green, blue), 1);
        const ui::SpotColours light = ui::ColoursOf(settings, kSpotsInLight);
        const ui::SpotColours dark = ui::ColoursOf(settings, kSpotsInDark);
        EXPECT_EQ(light.ground, dark.ground);
        EXPECT_EQ(light.text, dark.text);
        EXPECT_TRUE(light.text == kSpotsInLight[Token::Text] ||
                    light.text == kSpotsInDark[Token::Text]);
        for (const Theme& theme : {kSpotsInLight, kSpotsInDark})
          EXPECT_GE(ui::Contrast(light.text, light.ground),
                    ui::Contrast(theme[Token::Text], light.ground));
        for (int band = 1; band <= 16; ++band)
          EXPECT_GE(ui::Contrast(light.OfBand(band), light.ground), 4.5)
              << band << " on " << light.ground.name().toStdString();
      }
}

}  // namespace
}  // namespace gui
