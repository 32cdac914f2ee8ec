#include "spots/expanded_row.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "spots/classic_row.h"

namespace spots {
namespace {

constexpr std::size_t kCountry = 17;  // a long one reaches to the left of its column

using Text = std::string Spot::*;

struct Field {
  Column column;
  Text text;
};

// Those that stand at the left of their column. In their order from left to right, so that one that
// is too long gives way to the next; the frequency follows the node.
constexpr std::array kLeftAligned = {
    Field{Column::Spotter, &Spot::Spotter},     Field{Column::SpotterIp, &Spot::SpotterIp},
    Field{Column::OrigState, &Spot::OrigState}, Field{Column::OrigCq, &Spot::OrigCq},
    Field{Column::OrigItu, &Spot::OrigItu},     Field{Column::OrigGrid, &Spot::OrigGrid},
    Field{Column::Node, &Spot::Node},           Field{Column::DxCall, &Spot::DxCall},
    Field{Column::DxState, &Spot::DxState},     Field{Column::DxCq, &Spot::DxCq},
    Field{Column::DxItu, &Spot::DxItu},         Field{Column::DxGrid, &Spot::DxGrid}};

class Writer {
 public:
  Writer(const RowLayout& layout, std::string& row) : layout_(layout), row_(row) {
    row_.assign(static_cast<std::size_t>(layout.FullWidth), ' ');
  }

  void Left(Column column, std::string_view text) {
    if (layout_.Shows(column)) Put(text.substr(0, Width(column)), Begin(column));
  }

  void Right(Column column, std::string_view text) {
    if (!layout_.Shows(column)) return;
    const std::string_view fitting = text.substr(0, Width(column));
    row_.replace(Begin(column), Width(column), Width(column), ' ');
    Put(fitting, End(column) - fitting.size());
  }

  // May begin before its column.
  void Leftward(Column column, std::string_view text, std::size_t most) {
    if (!layout_.Shows(column)) return;
    const std::string_view fitting = text.substr(0, std::min(most, End(column)));
    Put(fitting, End(column) - fitting.size());
  }

  void Behind(Column column, std::string_view text) { Put(text.substr(0, 1), End(column)); }

 private:
  std::size_t Begin(Column column) const {
    return static_cast<std::size_t>(layout_.Start(column) - 1);
  }
  std::size_t Width(Column column) const { return static_cast<std::size_t>(layout_.Width(column)); }
  std::size_t End(Column column) const { return Begin(column) + Width(column); }

  void Put(std::string_view text, std::size_t place) {
    const std::size_t size = std::min(text.size(), row_.size() - std::min(place, row_.size()));
    row_.replace(place, size, text.substr(0, size));
  }

  const RowLayout& layout_;
  std::string& row_;
};

// A text put together without allocating.
template <std::size_t Size>
class ShortText {
 public:
  ShortText& operator+=(std::string_view text) {
    const std::size_t size = std::min(text.size(), Size - length_);
    text.copy(&bytes_[length_], size);
    length_ += size;
    return *this;
  }
  std::string_view View() const { return {bytes_.data(), length_}; }

 private:
  std::array<char, Size + 1> bytes_;
  std::size_t length_ = 0;
};

void PutFrequency(double kHz, Writer& writer, std::string& scratch) {
  const std::size_t end = scratch.size();
  AppendFrequency(kHz, scratch);
  ShortText<32> frequency;
  frequency += std::string_view(scratch).substr(end);
  scratch.resize(end);
  writer.Right(Column::Freq, frequency.View());
}

void AppendRemark(const Spot& spot, const RowLayout& layout, const RowExtras& extras,
                  std::string& row) {
  const ShownColumns& shown = layout.shape.shown;
  if (!layout.Shows(Column::Comment)) return;
  row += ' ';
  if (shown.CountryName) row += extras.countryName;
  if (!shown.Comments) return;
  if (shown.CountryName && !extras.countryName.empty()) row += ": ";
  row += core::Trim(spot.Comment);
}

}  // namespace

void ExpandedRow(const Spot& spot, const RowLayout& layout, const RowExtras& extras,
                 std::string& row) {
  Writer writer(layout, row);
  for (const Field& field : kLeftAligned) writer.Left(field.column, spot.*field.text);
  writer.Right(Column::OrigCty, core::Trim(spot.OrigCty));
  PutFrequency(spot.Freq, writer, row);
  writer.Behind(Column::Freq, spot.LotwMark);
  ShortText<8> time;
  writer.Left(Column::Time, ((time += core::Left(spot.SpotTime, 4)) += "Z").View());
  ShortText<kCountry> country;
  writer.Leftward(Column::DxCty, ((country += spot.LotwMark) += core::Trim(spot.DxCty)).View(),
                  kCountry);
  writer.Right(Column::Bearing, extras.bearing);
  writer.Right(Column::Distance, extras.distance);
  writer.Right(Column::Day,
               core::Trim(core::Left(spot.SpotDate, core::InStr(spot.SpotDate, "-") - 1)));
  AppendRemark(spot, layout, extras, row);
  row.resize(core::RTrim(row).size());
}

}  // namespace spots
