#pragma once

#include <QWidget>
#include <vector>

#include "spots/table_row.h"
#include "ui/frames.h"
#include "ui/spot_look.h"
#include "ui/theme.h"

namespace ui {

// A few rows of spots, as the table draws them.
class SpotSample : public QWidget {
 public:
  // All outlive it.
  SpotSample(const SpotLook& look, const core::Settings& settings, Frames& frames, LiveTheme& theme,
             QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  SpotLook look_;
  const core::Settings& settings_;
  LiveTheme& theme_;
  std::vector<spots::TableRow> rows_;
};

}  // namespace ui
