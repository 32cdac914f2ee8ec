#include "spots/row_layout.h"

#include <algorithm>

namespace spots {
namespace {

using Switch = bool ShownColumns::*;

// Of both displays.
constexpr int kCallColumns = 12;
constexpr int kSpotterColumns = 10;
constexpr int kTimeColumns = 5;
constexpr int kFreqWidth = 11;

void Place(RowLayout& layout, Column column, int start, int width) {
  layout.ColumnStart[static_cast<std::size_t>(column)] = start;
  layout.ColumnWidth[static_cast<std::size_t>(column)] = width;
}

// Classic.

constexpr int kSpotterStart = 7;
constexpr int kFreqStart = 14;
constexpr int kCallStart = 27;
constexpr int kCommentStart = 40;
constexpr int kMargin = 4;  // behind the last word
constexpr int kShortWord = 3;
constexpr int kLongWord = 5;
constexpr int kDayField = 3;

struct Word {
  Switch shown;
  Column column;
};
constexpr std::array kDxWords = {
    Word{&ShownColumns::DxState, Column::DxState}, Word{&ShownColumns::DxCty, Column::DxCty},
    Word{&ShownColumns::DxCq, Column::DxCq}, Word{&ShownColumns::DxItu, Column::DxItu},
    Word{&ShownColumns::DxGrid, Column::DxGrid}};
constexpr std::array kSpotterWords = {
    Word{&ShownColumns::OrigCty, Column::OrigCty},
    Word{&ShownColumns::OrigState, Column::OrigState}, Word{&ShownColumns::OrigCq, Column::OrigCq},
    Word{&ShownColumns::OrigItu, Column::OrigItu}, Word{&ShownColumns::OrigGrid, Column::OrigGrid}};

int SpotterWordWidth(const ShownColumns& shown) {
  if (shown.OrigCty || shown.OrigGrid) return kLongWord;
  return shown.OrigCq || shown.OrigItu || shown.OrigState ? kShortWord : 0;
}

void PlaceClassic(RowLayout& layout) {
  const ShownColumns& shown = layout.shape.shown;
  const int word = SpotterWordWidth(shown);
  const int day = shown.Date ? kDayField : 0;
  const int tail = kMargin + word + day;
  const int comment =
      std::max(layout.shape.spotWidth - (kCommentStart - 1) - kTimeColumns - tail, 0);
  const int time = kCommentStart + comment;
  Place(layout, Column::Spotter, kSpotterStart, kSpotterColumns);
  Place(layout, Column::Freq, kFreqStart, kFreqWidth);
  Place(layout, Column::DxCall, kCallStart, kCallColumns);
  Place(layout, Column::Comment, kCommentStart, comment);
  Place(layout, Column::Time, time, kTimeColumns);
  if (shown.Date) Place(layout, Column::Day, time + kTimeColumns + 1, kDayField - 1);
  for (const Word& dx : kDxWords)
    if (shown.*dx.shown && comment > kLongWord)
      Place(layout, dx.column, time - kLongWord - 1, kLongWord);
  for (const Word& spotter : kSpotterWords)
    if (shown.*spotter.shown) Place(layout, spotter.column, time + kTimeColumns + day, word);
  layout.FullWidth = time + kTimeColumns + tail - 1;
}

// Expanded.

// A piece of the row: what stands before the field, the field, and what the whole takes.
struct Piece {
  Switch shown;  // null: always
  Column column;
  int lead;
  int width;
  int step;
};

constexpr std::array kPieces = {
    Piece{nullptr, Column::Spotter, 0, kSpotterColumns, 12},
    Piece{&ShownColumns::SpotterIp, Column::SpotterIp, 0, 15, 16},
    Piece{&ShownColumns::OrigCty, Column::OrigCty, 0, 5, 6},
    Piece{&ShownColumns::OrigState, Column::OrigState, 0, 2, 3},
    Piece{&ShownColumns::OrigCq, Column::OrigCq, 0, 2, 3},
    Piece{&ShownColumns::OrigItu, Column::OrigItu, 0, 2, 3},
    Piece{&ShownColumns::OrigGrid, Column::OrigGrid, 0, 4, 5},
    Piece{&ShownColumns::Node, Column::Node, 1, 12, 10},
    Piece{nullptr, Column::Freq, 0, kFreqWidth, kFreqWidth + 1},
    Piece{nullptr, Column::Time, 0, kTimeColumns, kTimeColumns},
    Piece{nullptr, Column::DxCall, 1, kCallColumns, 13},
    Piece{&ShownColumns::DxCty, Column::DxCty, 0, 5, 6},
    Piece{&ShownColumns::DxState, Column::DxState, 0, 2, 3},
    Piece{&ShownColumns::DxCq, Column::DxCq, 0, 2, 3},
    Piece{&ShownColumns::DxItu, Column::DxItu, 0, 2, 3},
    Piece{&ShownColumns::DxGrid, Column::DxGrid, 0, 4, 5},
    Piece{&ShownColumns::Bearing, Column::Bearing, 1, 3, 4},
    Piece{&ShownColumns::Distance, Column::Distance, 1, 5, 6},
    Piece{&ShownColumns::Date, Column::Day, 1, 2, 3},
};

// The spotter's grid stands two further right where no ITU zone stands before it.
constexpr Piece kGridAlone = {&ShownColumns::OrigGrid, Column::OrigGrid, 2, 4, 6};

const Piece& PieceFor(const Piece& piece, const ShownColumns& shown) {
  return piece.column == Column::OrigGrid && !shown.OrigItu ? kGridAlone : piece;
}

template <class Use>
void ForEachPiece(const ShownColumns& shown, Use use) {
  int start = 1;
  for (const Piece& listed : kPieces) {
    if (listed.shown != nullptr && !(shown.*listed.shown)) continue;
    const Piece& piece = PieceFor(listed, shown);
    use(piece, start);
    start += piece.step;
  }
}

void PlaceExpanded(RowLayout& layout) {
  const ShownColumns& shown = layout.shape.shown;
  ForEachPiece(shown, [&](const Piece& piece, int start) {
    Place(layout, piece.column, start + piece.lead, piece.width);
    layout.FullWidth = start + piece.step - 1;
  });
  if (shown.Comments || shown.CountryName)
    Place(layout, Column::Comment, layout.FullWidth + 2, kToRowEnd);
}

// Sort buttons.

struct ButtonKind {
  int button;
  bool atEnd;
  std::string_view caption;
};
constexpr std::array kButtons = {ButtonKind{0, true, "Freq"},   ButtonKind{1, false, "Time"},
                                 ButtonKind{2, false, "DX"},    ButtonKind{3, false, "Spotter"},
                                 ButtonKind{4, false, "Node"},  ButtonKind{5, true, "DxQTH"},
                                 ButtonKind{6, false, "St"},    ButtonKind{7, false, "Cq"},
                                 ButtonKind{8, false, "Itu"},   ButtonKind{9, false, "Grid"},
                                 ButtonKind{10, true, "Cty"},   ButtonKind{11, false, "St"},
                                 ButtonKind{12, false, "Cq"},   ButtonKind{13, false, "Itu"},
                                 ButtonKind{14, false, "Grid"}, ButtonKind{15, false, "Spotter IP"},
                                 ButtonKind{16, true, "deg"},   ButtonKind{18, true, "mile"}};
constexpr std::string_view kKilometresCaption = "km";

}  // namespace

RowLayout ArPcScreenSetup(const RowShape& shape) {
  RowLayout layout{.shape = shape};
  if (layout.IsExpanded())
    PlaceExpanded(layout);
  else
    PlaceClassic(layout);
  return layout;
}

Column SortColumn(int button) {
  return button == kSpotterIpOrder ? Column::SpotterIp : static_cast<Column>(button);
}

std::vector<SortButton> OptDisplayPositions(const RowLayout& layout) {
  std::vector<SortButton> buttons;
  for (const ButtonKind& kind : kButtons) {
    const Column column = SortColumn(kind.button);
    const int start = layout.Start(column);
    const auto same = [start](const SortButton& other) { return other.column == start; };
    if (start == kNotShown || std::any_of(buttons.begin(), buttons.end(), same)) continue;
    const bool km = column == Column::Distance && layout.shape.shown.Kilometres;
    buttons.push_back({.button = kind.button,
                       .column = start,
                       .width = layout.Width(column),
                       .atEnd = kind.atEnd,
                       .caption = km ? kKilometresCaption : kind.caption});
  }
  std::sort(buttons.begin(), buttons.end(),
            [](const SortButton& a, const SortButton& b) { return a.column < b.column; });
  return buttons;
}

}  // namespace spots
