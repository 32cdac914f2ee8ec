#pragma once

#include <QTreeView>

namespace ui {

// The room of a table: as much of it as whole rows take is the table's.
class WholeRows : public QWidget {
 public:
  // Takes the table over.
  WholeRows(QTreeView* table, QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Fit();

  QTreeView* table_;
};

}  // namespace ui
