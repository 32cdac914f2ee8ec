#include "program/dx_look.h"

#include <algorithm>
#include <utility>

namespace program {

DxLook::DxLook(core::Settings& settings, TextSizes& sizes, std::function<void()> delayedWriteCfg)
    : settings_(settings), sizes_(sizes), delayedWriteCfg_(std::move(delayedWriteCfg)) {
  std::vector<std::string> pixels;
  for (int size = TextSizes::kLeast; size <= TextSizes::kMost; ++size)
    pixels.push_back(std::to_string(size));
  optSize.Options.Set(std::move(pixels));
  optFont.Caption.Set("Select Font");
  optSize.Caption.Set("Size");
  chkBold.Caption.Set("Bold");
  chkItalic.Caption.Set("Italic");
  cmdDefaultFont.Caption.Set("Default Font");
  chkTitle.Caption.Set("Show DX Tab Title");
  const auto onClick = [this](auto& control, void (DxLook::*act)()) {
    watching_.push_back(control.Click.Add([this, act] { (this->*act)(); }));
  };
  onClick(optFont, &DxLook::ChooseFamily);
  onClick(optSize, &DxLook::ChooseSize);
  onClick(chkBold, &DxLook::Keep);
  onClick(chkItalic, &DxLook::Keep);
  onClick(chkTitle, &DxLook::Keep);
  onClick(cmdDefaultFont, &DxLook::TakeDefault);
  watching_.push_back(sizes_.Size[TextSizes::Dx].Observe([this](int) { Renew(); }));
}

void DxLook::Load() {
  chkBold.Value.Set(settings_.DxBold);
  chkItalic.Value.Set(settings_.DxItalic);
  chkTitle.Value.Set(settings_.DxTitleVisible);
  Renew();
}

void DxLook::TakeFamilies(std::vector<std::string> families, const std::string& usual) {
  optFont.Options.Set(std::move(families));
  usual_ = usual;
  Renew();
}

void DxLook::ChooseFamily() {
  const auto chosen = static_cast<std::size_t>(optFont.Selected.Get());
  if (chosen >= optFont.Options.Get().size()) return;
  settings_.DxFont = optFont.Options.Get()[chosen];
  Keep();
}

void DxLook::ChooseSize() {
  const int pixels = TextSizes::kLeast + optSize.Selected.Get();
  sizes_.Change(TextSizes::Dx, pixels - sizes_.Size[TextSizes::Dx].Get());
}

void DxLook::TakeDefault() {
  settings_.DxFont.clear();
  chkBold.Value.Set(false);
  chkItalic.Value.Set(false);
  sizes_.Change(TextSizes::Dx, TextSizes::kUsual - sizes_.Size[TextSizes::Dx].Get());
  Keep();
}

void DxLook::Keep() {
  settings_.DxBold = chkBold.Value.Get();
  settings_.DxItalic = chkItalic.Value.Get();
  settings_.DxTitleVisible = chkTitle.Value.Get();
  Renew();
  delayedWriteCfg_();
}

void DxLook::Renew() {
  const SpotFont font{settings_.DxFont, chkBold.Value.Get(), chkItalic.Value.Get()};
  Font.Set(font);
  const int pixels = sizes_.Size[TextSizes::Dx].Get();
  optSize.Selected.Set(pixels - TextSizes::kLeast);
  const auto& families = optFont.Options.Get();
  auto shown = std::find(families.begin(), families.end(), font.family);
  if (shown == families.end()) shown = std::find(families.begin(), families.end(), usual_);
  optFont.Selected.Set(static_cast<int>(shown - families.begin()));
  const bool isDefault = font == SpotFont() && pixels == TextSizes::kUsual;
  cmdDefaultFont.Enabled.Set(!isDefault);
  cmdDefaultFont.ToolTip.Set(isDefault ? "The font is the default one." : "");
}

}  // namespace program
