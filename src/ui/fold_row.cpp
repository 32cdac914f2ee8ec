#include "ui/fold_row.h"

#include <QEvent>

namespace ui {
namespace {

constexpr int kBetween = 8;

}  // namespace

FoldRow::FoldRow(QWidget* parent)
    : QWidget(parent),
      row_(new QHBoxLayout(this)),
      controls_(new QHBoxLayout),
      more_(new QPushButton(tr("Mor&e"), this)),
      menu_(new QMenu(this)) {
  row_->setContentsMargins(12, 6, 12, 6);
  row_->setSpacing(kBetween);
  row_->setSizeConstraint(QLayout::SetNoConstraint);
  controls_->setSpacing(kBetween);
  row_->addLayout(controls_, 1);
  row_->addWidget(more_);
  more_->setAccessibleName(tr("More of the spots' page"));
  more_->hide();
  connect(more_, &QPushButton::clicked, this, [this] { OpenMenu(); });
}

void FoldRow::AddFolding(QPushButton* button) {
  folding_.push_back(button);
  row_->insertWidget(row_->count() - 1, button);
  setTabOrder(button, more_);
}

QSize FoldRow::minimumSizeHint() const {
  const QMargins margins = row_->contentsMargins();
  const QSize least = controls_->minimumSize();
  return {least.width() + kBetween + more_->sizeHint().width() + margins.left() + margins.right(),
          row_->sizeHint().height()};
}

void FoldRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Fold();
}

bool FoldRow::event(QEvent* event) {
  const bool done = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    Fold();
  }
  return done;
}

void FoldRow::Fold() {
  const QMargins margins = row_->contentsMargins();
  const int room = width() - margins.left() - margins.right() - controls_->minimumSize().width();
  int wanted = 0;
  for (const QPushButton* button : folding_) wanted += button->sizeHint().width() + kBetween;
  const bool all = wanted <= room;
  int free = all ? room : room - more_->sizeHint().width() - kBetween;
  for (QPushButton* button : folding_) {
    free -= button->sizeHint().width() + kBetween;
    button->setVisible(free >= 0);
  }
  more_->setVisible(!all);
}

void FoldRow::OpenMenu() {
  menu_->clear();
  for (QPushButton* button : folding_)
    if (!button->isVisibleTo(this))
      connect(menu_->addAction(button->text()), &QAction::triggered, button, &QPushButton::click);
  menu_->popup(more_->mapToGlobal(QPoint(0, more_->height())));
}

}  // namespace ui
