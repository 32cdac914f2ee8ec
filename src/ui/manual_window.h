#pragma once

#include <QDialog>
#include <QTextBrowser>

namespace ui {

// The manual, which the program carries with it. Opened without holding anything up.
class ManualWindow : public QDialog {
 public:
  explicit ManualWindow(QWidget* parent);

  // Opens it at a page of docs/manual, by its name without the ending. What stands behind a "#" is
  // a heading of the page, which comes to the top.
  void Open(const QString& page);

 private:
  void GoTo(const QString& heading);

  QTextBrowser* text_ = nullptr;
};

}  // namespace ui
