#include "spots/duplicates.h"

#include <gmock/gmock.h>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(GateOf, RecordsAndLetsOnByTheTwoFlags) {
  EXPECT_EQ(GateOf(true, true), (Gating{.recorded = true, .goesOn = false}));
  EXPECT_EQ(GateOf(true, false), (Gating{.recorded = true, .goesOn = true}));
  EXPECT_EQ(GateOf(false, false), (Gating{.recorded = true, .goesOn = true}));
  EXPECT_EQ(GateOf(false, true), (Gating{.recorded = false, .goesOn = true}));
}

// It is 20 November 2026, 21:00 UTC.
class DuplicatesTest : public testing::Test {
 protected:
  enum Fate { Shown, Dupe, Dropped };

  static Spot Of(const std::string& spotter, const std::string& time = "2100") {
    Spot spot;
    spot.Freq = 14025.0;
    spot.DxCall = "3Y0J";
    spot.Spotter = spotter;
    spot.Comment = "CW 20 dB";
    spot.SpotDate = "20-Nov-2026";
    spot.SpotTime = time;
    spot.SpotHHMM = std::stoi(time);
    return spot;
  }
  static Spot Skimmed(const std::string& time = "2100") { return Of("DL1ABC-#", time); }

  Fate Receive(Spot spot) {
    if (duplicates.IsDupe(spot)) return Dupe;
    return duplicates.Admit(spot) ? Shown : Dropped;
  }
  std::string Share() {
    duplicates.UpdateSkimmerDupeDisplay();
    return duplicates.SkimmerDupes.Caption.Get();
  }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::Settings settings;
  std::vector<std::string> remarks;
  Duplicates duplicates{calendar, settings, {.addToRawText = [this](std::string_view remark) {
                          remarks.emplace_back(remark);
                        }}};
};

TEST_F(DuplicatesTest, SpotGetsItsMinute) {
  Spot spot = Of("W1ABC", "2116");
  duplicates.IsDupe(spot);
  EXPECT_EQ(spot.SpotMinute, calendar.Date2Julian() * 1440 + 21 * 60 + 16);
}

TEST_F(DuplicatesTest, SecondReportOfASpotterIsOne) {
  EXPECT_EQ(Receive(Of("W1ABC")), Shown);
  EXPECT_EQ(Receive(Of("W1ABC-5", "2104")), Dupe);
  EXPECT_EQ(Receive(Of("W1ABC", "2105")), Shown);
  EXPECT_THAT(remarks, IsEmpty());
}

TEST_F(DuplicatesTest, OldReportOfASpotterIsOneAllTheSame) {
  EXPECT_EQ(Receive(Of("W1ABC", "0300")), Shown);
  EXPECT_EQ(Receive(Of("W1ABC", "0301")), Dupe);
}

TEST_F(DuplicatesTest, MidnightLiesBetweenNeighbours) {
  Spot late = Of("W1ABC", "2359");
  EXPECT_EQ(Receive(late), Shown);
  Spot early = Of("W1ABC", "0001");
  early.SpotDate = "21-Nov-2026";
  EXPECT_EQ(Receive(early), Dupe);
}

TEST_F(DuplicatesTest, AnySkimmerMakesADuplicateOfAnyOther) {
  EXPECT_EQ(Receive(Skimmed()), Shown);
  EXPECT_EQ(Receive(Of("EA8/DF4UE-#")), Dupe);
}

TEST_F(DuplicatesTest, SkimmersSpot301HertzOffIsNone) {
  EXPECT_EQ(Receive(Skimmed()), Shown);
  Spot spot = Skimmed();
  spot.Freq = 14025.3;
  EXPECT_EQ(Receive(spot), Dupe);
  spot.Freq = 14025.301;
  EXPECT_EQ(Receive(spot), Shown);
}

TEST_F(DuplicatesTest, HertzAreThoseOfTheDecimalFrequency) {
  Spot spot = Skimmed();
  spot.Freq = 8192.3;  // a little less in binary
  EXPECT_EQ(Receive(spot), Shown);
  spot.Freq = 8192.6;
  EXPECT_EQ(Receive(spot), Dupe);
}

