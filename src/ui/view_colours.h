#pragma once

#include <optional>

#include "program/colour_table.h"
#include "ui/frames.h"
#include "ui/text_page_view.h"
#include "ui/theme.h"

namespace ui {

// What a page of text is drawn in; nothing if the theme says so. `text` is the key of its text
// where that has one.
std::optional<TextPageView::Colours> ColoursOf(const program::ColourValues& values,
                                               program::ColourKey ground,
                                               std::optional<program::ColourKey> text,
                                               const Theme& theme);

// Keeps a page of text in the colours that the user has chosen for it. All outlive the view.
void BindColours(TextPageView* view, core::Property<program::ColourValues>& values,
                 program::ColourKey ground, std::optional<program::ColourKey> text, Frames& frames,
                 LiveTheme& theme);

}  // namespace ui
