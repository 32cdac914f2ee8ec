#pragma once

#include <QFont>
#include <QStringList>

#include "program/spot_font.h"

namespace ui {

inline constexpr int kUsualPixels = 13;
inline constexpr int kClockPixels = 17;  // of the largest figures in the window

// The interface's font, in its usual size.
QFont InterfaceFont();
// The font of tables and of what a node sends: of fixed width.
QFont FixedFont(int pixels = kUsualPixels);
// That of the table of spots, as the user has chosen it. A family that this system lacks, or whose
// letters differ in width, is not taken.
QFont FixedFont(const program::SpotFont& font, int pixels);

// The families of fixed width that Latin letters can be written with.
QStringList FixedFamilies();

}  // namespace ui