TEST_F(DuplicatesTest, SkimmersSpotTwoMinutesLaterIsOneAndThreeMinutesLaterNone) {
  EXPECT_EQ(Receive(Skimmed("2100")), Shown);
  EXPECT_EQ(Receive(Skimmed("2102")), Dupe);
  EXPECT_EQ(Receive(Skimmed("2103")), Shown);
}

TEST_F(DuplicatesTest, SkimmersSpotFiveMinutesFromNowIsNever) {
  for (const char* time : {"2055", "2105"}) {
    EXPECT_EQ(Receive(Skimmed(time)), Shown) << time;
    EXPECT_EQ(Receive(Skimmed(time)), Shown) << time;
  }
  EXPECT_EQ(Receive(Skimmed("2056")), Shown);
  EXPECT_EQ(Receive(Skimmed("2056")), Dupe);
}

TEST_F(DuplicatesTest, SkimmersSpotsGoOnOverMidnight) {
  world.Run(2h + 59min);
  EXPECT_EQ(Receive(Skimmed("2359")), Shown);
  world.Run(2min);
  Spot early = Skimmed("0001");
  early.SpotDate = "21-Nov-2026";
  EXPECT_EQ(Receive(early), Dupe);
}

TEST_F(DuplicatesTest, ConfirmedSpotIsShownAtItsSecondReport) {
  duplicates.SkimmerConfirm = true;
  EXPECT_EQ(Receive(Skimmed()), Dropped);
  EXPECT_THAT(remarks, IsEmpty());
  EXPECT_EQ(Receive(Skimmed()), Shown);
  EXPECT_THAT(remarks, ElementsAre(" **** New One ****"));
  EXPECT_EQ(Receive(Skimmed()), Dupe);
  EXPECT_THAT(remarks, ElementsAre(" **** New One ****", " **** Dupe ****"));
}

TEST_F(DuplicatesTest, WithoutConfirmationNothingIsRemarked) {
  Receive(Skimmed());
  Receive(Skimmed());
  EXPECT_THAT(remarks, IsEmpty());
}

TEST_F(DuplicatesTest, ReportTooLongAfterTheFirstGoesOnUnrecordedWithConfirmation) {
  duplicates.SkimmerConfirm = true;
  EXPECT_EQ(Receive(Skimmed("2100")), Dropped);
  EXPECT_EQ(Receive(Skimmed("2103")), Shown);
  EXPECT_FALSE(duplicates.NewSkimmerCall());
  // It wasn't recorded: the next one is not its second report.
  EXPECT_EQ(Receive(Skimmed("2104")), Dropped);
  EXPECT_THAT(remarks, IsEmpty());
}

TEST_F(DuplicatesTest, OldReportIsTreatedAsTheLastLookLeftIt) {
  duplicates.SkimmerConfirm = true;
  EXPECT_EQ(Receive(Skimmed("0300")), Shown);
  EXPECT_EQ(Receive(Skimmed("2100")), Dropped);
  EXPECT_EQ(Receive(Skimmed("0300")), Dropped);
}

TEST_F(DuplicatesTest, NormalSpotMeetsTheFlagThatTheLastSkimmerLeft) {
  duplicates.SkimmerConfirm = true;
  EXPECT_EQ(Receive(Of("W1ABC")), Shown);
  EXPECT_EQ(Receive(Of("W1ABC")), Shown) << "it was not recorded";
  EXPECT_EQ(Receive(Skimmed()), Dropped);
  EXPECT_EQ(Receive(Of("W1ABC")), Dropped);
  EXPECT_EQ(Receive(Of("W1ABC")), Dupe) << "it was recorded";
  EXPECT_EQ(Receive(Skimmed()), Shown);
  EXPECT_EQ(Receive(Of("W2XYZ")), Shown);
}

TEST_F(DuplicatesTest, NormalSpotIsHeldAgainstTheSkimmersToo) {
  EXPECT_EQ(Receive(Skimmed()), Shown);
  EXPECT_EQ(Receive(Of("DL1ABC")), Dupe);
}

