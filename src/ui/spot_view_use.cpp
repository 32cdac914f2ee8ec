#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "spots/row_layout.h"
#include "ui/one_line.h"
#include "ui/spot_view.h"

// What the user does in the table.
namespace ui {
namespace {

bool IsReturn(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace

void SpotView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Copy();
  if (IsReturn(event->key()) && current_) return PressCall(*current_, event->modifiers());
  const bool choosing = event->modifiers().testFlag(Qt::ShiftModifier);
  const Number last = rows_.End() - 1;
  const Number from = current_.value_or(FirstInSight());
  switch (event->key()) {
    case Qt::Key_Up:
      return Go(current_ ? from - 1 : std::min(from + RowsInSight() - 1, last), choosing);
    case Qt::Key_Down:
      return Go(current_ ? from + 1 : from, choosing);
    case Qt::Key_PageUp:
      return Go(from - RowsInSight(), choosing);
    case Qt::Key_PageDown:
      return Go(from + RowsInSight(), choosing);
    case Qt::Key_Home:
      return Go(rows_.First(), choosing);
    case Qt::Key_End:
      return Go(last, choosing);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void SpotView::Go(Number to, bool choosing) {
  if (rows_.Rows().empty()) return;
  const Number row = std::clamp(to, rows_.First(), rows_.End() - 1);
  Choose(row, choosing);
  BringInSight(row);
}

void SpotView::Choose(Number row, bool extending) {
  if (!extending || !current_) anchor_ = row;
  current_ = row;
  viewport()->update();
  QAccessibleEvent focus(this, QAccessible::Focus);
  focus.setChild(static_cast<int>(row - rows_.First()));
  QAccessible::updateAccessibility(&focus);
}

bool SpotView::IsChosen(Number row) const {
  return current_ && row >= std::min(anchor_, *current_) && row <= std::max(anchor_, *current_);
}

void SpotView::BringInSight(Number row) {
  const QRect place = PlaceOf(row);
  QScrollBar* bar = verticalScrollBar();
  if (place.top() < 0) bar->setValue(bar->value() + place.top());
  const int below = place.bottom() + 1 - viewport()->height();
  if (below > 0) bar->setValue(WholeRows(bar->value() + below));
}

QString SpotView::Shown(Number row) const { return OneLine(rows_.Row(row).Text(), kLongestShown); }

void SpotView::Copy() const {
  QStringList lines;
  for (Number row = rows_.First(); row < rows_.End(); ++row)
    if (IsChosen(row) && !rows_.Row(row).IsStars()) lines << Shown(row);
  if (!lines.isEmpty()) QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void SpotView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const auto row = RowAt(event->position().toPoint());
  if (!row) return;
  const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
  pressed_ = {.row = *row, .column = ColumnAt(event->position().toPoint()), .chooses = extends};
  Choose(*row, extends);
}

void SpotView::mouseMoveEvent(QMouseEvent* event) {
  const auto row = RowAt(event->position().toPoint());
  if (!pressed_ || !row || *row == current_) return;
  pressed_->chooses = true;
  Choose(*row, true);
}

void SpotView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) return;
  const bool clicks = !pressed_->chooses && RowAt(event->position().toPoint()) == pressed_->row;
  if (clicks) Do(ClickAt(pressed_->row, pressed_->column, event->modifiers()));
  Release();
}

void SpotView::Release() {
  pressed_.reset();
  item_->Changed();
}

int SpotView::ColumnAt(QPoint place) const {
  return painter_.ColumnOf(place.x() + horizontalScrollBar()->value());
}

spots::Click SpotView::ClickAt(Number row, int column, Qt::KeyboardModifiers keys) const {
  spots::ClickKeys click = model_.clickChoice ? model_.clickChoice() : spots::ClickKeys();
  click.ctrl = keys.testFlag(Qt::ControlModifier);
  click.alt = keys.testFlag(Qt::AltModifier);
  return spots::ClickOn(rows_.Row(row), column, click);
}

void SpotView::PressCall(Number row, Qt::KeyboardModifiers keys) {
  const spots::RowLayout layout = spots::ArPcScreenSetup(rows_.Row(row).Shape());
  Do(ClickAt(row, layout.Start(spots::Column::DxCall), keys));
}

void SpotView::Do(const spots::Click& click) {
  if (!click.call.empty()) QApplication::clipboard()->setText(OneLine(click.call, kLongestShown));
  if (click.act != spots::Click::Act::None && model_.click) model_.click(click);
}

// Only where a click does something.
bool SpotView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  const QPoint place = static_cast<QHelpEvent*>(event)->pos();
  const auto row = RowAt(place);
  if (row && ClickAt(*row, ColumnAt(place), {}).act != spots::Click::Act::None)
    return QAbstractScrollArea::viewportEvent(event);
  QToolTip::hideText();
  return true;
}

bool SpotView::Find(const QString& text, Way way) {
  const auto count = static_cast<Number>(rows_.Rows().size());
  const Number step = way == Way::Previous ? -1 : 1;
  const Number from = current_.value_or(FirstInSight()) - rows_.First();
  const Number start = way == Way::Here || !current_ ? from : from + step;
  for (Number tried = 0; tried < count; ++tried) {
    const Number place = ((start + tried * step) % count + count) % count;
    const Number row = rows_.First() + place;
    if (rows_.Row(row).IsStars()) continue;
    if (!Shown(row).contains(text, Qt::CaseInsensitive)) continue;
    Go(row, false);
    return true;
  }
  return false;
}

}  // namespace ui
