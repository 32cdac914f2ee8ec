#pragma once

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/controls.h"
#include "ui/frames.h"

namespace ui {

// What dialogs are laid out of: fields right of their labels, the buttons at the foot.

// Adds a labelled field; the label's mnemonic leads to it, and its words are its spoken name.
QLineEdit* AddField(QFormLayout* form, const QString& label, core::TextBox& model, Frames& frames);

// Ties the label to the box, and has both speak as `name`: for a screen reader the name of a combo
// box is what is chosen in it, and its label tells what that is.
void NameByLabel(QComboBox* box, QLabel* label, const QString& name);

// Adds the line that says what is to be put right; spoken when it changes.
void AddProblem(QFormLayout* form, core::Label& model, Frames& frames);

// Adds the buttons in their order, at the right, each with the letter of its key; Return presses
// the first.
struct KeyedButton {
  core::Button& model;
  const char* mnemonic;
};
void AddButtons(QFormLayout* form, std::initializer_list<KeyedButton> buttons, Frames& frames);

// Adds a button that Return does not press; `mnemonic` is a letter of its caption.
QPushButton* AddButton(QBoxLayout* row, const QString& name, const QString& mnemonic,
                       core::Button& model, Frames& frames);

// Makes it the one that Return presses, and shows that; or no longer.
void MakePrimary(QPushButton* button, bool primary = true);

// Adds a line that is there only while it says something; spoken when it changes.
QLabel* AddNotice(QBoxLayout* column, const QString& name, core::Label& model, Frames& frames);

// Adds the foot of a dialog in which every act holds at once: a button that closes it, at the
// right. Return does not press it. `mnemonic` is a letter of "Close".
QHBoxLayout* AddCloseButton(QFormLayout* form, QDialog* dialog, const QString& mnemonic);
QHBoxLayout* AddCloseButton(QBoxLayout* column, QDialog* dialog, const QString& mnemonic);

// Has a dialog that is laid out come up that wide, or as wide as its controls need at this scale. A
// least width of its own would be in force in place of what its controls need.
void SetUsualWidth(QDialog* dialog, int width);

// The layout of a dialog, with the spacing of all.
QFormLayout* MakeForm(QWidget* dialog);

}  // namespace ui
