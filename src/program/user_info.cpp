#include "program/user_info.h"

#include <algorithm>

#include "core/locator.h"
#include "core/text.h"
#include "program/offset_form.h"

namespace program {
namespace {

bool IsLetter(char c) { return core::UCase(c) >= 'A' && core::UCase(c) <= 'Z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr const char* kGridLength = "A grid has 4 or 6 characters, for example EN82 or EN82DG.";
// By the pair of characters in which the first wrong one stands.
constexpr std::array<const char*, 4> kGridProblems = {
    "A grid begins with two letters from A to R, for example EN82.",
    "Behind its two letters a grid has two digits, for example EN82.",
    "A grid of 6 characters ends in two letters from A to X, for example EN82DG.", kGridLength};

// What can be no part of a grid, whatever is still to be typed.
std::string GridProblem(std::string_view text) {
  const std::size_t good = core::LocatorStart(text);
  return good == text.size() ? "" : kGridProblems[good / 2];
}

std::string Trimmed(const core::TextBox& box) { return std::string(core::Trim(box.Text.Get())); }

}  // namespace

bool IsCall(std::string_view text) {
  const auto allowed = [](char c) { return IsLetter(c) || IsDigit(c) || c == '/' || c == '-'; };
  return core::Len(text) >= 3 && std::all_of(text.begin(), text.end(), allowed) &&
         std::any_of(text.begin(), text.end(), IsLetter) &&
         std::any_of(text.begin(), text.end(), IsDigit) && !core::StartsWith(text, "-");
}

bool IsGrid(std::string_view text) { return core::CentreOfLocator(text).has_value(); }

UserInfo::UserInfo(core::Settings& settings, Needs needs)
    : settings_(settings), needs_(std::move(needs)) {
  cmdOpen.Caption.Set("User info…");
  cmdOk.Caption.Set("OK");
  cmdCancel.Caption.Set("Cancel");
  chkSystemZone.Caption.Set("Use the computer's time zone");
  lblFromGrid.Caption.Set("Worked out from the grid");
  lblFromGrid.Visible.Set(false);
  Watch();
}

void UserInfo::Watch() {
  const auto add = [this](core::Observers<>& act, std::function<void()> run) {
    watching_.push_back(act.Add(std::move(run)));
  };
  add(cmdOk.Click, [this] { PressOk(); });
  add(cmdCancel.Click, [this] { Open.Set(false); });
  add(cmdOpen.Click, [this] { Show(); });
  add(txtGrid.Change, [this] {
    FollowGrid();
    lblProblem.Caption.Set(GridProblem(Trimmed(txtGrid)));
  });
  for (core::TextBox& part : txtLatLong) add(part.Change, [this] { TakeOwnLocation(); });
}

void UserInfo::Show() {
  if (Open.Get()) return;
  txtCall.Text.Set(settings_.MyCall);
  txtName.Text.Set(settings_.MyName);
  txtQth.Text.Set(settings_.MyQth);
  txtGrid.Text.Set(settings_.MyGrid);
  txtHomeNode.Text.Set(settings_.HomeCluster);
  txtEmail.Text.Set(settings_.MyEmail);
  txtPassword.Text.Set(needs_.password());
  const bool systemZone = settings_.GmtOffset.empty() || settings_.GmtOffset == "Ok";
  chkSystemZone.Value.Set(systemZone);
  txtGmtOffset.Text.Set(systemZone ? "" : settings_.GmtOffset);
  const auto place = core::ParseLocation(settings_.MyLocation);
  ownLocation_ = place && place != core::CentreOfLocator(settings_.MyGrid);
  ShowLocation(place);
  FollowGrid();
  lblProblem.Caption.Set({});
  Open.Set(true);
}

void UserInfo::ShowLocation(const std::optional<core::Location>& place) {
  const core::Location shown = place.value_or(core::Location{});
  const std::array<std::string, 6> parts = {
      std::to_string(shown.latitudeDegrees),  std::to_string(shown.latitudeMinutes),
      std::string(1, shown.latitudeLetter),   std::to_string(shown.longitudeDegrees),
      std::to_string(shown.longitudeMinutes), std::string(1, shown.longitudeLetter)};
  for (std::size_t i = 0; i < parts.size(); ++i) txtLatLong[i].Text.Set(place ? parts[i] : "");
}

void UserInfo::FollowGrid() {
  const auto centre = core::CentreOfLocator(Trimmed(txtGrid));
  if (!ownLocation_) ShowLocation(centre);
  lblFromGrid.Visible.Set(!ownLocation_ && centre);
}

// Who takes his own away gets that of the grid.
void UserInfo::TakeOwnLocation() {
  ownLocation_ = !core::Trim(LocationText()).empty();
  FollowGrid();
}

void UserInfo::Refresh() {
  std::string who;
  for (const std::string* part : {&settings_.MyCall, &settings_.MyName, &settings_.MyQth}) {
    if (part->empty()) continue;
    if (!who.empty()) who += "  ·  ";
    who += *part;
  }
  lblWho.Caption.Set(who.empty() ? "Not entered yet" : who);
}

void UserInfo::PressOk() {
  const std::string problem = Problem();
  lblProblem.Caption.Set(problem);
  if (!problem.empty()) return;
  Store();
  Open.Set(false);
  needs_.save(txtPassword.Text.Get());
}

std::string UserInfo::Problem() const {
  if (!IsCall(Trimmed(txtCall))) return "Enter your call, for example W7XXX or W7XXX-1.";
  if (Trimmed(txtName).empty()) return "Enter your name: nodes ask for it.";
  if (Trimmed(txtQth).empty()) return "Enter your QTH: nodes ask for it.";
  const std::string grid = Trimmed(txtGrid);
  if (!GridProblem(grid).empty()) return GridProblem(grid);
  if (!grid.empty() && !IsGrid(grid)) return kGridLength;
  const std::string place = LocationText();
  if (!core::Trim(place).empty() && !core::ParseLocation(place))
    return "A location has degrees, minutes and N or S, then degrees, minutes and E or W.";
  if (!chkSystemZone.Value.Get() && !IsGmtOffset(Trimmed(txtGmtOffset)))
    return "Enter the hours to add to your local time to get GMT, for example 5 or -5.5.";
  return {};
}

std::string UserInfo::LocationText() const {
  std::string text;
  for (const core::TextBox& part : txtLatLong) text += Trimmed(part) + " ";
  return text;
}

void UserInfo::Store() {
  settings_.MyCall = core::UCase(Trimmed(txtCall));
  settings_.MyName = core::UCase(Trimmed(txtName));
  settings_.MyQth = Trimmed(txtQth);
  settings_.MyGrid = core::UCase(Trimmed(txtGrid));
  settings_.HomeCluster = core::UCase(Trimmed(txtHomeNode));
  settings_.MyEmail = Trimmed(txtEmail);
  const auto place = core::ParseLocation(LocationText());
  settings_.MyLocation = place ? core::FormatLocation(*place) : "";
  settings_.GmtOffset = chkSystemZone.Value.Get() ? "Ok" : Trimmed(txtGmtOffset);
}

}  // namespace program
