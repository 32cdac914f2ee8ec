#pragma once

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QWidget>
#include <vector>

namespace ui {

// A row of controls that stays one line high: the buttons that have no room stand in a menu of the
// button "More" at its end.
class FoldRow : public QWidget {
  Q_OBJECT

 public:
  explicit FoldRow(QWidget* parent);

  // Where the controls go that always stand in the row.
  QHBoxLayout* Controls() { return controls_; }
  // Adds a button behind them. The last of them fold first.
  void AddFolding(QPushButton* button);

  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Fold();
  void OpenMenu();

  QHBoxLayout* row_;
  QHBoxLayout* controls_;
  QPushButton* more_;
  QMenu* menu_;
  std::vector<QPushButton*> folding_;
};

}  // namespace ui
