#pragma once

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <functional>

#include "core/controls.h"
#include "core/list_box.h"
#include "ui/frames.h"

// One function for each kind of widget: it shows a control model and hands the user's acts to it.
// The tie ends with the widget; the model outlives it.
namespace ui {

// A label that has an accessible name says its text behind it: "Node: N0DE-1". What the rules have
// in red, green or blue is in the theme's bad, good or accent; a colour that the user chose is as
// he chose it.
// The letter in the property "mnemonic" of a label with a buddy, of a button and of a box is its
// key, where its caption has that letter.
void BindLabel(QLabel* widget, core::Label& model, Frames& frames);
// The same for a count, in groups of three digits.
void BindCount(QLabel* widget, core::Label& model, Frames& frames);
void BindButton(QAbstractButton* widget, core::Button& model, Frames& frames);
void BindCheck(QCheckBox* widget, core::Check& model, Frames& frames);
// The same for a box whose words are its own, where the model's caption says something else.
void BindTick(QCheckBox* widget, core::Check& model, Frames& frames);
void BindChoice(QComboBox* widget, core::Choice& model, Frames& frames);
// The same for buttons of which one is chosen. Their ids are the places of the options.
void BindOptions(QButtonGroup* widgets, core::Choice& model, Frames& frames);
void BindList(QListWidget* widget, core::ListBox& model, Frames& frames);
void BindTextBox(QLineEdit* widget, core::TextBox& model, Frames& frames);
// A dialog that is on show while the model says so. The user's own closing presses `cancel`.
void BindDialog(QDialog* widget, core::Property<bool>& open, core::Button& cancel, Frames& frames);

// The same for one that holds nothing back: closing it is all there is to do.
void BindDialog(QDialog* widget, core::Property<bool>& open, Frames& frames);

// Runs `show` with the next frame after the property has changed, as long as the owner lives.
template <class T>
void BindProperty(QObject* owner, core::Property<T>& property, Frames& frames,
                  std::function<void(const T&)> show);

namespace detail {

// What a tie keeps, as a child of its widget.
class Tie : public QObject {
 public:
  Tie(QObject* owner, Frames& frames, std::function<void()> show)
      : QObject(owner), item(frames.Add(std::move(show))) {}

  std::shared_ptr<Frames::Item> item;
  platform::Registration observing;
};

}  // namespace detail

template <class T>
void BindProperty(QObject* owner, core::Property<T>& property, Frames& frames,
                  std::function<void(const T&)> show) {
  show(property.Get());
  auto* tie =
      new detail::Tie(owner, frames, [&property, show = std::move(show)] { show(property.Get()); });
  tie->observing = property.Observe([tie](const T&) { tie->item->Changed(); });
}

}  // namespace ui
