#include "spots/table_row.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace spots {
namespace {

constexpr std::size_t kLongest = std::numeric_limits<std::uint16_t>::max();

constexpr int kLastMinute = 1439;

constexpr std::string_view kSkimmerMark = "-#";

std::uint16_t Short(std::size_t length) {
  return static_cast<std::uint16_t>(std::min(length, kLongest));
}

// Where the next text goes.
char* Put(std::string_view text, char* place) {
  if (!text.empty()) std::memcpy(place, text.data(), text.size());
  return place + text.size();
}

}  // namespace

TableRow::TableRow(std::string_view text, Kind kind, int band, const RowSpot& spot) {
  const std::string_view call = spot.DxCall.substr(0, kLongest);
  const std::string_view spotter = spot.Spotter.substr(0, kLongest);
  block_ = new (::operator new(sizeof(Block) + text.size() + call.size() + spotter.size()))
      Block{.freq = spot.Freq,
            .length = static_cast<std::uint32_t>(text.size()),
            .references = 1,
            .shape = spot.shape,
            .dxCall = Short(call.size()),
            .spotter = Short(spotter.size()),
            .commentField = Short(spot.commentField),
            .minute = static_cast<std::int16_t>(spot.minute),
            .band = static_cast<std::uint8_t>(band),
            .kind = kind};
  Put(spotter, Put(call, Put(text, reinterpret_cast<char*>(block_ + 1))));
}

RowSpot RowSpotOf(const Spot& spot, std::uint32_t shape, std::size_t commentField) {
  return {.DxCall = spot.DxCall,
          .Spotter = spot.Spotter,
          .Freq = spot.Freq,
          .minute = std::clamp(spot.SpotHHMM / 100 * 60 + spot.SpotHHMM % 100, 0, kLastMinute),
          .shape = shape,
          .commentField = commentField};
}

void TableRow::Release() noexcept {
  if (block_ != nullptr && --block_->references == 0) ::operator delete(block_);
}

bool IsSkimmer(const Spot& spot) {
  return spot.Spotter.find(kSkimmerMark) != std::string::npos ||
         spot.DxCall.find(kSkimmerMark) != std::string::npos;
}

}  // namespace spots
