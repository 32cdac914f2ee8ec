#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QPlainTextEdit>
#include <QStringList>
#include <QWidget>
#include <ostream>

// How a failing test prints them.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QColor& colour, std::ostream* out) {
  *out << colour.name().toStdString();
}

namespace gui {

// Whether a widget goes by that name. What it shows may stand behind it: "Node: N0DE-1".
inline bool GoesBy(const QWidget& widget, const QString& name) {
  return widget.accessibleName() == name || widget.accessibleName().startsWith(name + ": ");
}

// The widget of that kind and name, found as a screen reader finds it. A test fails without one.
template <class Widget = QWidget>
Widget* Named(const QWidget& window, const char* name) {
  for (Widget* each : window.findChildren<Widget*>())
    if (GoesBy(*each, QString::fromUtf8(name))) return each;
  ADD_FAILURE() << "no widget is named \"" << name << "\"";
  return nullptr;
}

// The lines that a text view holds, without any change to their characters.
QStringList LinesOf(const QPlainTextEdit& view);
// The line at the top of what is in sight.
QString TopLine(const QPlainTextEdit& view);
bool IsAtEnd(const QPlainTextEdit& view);
// The colour in the middle of a widget.
QColor MiddleOf(QWidget& widget);

}  // namespace gui
