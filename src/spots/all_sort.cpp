#include "spots/all_sort.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/text.h"
#include "spots/row_parts.h"

namespace spots {
namespace {

constexpr int kLastHourOfDay = 23 * 60;
constexpr int kRowsAhead = 29;
constexpr std::size_t kKeyWidth = 12;
constexpr std::size_t kSharedMark = 11;  // the column between spotter and address, from 0

int Hhmm(int minutes) { return minutes / 60 * 100 + minutes % 60; }

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

bool IsShortNumber(std::string_view text) {
  return text.size() == 2 && IsDigit(text[0]) && core::Val(text) < 10;
}

// Two rows in the order of their spotters, then of their texts.
bool SpotterBefore(const TableRow& a, const TableRow& b) {
  const int order = a.Spotter().compare(b.Spotter());
  return order != 0 ? order < 0 : a.Text() < b.Text();
}

// The row with the mark of an address that the row before has too.
TableRow Marked(const TableRow& row) {
  std::string text(row.Text());
  if (text.size() > kSharedMark) text[kSharedMark] = '#';
  return {text, row.RowKind(), row.Band(),
          RowSpot{.DxCall = row.DxCall(),
                  .Spotter = row.Spotter(),
                  .Freq = row.Freq(),
                  .minute = row.Minute(),
                  .shape = row.PackedShape(),
                  .commentField = row.CommentField()}};
}

}  // namespace

void AllSort::Rebuild(const std::deque<TableRow>& rows, int button, bool folding,
                      const SortMoment& now) {
  const Column column = SortColumn(button);
  items_.clear();
  if (column != Column::SpotterIp || !folding) {
    for (const TableRow& row : rows) AddItem(row, column, now);
  } else {
    spotters_.assign(rows.begin(), rows.end());
    std::sort(spotters_.begin(), spotters_.end(), SpotterBefore);
    std::string_view before;
    for (const TableRow& row : spotters_) {
      if (row.Spotter() != before) AddItem(row, column, now);
      before = row.Spotter();
    }
    spotters_.clear();
  }
  std::sort(items_.begin(), items_.end(), [](const Item& a, const Item& b) {
    const int order = a.key.Text().compare(b.key.Text());
    return order != 0 ? order < 0 : a.row.Text() < b.row.Text();
  });
  if (column == Column::SpotterIp) MarkSharedAddresses();
}

void AllSort::AddItem(const TableRow& row, Column column, const SortMoment& now) {
  if (!row.IsSpot()) return;
  if (row.PackedShape() != shape_) {
    layout_ = ArPcScreenSetup(row.Shape());
    shape_ = row.PackedShape();
  }
  std::string_view text = FieldOf(row, layout_, column);
  const bool padded = layout_.Width(column) == 4 && IsShortNumber(text);
  if (!text.empty() && (text[0] == '+' || text[0] == '-' || text[0] == '=')) text.remove_prefix(1);
  const std::string_view time = FieldOf(row, layout_, Column::Time);
  if (text.empty() || core::StartsWith(time, "*")) return;
  Item item{.key = {}, .row = row};
  item.key.Put(1, kKeyWidth, text);
  if (padded) item.key.Put(3, 1, "0");
  const bool newDay =
      now.minutes < kLastHourOfDay && Hhmm(row.Minute()) < Hhmm(now.minutes) + kRowsAhead;
  if (newDay) item.key.Put(14, 1, "1");
  item.key.Put(15, 5, time);
  item.key.PutFrequency(20, row.Freq());
  items_.push_back(std::move(item));
}

void AllSort::MarkSharedAddresses() {
  std::string before;
  for (Item& item : items_) {
    const std::string address(
        FieldOf(item.row, ArPcScreenSetup(item.row.Shape()), Column::SpotterIp));
    if (address == before) item.row = Marked(item.row);
    before = address;
  }
}

}  // namespace spots
