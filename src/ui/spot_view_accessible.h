#pragma once

namespace ui {

// Lets a screen reader go through the rows of every table of spots that is made from now on.
// Further calls do nothing.
void MakeSpotViewsAccessible();

}  // namespace ui
