#pragma once

#include <QFormLayout>
#include <QLineEdit>

#include "core/controls.h"
#include "ui/frames.h"

namespace ui {

// What dialogs are laid out of: fields right of their labels, the buttons at the foot.

// Adds a labelled field; the label's mnemonic leads to it, and its words are its spoken name.
QLineEdit* AddField(QFormLayout* form, const QString& label, core::TextBox& model, Frames& frames);

// Adds the line that says what is to be put right; spoken when it changes.
void AddProblem(QFormLayout* form, core::Label& model, Frames& frames);

// Adds the buttons in their order, at the right; Return presses the first.
void AddButtons(QFormLayout* form, std::initializer_list<core::Button*> models, Frames& frames);

// The layout of a dialog, with the spacing of all.
QFormLayout* MakeForm(QWidget* dialog);

}  // namespace ui
