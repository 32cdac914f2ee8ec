#include "ui/whole_rows.h"

#include <QEvent>
#include <QHeaderView>
#include <algorithm>

namespace ui {

WholeRows::WholeRows(QTreeView* table, QWidget* parent) : QWidget(parent), table_(table) {
  table_->setParent(this);
  setMinimumSize(table_->minimumSizeHint());
}

// The height of a row follows the font and the scale, which are settled when it is laid out.
bool WholeRows::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) Fit();
  return handled;
}

void WholeRows::Fit() {
  const int row = table_->sizeHintForRow(0);
  const int besides = 2 * table_->frameWidth() + table_->header()->sizeHint().height();
  const int rows = row > 0 ? std::max((height() - besides) / row, 1) : 0;
  table_->setGeometry(0, 0, width(), rows > 0 ? besides + rows * row : height());
}

}  // namespace ui
