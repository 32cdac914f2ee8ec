#include "ui/spot_colours.h"

#include "ui/surface.h"

namespace ui {
namespace {

constexpr int kBandsOfTheirOwn = 16;  // from 1 on

constexpr std::array<BandColour, kBandsOfTheirOwn> kColours = {
    BandColour::M160, BandColour::M80,  BandColour::M60, BandColour::M40,
    BandColour::M30,  BandColour::M20,  BandColour::M17, BandColour::M15,
    BandColour::M12,  BandColour::M10,  BandColour::M6,  BandColour::M2,
    BandColour::M1,   BandColour::Cm70, BandColour::Mw,  BandColour::M4};

core::Colour StoredColour(int band, const core::Settings& settings) {
  return settings.SpotColor[static_cast<std::size_t>(band - 1)];
}

bool IsOwn(int band, const core::Settings& settings) {
  const bool hasOne = band > spots::kAllBands && band <= kBandsOfTheirOwn;
  return hasOne && StoredColour(band, settings) != core::kThemeColour;
}

}  // namespace

const QColor& SpotColours::OfInk(spots::Ink ink, int band) const {
  if (ink == spots::Ink::Dim) return dim;
  return ink == spots::Ink::Text ? text : OfBand(band);
}

SpotColours ColoursOf(const core::Settings& settings, const Theme& theme) {
  const Surface surface(program::ColourKey::Dx, settings.ColourDx, theme);
  SpotColours colours{.ground = surface.Ground(),
                      .text = surface[Token::Text],
                      .dim = surface[Token::DimText],
                      .selection = surface[Token::Selection],
                      .accent = surface[Token::Accent],
                      .caution = surface[Token::Caution],
                      .line = surface[Token::Line],
                      .bands = {}};
  for (int band = 0; band < spots::kBandCount; ++band) {
    QColor& colour = colours.bands[static_cast<std::size_t>(band)];
    colour = BandColourOf(band, settings, surface.On());
    if (!IsOwn(band, settings)) colour = surface.Readable(colour);
  }
  return colours;
}

QColor BandColourOf(int band, const core::Settings& settings, const Theme& theme) {
  if (band == spots::kAlarmBand) return theme[Token::Caution];
  if (band == spots::kAllBands) return theme[Token::Text];
  if (IsOwn(band, settings)) return AsStored(StoredColour(band, settings));
  return theme[kColours[static_cast<std::size_t>(band - 1)]];
}

}  // namespace ui
