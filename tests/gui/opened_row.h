#pragma once

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <functional>
#include <stdexcept>

#include "gui/desk.h"
#include "gui/dialog_table.h"
#include "ui/drop_panel.h"

namespace gui {

// The dialogs of the table, opened one after the other.
class OpenedRow : public Desk {
 protected:
  // Opens it as the user does. A test fails without one.
  QWidget& Opened(const DialogRow& row) {
    QApplication::setActiveWindow(window.get());
    if (row.open != nullptr)
      row.open(*program);
    else if (*row.button != '\0')
      Button(row.button).click();
    else
      Entry(row).trigger();
    Run(200ms);
    for (QWidget* each : window->findChildren<QWidget*>())
      if (each->isVisible() && IsDialog(*each) && NameOf(*each) == row.title) return *each;
    ADD_FAILURE() << "no dialog " << row.title;
    static QDialog none;
    return none;
  }
  static QString NameOf(const QWidget& dialog) {
    return dialog.windowTitle().isEmpty() ? dialog.accessibleName() : dialog.windowTitle();
  }
  QAction& Entry(const DialogRow& row) {
    for (const QAction* menu : window->menuBar()->actions())
      if (menu->text().remove('&') == row.menu)
        for (QAction* each : menu->menu()->actions())
          if (each->text().section('\t', 0, 0).remove('&') == row.entry) return *each;
    throw std::runtime_error(row.entry);
  }
  void Shut(QWidget& dialog) {
    dialog.close();
    Run(200ms);
  }
  // Does it with each dialog, opened and closed again.
  void ForEach(const std::function<void(const DialogRow&, QWidget&)>& check) {
    for (const DialogRow& row : Dialogs()) {
      SCOPED_TRACE(row.title);
      QWidget& dialog = Opened(row);
      check(row, dialog);
      Shut(dialog);
    }
  }

  static bool IsDialog(const QWidget& widget) {
    return qobject_cast<const QDialog*>(&widget) != nullptr ||
           dynamic_cast<const ui::DropPanel*>(&widget) != nullptr;
  }
};

}  // namespace gui