TEST_F(DuplicatesTest, AllowedDuplicatesAreNone) {
  settings.AllowSkimmerDupes = true;
  EXPECT_EQ(Receive(Skimmed()), Shown);
  EXPECT_EQ(Receive(Skimmed()), Shown);
  settings.AllowSkimmerDupes = false;
  EXPECT_EQ(Receive(Skimmed()), Dupe);
}

TEST_F(DuplicatesTest, AllowedDuplicatesLeaveTheFlag) {
  Receive(Skimmed());
  ASSERT_TRUE(duplicates.NewSkimmerCall());
  settings.AllowSkimmerDupes = true;
  Receive(Skimmed());
  EXPECT_TRUE(duplicates.NewSkimmerCall());
}

TEST_F(DuplicatesTest, OwnCallIsNoneIfItsSpotsAreWanted) {
  settings.MyCall = "3Y0J-7";
  EXPECT_EQ(Receive(Skimmed()), Shown);
  EXPECT_EQ(Receive(Skimmed()), Dupe);
  settings.ShowOwnSkimmerSpots = true;
  EXPECT_EQ(Receive(Skimmed()), Shown);
  settings.MyCall = "3Y0";
  EXPECT_EQ(Receive(Skimmed()), Dupe);
}

TEST_F(DuplicatesTest, ShareIsThatOfTheDuplicatesAmongAllSpotsOfSkimmers) {
  for (int i = 0; i < 3; ++i) Receive(Skimmed());
  Receive(Of("W1ABC"));
  EXPECT_EQ(Share(), "Skimmer Dupes =  66.67%");
}

TEST_F(DuplicatesTest, ShareHasTwoDigitsBeforeThePointAtLeast) {
  Receive(Of("W3LPL-#", "2030"));
  for (int i = 0; i < 19; ++i) {
    Spot spot = Skimmed();
    spot.DxCall = "K" + std::to_string(i);
    Receive(spot);
  }
  Spot again = Skimmed();
  again.DxCall = "K1";
  Receive(again);
  EXPECT_EQ(Share(), "Skimmer Dupes =  04.76%");
}

TEST_F(DuplicatesTest, ShareWaitsForADuplicate) {
  Receive(Skimmed());
  EXPECT_EQ(Share(), "");
  Receive(Skimmed());
  EXPECT_EQ(Share(), "Skimmer Dupes =  50.00%");
  Receive(Skimmed("2030"));
  EXPECT_EQ(Share(), "Skimmer Dupes =  50.00%");
  Receive(Skimmed());
  EXPECT_EQ(Share(), "Skimmer Dupes =  50.00%");
}

TEST_F(DuplicatesTest, ShareIsOnShowIfItsSwitchIsOn) {
  Receive(Skimmed());
  Receive(Skimmed());
  Share();
  EXPECT_FALSE(duplicates.SkimmerDupes.Visible.Get());
  settings.ShowSkimmerDupes = true;
  Share();
  EXPECT_TRUE(duplicates.SkimmerDupes.Visible.Get());
}

TEST_F(DuplicatesTest, DatesAndTimesThatAreNoneDoNoHarm) {
  Spot spot = Skimmed();
  for (const char* date : {"", "99-Xyz-2026", "31-Dec-9999", "1-Jan-1970"}) {
    for (const int hhmm : {-2147483647, -1, 0, 9999, 2147483647}) {
      spot.SpotDate = date;
      spot.SpotHHMM = hhmm;
      EXPECT_EQ(Receive(spot), Shown) << date << ' ' << hhmm;
      EXPECT_GE(spot.SpotMinute, 0);
    }
  }
}

TEST_F(DuplicatesTest, FrequenciesBeyondAllBoundsDoNoHarm) {
  Spot spot = Skimmed();
  for (const double kHz : {1e300, -1e300, -5.0}) {
    spot.Freq = kHz;
    EXPECT_EQ(Receive(spot), Shown) << kHz;
    EXPECT_EQ(Receive(spot), Dupe) << kHz;
  }
}

}  // namespace
}  // namespace spots
