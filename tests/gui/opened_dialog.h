#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QStringList>

#include "gui/desk.h"

namespace gui {

// A dialog that is opened from a page of the window, and what a user without a mouse finds in it.
class OpenedDialog : public Desk {
 protected:
  // Presses the button and gives the dialog with that title. A test fails without one.
  QDialog& Opened(const char* button, const QString& title) {
    Button(button).click();
    Run(200ms);
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->windowTitle() == title && each->isVisible()) return *each;
    ADD_FAILURE() << "no dialog " << title.toStdString();
    static QDialog none;
    return none;
  }

  void Click(QDialog& dialog, const char* button) {
    Named<QAbstractButton>(dialog, button)->click();
    Run(200ms);
  }

  static bool CanBeReached(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
  }

  // The names in the order in which the Tab key goes from one to the next, from the first on.
  static QStringList TabOrder(QDialog& dialog) {
    QStringList names;
    for (QWidget* each = dialog.nextInFocusChain(); each != &dialog;
         each = each->nextInFocusChain())
      if (dialog.isAncestorOf(each) && CanBeReached(*each)) names << each->accessibleName();
    return names;
  }
};

}  // namespace gui
