#pragma once

#include <QFrame>
#include <QPushButton>
#include <functional>

namespace ui {

// A button for a panel, with an arrow behind its caption. To a screen reader the panel is a part of
// the button while it is dropped: windows that pop up stand nowhere in its tree by themselves.
class DropButton : public QPushButton {
 public:
  DropButton(const QString& caption, const QString& name, QWidget* parent);
};

// A panel of controls that a button drops, and that goes with Escape or with a press beside it.
class DropPanel : public QFrame {
 public:
  // The panel goes under the button, and speaks as `name`. F1 in it closes it, then asks for
  // `help`.
  DropPanel(DropButton* button, const QString& name, std::function<void()> help);

 private:
  void Drop(const QPushButton* button);
};

}  // namespace ui
