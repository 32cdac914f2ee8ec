#pragma once

#include <QListWidget>
#include <vector>

#include "core/settings.h"
#include "spots/band_rail.h"
#include "ui/frames.h"
#include "ui/theme.h"

namespace ui {

// The bands beside the table: the colour, the label, how many spots have not been seen, and how
// many there were.
class BandRailView : public QListWidget {
 public:
  // All four outlive it.
  BandRailView(spots::BandRail& model, const core::Settings& settings, Frames& frames,
               LiveTheme& theme, QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  class Painter;

  void Watch(Frames& frames);
  void ShowCounts();

  spots::BandRail& model_;
  std::shared_ptr<Frames::Item> item_;
  std::vector<platform::Registration> watching_;
};

}  // namespace ui
