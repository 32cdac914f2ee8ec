#pragma once

#include <QDialog>

#include "program/offset_form.h"
#include "ui/frames.h"

namespace ui {

// Asks how local time stands to GMT. Shows itself while its model is open, and holds nothing up.
class OffsetDialog : public QDialog {
 public:
  OffsetDialog(program::OffsetForm& model, Frames& frames, QWidget* parent);
};

}  // namespace ui
