#pragma once

#include <QDialog>
#include <QTextBrowser>

namespace ui {

// The manual, which the program carries with it. Opened without holding anything up.
class ManualWindow : public QDialog {
 public:
  explicit ManualWindow(QWidget* parent);

  // Opens it at a page of docs/manual, by its name without the ending.
  void Open(const QString& page);

 private:
  QTextBrowser* text_;
};

}  // namespace ui
