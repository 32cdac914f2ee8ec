#pragma once

#include <QFrame>
#include <QPushButton>

namespace ui {

// A button for a panel. To a screen reader the panel is a part of the button while it is dropped:
// windows that pop up stand nowhere in its tree by themselves.
class DropButton : public QPushButton {
 public:
  DropButton(const QString& caption, const QString& name, QWidget* parent);
};

// A panel of controls that a button drops, and that goes with Escape or with a press beside it.
class DropPanel : public QFrame {
 public:
  // The panel goes under the button, and speaks as `name`.
  DropPanel(DropButton* button, const QString& name);

 private:
  void Drop(const QPushButton* button);
};

}  // namespace ui
