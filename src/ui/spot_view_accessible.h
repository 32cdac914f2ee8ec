#pragma once

namespace ui {

// Lets a screen reader go through the rows of every table of spots: call it once before the first
// of them is made. Further calls do nothing.
void MakeSpotViewsAccessible();

}  // namespace ui
