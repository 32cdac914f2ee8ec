#include "program/user_info.h"

#include <algorithm>

#include "core/location.h"
#include "core/text.h"
#include "program/offset_form.h"

namespace program {
namespace {

bool IsLetter(char c) { return core::UCase(c) >= 'A' && core::UCase(c) <= 'Z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsIn(char c, char first, char last) {
  return core::UCase(c) >= first && core::UCase(c) <= last;
}

std::string Trimmed(const core::TextBox& box) { return std::string(core::Trim(box.Text.Get())); }

}  // namespace

bool IsCall(std::string_view text) {
  const auto allowed = [](char c) { return IsLetter(c) || IsDigit(c) || c == '/' || c == '-'; };
  return core::Len(text) >= 3 && std::all_of(text.begin(), text.end(), allowed) &&
         std::any_of(text.begin(), text.end(), IsLetter) &&
         std::any_of(text.begin(), text.end(), IsDigit) && !core::StartsWith(text, "-");
}

bool IsGrid(std::string_view text) {
  if (text.size() != 4 && text.size() != 6) return false;
  const bool square =
      IsIn(text[0], 'A', 'R') && IsIn(text[1], 'A', 'R') && IsDigit(text[2]) && IsDigit(text[3]);
  return square && (text.size() == 4 || (IsIn(text[4], 'A', 'X') && IsIn(text[5], 'A', 'X')));
}

UserInfo::UserInfo(core::Settings& settings, Needs needs)
    : settings_(settings),
      needs_(std::move(needs)),
      ok_(cmdOk.Click.Add([this] { PressOk(); })),
      cancel_(cmdCancel.Click.Add([this] { Open.Set(false); })),
      opening_(cmdOpen.Click.Add([this] { Show(); })) {
  cmdOpen.Caption.Set("User info…");
  cmdOk.Caption.Set("OK");
  cmdCancel.Caption.Set("Cancel");
  chkSystemZone.Caption.Set("Use the computer's time zone");
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
  const auto fill = [&](std::size_t i, const std::string& text) {
    txtLatLong[i].Text.Set(place ? text : "");
  };
  const core::Location shown = place.value_or(core::Location{});
  fill(0, std::to_string(shown.latitudeDegrees));
  fill(1, std::to_string(shown.latitudeMinutes));
  fill(2, std::string(1, shown.latitudeLetter));
  fill(3, std::to_string(shown.longitudeDegrees));
  fill(4, std::to_string(shown.longitudeMinutes));
  fill(5, std::string(1, shown.longitudeLetter));
  lblProblem.Caption.Set({});
  Open.Set(true);
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
  if (!grid.empty() && !IsGrid(grid))
    return "A grid has 4 or 6 characters, for example EN82 or EN82DG.";
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
