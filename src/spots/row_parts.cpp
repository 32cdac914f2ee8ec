#include "spots/row_parts.h"

#include <algorithm>

#include "core/text.h"
#include "spots/classic_row.h"

namespace spots {
namespace {

// The piece of the row from `start` on; empty where the row has ended.
std::string_view Piece(std::string_view row, std::size_t start, std::size_t length) {
  return start < row.size() ? row.substr(start, length) : std::string_view();
}

}  // namespace

RowParts PartsOf(std::string_view row) {
  const RowCalls calls = LookUpCalls(row);
  RowParts parts;
  if (calls.spotter.empty() || calls.call.empty()) {
    parts.head = row;
    return parts;
  }
  const auto placeOf = [row](std::string_view part) {
    return static_cast<std::size_t>(part.data() - row.data());
  };
  const std::size_t callStart = placeOf(calls.call);
  // A longer call shifts what stands behind it.
  const std::size_t callEnd = std::min(row.find(' ', callStart), row.size());
  const std::size_t comment = std::max(callStart + kCallWidth, callEnd) + 1;
  parts.head = row.substr(0, placeOf(calls.spotter));
  parts.spotter = calls.spotter;
  parts.frequency = calls.frequency;
  parts.mark = Piece(row, callStart - 1, 1);
  parts.call = row.substr(callStart, callEnd - callStart);
  parts.comment = core::RTrim(Piece(row, comment, kCommentWidth));
  parts.time = Piece(row, comment + kCommentWidth, kTimeWidth);
  parts.tail = Piece(row, comment + kCommentWidth + kTimeWidth, std::string_view::npos);
  return parts;
}

}  // namespace spots
