#include "spots/display_choice.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace spots {
namespace {

struct CheckRow {
  std::string_view caption;
  bool core::Settings::*setting;
  bool ShownColumns::*shown;  // null: no column
};

constexpr std::array<CheckRow, DisplayChoice::kChecks> kRows = {{
    {"Node", &core::Settings::ArNode, &ShownColumns::Node},
    {"Comments", &core::Settings::ArComments, &ShownColumns::Comments},
    {"Bearing", &core::Settings::ArBearing, &ShownColumns::Bearing},
    {"Distance", &core::Settings::ArDistance, &ShownColumns::Distance},
    {"DX Cty", &core::Settings::ArCty, &ShownColumns::DxCty},
    {" km", &core::Settings::ArKm, &ShownColumns::Kilometres},
    {"DX State", &core::Settings::dxsState, &ShownColumns::DxState},
    {"Orig Cty", &core::Settings::ArOrigCty, &ShownColumns::OrigCty},
    {"Orig State/Province", &core::Settings::ArOrigState, &ShownColumns::OrigState},
    {"Date", &core::Settings::ArDate, &ShownColumns::Date},
    {"DX CQ Zone", &core::Settings::ArWAZ, &ShownColumns::DxCq},
    {"DX ITU Zone", &core::Settings::ArITU, &ShownColumns::DxItu},
    {"Don't use AR17", &core::Settings::DxARPCoff, nullptr},
    {"Spotter IP", &core::Settings::ArIP, &ShownColumns::SpotterIp},
    {"Country Name", &core::Settings::ShowCountryName, &ShownColumns::CountryName},
    {"Orig CQ Zone", &core::Settings::dxsOrigWAZ, &ShownColumns::OrigCq},
    {"Orig ITU Zone", &core::Settings::dxsOrigITU, &ShownColumns::OrigItu},
    {"DX Grid", &core::Settings::DxGrid, &ShownColumns::DxGrid},
    {"Orig Grid", &core::Settings::SpotterGrid, &ShownColumns::OrigGrid},
    {"Wide", &core::Settings::ExtraWide, &ShownColumns::Wide},
}};

constexpr std::array<std::string_view, 2> kFormatWords = {"Classic DX Spot Display",
                                                          "Expanded Dx Spot Display"};

constexpr std::string_view kUpdated =
    "DX Display Format Updated\r\n\r\nSelect \"Clear Spots\"\r\nThen \"Get Spots\"";

int Held(int width) { return std::clamp(width, kLeastSpotWidth, kMostSpotWidth); }

// A width of 0 was never applied: nothing has been chosen yet, and the expanded display would be
// bare.
bool NeverChosen(const core::Settings& settings) { return settings.SpotWidth == 0; }

}  // namespace

DisplayChoice::DisplayChoice(core::Settings& settings, Needs needs)
    : settings_(settings), needs_(std::move(needs)) {
  optFormat.Options.Set({"Classic", "Expanded"});
  for (std::size_t i = 0; i < kRows.size(); ++i)
    chkAr17[i].Caption.Set(std::string(kRows[i].caption));
  cmdApply.Caption.Set("Apply");
  Read();
  choosing_ = optFormat.Click.Add([this] { ShowFormat(); });
  applying_ = cmdApply.Click.Add([this] { Apply(); });
}

void DisplayChoice::Read() {
  const bool classic = settings_.ClassicDisplay || NeverChosen(settings_);
  const int width = NeverChosen(settings_) ? kDefaultSpotWidth : settings_.SpotWidth;
  optFormat.Selected.Set(classic ? kClassic : kExpanded);
  for (std::size_t i = 0; i < kRows.size(); ++i) chkAr17[i].Value.Set(settings_.*kRows[i].setting);
  txtSpotWidth.Text.Set(std::to_string(Held(width)));
  ShowFormat();
  Hold();
}

void DisplayChoice::Apply() {
  const int width = Held(core::ValInt(txtSpotWidth.Text.Get()));
  txtSpotWidth.Text.Set(std::to_string(width));
  settings_.SpotWidth = width;
  settings_.ClassicDisplay = optFormat.Selected.Get() == kClassic;
  for (std::size_t i = 0; i < kRows.size(); ++i)
    settings_.*kRows[i].setting = chkAr17[i].Value.Get();
  Hold();
  Applied.Tell();
  if (Shown().Expanded) return;
  if (needs_.nodeAddsWords()) TellNode();
  needs_.tell(kUpdated);
}

void DisplayChoice::TellNode() {
  needs_.send(chkAr17[kDxCty].Value.Get() ? "Set/dxscty" : "Set/nodxscty");
  needs_.send(chkAr17[kOrigCty].Value.Get() ? "Set/dxsqth" : "Set/nodxsqth");
}

void DisplayChoice::Hold() {
  RowShape shape;
  for (std::size_t i = 0; i < kRows.size(); ++i)
    if (kRows[i].shown != nullptr) shape.shown.*kRows[i].shown = chkAr17[i].Value.Get();
  shape.shown.Expanded = optFormat.Selected.Get() == kExpanded;
  shape.spotWidth = core::ValInt(txtSpotWidth.Text.Get());
  layout_ = ArPcScreenSetup(shape);
  LaidOut.Tell();
}

void DisplayChoice::ShowFormat() {
  const auto format = static_cast<std::size_t>(optFormat.Selected.Get());
  fraFormat.Caption.Set(std::string(kFormatWords[std::min(format, kFormatWords.size() - 1)]));
}

}  // namespace spots
