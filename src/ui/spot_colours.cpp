#include "ui/spot_colours.h"

namespace ui {
namespace {

constexpr double kReadable = 4.5;
constexpr int kBandsOfTheirOwn = 16;  // from 1 on

constexpr std::array<BandColour, kBandsOfTheirOwn> kColours = {
    BandColour::M160, BandColour::M80,  BandColour::M60, BandColour::M40,
    BandColour::M30,  BandColour::M20,  BandColour::M17, BandColour::M15,
    BandColour::M12,  BandColour::M10,  BandColour::M6,  BandColour::M2,
    BandColour::M1,   BandColour::Cm70, BandColour::Mw,  BandColour::M4};

QColor AsStored(core::Colour colour) {
  return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

bool IsChosen(int ground) {
  static const int usual = core::Settings().ColourDx;
  return ground != core::kThemeColour && ground != usual;
}

core::Colour StoredColour(int band, const core::Settings& settings) {
  return settings.SpotColor[static_cast<std::size_t>(band - 1)];
}

bool IsOwn(int band, const core::Settings& settings) {
  const bool hasOne = band > spots::kAllBands && band <= kBandsOfTheirOwn;
  return hasOne && StoredColour(band, settings) != core::kThemeColour;
}

Theme ReadableOn(const QColor& ground) {
  const Theme light(Theme::Kind::Light), dark(Theme::Kind::Dark);
  const bool darkText = Contrast(light[Token::Text], ground) >= Contrast(dark[Token::Text], ground);
  return darkText ? light : dark;
}

QColor Readable(QColor colour, const QColor& ground, Theme::Kind kind) {
  const int step = kind == Theme::Kind::Light ? -1 : 1;
  for (int lightness = colour.lightness();
       Contrast(colour, ground) < kReadable && lightness > 0 && lightness < 255;) {
    lightness += step;
    colour.setHsl(colour.hslHue(), colour.hslSaturation(), lightness);
  }
  return colour;
}

}  // namespace

const QColor& SpotColours::OfInk(spots::Ink ink, int band) const {
  if (ink == spots::Ink::Dim) return dim;
  return ink == spots::Ink::Text ? text : OfBand(band);
}

SpotColours ColoursOf(const core::Settings& settings, const Theme& theme) {
  const bool chosen = IsChosen(settings.ColourDx);
  const QColor ground = chosen ? AsStored(settings.ColourDx) : theme[Token::Ground];
  const Theme on = chosen ? ReadableOn(ground) : theme;
  const auto readable = [&](const QColor& colour) {
    return chosen ? Readable(colour, ground, on.kind()) : colour;
  };
  SpotColours colours{.ground = ground,
                      .text = on[Token::Text],
                      .dim = readable(on[Token::DimText]),
                      .selection = on[Token::Selection],
                      .accent = readable(on[Token::Accent]),
                      .caution = readable(on[Token::Caution]),
                      .line = on[Token::Line],
                      .bands = {}};
  for (int band = 0; band < spots::kBandCount; ++band) {
    QColor& colour = colours.bands[static_cast<std::size_t>(band)];
    colour = BandColourOf(band, settings, on);
    if (!IsOwn(band, settings)) colour = readable(colour);
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
