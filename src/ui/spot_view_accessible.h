#pragma once

namespace ui {

// Lets a screen reader go through the rows of every table of spots, from the first on: to be called
// before one says its name. Further calls do nothing.
void MakeSpotViewsAccessible();

}  // namespace ui
