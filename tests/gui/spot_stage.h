#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <string>
#include <vector>

#include "gui/by_name.h"
#include "platform/sim/world.h"
#include "spots/band_numbers.h"
#include "spots/classic_row.h"
#include "spots/expanded_row.h"
#include "ui/spot_view.h"

namespace gui {

using namespace std::chrono_literals;
using platform::Milliseconds;
using spots::TableRow;

// The table of spots by itself, on the simulated world.
class SpotStage : public testing::Test {
 protected:
  void SetUp() override {
    table.EnterTab();
    view.resize(800, 300);
    view.show();
    QApplication::setActiveWindow(&view);
    Run(200ms);
  }

  void Run(Milliseconds time = 200ms) {
    QApplication::processEvents();
    world.Run(time);
    QApplication::processEvents();
  }
  // Calls count up: K1AAA, K2AAA, ...
  static std::string Call(int number) { return "K" + std::to_string(number) + "AAA"; }
  static spots::Spot UsualSpot(const std::string& call) {
    spots::Spot spot;
    spot.Freq = 14025;
    spot.DxCall = call;
    spot.Spotter = "W1TST";
    spot.LotwMark = " ";
    spot.Comment = "CW up 2";
    spot.SpotDate = "20-Nov-2026";
    spot.SpotTime = "2116";
    return spot;
  }
  static TableRow RowOf(const spots::Spot& spot, int band = k20m,
                        const spots::RowShape& shape = {}) {
    const spots::RowLayout layout = spots::ArPcScreenSetup(shape);
    std::string text;
    std::size_t commentField = 0;
    if (layout.IsExpanded())
      spots::ExpandedRow(spot, layout, {}, text);
    else
      commentField = spots::ClassicRow(spot, layout, {}, text);
    return {text, TableRow::Kind::Other, band,
            spots::RowSpotOf(spot, spots::Packed(shape), commentField)};
  }
  static TableRow Row(const std::string& call, int band = k20m) {
    return RowOf(UsualSpot(call), band);
  }
  static TableRow Stars() {
    return {spots::Stars(79), TableRow::Kind::Stars, 0, {.minute = 21 * 60 + 46}};
  }
  void Add(int count) {
    for (; count > 0; --count) pane.Append(Row(Call(++last)));
  }
  void Redraw(int from, int to) {
    std::deque<TableRow> rows;
    for (int number = from; number <= to; ++number) rows.push_back(Row(Call(number)));
    pane.Redraw(rows);
  }
  QScrollBar& Bar() { return *view.verticalScrollBar(); }
  bool AtEnd() { return Bar().value() == Bar().maximum(); }
  void ScrollToRow(int row) {
    Bar().setValue(row * RowHeight());
    Run();
  }
  int RowHeight() { return view.PlaceOf(1).top() - view.PlaceOf(0).top(); }
  std::string CallAt(ui::SpotView::Number row) {
    return std::string(view.Rows().Row(row).DxCall());
  }
  std::string CallUnder(QPoint place) {
    const auto row = view.RowAt(place);
    return row ? CallAt(*row) : "";
  }
  std::string TopCall() { return CallUnder({100, 1}); }
  std::string Current() { return view.Current() ? CallAt(*view.Current()) : ""; }
  std::vector<std::string> Chosen() {
    std::vector<std::string> calls;
    for (auto row = view.Rows().First(); row < view.Rows().End(); ++row)
      if (view.IsChosen(row)) calls.push_back(CallAt(row));
    return calls;
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&view, key, modifiers);
  }
  QPushButton& Below() { return *view.findChild<QPushButton*>(); }
  QImage Picture() { return view.viewport()->grab().toImage(); }
  QAccessibleInterface& Accessible() { return *QAccessible::queryAccessibleInterface(&view); }

  // Puts rows into the table itself, as a spot of the pipeline comes there.
  void Spot(const std::string& call, double kHz, const std::string& time = "2116") {
    spots::Spot spot = UsualSpot(call);
    spot.Freq = kHz;
    spot.SpotTime = time;
    table.Add(RowOf(spot));
  }
  std::vector<std::string> Calls() {
    std::vector<std::string> calls;
    for (auto row = view.Rows().First(); row < view.Rows().End(); ++row)
      calls.push_back(CallAt(row));
    return calls;
  }
  // Lets what waits go into the sorted view, and shows it.
  void Tick() {
    table.RunDxQue();
    Run();
  }
  QAbstractButton& Head(const char* name) { return *Named<QAbstractButton>(view, name); }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  ui::Frames frames{world.scheduler};
  core::Settings settings;
  spots::SpotTable table{calendar, settings};
  spots::DxPane& pane = table.RtbDx;
  spots::DisplayChoice display{
      settings, {.nodeAddsWords = [] { return false; }, .send = [](auto) {}, .tell = [](auto) {}}};
  core::Label empty;
  core::Property<int> size{13};
  core::Property<program::SpotFont> font;
  core::Property<bool> title{true};
  core::Property<program::ColourValues> values{program::ValuesOf(settings)};
  std::vector<spots::Click> clicks;
  spots::ClickKeys clickChoice;
  const ui::Theme theme{ui::Theme::Kind::Light};
  ui::LiveTheme liveTheme{theme};
  ui::SpotView view{{.table = table,
                     .display = display,
                     .empty = empty,
                     .look = {.size = size, .font = font, .heads = title, .colours = values},
                     .settings = settings,
                     .click = [this](const spots::Click& click) { clicks.push_back(click); },
                     .clickChoice = [this] { return clickChoice; }},
                    frames,
                    liveTheme,
                    nullptr};
  int last = 0;
};

}  // namespace gui
