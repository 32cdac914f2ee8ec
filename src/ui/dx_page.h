#pragma once

#include <QWidget>

#include "program/program.h"
#include "ui/band_rail_view.h"
#include "ui/find_field.h"
#include "ui/frames.h"
#include "ui/spot_view.h"
#include "ui/theme.h"

namespace ui {

// The page of the spots: the bands, and the table of the one that is chosen. The focus of the page
// is that of the table.
class DxPage : public QWidget {
 public:
  DxPage(program::Program& program, Frames& frames, LiveTheme& theme, QWidget* parent);

  // Puts the user where he can type what he looks for.
  void OpenFind();

 private:
  QWidget* MakeStrip(spots::SpotTable& table, Frames& frames);

  SpotView* spots_;
  FindField* find_;
};

}  // namespace ui
