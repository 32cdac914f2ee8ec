#include "practice_node/spot.h"

#include <algorithm>

#include "core/text.h"
#include "practice_node/wording.h"

namespace practice_node {
namespace {

constexpr std::size_t kFrequencyEnd = 24;
constexpr std::size_t kCallWidth = 12;
constexpr std::size_t kCommentWidth = 30;
constexpr std::size_t kListDateColumn = 23;
constexpr std::size_t kListCommentWidth = 28;

std::string Frequency(int tenths) {
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string Spotter(const Spot& spot, const SpotStyle& style) {
  return style.lowerCaseSpotter ? core::LCase(spot.spotter) : spot.spotter;
}

std::string Cut(const std::string& text, std::size_t width) {
  return PadRight(text.substr(0, width), width);
}

}  // namespace

std::string SpotLine(const Spot& spot, const SpotStyle& style) {
  std::string line = "DX de " + Spotter(spot, style) + ":";
  line += PadLeft(Frequency(spot.tenths), kFrequencyEnd - std::min(kFrequencyEnd, line.size()));
  line += "  " + PadRight(spot.call, kCallWidth) + " " + Cut(spot.comment, kCommentWidth) + " ";
  line += TimeText(spot.time);
  if (style.grid) line += " " + spot.spotterGrid;
  if (style.zone) line += " " + core::Digits(static_cast<unsigned>(spot.dxZone), 2);
  return line;
}

std::string ListRow(const Spot& spot, const SpotStyle& style) {
  std::string row = PadRight(PadLeft(Frequency(spot.tenths), 8), style.listCall - 1);
  row = PadRight(row + spot.call, kListDateColumn - 1);
  row += DateText(spot.time) + " " + TimeText(spot.time) + "  ";
  row += Cut(spot.comment.substr(0, kListCommentWidth - 1), kListCommentWidth);
  return row + PadLeft("<" + Spotter(spot, style), 7) + ">";
}

}  // namespace practice_node
