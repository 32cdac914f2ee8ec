#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "ui/find_field.h"

namespace ui {

// Finds text in a view. It lies over the view's upper right corner, so that nothing moves.
class FindBar : public QFrame {
 public:
  // `view` shows `searched`; `name` is the view's for the ear.
  FindBar(QWidget* view, Searchable& searched, const QString& name);

  // Shows itself, with what is there ready to be typed over.
  void Open();
  // Goes, and gives the focus to the view.
  void Close();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPushButton* MakeButton(const QString& caption, const QString& name, void (FindBar::*act)());
  void FindNext() { text_->Find(Searchable::Way::Next); }
  void FindPrevious() { text_->Find(Searchable::Way::Previous); }
  void Tell(bool found);
  void Place();

  QWidget* view_;
  FindField* text_;
  QLabel* nowhere_;
};

}  // namespace ui
