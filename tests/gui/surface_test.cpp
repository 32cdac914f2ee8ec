#include "ui/surface.h"

#include <gtest/gtest.h>

#include "gui/by_name.h"
#include "ui/colour_list.h"

namespace gui {
namespace {

using program::ColourKey;
using program::ColourKind;
using program::ColourRow;
using program::ColourValues;
using program::kColourTable;
using ui::Surface;
using ui::Theme;
using ui::Token;

constexpr std::array kKinds = {Theme::Kind::Light, Theme::Kind::Dark};
constexpr std::array kInks = {Token::DimText, Token::Accent, Token::Good, Token::Caution,
                              Token::Bad};

Surface SurfaceOf(ColourKey key, core::Colour stored, Theme::Kind kind) {
  return Surface(key, stored, Theme(kind));
}

// Grounds all over the room of colours.
std::vector<core::Colour> ManyColours() {
  std::vector<core::Colour> colours;
  for (const int red : {0, 51, 102, 153, 204, 255})
    for (const int green : {0, 51, 102, 153, 204, 255})
      for (const int blue : {0, 51, 102, 153, 204, 255})
        colours.push_back(std::max(red | green << 8 | blue << 16, 1));
  return colours;
}

TEST(SurfaceTest, TheDefaultsOfTheThemesCanBeReadInBoth) {
  const ColourValues usual = program::ValuesOf(core::Settings());
  for (const ColourRow& row : kColourTable)
    for (const Theme::Kind kind : kKinds)
      for (const ColourValues& values : {usual, ColourValues()})
        EXPECT_GE(ui::ColourList::ContrastOf(row.key, values, Theme(kind)), 4.5) << row.words;
}

TEST(SurfaceTest, OnADefaultGroundEverythingIsAsTheThemeHasIt) {
  for (const ColourRow& row : kColourTable)
    for (const Theme::Kind kind : kKinds) {
      if (row.kind != ColourKind::Ground) continue;
      const Surface surface = SurfaceOf(row.key, program::UsualOf(row.key), kind);
      EXPECT_FALSE(surface.IsChosen());
      EXPECT_EQ(surface.On().kind(), kind) << row.words;
      EXPECT_EQ(surface[Token::Text], Theme(kind)[Token::Text]);
      for (const Token ink : kInks)
        EXPECT_GE(ui::Contrast(surface[ink], surface.Ground()), 4.5) << row.words;
    }
}

TEST(SurfaceTest, PagesStandOnTheGroundOfTheThemeAndFilterCellsOnTheirOwn) {
  for (const Theme::Kind kind : kKinds) {
    const Theme theme(kind);
    for (const ColourKey page : {ColourKey::Raw, ColourKey::Dx, ColourKey::LoginMsg})
      EXPECT_EQ(SurfaceOf(page, core::kThemeColour, kind).Ground(), theme[Token::Ground]);
    EXPECT_EQ(SurfaceOf(ColourKey::Settings, core::kThemeColour, kind).Ground(),
              theme[Token::Panel]);
  }
  const auto cell = [](ColourKey key, Theme::Kind kind) {
    return SurfaceOf(key, program::UsualOf(key), kind).Ground();
  };
  EXPECT_EQ(cell(ColourKey::BandPass, Theme::Kind::Light), QColor("#BCFEBE")) << "as it is stored";
  EXPECT_EQ(cell(ColourKey::BandPass, Theme::Kind::Dark), QColor("#1E4A2B"));
  EXPECT_EQ(cell(ColourKey::BandReject, Theme::Kind::Light), QColor("#FFDBD7"));
  EXPECT_EQ(cell(ColourKey::BandReject, Theme::Kind::Dark), QColor("#56272A"));
  EXPECT_EQ(cell(ColourKey::Missed2, Theme::Kind::Light), QColor("#F0FFF2"));
}

TEST(SurfaceTest, AChosenGroundHoldsInBothThemesAndSoDoesWhatStandsOnIt) {
  for (const core::Colour stored : ManyColours()) {
    const Surface light = SurfaceOf(ColourKey::Settings, stored, Theme::Kind::Light);
    const Surface dark = SurfaceOf(ColourKey::Settings, stored, Theme::Kind::Dark);
    EXPECT_TRUE(light.IsChosen());
    EXPECT_EQ(light.Ground(), ui::AsStored(stored));
    EXPECT_EQ(dark.Ground(), light.Ground());
    for (const Token ink : kInks) EXPECT_EQ(dark[ink], light[ink]);
  }
}

TEST(SurfaceTest, OnAChosenGroundTheTextIsTheOneThatContrastsMore) {
  for (const core::Colour stored : ManyColours()) {
    const Surface surface = SurfaceOf(ColourKey::Raw, stored, Theme::Kind::Light);
    const double contrast = ui::Contrast(surface[Token::Text], surface.Ground());
    for (const Theme::Kind kind : kKinds)
      EXPECT_GE(contrast, ui::Contrast(Theme(kind)[Token::Text], surface.Ground()));
  }
}

// On a ground in the middle of the greys not even the text that contrasts more reaches 4.5 to 1.
TEST(SurfaceTest, OnAChosenGroundColouredTextMovesInLightnessUntilItCanBeRead) {
  for (const core::Colour stored : ManyColours()) {
    const Surface surface = SurfaceOf(ColourKey::Raw, stored, Theme::Kind::Dark);
    for (const Token ink : kInks) {
      EXPECT_GE(ui::Contrast(surface[ink], surface.Ground()), 4.5)
          << surface[ink].name().toStdString() << " on " << surface.Ground().name().toStdString();
    }
  }
}

TEST(SurfaceTest, ATextThatTheUserChoseIsAsHeChoseItInBothThemes) {
  for (const Theme::Kind kind : kKinds) {
    const Theme theme(kind);
    EXPECT_EQ(theme.Of(ColourKey::RawText, 0xCC8040), QColor(0x40, 0x80, 0xCC));
    EXPECT_EQ(theme.Of(ColourKey::RawText, 0), theme[Token::Text]);
    EXPECT_EQ(theme.Of(ColourKey::NodeConn, core::Settings().ColourNodeConn), theme[Token::Good]);
    EXPECT_EQ(theme.Of(ColourKey::NodeTrying, 0), theme[Token::Caution]);
    EXPECT_EQ(theme.Of(ColourKey::NodeDisc, 0), theme[Token::Bad]);
    EXPECT_EQ(theme.Of(ColourKey::NodeTrying, core::kRed), theme[Token::Bad]) << "a named one";
    EXPECT_EQ(theme.Of(ColourKey::Raw, core::kRed), QColor(255, 0, 0)) << "a ground has no name";
  }
}

TEST(SurfaceTest, WhatIsStoredIsWhatIsDrawn) {
  for (const core::Colour stored : ManyColours())
    EXPECT_EQ(ui::StoredAs(ui::AsStored(stored)), stored);
  EXPECT_EQ(ui::StoredAs(QColor(1, 2, 3)), 0x030201);
  EXPECT_EQ(ui::AsStored(-1), QColor(255, 255, 255)) << "whatever a file says";
}

}  // namespace
}  // namespace gui
