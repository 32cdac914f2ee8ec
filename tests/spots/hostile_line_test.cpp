#include <gmock/gmock.h>

#include <random>

#include "spot_desk.h"
#include "spots/bands.h"
#include "spots/classic_row.h"
#include "thoroughness.h"

namespace {

using testing::IsEmpty;

// Lines as nodes send them, each with what is particular about it.
const std::vector<std::string>& ValidLines() {
  static const std::vector<std::string> kLines = {
      Line{}.Text(),
      Line{.tail = " JN58"}.Text(),
      Line{.comment = "gr\xFC\xDF"
                      "e 73",
           .tail = " 14"}
          .Text(),
      Line{.comment = "CW up 2                     54"}.Text(),
      Line{.spotter = "EA8/DF4UE-#", .kHz = "21149.0"}.Text(),
      Line{.kHz = "1296117.1", .call = "K6NNN/QRPP/MM"}.Text(),
      Line{.comment = "100%25 copy %41 %zz"}.Text(),
      "DX de SP5CEAT     1881.0  PY2AA        CW                             2116Z",
  };
  return kLines;
}

class HostileLine : public SpotDesk {
 protected:
  // Whatever the line was: it is claimed if it begins as a spot's does, and all that the table
  // shows has a call, a spotter and a frequency on a band.
  void ExpectHarmless(const std::string& line) {
    const auto before = pipeline.SpotsShown;
    EXPECT_EQ(Receive(line), line.starts_with("DX de ")) << testing::PrintToString(line);
    if (pipeline.SpotsShown == before) return;
    EXPECT_NE(spots::BandOf(parts.spot.Freq), 0) << testing::PrintToString(line);
    EXPECT_GE(parts.spot.DxCall.size(), 2u) << testing::PrintToString(line);
    EXPECT_GE(parts.spot.Spotter.size(), 3u) << testing::PrintToString(line);
    if (!table.RtbDx.Rows().empty()) spots::LookUpCalls(table.RtbDx.Rows().back());
  }
};

TEST_F(HostileLine, WithoutASpotShowsNothing) {
  for (const std::string_view line :
       {"", "D", "DX de", "DX DE DL1ABC:    14025.0  3Y0J         CW                  2116Z"})
    EXPECT_FALSE(Receive(line)) << line;
  for (const std::string_view line : {"DX de ", "DX de :", "DX de DL1ABC:", "DX de         ",
                                      "DX de DL1ABC:    14025.0", "DX de DL1ABC: x y z 2116Z"})
    EXPECT_TRUE(Receive(line)) << line;
  EXPECT_THAT(CallsInTable(), IsEmpty());
}

TEST_F(HostileLine, HugeOneShowsNothingAndLeavesNoTrace) {
  EXPECT_TRUE(Receive(Line{.spotter = std::string(5'000'000, 'A')}));
  EXPECT_TRUE(Receive(Line{.call = std::string(5'000'000, 'A')}));
  EXPECT_TRUE(Receive("DX de " + std::string(5'000'000, ' ')));
  EXPECT_THAT(CallsInTable(), IsEmpty());
  EXPECT_LT(parts.spot.DxCall.capacity() + parts.spot.Spotter.capacity(), 10'000u);
}

TEST_F(HostileLine, CutAtAnyByteIsHarmless) {
  for (const std::string& line : ValidLines())
    for (std::size_t length = 0; length <= line.size(); ++length)
      ExpectHarmless(line.substr(0, length));
}

TEST_F(HostileLine, AnyByteAnywhereIsHarmless) {
  for (const std::string& line : ValidLines())
    for (std::size_t at = 0; at < line.size(); ++at)
      for (int byte = 0; byte < 256; byte += static_cast<int>(kOneOf)) {
        std::string bent = line;
        bent[at] = static_cast<char>(byte);
        ExpectHarmless(bent);
      }
}

TEST_F(HostileLine, AnyChangesAreHarmless) {
  constexpr unsigned kSeeds = 30'000 / kOneOf;
  for (unsigned seed = 1; seed <= kSeeds && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 chance(seed);
    const auto upTo = [&](std::size_t most) {
      return std::uniform_int_distribution<std::size_t>{0, most}(chance);
    };
    std::string line = ValidLines()[upTo(ValidLines().size() - 1)];
    for (std::size_t changes = upTo(6); changes > 0; --changes) {
      const std::size_t at = upTo(line.size());
      switch (upTo(2)) {
        case 0:
          line.erase(at, upTo(8));
          break;
        case 1:
          line.insert(at, std::string(upTo(8), static_cast<char>(upTo(255))));
          break;
        default:
          line.insert(at, line.substr(upTo(line.size()), upTo(20)));
      }
    }
    ExpectHarmless(line);
  }
}

}  // namespace
