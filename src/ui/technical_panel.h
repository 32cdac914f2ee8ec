#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "program/program.h"
#include "ui/frames.h"

namespace ui {

// The figures of the link since the program was started, and the switch for debugging. Only those
// figures stand there that have something to say.
class TechnicalPanel : public QWidget {
 public:
  TechnicalPanel(program::Program& program, Frames& frames, QWidget* parent);

 private:
  // A model that says what it counts, and one that is a bare figure.
  void Add(const QString& name, core::Label& model, Frames& frames);
  void AddFigure(const QString& name, core::Label& model, Frames& frames);
  void AddDebugging(core::Check& model, Frames& frames);

  QVBoxLayout* column_;
};

}  // namespace ui
