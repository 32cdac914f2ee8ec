#include "spots/state_corrections.h"

#include <gtest/gtest.h>

#include "spots/area_states.h"
#include "spots/state_codes.h"

namespace spots {
namespace {

// State or country, then the zones.
struct Fields {
  std::string state = {};
  std::string country = {};
  std::string cq = "cq";
  std::string itu = "it";

  bool operator==(const Fields&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Fields& fields) {
  return out << '"' << fields.state << "\", \"" << fields.country << "\", \"" << fields.cq
             << "\", \"" << fields.itu << '"';
}

Fields Province(std::string state, std::string_view call) {
  Fields fields{.state = std::move(state)};
  ProvinceFromCall(fields.state, call, fields.cq, fields.itu);
  return fields;
}

Fields Country(std::string state) {
  Fields fields{.state = std::move(state), .country = "XX"};
  StateToCountry(fields.state, fields.country, fields.cq, fields.itu);
  return fields;
}

TEST(ProvinceFromCall, TakesThePrefixBeforeTheSlash) {
  EXPECT_EQ(Province("", "VE3/K1ABC"), (Fields{"ON", "", " 4", " 4"}));
  EXPECT_EQ(Province("BC", "VO2/K1ABC"), (Fields{"LB", "", " 2", " 9"}));
}

TEST(ProvinceFromCall, TakesWhatStandsBehindTheSlash) {
  EXPECT_EQ(Province("", "VE3ABC/7"), (Fields{"BC", "", " 3", " 2"}));
  EXPECT_EQ(Province("ON", "K1ABC/VY2"), (Fields{"PE", "", " 5", " 9"}));
}

TEST(ProvinceFromCall, TakesTheStateOfACallWithoutASlash) {
  EXPECT_EQ(Province("QC", "VE2ABC"), (Fields{"QC", "", "*5", "*4"}));
  EXPECT_EQ(Province("NT", ""), (Fields{"NT", "", "*2", "  "}));
  EXPECT_EQ(Province("NU", "VY0A"), (Fields{"NU", "", " ", " "}));
}

TEST(ProvinceFromCall, KnowsEveryProvince) {
  for (const std::string_view code : kProvinces) {
    if (code == "LB") continue;
    const Fields fields = Province(std::string(code), "VE1ABC");
    EXPECT_EQ(fields.state, code);
    EXPECT_NE(fields.cq, "cq") << code;
    EXPECT_NE(fields.itu, "it") << code;
  }
  EXPECT_EQ(Province("LB", "VO2A"), (Fields{"LB", "", " 2", " 9"}));
}

TEST(ProvinceFromCall, OtherwiseChangesNothing) {
  EXPECT_EQ(Province("", "VE3ABC"), Fields{});
  EXPECT_EQ(Province("ON", "VE3ABC/P"), (Fields{"ON", ""}));
  EXPECT_EQ(Province("ON", "VE3ABC/"), (Fields{"ON", ""}));
  EXPECT_EQ(Province("ON", "VE3ABC/7/P"), (Fields{"ON", ""}));
  EXPECT_EQ(Province("OH", "VE3ABC"), (Fields{"OH", ""}));
  EXPECT_EQ(Province("", "/"), Fields{});
}

TEST(StateToCountry, WithoutAStateIsTheUnitedStatesAtLarge) {
  EXPECT_EQ(Country(""), (Fields{"", "K", "  ", "  "}));
}

TEST(StateToCountry, ABlankStateIsEmptied) { EXPECT_EQ(Country("  "), (Fields{"", "XX"})); }

TEST(StateToCountry, AStateThatIsACountryLeavesTheItuZone) {
  EXPECT_EQ(Country("HI"), (Fields{"HI", "KH6", "31"}));
  EXPECT_EQ(Country("AK"), (Fields{"AK", "KL", " 1"}));
  EXPECT_EQ(Country("AS"), (Fields{"AS", "KH8", "32"}));
  EXPECT_EQ(Country("GU"), (Fields{"GU", "KH2", "27"}));
  EXPECT_EQ(Country("MP"), (Fields{"MP", "KH0", "27"}));
  EXPECT_EQ(Country("PR"), (Fields{"PR", "KP4", " 8"}));
  EXPECT_EQ(Country("VI"), (Fields{"VI", "KP2", " 8"}));
}

TEST(StateToCountry, OtherStatesSetBothZones) {
  EXPECT_EQ(Country("CA"), (Fields{"CA", "K", " 3", " 6"}));
  EXPECT_EQ(Country("OH"), (Fields{"OH", "K", " 4", " 8"}));
  EXPECT_EQ(Country("NY"), (Fields{"NY", "K", " 5", " 8"}));
  EXPECT_EQ(Country("TX"), (Fields{"TX", "K", " 4", " 7"}));
}

TEST(StateToCountry, KnowsEveryStateButTheDistrictOfColumbia) {
  for (const std::string_view code : kUsStates)
    EXPECT_EQ(Country(std::string(code)).cq == "cq", code == "DC") << code;
}

TEST(StateToCountry, AStateOfNoTableKeepsItsZones) {
  EXPECT_EQ(Country("DC"), (Fields{"DC", "K"}));
  EXPECT_EQ(Country("ON"), (Fields{"ON", "K"}));
  EXPECT_EQ(Country("?"), (Fields{"?", "K"}));
  EXPECT_EQ(Country(" "), (Fields{" ", "K"}));
}

TEST(PossessionOf, KnowsThePartsThatAreCountriesAndNoOthers) {
  EXPECT_EQ(PossessionOf("KL")->state, "AK");
  EXPECT_EQ(PossessionOf("KP4")->itu, "11");
  for (const std::string_view country : {"", "K", "KH3", "KG4", "VE"})
    EXPECT_EQ(PossessionOf(country), nullptr) << country;
}

TEST(AreaStates, HasARowOfStatesForEachLabel) {
  EXPECT_EQ(AreaStates[0].size() / 2, AreaStates.size() - 1);
  for (std::size_t area = 1; area < AreaStates.size(); ++area)
    for (std::size_t at = 0; at < AreaStates[area].size(); at += 2)
      EXPECT_TRUE(IsStateCode(AreaStates[area].substr(at, 2))) << area << " " << at;
}

}  // namespace
}  // namespace spots
