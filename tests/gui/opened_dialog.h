#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QStringList>
#include <map>

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

  // How often each name is there.
  static std::map<QString, int> NamesIn(const QDialog& dialog) {
    std::map<QString, int> names;
    for (const QWidget* each : dialog.findChildren<QWidget*>())
      if (each->isVisible() && each->focusPolicy() != Qt::NoFocus) ++names[each->accessibleName()];
    return names;
  }

  // The names in the order in which the Tab key goes from one to the next, from the first on.
  static QStringList TabOrder(QDialog& dialog) {
    QStringList names;
    for (QWidget* each = dialog.nextInFocusChain(); each != &dialog;
         each = each->nextInFocusChain())
      if (dialog.isAncestorOf(each) && CanBeReached(*each)) names << each->accessibleName();
    return names;
  }

  // How often each letter is a mnemonic.
  static std::map<QString, int> Mnemonics(const QDialog& dialog) {
    std::map<QString, int> letters;
    const auto add = [&](const QString& text) {
      const QKeySequence key = QKeySequence::mnemonic(text);
      if (!key.isEmpty()) ++letters[key.toString()];
    };
    for (const QLabel* each : dialog.findChildren<QLabel*>())
      if (each->buddy() != nullptr) add(each->text());
    for (const QAbstractButton* each : dialog.findChildren<QAbstractButton*>()) add(each->text());
    return letters;
  }

  static void ExpectOneOfEach(const std::map<QString, int>& counted) {
    for (const auto& [name, count] : counted)
      EXPECT_TRUE(count == 1 && !name.trimmed().isEmpty()) << '"' << name.toStdString() << '"';
  }
};

}  // namespace gui
