#include "ui/spot_sample.h"

#include <QPainter>
#include <array>

#include "spots/classic_row.h"
#include "ui/bind.h"
#include "ui/fonts.h"
#include "ui/spot_painter.h"

namespace ui {
namespace {

struct SampleSpot {
  int band;
  double kHz;
  const char* call;
  const char* spotter;
  const char* comment;
  const char* time;
};
constexpr std::array kSpots = {
    SampleSpot{6, 14025.0, "3Y0J", "W1TST", "CW up 2", "2148"},
    SampleSpot{4, 7074.0, "VK6LD", "DL1TST", "FT8 -12 dB", "2149"},
    SampleSpot{8, 21288.0, "EA8/DL1QQQ", "JH1TST", "59 in Munich", "2149"},
    SampleSpot{1, 1823.4, "UA9MA", "K1TST", "QSX 1825", "2149"},
    SampleSpot{10, 28452.7, "JA1NEW", "VE3TST", "long path", "2150"},
};
constexpr int kChosen = 1;  // of the rows
constexpr int kMargin = 4;

spots::TableRow RowOf(const SampleSpot& sample) {
  spots::Spot spot;
  spot.Freq = sample.kHz;
  spot.DxCall = sample.call;
  spot.Spotter = sample.spotter;
  spot.LotwMark = " ";
  spot.Comment = sample.comment;
  spot.SpotTime = sample.time;
  const spots::RowShape shape;
  std::string text;
  const std::size_t comment = spots::ClassicRow(spot, spots::ArPcScreenSetup(shape), {}, text);
  return {text, spots::TableRow::Kind::Other, sample.band,
          spots::RowSpotOf(spot, spots::Packed(shape), comment)};
}

}  // namespace

SpotSample::SpotSample(const SpotLook& look, const core::Settings& settings, Frames& frames,
                       LiveTheme& theme, QWidget* parent)
    : QWidget(parent), look_(look), settings_(settings), theme_(theme) {
  for (const SampleSpot& each : kSpots) rows_.push_back(RowOf(each));
  const SpotPainter usual({}, kUsualPixels);
  setFixedHeight(static_cast<int>(rows_.size()) * usual.RowHeight() + 2 * kMargin);
  setAccessibleName(tr("Sample of spots in this font"));
  const auto repaint = [this](const auto&) { update(); };
  BindProperty<int>(this, look_.size, frames, repaint);
  BindProperty<program::SpotFont>(this, look_.font, frames, repaint);
  BindProperty<program::ColourValues>(this, look_.colours, frames, repaint);
  BindProperty<Theme>(this, theme_, frames, repaint);
}

void SpotSample::paintEvent(QPaintEvent*) {
  const SpotColours colours = ColoursOf(settings_, theme_.Get());
  SpotPainter drawn(look_.font.Get(), look_.size.Get());
  QPainter painter(this);
  painter.fillRect(rect(), colours.ground);
  for (int row = 0; row < static_cast<int>(rows_.size()); ++row)
    drawn.Draw(painter,
               {.row = rows_[static_cast<std::size_t>(row)],
                .top = kMargin + row * drawn.RowHeight(),
                .width = width(),
                .scrolled = 0,
                .selected = row == kChosen,
                .spotsBehind = 0},
               colours);
}

}  // namespace ui
