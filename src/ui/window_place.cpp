#include "ui/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace ui {
namespace {

constexpr int kTwipsPerPixel = 15;

}  // namespace

int Pixels(int twips) { return twips / kTwipsPerPixel; }
int Twips(int pixels) { return pixels * kTwipsPerPixel; }

bool OnSomeScreen(const QRect& place) {
  const auto screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(), [&](const QScreen* each) {
    return each->availableGeometry().intersects(place);
  });
}

}  // namespace ui
