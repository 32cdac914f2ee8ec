#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <vector>

// What a user without eyes or without a mouse finds in a window: its controls as the accessibility
// tree tells them to a screen reader, the way of the Tab key, the keys of the captions.
namespace gui {

// What is on show of it, from the top, each before its children.
void Walk(QAccessibleInterface* from, const std::function<void(QAccessibleInterface&)>& visit);

struct Control {
  QWidget* widget;
  QString name;
  QAccessible::Role role;
};

// The controls on show that do something or can be gone to; those that can't be used now too.
std::vector<Control> ControlsIn(QWidget& window);

// Its role says what can be done with it.
bool RoleFits(const Control& control);
// A word at least: no sign, and no letter alone.
bool IsWord(const QString& name);

// Where the Tab key stops, by pressing it until it comes round, from the first place on.
std::vector<QWidget*> TabRound(QWidget& window);

// By the eye: to the right in a row, down to the next, and up only where a column begins.
bool ComesBefore(const QWidget& one, const QWidget& other);

// Whether the Tab key, or an arrow within a group of which Tab stops at one, leads there.
bool IsReached(const QWidget& widget, const std::vector<QWidget*>& round);

// The places that each letter leads to, pressed with Alt.
std::map<QString, QStringList> KeysIn(const QWidget& window);

// The letter leads to it, or to another choice of its group.
bool HasKey(const QWidget& widget);

// The label that is tied to a field; null without one.
const QWidget* LabelOf(QWidget& field);

}  // namespace gui
