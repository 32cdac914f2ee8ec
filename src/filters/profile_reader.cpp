#include "filters/profile_reader.h"

#include <chrono>
#include <utility>

#include "core/text.h"
#include "core/version.h"
#include "session/feed_options.h"

using namespace std::chrono_literals;

namespace filters {
namespace {

using session::ProfileField;

constexpr auto kPause = 100ms;
// A DXSpider may prompt before it has told all.
constexpr auto kRestOfAReport = 500ms;

// The prompt that the program can tell from everything else a DXSpider sends.
std::string OwnPrompt() {
  return "%C de %M %D %T " + std::string(core::kProgramVersion) + "  dxspider >";
}

}  // namespace

ProfileReader::ProfileReader(platform::Scheduler& scheduler, const core::Settings& settings,
                             session::SessionState& state, session::Outgoing& outgoing,
                             session::Intake& intake, const session::ProfileHints& hints,
                             const session::KeepAlive& keepAlive, session::LoginRequests& requests,
                             UserSettings& page)
    : scheduler_(scheduler),
      settings_(settings),
      state_(state),
      outgoing_(outgoing),
      intake_(intake),
      hints_(hints),
      keepAlive_(keepAlive),
      requests_(requests),
      page_(page) {}

void ProfileReader::AskedByLogin() {
  if (state_.IsSpider()) page_.chkSettings[kBottomOfBand].Value.Set(true);
  askedByLogin_ = true;
}

void ProfileReader::Forget() {
  for (const Switch each : {kDxSpots, kBottomOfBand, kUsState})
    page_.chkSettings[each].Value.Set(false);
  phase_ = Phase::Closed;
  rest_.Release();
  askedByLogin_ = false;
  completed_ = false;
  askNameAtPrompt_ = false;
  page_.ForgetNode();
}

bool ProfileReader::StatUser(std::string_view line) {
  if (!state_.LoggedIn) return false;
  if (state_.RcvdAnyPrompt(line)) {
    AtPrompt();
    return false;
  }
  ReadFilterAnswers(line);
  const auto entry = EntryOf(line);
  if (entry && phase_ != Phase::Open && OpensReport(line, state_.LoginCall(settings_.MyCall))) {
    phase_ = Phase::Open;
    report_ = {};
  }
  if (!entry || phase_ == Phase::Closed) return false;
  const bool known = ReadEntry(*entry);
  if (!known && phase_ == Phase::Behind) return false;
  if (!session::Feeds(settings_, session::FeedOption::Profile)) intake_.ForwardSuppressed = true;
  if (phase_ == Phase::Open && entry->label == "Type of User") Close();
  if (known && phase_ == Phase::Open && report_.prompted) AwaitRest();
  return true;
}

// Among the rows of a DXSpider any prompt may be another command's.
void ProfileReader::AtPrompt() {
  if (phase_ != Phase::Open || !state_.IsSpider())
    End();
  else if (!report_.prompted)
    AwaitRest();
  if (!std::exchange(askNameAtPrompt_, false)) return;
  if (!report_.name && Wanted(ProfileField::Name, settings_.MyName))
    outgoing_.SendAsIs("set/name " + settings_.MyName);
  page_.fraSettings.Caption.Set("Settings @ " + state_.ConnectedNodeCall);
  page_.fraSettings.ForeColour.Set(core::kThemeColour);
}

void ProfileReader::AwaitRest() {
  report_.prompted = true;
  rest_ = scheduler_.After(kRestOfAReport, [this] { End(); });
}

// A report whose last line never came is complete all the same.
void ProfileReader::End() {
  if (phase_ == Phase::Open) Close();
  phase_ = Phase::Closed;
}

bool ProfileReader::ReadEntry(const Entry& entry) {
  return ReadSwitch(entry) || ReadField(entry) || ReadMark(entry);
}

// What a DXSpider answers to changes of its filters.
void ProfileReader::ReadFilterAnswers(std::string_view line) {
  if (!state_.IsSpider() && phase_ == Phase::Closed) return;
  const auto holds = [line](std::string_view text) { return core::InStr(line, text) > 0; };
  auto& bottomOfBand = page_.chkSettings[kBottomOfBand].Value;
  if (holds(" filter4 reject on") || holds("Filter 4 updated") || holds("reject/spots 4"))
    bottomOfBand.Set(false);
  if (holds("spots Filter 4 deleted")) bottomOfBand.Set(true);
  if (core::StartsWith(line, "DX Spots disabled for "))
    page_.chkSettings[kDxSpots].Value.Set(false);
}

bool ProfileReader::ReadSwitch(const Entry& entry) {
  const auto which = SwitchOf(entry.label);
  if (!which || (entry.value != "Yes" && entry.value != "No")) return false;
  const bool yes = entry.value == "Yes";
  // Nobody stays without spots.
  if (*which == kDxSpots && !yes) outgoing_.SendAsIs("set/dx");
  page_.chkSettings[*which].Value.Set(yes || *which == kDxSpots);
  page_.Told.set(*which);
  return true;
}

bool ProfileReader::ReadField(const Entry& entry) {
  const auto field = FieldOf(entry.label);
  if (field == nullptr) return false;
  (page_.*field)[0].Text.Set(std::string(entry.value));
  if (entry.value.empty()) {
    if (field == &UserSettings::txtMyHomeNode &&
        Wanted(ProfileField::HomeNode, settings_.HomeCluster))
      outgoing_.SendAsIs("set/home " + settings_.HomeCluster);
    return true;
  }
  if (field == &UserSettings::txtMyName) report_.name = true;
  if (field == &UserSettings::txtMyQRA) report_.grid = true;
  if (field == &UserSettings::txtMyLocation) report_.location = true;
  return true;
}

bool ProfileReader::ReadMark(const Entry& entry) {
  if (entry.label == "Required Prompt")
    report_.promptRight = entry.value == OwnPrompt();
  else if (entry.label == "Req Echo")
    report_.echoOff = entry.value == "No";
  else if (entry.label == "Language")
    report_.english = entry.value == "en";
  else if (entry.label == "Latitude" || entry.label == "Longitude")
    ReadLatitude(entry);
  else
    return false;
  return true;
}

// The two together are the location.
void ProfileReader::ReadLatitude(const Entry& entry) {
  if (entry.value.empty()) return;
  (entry.label == "Latitude" ? report_.latitude : report_.longitude) = entry.value;
  const bool both = !report_.latitude.empty() && !report_.longitude.empty();
  page_.txtMyLocation[0].Text.Set(report_.latitude + (both ? " " : "") + report_.longitude);
  report_.location = true;
}

void ProfileReader::Close() {
  phase_ = Phase::Behind;
  rest_.Release();
  page_.fraUserInfo[0].Caption.Set("User Information @ " + state_.ConnectedNodeCall);
  page_.fraUserInfo[0].ForeColour.Set(core::kThemeColour);
  const bool first = !std::exchange(completed_, true);
  intake_.PushStep("StatUser", SendAll(Missing(first), state_.Sessions));
}

std::vector<ProfileReader::Message> ProfileReader::Missing(bool first) const {
  std::vector<Message> messages;
  int pauses = 0;
  const auto add = [&](std::string text) {
    messages.push_back({std::exchange(pauses, 0), std::move(text)});
  };
  add(" ");
  if (!report_.echoOff) add("unset/echo");
  if (state_.IsSpider() && !report_.promptRight) add("set/prompt " + OwnPrompt());
  if (state_.IsSpider() && !report_.english) add("set/lang en");
  if (!report_.grid) ++pauses;
  if (!report_.grid && Wanted(ProfileField::Grid, settings_.MyGrid))
    add("set/qra " + settings_.MyGrid);
  if (!report_.location && Wanted(ProfileField::Location, settings_.MyLocation)) {
    ++pauses;
    add("set/location " + settings_.MyLocation);
  }
  if (first && !state_.IsDxNet()) {
    if (askedByLogin_) {
      add("set/molva");
      ++pauses;
    }
    ++pauses;
    if (settings_.AutoFilter) add("sh/filter");
    ++pauses;
  }
  AddEnding(first, pauses, messages);
  return messages;
}

void ProfileReader::AddEnding(bool first, int pauses, std::vector<Message>& messages) const {
  const bool tellsName = !report_.name && Wanted(ProfileField::Name, settings_.MyName);
  const std::string name = "set/name " + settings_.MyName;
  if (state_.IsZelva()) {
    if (tellsName) messages.push_back({std::exchange(pauses, 0) + 1, name});
    if (first) messages.push_back({pauses, keepAlive_.VersionText()});
    return;
  }
  messages.push_back({pauses, "SET/PAGE 9999"});
  if (tellsName && !TellsNameAtPrompt()) messages.push_back({2, name});
}

platform::Task<> ProfileReader::SendAll(std::vector<Message> messages, std::uint64_t session) {
  for (const Message& message : messages) {
    if (message.pauses > 0) co_await platform::Delay(message.pauses * kPause);
    if (state_.Sessions != session) co_return;
    outgoing_.SendAsIs(message.text);
  }
  co_await platform::Delay(kPause);
  if (state_.Sessions != session) co_return;
  askNameAtPrompt_ = TellsNameAtPrompt();
  if (std::exchange(state_.FirstConnect, false) && state_.WantMissedSpots) requests_.GetEm();
}

bool ProfileReader::TellsNameAtPrompt() const { return state_.IsDxNet() || state_.IsClx(); }

bool ProfileReader::Wanted(ProfileField field, const std::string& value) const {
  return !value.empty() && !hints_.Answered(field);
}

}  // namespace filters
