#include "program/colour_table.h"

#include <gtest/gtest.h>

#include <set>

#include "core/settings_table.h"
#include "core/text.h"

using program::ColourKey;
using program::ColourKind;
using program::ColourRow;
using program::kColourTable;

namespace {

TEST(ColourTableTest, HoldsEveryColourKeyOfTheConfigurationInItsOrder) {
  std::size_t place = 0;
  for (const core::SettingRow& row : core::SettingRows()) {
    if (!core::StartsWith(row.key, "Colour")) continue;
    ASSERT_LT(place, kColourTable.size()) << row.key;
    EXPECT_EQ(std::get<int core::Settings::*>(row.member), kColourTable[place].stored) << row.key;
    ++place;
  }
  EXPECT_EQ(place, 21U);
  EXPECT_EQ(place, kColourTable.size());
}

TEST(ColourTableTest, EachHasWordsOfItsOwn) {
  std::set<std::string> words;
  for (const ColourRow& row : kColourTable) EXPECT_TRUE(words.insert(row.words).second);
  EXPECT_FALSE(words.contains(""));
}

TEST(ColourTableTest, NothingAndTheStoredDefaultFollowTheTheme) {
  const core::Settings usual;
  for (const ColourRow& row : kColourTable) {
    EXPECT_TRUE(program::FollowsTheme(row.key, core::kThemeColour)) << row.words;
    EXPECT_TRUE(program::FollowsTheme(row.key, usual.*row.stored)) << row.words;
    EXPECT_FALSE(program::FollowsTheme(row.key, 0x123456)) << row.words;
  }
}

TEST(ColourTableTest, ADefaultOfAnotherKeyIsAChoice) {
  EXPECT_FALSE(program::FollowsTheme(ColourKey::Raw, core::Settings().ColourDx));
  EXPECT_FALSE(program::FollowsTheme(ColourKey::BandPass, core::Settings().ColourBandReject));
}

TEST(ColourTableTest, RedGreenAndBlueOfATextAreThoseOfTheTheme) {
  for (const ColourRow& row : kColourTable)
    for (const core::Colour named : {core::kRed, core::kGreen, core::kBlue})
      EXPECT_EQ(program::FollowsTheme(row.key, named), row.kind == ColourKind::Text) << row.words;
}

TEST(ColourTableTest, AChosenBlackIsStoredAsOne) {
  for (const ColourRow& row : kColourTable) EXPECT_EQ(program::ChosenAs(row.key, 0), 1);
}

TEST(ColourTableTest, WhatTheUserChoseNeverFollowsTheThemeAndLooksAsHeChoseIt) {
  for (const ColourRow& row : kColourTable)
    for (const core::Colour chosen : {0, 1, 0xFFFFFF, 0x123456, program::UsualOf(row.key),
                                      core::kRed, core::kGreen, core::kBlue}) {
      const core::Colour stored = program::ChosenAs(row.key, chosen);
      EXPECT_FALSE(program::FollowsTheme(row.key, stored)) << row.words << ' ' << chosen;
      EXPECT_EQ(stored >> 1, chosen >> 1) << "but for the least bit of its red";
    }
}

TEST(ColourTableTest, AnOrdinaryColourIsStoredAsItIs) {
  EXPECT_EQ(program::ChosenAs(ColourKey::Raw, 0x123456), 0x123456);
  EXPECT_EQ(program::ChosenAs(ColourKey::Raw, core::kRed), core::kRed);
  EXPECT_EQ(program::ChosenAs(ColourKey::RawText, core::kRed), 0xFE);
}

}  // namespace
