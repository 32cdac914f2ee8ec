#include "spots/row_parts.h"

#include <algorithm>

#include "core/text.h"
#include "spots/classic_row.h"

namespace spots {
namespace {

constexpr std::size_t kHeadSize = 6;  // "DX de "
constexpr std::size_t kFrequencyEnd = 24;
constexpr std::size_t kRest = std::string_view::npos;

// The piece of the row from `start` on; empty where the row has ended.
std::string_view Cut(std::string_view row, std::size_t start, std::size_t length) {
  return start < row.size() ? row.substr(start, length) : std::string_view();
}

std::size_t Index(int column) { return static_cast<std::size_t>(column - 1); }

// Where the fields of a classic row stand in its text, whatever shifted them.
struct ClassicPlaces {
  std::size_t frequency;
  std::size_t frequencyEnd;
  std::size_t call;
  std::size_t comment;
  std::size_t time;
  std::size_t tail;
};

ClassicPlaces PlacesOf(const TableRow& row) {
  const std::string_view text = row.Text();
  ClassicPlaces places{};
  const std::size_t behindColon = std::min(kHeadSize + row.Spotter().size() + 1, text.size());
  places.frequency = std::min(text.find_first_not_of(' ', behindColon), text.size());
  const std::size_t wordEnd = std::min(text.find(' ', places.frequency), text.size());
  places.frequencyEnd = std::max(wordEnd, kFrequencyEnd);
  places.call = places.frequencyEnd + 2;
  places.comment = places.call + std::max(row.DxCall().size(), kCallWidth) + 1;
  places.time = places.comment + row.CommentField();
  places.tail = places.time + kTimeWidth;
  return places;
}

RowParts ClassicParts(const TableRow& row) {
  const std::string_view text = row.Text();
  const ClassicPlaces places = PlacesOf(row);
  RowParts parts;
  parts.head = text.substr(0, kHeadSize);
  parts.spotter = row.Spotter();
  parts.frequency = Cut(text, places.frequency, places.frequencyEnd - places.frequency);
  parts.mark = Cut(text, places.call - 1, 1);
  parts.call = row.DxCall();
  parts.comment = core::RTrim(Cut(text, places.comment, row.CommentField()));
  parts.time = Cut(text, places.time, kTimeWidth);
  parts.tail = Cut(text, places.tail, kRest);
  return parts;
}

// A column of the text, wherever its field really stands there.
std::string_view ClassicField(const TableRow& row, const RowLayout& layout, Column column) {
  const ClassicPlaces places = PlacesOf(row);
  const std::string_view text = row.Text();
  const std::size_t start = Index(layout.Start(column));
  const auto width = static_cast<std::size_t>(layout.Width(column));
  switch (column) {
    case Column::Spotter:
      return row.Spotter();
    case Column::Freq:
      return Cut(text, places.frequency, places.frequencyEnd - places.frequency);
    case Column::DxCall:
      return row.DxCall();
    case Column::Comment:
      return Cut(text, places.comment, row.CommentField());
    default:
      break;
  }
  const std::size_t time = Index(layout.Start(Column::Time));
  // Those before the time and behind it move along with it.
  return start < time ? Cut(text, places.time - (time - start), width)
                      : Cut(text, places.time + (start - time), width);
}

std::string_view ExpandedField(const TableRow& row, const RowLayout& layout, Column column) {
  const std::string_view text = row.Text();
  const std::size_t start = Index(layout.Start(column));
  if (column == Column::Spotter) return row.Spotter();
  if (column == Column::DxCall) return row.DxCall();
  const std::string_view field = Cut(text, start, static_cast<std::size_t>(layout.Width(column)));
  // A node may reach into the room of the frequency.
  return column == Column::Node ? field.substr(0, field.find(' ')) : field;
}

Ink InkOf(Column column) {
  switch (column) {
    case Column::Freq:
      return Ink::Band;
    case Column::DxCall:
      return Ink::Call;
    case Column::Spotter:
    case Column::Comment:
      return Ink::Text;
    default:
      return Ink::Dim;
  }
}

// What fits between two columns; nothing if they have no room.
std::string_view Cut(std::string_view text, int room) {
  return text.substr(0, static_cast<std::size_t>(std::max(room, 0)));
}

DrawnRow DrawnClassic(const TableRow& row, const RowLayout& layout) {
  const RowParts parts = ClassicParts(row);
  DrawnRow drawn;
  const int spotter = layout.Start(Column::Spotter) - 1;
  const int frequencyEnd = static_cast<int>(kFrequencyEnd);
  const auto frequency =
      std::max(frequencyEnd - static_cast<int>(core::Trim(parts.frequency).size()), spotter);
  const int call = layout.Start(Column::DxCall) - 1;
  const int comment = layout.Start(Column::Comment) - 1;
  // A wide comment moves the time for all that it says.
  const int time = comment + static_cast<int>(row.CommentField());
  drawn.Add(parts.head, 0, Ink::Dim);
  drawn.Add(Cut(parts.spotter, frequency - 1 - spotter), spotter, Ink::Text);
  drawn.Add(Cut(core::Trim(parts.frequency), frequencyEnd - spotter), frequency, Ink::Band);
  drawn.Add(parts.mark, call - 1, Ink::Dim);
  drawn.Add(Cut(parts.call, layout.Width(Column::DxCall)), call, Ink::Call);
  drawn.Add(parts.comment, comment, Ink::Text);
  drawn.Add(parts.time, time, Ink::Dim);
  drawn.Add(parts.tail, time + layout.Width(Column::Time), Ink::Dim);
  return drawn;
}

DrawnRow DrawnExpanded(const TableRow& row, const RowLayout& layout) {
  DrawnRow drawn;
  const std::string_view text = row.Text();
  for (std::size_t index = 0; index < kColumnCount; ++index) {
    const auto column = static_cast<Column>(index);
    if (!layout.Shows(column)) continue;
    const int start = layout.Start(column) - 1;
    const std::string_view field = ExpandedField(row, layout, column);
    drawn.Add(Cut(field, layout.Width(column)), start, InkOf(column));
  }
  const int mark = layout.Start(Column::Freq) + layout.Width(Column::Freq) - 1;
  drawn.Add(Cut(text, static_cast<std::size_t>(mark), 1), mark, Ink::Dim);
  return drawn;
}

bool IsReadable(const TableRow& row) {
  return row.IsSpot() && !row.DxCall().empty() && !row.Spotter().empty();
}

RowParts ExpandedParts(const TableRow& row, const RowLayout& layout) {
  const std::string_view text = row.Text();
  RowParts parts;
  const std::size_t mark =
      Index(layout.Start(Column::Freq)) + static_cast<std::size_t>(layout.Width(Column::Freq));
  const std::size_t behindCall = Index(layout.Start(Column::DxCall)) + kCallWidth;
  const auto full = static_cast<std::size_t>(layout.FullWidth);
  parts.spotter = row.Spotter();
  parts.frequency = FieldOf(row, layout, Column::Freq);
  parts.mark = Cut(text, mark, 1);
  parts.call = row.DxCall();
  parts.comment = FieldOf(row, layout, Column::Comment);
  parts.time = FieldOf(row, layout, Column::Time);
  parts.tail = core::Trim(Cut(text, behindCall, full - std::min(behindCall, full)));
  return parts;
}

}  // namespace

RowParts PartsOf(const TableRow& row) {
  if (!IsReadable(row)) {
    RowParts parts;
    parts.head = row.Text();
    return parts;
  }
  const RowLayout layout = ArPcScreenSetup(row.Shape());
  return layout.IsExpanded() ? ExpandedParts(row, layout) : ClassicParts(row);
}

DrawnRow Drawn(const TableRow& row) {
  const RowLayout layout = ArPcScreenSetup(row.Shape());
  if (IsReadable(row))
    return layout.IsExpanded() ? DrawnExpanded(row, layout) : DrawnClassic(row, layout);
  DrawnRow drawn;
  drawn.Add(row.Text(), 0, Ink::Dim);
  return drawn;
}

std::string_view FieldOf(const TableRow& row, const RowLayout& layout, Column column) {
  if (!layout.Shows(column)) return {};
  return core::Trim(layout.IsExpanded() ? ExpandedField(row, layout, column)
                                        : ClassicField(row, layout, column));
}

RowCalls LookUpCalls(const TableRow& row) {
  const RowParts parts = PartsOf(row);
  return {.call = parts.call, .spotter = parts.spotter, .frequency = core::Trim(parts.frequency)};
}

}  // namespace spots
