#pragma once

#include "core/controls.h"
#include "program/colour_table.h"
#include "program/spot_font.h"

namespace ui {

// What the user has chosen of how the table of spots looks. It may change at any time.
struct SpotLook {
  core::Property<int>& size;  // of the text, in pixels
  core::Property<program::SpotFont>& font;
  core::Property<bool>& heads;  // are on show
  core::Property<program::ColourValues>& colours;
};

}  // namespace ui
