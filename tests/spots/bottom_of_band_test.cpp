#include "spots/bottom_of_band.h"

#include <gtest/gtest.h>

#include "spots/classic_row.h"

namespace spots {
namespace {

Spot SpotOn(double kHz) {
  Spot spot;
  spot.Freq = kHz;
  spot.DxCall = "3Y0J";
  spot.SpotDate = "20-Nov-2026";
  spot.SpotTime = "0016";
  spot.SpotHHMM = 16;
  spot.Comment = "CW up 2";
  spot.Spotter = "DL1ABC";
  spot.LotwMark = " ";
  return spot;
}

// What is announced; empty if nothing is.
std::string Announced(const Spot& spot) {
  std::string row;
  ClassicRow(spot, spots::ArPcScreenSetup({}), {}, row);
  std::string announcement;
  const bool applies = BoBtoAnn(spot, row, announcement);
  EXPECT_EQ(applies, !announcement.empty());
  return announcement;
}

TEST(BottomOfBand, SpotOnTheVeryEdgeIsAnnounced) {
  for (const double kHz :
       {1800., 3500., 10100., 14000., 18068., 21000., 24890., 28000., 50000., 144000.})
    EXPECT_NE(Announced(SpotOn(kHz)), "") << kHz;
}

TEST(BottomOfBand, AnyOtherSpotIsNone) {
  for (const double kHz : {0., 1800.1, 3500.1, 7000., 10100.1, 13999.9, 14000.1, 18068.1, 121000.,
                           211000., 28000.1, 144000.1})
    EXPECT_EQ(Announced(SpotOn(kHz)), "") << kHz;
}

TEST(BottomOfBand, UpperEdgesCountWhereTheRowShowsThem) {
  Spot spot = SpotOn(14025);
  spot.Comment = "QSY 7.0, then 21000.0 up";
  EXPECT_NE(Announced(spot), "");
  spot.Comment = "QSY 121000.0 or x21000.0";
  EXPECT_EQ(Announced(spot), "");
  spot.Comment = "QSY 14000.0";
  EXPECT_EQ(Announced(spot), "");
}

TEST(BottomOfBand, AnnouncementIsOneLine) {
  EXPECT_EQ(Announced(SpotOn(14000)), "20-Nov 0016Z BoB Dx< DL1ABC:    3Y0J 14000 CW up 2");
}

TEST(BottomOfBand, SpottersColonStandsWithinElevenColumns) {
  Spot spot = SpotOn(14000);
  spot.Spotter = "DL1ABC/QRP";
  EXPECT_EQ(Announced(spot), "20-Nov 0016Z BoB Dx< DL1ABC/QRP:3Y0J 14000 CW up 2");
  spot.Spotter = "EA8/DL1ABC/P";
  EXPECT_EQ(Announced(spot), "20-Nov 0016Z BoB Dx< EA8/DL1ABC/3Y0J 14000 CW up 2");
}

TEST(BottomOfBand, NothingIsWrittenForAnyOtherSpot) {
  std::string announcement = "before";
  EXPECT_FALSE(BoBtoAnn(SpotOn(14025), "", announcement));
  EXPECT_EQ(announcement, "before");
}

}  // namespace
}  // namespace spots
