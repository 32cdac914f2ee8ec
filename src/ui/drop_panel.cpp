#include "ui/drop_panel.h"

#include <QScreen>
#include <algorithm>

namespace ui {

DropPanel::DropPanel(QPushButton* button, const QString& name) : QFrame(button, Qt::Popup) {
  setObjectName(QStringLiteral("DropPanel"));
  setAccessibleName(name);
  connect(button, &QPushButton::clicked, this, [this, button] { Drop(button); });
}

void DropPanel::Drop(const QPushButton* button) {
  adjustSize();
  const QPoint under = button->mapToGlobal(QPoint(0, button->height() + 2));
  const QRect room = button->screen()->availableGeometry();
  move(std::clamp(under.x(), room.left(), std::max(room.left(), room.right() - width())),
       under.y());
  show();
  if (QWidget* first = nextInFocusChain(); isAncestorOf(first))
    first->setFocus(Qt::PopupFocusReason);
}

}  // namespace ui
