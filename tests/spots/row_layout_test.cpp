#include "spots/row_layout.h"

#include <gmock/gmock.h>

#include "core/text.h"
#include "row_maker.h"

namespace spots {
namespace {

int CommentWidth(const ShownColumns& shown, int width = 79) {
  return ArPcScreenSetup(Classic(shown, width)).Width(Column::Comment);
}

std::vector<std::string> Captions(const RowLayout& layout) {
  std::vector<std::string> captions;
  for (const SortButton& button : OptDisplayPositions(layout))
    captions.emplace_back(button.caption);
  return captions;
}

ShownColumns Everything() {
  RowShape shape = Unpacked((1U << 20) - 1);
  return shape.shown;
}

TEST(RowShape, ComesBackFromItsNumber) {
  for (const std::uint32_t bits : {0U, 1U, 0xA5A5AU, (1U << 20) - 1})
    for (const int width : {kLeastSpotWidth, 79, kMostSpotWidth}) {
      RowShape shape = Unpacked(bits);
      shape.spotWidth = width;
      EXPECT_EQ(Unpacked(Packed(shape)).spotWidth, width);
      EXPECT_EQ(Packed(Unpacked(Packed(shape))), Packed(shape));
    }
  EXPECT_TRUE(Unpacked(Packed(Classic({.OrigGrid = true}))).shown.OrigGrid);
  EXPECT_FALSE(Unpacked(Packed(Classic({.OrigGrid = true}))).shown.DxGrid);
}

TEST(ClassicLayout, CommentFillsTheWidthLessTheTail) {
  EXPECT_EQ(CommentWidth({}), 31);
  EXPECT_EQ(CommentWidth({.OrigCq = true}), 28);
  EXPECT_EQ(CommentWidth({.OrigItu = true}), 28);
  EXPECT_EQ(CommentWidth({.OrigState = true}), 28);
  EXPECT_EQ(CommentWidth({.OrigCty = true}), 26);
  EXPECT_EQ(CommentWidth({.OrigGrid = true}), 26);
  EXPECT_EQ(CommentWidth({.OrigCty = true, .OrigState = true}), 26);
  EXPECT_EQ(CommentWidth({.Date = true}), 28);
  EXPECT_EQ(CommentWidth({.OrigGrid = true, .Date = true}), 23);
  EXPECT_EQ(CommentWidth({}, 130), 82);
  EXPECT_EQ(CommentWidth({.OrigGrid = true, .Date = true}, 45), 0);
}

TEST(ClassicLayout, HeadStandsInItsColumns) {
  const RowLayout layout = ArPcScreenSetup({});
  EXPECT_EQ(layout.Start(Column::Spotter), 7);
  EXPECT_EQ(layout.Start(Column::Freq) + layout.Width(Column::Freq), 25);
  EXPECT_EQ(layout.Start(Column::DxCall), 27);
  EXPECT_EQ(layout.Start(Column::Comment), 40);
  EXPECT_EQ(layout.Start(Column::Time), 71);
  EXPECT_EQ(layout.FullWidth, 79);
  EXPECT_FALSE(layout.Shows(Column::Node));
}

TEST(ExpandedLayout, BareOneHasFourFields) {
  const RowLayout layout = ArPcScreenSetup(Expanded({}));
  EXPECT_EQ(layout.Start(Column::Freq), 13);
  EXPECT_EQ(layout.Start(Column::Time), 25);
  EXPECT_EQ(layout.Start(Column::DxCall), 31);
  EXPECT_FALSE(layout.Shows(Column::Comment));
}

TEST(ExpandedLayout, FieldsComeInTheirOrder) {
  const RowLayout layout = ArPcScreenSetup(Expanded(Everything()));
  std::vector<int> starts;
  for (const Column column :
       {Column::Spotter, Column::SpotterIp, Column::OrigCty,  Column::OrigState, Column::OrigCq,
        Column::OrigItu, Column::OrigGrid,  Column::Node,     Column::Freq,      Column::Time,
        Column::DxCall,  Column::DxCty,     Column::DxState,  Column::DxCq,      Column::DxItu,
        Column::DxGrid,  Column::Bearing,   Column::Distance, Column::Day,       Column::Comment})
    starts.push_back(layout.Start(column));
  EXPECT_THAT(starts, testing::ElementsAre(1, 13, 29, 35, 38, 41, 44, 50, 59, 71, 77, 89, 95, 98,
                                           101, 104, 110, 114, 120, 123));
  EXPECT_EQ(layout.FullWidth, 121);
}

TEST(ExpandedLayout, GridWithoutItuStandsTwoFurtherRight) {
  const RowLayout layout = ArPcScreenSetup(Expanded({.OrigGrid = true}));
  EXPECT_EQ(layout.Start(Column::OrigGrid), 15);
}

TEST(ExpandedLayout, CountryNameAloneHasTheColumnOfComments) {
  EXPECT_TRUE(ArPcScreenSetup(Expanded({.CountryName = true})).Shows(Column::Comment));
}

TEST(SortButtons, StandOverTheColumnsOnShow) {
  EXPECT_THAT(Captions(ArPcScreenSetup({})), testing::ElementsAre("Spotter", "Freq", "DX", "Time"));
  EXPECT_THAT(Captions(ArPcScreenSetup(Expanded({.DxGrid = true, .SpotterIp = true}))),
              testing::ElementsAre("Spotter", "Spotter IP", "Freq", "Time", "DX", "Grid"));
}

TEST(SortButtons, ThatOfDistancesNamesTheirUnit) {
  EXPECT_EQ(Captions(ArPcScreenSetup(Expanded({.Distance = true}))).back(), "mile");
  EXPECT_EQ(Captions(ArPcScreenSetup(Expanded({.Distance = true, .Kilometres = true}))).back(),
            "km");
}

TEST(SortButtons, WordsThatShareAColumnShareAButton) {
  EXPECT_THAT(Captions(ArPcScreenSetup(Classic({.DxCty = true, .DxGrid = true, .OrigCq = true}))),
              testing::ElementsAre("Spotter", "Freq", "DX", "DxQTH", "Time", "Cq"));
}

TEST(SortButtons, FifteenIsTheSpottersAddress) {
  EXPECT_EQ(SortColumn(kSpotterIpOrder), Column::SpotterIp);
  EXPECT_EQ(SortColumn(5), Column::DxCty);
}

}  // namespace
}  // namespace spots
