#pragma once

#include <QDialog>

#include "program/message_form.h"
#include "ui/frames.h"

namespace ui {

// frmMsg. Shows itself while its model is open. It holds nothing up, and what the user types goes
// on going where it went.
class MessageDialog : public QDialog {
 public:
  MessageDialog(program::MessageForm& model, Frames& frames, QWidget* parent);
};

}  // namespace ui
