#pragma once

#include <QFrame>
#include <QPushButton>

namespace ui {

// A panel of controls that a button drops, and that goes with Escape or with a press beside it.
class DropPanel : public QFrame {
 public:
  // The panel goes under the button, and speaks as `name`.
  DropPanel(QPushButton* button, const QString& name);

 private:
  void Drop(const QPushButton* button);
};

}  // namespace ui
