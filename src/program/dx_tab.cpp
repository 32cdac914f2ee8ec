#include "program/dx_tab.h"

#include <string>

namespace program {
namespace {

using session::LinkPhase;
using spots::SpotTable;

constexpr std::array<std::string_view, spots::kBands.size()> kBandWords = {
    "",     "160 m", "80 m", "60 m", "40 m",   "30 m",  "20 m",       "17 m", "15 m",
    "12 m", "10 m",  "6 m",  "2 m",  "1.25 m", "70 cm", "microwaves", "4 m",  ""};

std::string_view ViewWord(int view) {
  if (view == SpotTable::kSkimmerSpots) return "Skimmer ";
  return view == SpotTable::kOtherSpots ? "DX " : "";
}

}  // namespace

std::string_view BandWords(int band) { return kBandWords[static_cast<std::size_t>(band)]; }

DxTab::DxTab(Views& views, spots::SpotTable& table, session::SessionState& session)
    : views_(views), table_(table), session_(session) {
  onShow_ = views.onShow.Observe([this](int tab) { TellOnShow(tab); });
  caption_ = table.TabCaption.Observe(
      [this](const std::string& caption) { views_.tab[Views::Dx].Caption.Set(caption); });
  waitsFor_ = {session.Phase.Observe([this](LinkPhase) { ShowEmpty(); }),
               table.rail.optBand.Selected.Observe([this](int) { ShowEmpty(); }),
               table.optSortBy.Observe([this](int) { ShowEmpty(); }),
               table.chkShSkm[SpotTable::kDx].Click.Add([this] { ShowEmpty(); }),
               table.chkShSkm[SpotTable::kSkimmer].Click.Add([this] { ShowEmpty(); })};
}

void DxTab::ChooseBand(int band) {
  views_.Choose(Views::Dx);
  table_.rail.optBand.UserSelects(band);
}

void DxTab::TellOnShow(int tab) {
  const bool onShow = tab == Views::Dx;
  if (onShow == table_.OnShow()) return;
  if (onShow)
    table_.EnterTab();
  else
    table_.LeaveTab();
}

void DxTab::ShowEmpty() {
  const int band = table_.rail.SelectedBand();
  const std::string_view words = BandWords(band);
  const std::string what = band == spots::kAlarmBand ? "alarms" : "spots";
  // Any order but that of time leaves out what has nothing to be sorted by.
  if (table_.optSortBy.Get() != spots::kTimeOrder) {
    lblEmpty.Caption.Set("No " + what + " of this view have anything in this order.");
    return;
  }
  const LinkPhase phase = session_.Phase.Get();
  if (phase == LinkPhase::Connected)
    lblEmpty.Caption.Set("Connected. No " + std::string(ViewWord(table_.SelectedView())) + what +
                         (words.empty() ? "" : " on " + std::string(words)) + " yet.");
  else
    lblEmpty.Caption.Set(phase == LinkPhase::Trying ? "Connecting." : "Not connected.");
}

}  // namespace program
