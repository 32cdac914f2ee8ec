#include "ui/whole_rows.h"

#include <QEvent>
#include <algorithm>

namespace ui {

WholeRows::WholeRows(QTreeView* table, QWidget* parent) : QWidget(parent), table_(table) {
  table_->setParent(this);
  table_->viewport()->installEventFilter(this);
  setMinimumSize(table_->minimumSizeHint());
  const auto fit = [this] { Fit(); };
  connect(table_->model(), &QAbstractItemModel::rowsInserted, this, fit);
  connect(table_->model(), &QAbstractItemModel::modelReset, this, fit);
}

void WholeRows::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Fit();
}

// The heading above the rows has its height only once it has been laid out.
bool WholeRows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Fit();
  return QWidget::eventFilter(watched, event);
}

void WholeRows::Fit() {
  const int row = table_->sizeHintForRow(0);
  const int besides = table_->height() - table_->viewport()->height();
  const int rows = row > 0 ? std::max((height() - besides) / row, 1) : 0;
  table_->setGeometry(0, 0, width(), rows > 0 ? besides + rows * row : height());
}

}  // namespace ui
