#pragma once

#include <QWidget>
#include <vector>

#include "spots/display_choice.h"
#include "spots/spot_table.h"
#include "ui/spot_colours.h"
#include "ui/spot_painter.h"

namespace ui {

class SpotHead;

// The heads of the columns, over the rows: buttons that sort, each over its column, and the heads
// of columns that nothing is sorted by. The keys reach them as one place: Left and Right go from
// head to head. The middle button of the mouse, and Shift with Return, show the rows from their
// end; the right one, and Ctrl with Return, leave no spotter out of the order by addresses.
class SpotHeads : public QWidget {
 public:
  static constexpr int kHeight = 27;

  // All outlive it.
  SpotHeads(spots::SpotTable& table, spots::DisplayChoice& display, const SpotPainter& painter,
            const SpotColours& colours, QWidget* parent);

  // Each goes over its column, the rows having moved to the left by `scrolled`.
  void Place(int scrolled);
  // The order, or how it is to be drawn, has changed.
  void Renew();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  friend class SpotHead;

  void MakeHeads();
  // In pixels, for its caption: up to the next one.
  int RoomOf(const spots::SortButton& button) const;
  void Press(int button, spots::SpotTable::Press press);
  void Go(const SpotHead* from, int steps);
  // The one head that the Tab key reaches, from the rows.
  void LetTabReach(SpotHead* head);

  spots::SpotTable& table_;
  spots::DisplayChoice& display_;
  const SpotPainter& painter_;
  const SpotColours& colours_;
  std::vector<SpotHead*> heads_;  // from left to right
  int scrolled_ = 0;
  std::vector<platform::Registration> following_;
};

}  // namespace ui
