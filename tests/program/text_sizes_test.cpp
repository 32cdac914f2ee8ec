#include "program/text_sizes.h"

#include <gtest/gtest.h>

using program::TextSizes;

namespace {

class TextSizesTest : public testing::Test {
 protected:
  core::Settings settings;
  int writes = 0;
  TextSizes sizes{settings, [this] { ++writes; }};
};

TEST_F(TextSizesTest, AreTheUsualOnesAtFirst) {
  sizes.Load();
  for (const auto& size : sizes.Size) EXPECT_EQ(size.Get(), 13);
}

TEST_F(TextSizesTest, EachViewHasItsOwnAndItIsStored) {
  sizes.Load();
  sizes.Change(TextSizes::Raw, 1);
  sizes.Change(TextSizes::LoginMsg, -2);
  sizes.Change(TextSizes::Dx, 3);
  EXPECT_EQ(settings.RawSize, 14);
  EXPECT_EQ(settings.LoginSize, 11);
  EXPECT_EQ(settings.DxSize, 12) << "in points, four of which are three pixels";
  EXPECT_EQ(writes, 3);
  TextSizes again(settings, [] {});
  again.Load();
  EXPECT_EQ(again.Size[TextSizes::Raw].Get(), 14);
  EXPECT_EQ(again.Size[TextSizes::LoginMsg].Get(), 11);
  EXPECT_EQ(again.Size[TextSizes::Dx].Get(), 16);
}

TEST_F(TextSizesTest, EverySizeOfTheTableSurvivesARestart) {
  for (int pixels = TextSizes::kLeast; pixels <= TextSizes::kMost; ++pixels) {
    sizes.Load();
    sizes.Change(TextSizes::Dx, pixels - sizes.Size[TextSizes::Dx].Get());
    sizes.Load();
    EXPECT_EQ(sizes.Size[TextSizes::Dx].Get(), pixels);
  }
}

TEST_F(TextSizesTest, StayBetween8And32Pixels) {
  sizes.Load();
  for (int step = 0; step < 40; ++step) sizes.Change(TextSizes::Raw, 1);
  EXPECT_EQ(sizes.Size[TextSizes::Raw].Get(), 32);
  const int written = writes;
  sizes.Change(TextSizes::Raw, 1);
  EXPECT_EQ(writes, written) << "nothing changes any more";
  for (int step = 0; step < 40; ++step) sizes.Change(TextSizes::Raw, -1);
  EXPECT_EQ(sizes.Size[TextSizes::Raw].Get(), 8);
}

TEST_F(TextSizesTest, WhatAFileSaysIsHeldWithinTheBounds) {
  settings.RawSize = 2'000'000'000;
  settings.LoginSize = -5;
  settings.DxSize = 1e300;
  sizes.Load();
  EXPECT_EQ(sizes.Size[TextSizes::Raw].Get(), 32);
  EXPECT_EQ(sizes.Size[TextSizes::LoginMsg].Get(), 8);
  EXPECT_EQ(sizes.Size[TextSizes::Dx].Get(), 32);
  settings.DxSize = -3;
  sizes.Load();
  EXPECT_EQ(sizes.Size[TextSizes::Dx].Get(), 13);
}

}  // namespace
