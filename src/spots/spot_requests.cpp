#include "spots/spot_requests.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"

namespace spots {
namespace {

using session::NodeKind;

constexpr int kMostMissed = 100;

// What stands behind "sh/dx" for a band whose name alone doesn't tell every node what is meant.
struct BandRequest {
  std::string_view band;
  std::string_view zelva;
  std::string_view spider;
  std::string_view others;
};

constexpr std::array kBandRequests = {
    BandRequest{"4", "/20 4", "/20 on 4m", "/20 70000-70650"},
    BandRequest{"80", "/20 80", "/20 on 80m", "/20 3"},
    BandRequest{"70", "/20 70", "/20 on 420000/450000", "/20 70"},
    BandRequest{"60", "/20 60", "/20 on 5200/5500", "/20 5200-5500"},
    BandRequest{"MW", "/20 2000", "/20 on 900000/11000000", "/20 900000-11000000"},
    BandRequest{"1", "/20 220", "/20 on 218000/230000", "/20 218-230"},
};

std::string_view Word(const BandRequest& request, NodeKind kind) {
  if (kind == NodeKind::Zelva) return request.zelva;
  return kind == NodeKind::Spider ? request.spider : request.others;
}

int CountInRange(int count) { return std::clamp(count, 0, kMostMissed); }

std::string GeneralRequest(const std::string& band, NodeKind kind) {
  return kind == NodeKind::Spider ? "/20 on " + band + "m" : "/20 " + band;
}

}  // namespace

std::string GetSpotsCommand(std::string_view bandWord, NodeKind kind) {
  const std::string band = core::UCase(core::Trim(bandWord));
  const auto* const request = std::ranges::find(kBandRequests, band, &BandRequest::band);
  if (request == kBandRequests.end()) return "sh/dx" + GeneralRequest(band, kind);
  return std::string("sh/dx").append(Word(*request, kind));
}

SpotRequests::SpotRequests(core::Settings& settings, Needs needs)
    : settings_(settings),
      needs_(std::move(needs)),
      typing_(txtGetNr.Change.Add([this] { KeepCount(); })) {
  txtGetNr.Caption.Set("Number of missed spots to ask for");
}

void SpotRequests::Load() { txtGetNr.Text.Set(std::to_string(CountInRange(Count()))); }

void SpotRequests::cmdGetSpots(std::string_view bandWord, std::string_view call) {
  const std::string_view wanted = core::Trim(call);
  bool sent = false;
  if (!core::SameIgnoringCase(core::Trim(bandWord), "ALL"))
    sent = needs_.sendAsIs(GetSpotsCommand(bandWord, needs_.node().kind));
  else if (wanted.empty())
    sent = GetEm();
  else
    sent = needs_.sendAsIs(std::string("sh/DX/99 ").append(wanted));
  if (!sent) return;
  needs_.listRequested();
  needs_.setShDxDone(false);
}

bool SpotRequests::GetEm() {
  const Node node = needs_.node();
  const std::string query =
      MissedSpotsQuery(node.kind, node.ShowDxCommand, CountInRange(Count()), needs_.filter());
  if (query.empty()) needs_.setShDxDone(true);  // there is no list to wait for
  if (query.empty() || !needs_.sendAsIs(query)) return false;
  needs_.sendAsIs("");
  needs_.setShDxDone(false);
  needs_.missedRequested();
  return true;
}

int& SpotRequests::Count() { return needs_.node().TncMode ? settings_.GetNrTnc : settings_.GetNr; }

void SpotRequests::KeepCount() {
  const int typed = core::ValInt(txtGetNr.Text.Get());
  const int count = CountInRange(typed);
  if (count != typed) txtGetNr.Text.Set(std::to_string(count));
  if (std::exchange(Count(), count) != count) needs_.settingsChanged();
}

}  // namespace spots
