#pragma once

#include <QListWidget>

#include "program/colour_form.h"
#include "ui/frames.h"
#include "ui/theme.h"

namespace ui {

// The colours that the user may choose: each with a sample of it, and whether it is his own. Return
// and a double click choose another.
class ColourList : public QListWidget {
 public:
  // All outlive it.
  ColourList(program::ColourForm& model, Frames& frames, LiveTheme& theme, QWidget* parent);

  // What the sample of one of them is drawn in.
  struct Sample {
    QColor ground;
    QColor text;
  };
  static Sample SampleOf(program::ColourKey key, const program::ColourValues& values,
                         const Theme& theme);
  // How well that can be read.
  static double ContrastOf(program::ColourKey key, const program::ColourValues& values,
                           const Theme& theme);

 private:
  class Painter;
  class Entry;

  void Follow(Frames& frames, LiveTheme& theme);

  program::ColourForm& model_;
};

}  // namespace ui
