#include "spots/reject_form.h"

#include <string>
#include <string_view>
#include <utility>

#include "core/text.h"

namespace spots {
namespace {

// By RejectLists::Kind.
constexpr std::array<const char*, RejectLists::kKinds> kListCaptions = {
    "Reject DX Calls", "Reject Spotters and Nodes", "Reject Comments"};

}  // namespace

constexpr std::array<RejectForm::Switch, 5> RejectForm::kSwitches = {{
    {&RejectForm::chkEnabled, &core::Settings::RejSpots, "Enabled"},
    {&RejectForm::chkInvalid, &core::Settings::RejectInvalidCountry, "Reject Invalid Country"},
    {&RejectForm::chkCounty, &core::Settings::RejectCounties, "Reject Counties"},
    {&RejectForm::chkDupes, &core::Settings::AllowSkimmerDupes, "Allow CW Skimmer Dupes"},
    {&RejectForm::chkOwnCall, &core::Settings::ShowOwnSkimmerSpots,
     "Show CW Skimmer Spots for Own Call"},
}};

RejectForm::RejectForm(RejectLists& lists, core::Settings& settings, Needs needs)
    : lists_(lists), settings_(settings), needs_(std::move(needs)) {
  for (const Switch& each : kSwitches) Bind(each);
  for (const auto kind : {RejectLists::kDx, RejectLists::kCall, RejectLists::kComment}) Bind(kind);
  lblInvalid.Caption.Set("Rejects nothing yet: no spot of this session has named a country");
  watching_.push_back(lists_.CountryWordSeen.Observe([this](bool) { ShowInvalid(); }));
  watching_.push_back(chkInvalid.Value.Observe([this](bool) { ShowInvalid(); }));
  lblNotSaved.Caption.Set("The lists could not be saved: they hold until the program ends");
  lblNotSaved.Visible.Set(false);
  Load();
}

void RejectForm::Bind(const Switch& each) {
  core::Check& check = this->*each.check;
  check.Caption.Set(std::string(each.caption));
  watching_.push_back(check.Click.Add([this, &each] {
    settings_.*each.member = (this->*each.check).Value.Get();
    needs_.delayedWriteCfg();
  }));
}

void RejectForm::Bind(RejectLists::Kind kind) {
  lists_.lstReject[kind].Caption.Set(kListCaptions[kind]);
  cmdAdd[kind].Caption.Set("Add");
  cmdDelete[kind].Caption.Set("Delete");
  watching_.push_back(cmdAdd[kind].Click.Add([this, kind] { Add(kind); }));
  watching_.push_back(txtReject[kind].Return.Add([this, kind] { cmdAdd[kind].Press(); }));
  watching_.push_back(cmdDelete[kind].Click.Add([this, kind] { Delete(kind); }));
  watching_.push_back(txtReject[kind].Text.Observe([this, kind](const std::string& text) {
    cmdAdd[kind].Enabled.Set(!core::Trim(text).empty());
  }));
  watching_.push_back(lists_.lstReject[kind].Selected.Observe([this, kind](int selected) {
    cmdDelete[kind].Enabled.Set(selected != core::ListBox::kNone);
  }));
}

void RejectForm::Load() {
  for (const Switch& each : kSwitches) (this->*each.check).Value.Set(settings_.*each.member);
}

// Calls come in upper case and are compared to the letter; in a comment blanks may mean something.
void RejectForm::Add(RejectLists::Kind kind) {
  const std::string text = txtReject[kind].Text.Get();
  const bool isComment = kind == RejectLists::kComment;
  const std::string entry = isComment ? text : core::UCase(core::Trim(text));
  txtReject[kind].Text.Set("");
  if (lists_.Add(kind, entry)) Save();
}

void RejectForm::Delete(RejectLists::Kind kind) {
  lists_.Remove(kind, static_cast<std::size_t>(lists_.lstReject[kind].Selected.Get()));
  Save();
}

void RejectForm::Save() {
  lblNotSaved.Visible.Set(lists_.WriteReject() != platform::Files::Fault::None);
}

void RejectForm::ShowInvalid() {
  lblInvalid.Visible.Set(chkInvalid.Value.Get() && !lists_.CountryWordSeen.Get());
}

}  // namespace spots
