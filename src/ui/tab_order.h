#pragma once

#include <QWidget>
#include <initializer_list>

namespace ui {

// Has the Tab key go through these parts of a window one after the other. Within each of them it
// goes on as it did.
void OrderParts(QWidget* window, std::initializer_list<const QWidget*> parts);

}  // namespace ui
