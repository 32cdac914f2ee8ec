#pragma once

#include <QListWidget>
#include <array>
#include <vector>

#include "core/settings.h"
#include "spots/band_rail.h"
#include "spots/bands.h"
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
  void paintEvent(QPaintEvent* event) override;

 private:
  class Painter;
  class Band;

  void Watch(Frames& frames);
  void ShowCounts();
  QRect FirstRow() const;

  spots::BandRail& model_;
  LiveTheme& theme_;
  QRegion painted_;  // with this event
  std::shared_ptr<Frames::Item> item_;
  std::array<bool, spots::kBands.size()> changed_{};  // since it was last asked to be painted
  std::vector<platform::Registration> watching_;
};

}  // namespace ui
