#pragma once

#include <QDialog>
#include <QRect>
#include <functional>

#include "core/settings.h"

namespace ui {

// Where the configuration keeps the place of a dialog, in twips.
struct PlaceKeys {
  using Key = int core::Settings::*;
  Key top;
  Key left;
  Key height = nullptr;  // none: only where it stands is kept
  Key width = nullptr;
};

inline constexpr PlaceKeys kTncPlace = {&core::Settings::TncTop, &core::Settings::TncLeft,
                                        &core::Settings::TncHeight, &core::Settings::TncWidth};
inline constexpr PlaceKeys kFixSpotPlace = {
    &core::Settings::FixSpotTop, &core::Settings::FixSpotLeft, &core::Settings::FixSpotHeight,
    &core::Settings::FixSpotWidth};
inline constexpr PlaceKeys kAr17Place = {&core::Settings::AR17Top, &core::Settings::AR17Left};

// A dialog comes up where the user left it, as large as he left it. One that he never had, or that
// would be on no screen, comes where dialogs come, in its usual size. Goes with its dialog.
class DialogPlace : public QObject {
 public:
  // The settings outlive it. `changed`: the settings have another place.
  DialogPlace(QDialog* dialog, core::Settings& settings, const PlaceKeys& keys,
              std::function<void()> changed);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool WasPlaced() const;
  void Apply();
  void Store();

  QDialog* dialog_;
  core::Settings& settings_;
  PlaceKeys keys_;
  std::function<void()> changed_;
  bool applied_ = false;
};

}  // namespace ui
