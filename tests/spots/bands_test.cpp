#include "spots/bands.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace spots {
namespace {

TEST(Bands, FrequencyThatIsNoneHasNoBand) {
  for (const double kHz :
       {0.0, -1.0, -14025.0, std::nan(""), -std::numeric_limits<double>::infinity()})
    EXPECT_EQ(BandOf(kHz), 0) << kHz;
}

TEST(Bands, LimitsIncludeBothEnds) {
  for (int band = 1; band < kBandCount; ++band) {
    const auto [label, from, to] = BandAt(band);
    if (!std::isfinite(from)) continue;
    EXPECT_EQ(BandOf(from), band) << label;
    EXPECT_NE(BandOf(std::nextafter(from, 0)), band) << label;
    if (!std::isfinite(to)) continue;
    EXPECT_EQ(BandOf(to), band) << label;
    EXPECT_EQ(BandOf(std::nextafter(to, from + to)), 0) << label;
  }
}

TEST(Bands, EachHasItsPlaceAndLabel) {
  const struct {
    double kHz;
    int band;
    std::string_view label;
  } kKnown[] = {{1840, 1, "160"},   {3799.9, 2, "80"},  {5357, 3, "60"},     {7173, 4, "40"},
                {10115.5, 5, "30"}, {14025, 6, "20"},   {18100, 7, "17"},    {21049.3, 8, "15"},
                {24915, 9, "12"},   {28450, 10, "10"},  {50110, 11, "6"},    {144300, 12, "2"},
                {222100, 13, "1"},  {432200, 14, "70"}, {1296200, 15, "MW"}, {70200, 16, "4"}};
  for (const auto& [kHz, band, label] : kKnown) {
    EXPECT_EQ(BandOf(kHz), band) << kHz;
    EXPECT_EQ(BandAt(band).label, label);
  }
  EXPECT_EQ(BandAt(kAlarmBand).label, "Alarm");
}

TEST(Bands, MicrowavesLieAboveTheirLimitAndHaveNoEnd) {
  EXPECT_EQ(BandOf(902000), 0);
  EXPECT_EQ(BandOf(902000.1), 15);
  EXPECT_EQ(BandOf(1e300), 15);
}

}  // namespace
}  // namespace spots
