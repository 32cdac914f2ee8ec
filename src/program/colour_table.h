#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/controls.h"
#include "core/settings.h"
#include "program/theme_colours.h"

// The colours that the user may choose for himself.
namespace program {

enum class ColourKey {
  Raw,
  RawText,
  Dx,
  Wwv,
  LoginMsg,
  Wx,
  Mail,
  Talk,
  Ann,
  Locals,
  BandPass,
  BandReject,
  Settings,
  NodeConn,
  NodeTrying,
  NodeDisc,
  TalkTalkee,
  TalkMsg,
  TalkUsers,
  Missed1,
  Missed2,
  Count
};

// What something stands on, or what is drawn: words, or a lamp.
enum class ColourKind { Ground, Text };

struct ColourRow {
  ColourKey key;
  core::Colour core::Settings::*stored;
  ColourKind kind;
  const char* words;  // for the user
  ThemeColour usual;  // while he has chosen none
};

namespace detail {

using StoredColour = core::Colour core::Settings::*;

constexpr ColourRow OfGround(ColourKey key, StoredColour stored, const char* words,
                             ThemeColour usual = ColourOf(Token::Ground)) {
  return {key, stored, ColourKind::Ground, words, usual};
}
constexpr ColourRow OfText(ColourKey key, StoredColour stored, const char* words, Token usual) {
  return {key, stored, ColourKind::Text, words, ColourOf(usual)};
}

}  // namespace detail

inline constexpr ThemeColour kPass = {0xBCFEBE, 0x1E4A2B};
inline constexpr ThemeColour kReject = {0xFFDBD7, 0x56272A};

// In the order of their keys in the configuration.
inline constexpr auto kColourTable = std::to_array<ColourRow>({
    detail::OfGround(ColourKey::Raw, &core::Settings::ColourRaw, "Raw view"),
    detail::OfText(ColourKey::RawText, &core::Settings::ColourRawText, "Text of the raw view",
                   Token::Text),
    detail::OfGround(ColourKey::Dx, &core::Settings::ColourDx, "DX spots"),
    detail::OfGround(ColourKey::Wwv, &core::Settings::ColourWWV, "WWV"),
    detail::OfGround(ColourKey::LoginMsg, &core::Settings::ColourLoginMsg, "Login message"),
    detail::OfGround(ColourKey::Wx, &core::Settings::ColourWx, "Weather"),
    detail::OfGround(ColourKey::Mail, &core::Settings::ColourMail, "Mail"),
    detail::OfGround(ColourKey::Talk, &core::Settings::ColourTalk, "Talk"),
    detail::OfGround(ColourKey::Ann, &core::Settings::ColourAnn, "Announcements"),
    detail::OfGround(ColourKey::Locals, &core::Settings::ColourLocals, "Local users"),
    detail::OfGround(ColourKey::BandPass, &core::Settings::ColourBandPass, "Filter: passes", kPass),
    detail::OfGround(ColourKey::BandReject, &core::Settings::ColourBandReject, "Filter: blocked",
                     kReject),
    detail::OfGround(ColourKey::Settings, &core::Settings::ColourSettings, "Settings page",
                     ColourOf(Token::Panel)),
    detail::OfText(ColourKey::NodeConn, &core::Settings::ColourNodeConn, "Node: connected",
                   Token::Good),
    detail::OfText(ColourKey::NodeTrying, &core::Settings::ColourNodeTrying, "Node: connecting",
                   Token::Caution),
    detail::OfText(ColourKey::NodeDisc, &core::Settings::ColourNodeDisc, "Node: disconnected",
                   Token::Bad),
    detail::OfGround(ColourKey::TalkTalkee, &core::Settings::ColourTalkTalkee, "Talk: to whom"),
    detail::OfGround(ColourKey::TalkMsg, &core::Settings::ColourTalkMsg, "Talk: message"),
    detail::OfGround(ColourKey::TalkUsers, &core::Settings::ColourTalkUsers, "Talk: users"),
    detail::OfGround(ColourKey::Missed1, &core::Settings::ColourMissed1, "Missed, first", kPass),
    detail::OfGround(ColourKey::Missed2, &core::Settings::ColourMissed2, "Missed, second",
                     {0xF0FFF2, 0x1C2F23}),
});
static_assert(kColourTable.size() == static_cast<std::size_t>(ColourKey::Count));
static_assert(std::is_sorted(kColourTable.begin(), kColourTable.end(),
                             [](const ColourRow& a, const ColourRow& b) { return a.key < b.key; }));

constexpr const ColourRow& RowOf(ColourKey key) {
  return kColourTable[static_cast<std::size_t>(key)];
}

// What is stored for each of them, and for the bands, which the user may give colours in the file.
struct ColourValues {
  std::array<core::Colour, kColourTable.size()> stored{};
  decltype(core::Settings::SpotColor) bands{};

  core::Colour operator[](ColourKey key) const { return stored[static_cast<std::size_t>(key)]; }
  bool operator==(const ColourValues&) const = default;
};
ColourValues ValuesOf(const core::Settings& settings);

// What is stored while the user has chosen nothing.
core::Colour UsualOf(ColourKey key);

// Whether what is stored is no choice of the user's: the theme says what is drawn.
bool FollowsTheme(ColourKey key, core::Colour stored);

// What is stored for a colour that the user chose. One that would follow the theme is changed by
// the least that can be, so that it doesn't: black is 1.
core::Colour ChosenAs(ColourKey key, core::Colour colour);

}  // namespace program
