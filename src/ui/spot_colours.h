#pragma once

#include <QColor>
#include <array>

#include "core/settings.h"
#include "spots/bands.h"
#include "spots/row_parts.h"
#include "ui/theme.h"

namespace ui {

// The colours of the table of spots.
struct SpotColours {
  QColor ground;
  QColor text;
  QColor dim;
  QColor selection;
  QColor accent;
  QColor caution;
  QColor line;
  std::array<QColor, spots::kBands.size()> bands;  // by their index

  const QColor& OfBand(int band) const { return bands[static_cast<std::size_t>(band)]; }
  // That of a field in a row of that band.
  const QColor& OfInk(spots::Ink ink, int band) const;
};

// Those of the theme, and what the user chose himself. On a ground that he chose, everything is
// taken from the theme whose text can be read better there, and a band's colour is made darker or
// lighter until it can be read.
SpotColours ColoursOf(const core::Settings& settings, const Theme& theme);

// That of a band on the theme's own grounds.
QColor BandColourOf(int band, const core::Settings& settings, const Theme& theme);

}  // namespace ui
