#include "spots/clicks.h"

#include <cmath>

#include "core/text.h"
#include "spots/row_layout.h"

namespace spots {
namespace {

constexpr int kTuningFrom = 14;
constexpr std::size_t kHertzDigits = 11;
constexpr double kMostHertz = 99'999'999'999;

// Where a spotter is clicked, both ends included.
struct Columns {
  int first;
  int last;
};
constexpr Columns kClassicSpotter = {5, 13};
constexpr Columns kExpandedSpotter = {1, 8};

bool Holds(const Columns& columns, int column) {
  return column >= columns.first && column <= columns.last;
}

bool InCall(const RowLayout& layout, int column) {
  const int start = layout.Start(Column::DxCall);
  return column >= start && column < start + layout.Width(Column::DxCall);
}

std::string_view Bare(std::string_view call) { return call.substr(0, call.find_first_of(" -")); }

// Empty for a frequency that the digits don't hold.
std::string Hertz(double kHz) {
  const double hertz = std::round(RoundHalfUp(kHz, 1) * 1000);
  if (!(hertz >= 0 && hertz <= kMostHertz)) return {};
  const std::string digits = std::to_string(static_cast<long long>(hertz));
  return std::string(kHertzDigits - digits.size(), '0') + digits;
}

Click Tune(const std::string& hertz) {
  if (hertz.empty()) return {};
  return {.act = Click::Act::Radio, .hertz = hertz, .text = "FA" + hertz + ";"};
}

Click OnCall(std::string_view call, const ClickKeys& keys, const std::string& hertz) {
  Click click{.call = std::string(Bare(call)), .hertz = hertz};
  if (click.call.empty()) return {};
  if (keys.ctrl && !keys.alt) {
    click.act = Click::Act::Node;
    click.text = "sh/sun " + click.call;
  } else if (keys.alt && !keys.ctrl) {
    click.act = Click::Act::Clipboard;
  } else {
    const bool feed = keys.toLoggers && !keys.ctrl;
    click.act = feed ? Click::Act::Loggers : Click::Act::CallBook;
  }
  return click;
}

}  // namespace

Click ClickOn(const TableRow& row, int column, const ClickKeys& keys) {
  if (!row.IsSpot()) return {};
  const RowLayout layout = ArPcScreenSetup(row.Shape());
  const std::string hertz = Hertz(row.Freq());
  if (InCall(layout, column)) {
    Click click = OnCall(row.DxCall(), keys, hertz);
    click.dxCall = click.call;
    return click;
  }
  if (keys.tuning && column >= kTuningFrom) return Tune(hertz);
  if (!Holds(layout.IsExpanded() ? kExpandedSpotter : kClassicSpotter, column)) return {};
  Click click = OnCall(row.Spotter(), keys, hertz);
  click.spotter = click.call;
  return click;
}

}  // namespace spots
