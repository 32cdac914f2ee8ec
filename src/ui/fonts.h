#pragma once

#include <QFont>

namespace ui {

inline constexpr int kUsualPixels = 13;

// The interface's font, in its usual size.
QFont InterfaceFont();
// The font of tables and of what a node sends: of fixed width.
QFont FixedFont(int pixels = kUsualPixels);

}  // namespace ui
