#pragma once

#include <QTabBar>

#include "program/views.h"
#include "ui/frames.h"

namespace ui {

// The tabs. What they say and which one is on show is their model's.
class ViewTabs : public QTabBar {
 public:
  ViewTabs(program::Views& model, Frames& frames, QWidget* parent);

 private:
  void AddOne(core::Label& model, Frames& frames);

  platform::Registration following_;
};

}  // namespace ui
