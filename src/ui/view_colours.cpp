#include "ui/view_colours.h"

#include "ui/bind.h"
#include "ui/surface.h"

namespace ui {

using program::ColourKey;
using program::ColourValues;

std::optional<TextPageView::Colours> ColoursOf(const ColourValues& values, ColourKey ground,
                                               std::optional<ColourKey> text, const Theme& theme) {
  const Surface surface(ground, values[ground], theme);
  const bool ownText = text && !program::FollowsTheme(*text, values[*text]);
  if (!surface.IsChosen() && !ownText) return std::nullopt;
  return TextPageView::Colours{
      .ground = surface.Ground(),
      .text = ownText ? theme.Of(*text, values[*text]) : surface[Token::Text],
      .selection = surface[Token::Selection],
      .selectedText = surface[Token::Text],
      .accent = surface[Token::Accent]};
}

void BindColours(TextPageView* view, core::Property<ColourValues>& values, ColourKey ground,
                 std::optional<ColourKey> text, Frames& frames, LiveTheme& theme) {
  const auto show = [view, &values, ground, text, &theme] {
    view->SetColours(ColoursOf(values.Get(), ground, text, theme.Get()));
  };
  BindProperty<ColourValues>(view, values, frames, [show](const auto&) { show(); });
  BindProperty<Theme>(view, theme, frames, [show](const Theme&) { show(); });
}

}  // namespace ui
