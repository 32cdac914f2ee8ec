#include "program/appearance.h"

namespace program {
namespace {

using platform::ColourScheme;

constexpr auto kLight = "Light";
constexpr auto kDark = "Dark";

}  // namespace

Appearance::Appearance(core::Settings& settings, std::function<void()> delayedWriteCfg)
    : settings_(settings),
      delayedWriteCfg_(std::move(delayedWriteCfg)),
      choosing_(optTheme.Click.Add([this] { Choose(); })) {
  optTheme.Options.Set({"System", kLight, kDark});
}

void Appearance::Load() {
  optTheme.Selected.Set(settings_.Theme == kLight  ? Light
                        : settings_.Theme == kDark ? Dark
                                                   : System);
  Follow();
}

void Appearance::SystemHas(ColourScheme scheme) {
  system_ = scheme;
  Follow();
}

void Appearance::Choose() {
  const int chosen = optTheme.Selected.Get();
  settings_.Theme = chosen == Light ? kLight : chosen == Dark ? kDark : "";
  Follow();
  delayedWriteCfg_();
}

void Appearance::Follow() {
  const int chosen = optTheme.Selected.Get();
  OnShow.Set(chosen == Light ? ColourScheme::Light : chosen == Dark ? ColourScheme::Dark : system_);
}

}  // namespace program
