#include "ui/find_bar.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>

namespace ui {
namespace {

constexpr int kTextWidth = 200;
constexpr int kFromEdge = 4;

}  // namespace

FindBar::FindBar(QWidget* view, Searchable& searched, const QString& name)
    : QFrame(view),
      view_(view),
      text_(new FindField(
          searched, [this](bool found) { Tell(found); }, this)),
      nowhere_(new QLabel(tr("not found"), this)) {
  setObjectName(QStringLiteral("FindBar"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 4, 8, 4);
  row->setSpacing(4);
  row->addWidget(text_);
  row->addWidget(nowhere_);
  row->addWidget(
      MakeButton(tr("Previous"), tr("Find previous in %1").arg(name), &FindBar::FindPrevious));
  row->addWidget(MakeButton(tr("Next"), tr("Find next in %1").arg(name), &FindBar::FindNext));
  row->addWidget(MakeButton(tr("Close"), tr("Close finding in %1").arg(name), &FindBar::Close));
  text_->setFixedWidth(kTextWidth);
  text_->setPlaceholderText(tr("Find"));
  text_->setAccessibleName(tr("Find in %1").arg(name));
  nowhere_->setProperty("bad", true);
  nowhere_->hide();
  view_->installEventFilter(this);
  hide();
}

QPushButton* FindBar::MakeButton(const QString& caption, const QString& name,
                                 void (FindBar::*act)()) {
  auto* button = new QPushButton(caption, this);
  button->setAccessibleName(name);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, act);
  return button;
}

void FindBar::Open() {
  show();
  Place();
  raise();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void FindBar::Close() {
  const bool hadFocus = isAncestorOf(focusWidget());
  hide();
  nowhere_->hide();
  if (hadFocus) view_->setFocus(Qt::OtherFocusReason);
}

bool FindBar::event(QEvent* event) {
  // Escape is the window's way back to the spots, but closes this first.
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    return true;
  }
  return QFrame::event(event);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    Close();
    return;
  }
  // Paging goes to the view below; the rest would move its cursor.
  const bool pages = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
  event->setAccepted(!pages);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view_ && event->type() == QEvent::Resize && isVisible()) Place();
  return QFrame::eventFilter(watched, event);
}

void FindBar::Tell(bool found) {
  if (nowhere_->isHidden() == found) return;
  nowhere_->setVisible(!found);
  Place();
  QAccessibleEvent alert(nowhere_, QAccessible::Alert);
  if (!found) QAccessible::updateAccessibility(&alert);
}

void FindBar::Place() {
  adjustSize();
  int right = view_->width() - kFromEdge;
  if (const auto* area = qobject_cast<QAbstractScrollArea*>(view_))
    right -= area->verticalScrollBar()->isVisible() ? area->verticalScrollBar()->width() : 0;
  move(std::max(right - width(), 0), kFromEdge);
}

}  // namespace ui
