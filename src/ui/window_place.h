#pragma once

#include <QRect>

namespace ui {

// The configuration keeps places in twips, 15 to a pixel.
int Pixels(int twips);
int Twips(int pixels);

// A screen may have gone since a place was stored.
bool OnSomeScreen(const QRect& place);

}  // namespace ui
