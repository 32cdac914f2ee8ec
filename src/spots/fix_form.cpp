#include "spots/fix_form.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/quoted.h"
#include "core/text.h"

namespace spots {
namespace {

constexpr std::string_view kListPath = "/fixspots.txt";
constexpr std::string_view kHelpPath = "/fixspots.htm";
constexpr auto kWebUpdate = "Web Update";
constexpr auto kReady = "Ready To Import Data";

struct FieldText {
  const char* caption;
  const char* tip;
  core::TextBox FixForm::*box;
};
constexpr std::array<FieldText, kFixFields> kFieldTexts = {{
    {"Country", " Country ", &FixForm::txtAddCty},
    {"State", " State or Province ", &FixForm::txtAddState},
    {"CQ", " CQ Zone ", &FixForm::txtAddCq},
    {"ITU", " ITU Zone ", &FixForm::txtAddItu},
    {"Grid", " Grid Square (4 Letter)", &FixForm::txtAddGrid},
}};

std::string Entries(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " entry" : " entries");
}

}  // namespace

FixForm::FixForm(FixList& list, core::Settings& settings, core::ErrorLog& errorLog, Needs needs)
    : list_(list), settings_(settings), errorLog_(errorLog), needs_(std::move(needs)) {
  SetUp();
  acts_.push_back(list_.Changed.Add([this] {
    if (Open.Get()) Refresh();
  }));
  acts_.push_back(cboCall.Click.Add([this] { ShowEntry(); }));
  acts_.push_back(cmdAdd.Click.Add([this] { PressAdd(); }));
  acts_.push_back(cmdDel.Click.Add([this] { PressDelete(); }));
  acts_.push_back(cmdDelAdd.Click.Add([this] { PressDeleteAdd(); }));
  acts_.push_back(cmdWebUpdate.Click.Add([this] { PressWebUpdate(); }));
  acts_.push_back(cmdHelp.Click.Add([this] { needs_.openPage(kHelpPath); }));
  acts_.push_back(
      optFixSpot.Click.Add([this] { settings_.FixOptions = optFixSpot.Selected.Get(); }));
  for (std::size_t i = 0; i < kFixFields; ++i)
    acts_.push_back(chkFix[i].Click.Add([this, i] { ClickField(static_cast<FixField>(i)); }));
}

void FixForm::SetUp() {
  cboCall.Selected.Set(kNone);
  txtAddCall.Caption.Set("Call");
  for (std::size_t i = 0; i < kFixFields; ++i) {
    chkFix[i].Caption.Set(kFieldTexts[i].caption);
    Box(i).Caption.Set(kFieldTexts[i].caption);
    Box(i).ToolTip.Set(kFieldTexts[i].tip);
  }
  cmdAdd.Caption.Set("Add");
  cmdDel.Caption.Set("Delete");
  cmdDelAdd.Caption.Set("Delete and Edit");
  cmdWebUpdate.Caption.Set(kWebUpdate);
  cmdHelp.Caption.Set("Help");
  optFixSpot.Options.Set({"Merge", "Replace"});
  ShowEntry();
}

core::TextBox& FixForm::Box(std::size_t field) { return this->*kFieldTexts[field].box; }

void FixForm::Show() {
  optFixSpot.Selected.Set(settings_.FixOptions == Replace ? Replace : Merge);
  lblResult.Caption.Set({});
  Open.Set(true);
  Refresh();
}

// The selection stays with its call; other rows may have come before it.
void FixForm::Refresh() {
  SortRows();
  int place = kNone;
  for (int row = 0; const FixEntry* entry = EntryOf(row); ++row)
    if (entry->FixCall == selectedCall_) place = row;
  cboCall.Selected.Set(place);
  ShowEntry();
}

void FixForm::SortRows() {
  std::vector<std::string> rows;
  rows.reserve(list_.FixCount());
  for (const FixEntry& entry : list_.Entries()) rows.push_back(FixRow(entry));
  entries_.resize(rows.size());
  std::iota(entries_.begin(), entries_.end(), std::size_t{0});
  std::stable_sort(entries_.begin(), entries_.end(),
                   [&](std::size_t a, std::size_t b) { return rows[a] < rows[b]; });
  std::sort(rows.begin(), rows.end());
  cboCall.Options.Set(std::move(rows));
}

std::optional<std::size_t> FixForm::SelectedEntry() const {
  const int row = cboCall.Selected.Get();
  if (!EntryOf(row)) return std::nullopt;
  return entries_[static_cast<std::size_t>(row)];
}

const FixEntry* FixForm::EntryOf(int row) const {
  if (row < 0 || static_cast<std::size_t>(row) >= entries_.size()) return nullptr;
  const std::size_t entry = entries_[static_cast<std::size_t>(row)];
  return entry < list_.FixCount() ? &list_.Entries()[entry] : nullptr;
}

void FixForm::ShowEntry() {
  const FixEntry* entry = EntryOf(cboCall.Selected.Get());
  selectedCall_ = entry ? entry->FixCall : std::string();
  for (std::size_t i = 0; i < kFixFields; ++i) {
    chkFix[i].Enabled.Set(entry != nullptr);
    chkFix[i].Value.Set(entry && (entry->FixMask >> i & 1));
    chkFix[i].ForeColour.Set(entry && (entry->changed >> i & 1) ? core::kRed : core::kThemeColour);
  }
  cmdDel.Enabled.Set(entry != nullptr);
  cmdDelAdd.Enabled.Set(entry != nullptr);
}

void FixForm::ClickField(FixField field) {
  const auto entry = SelectedEntry();
  if (entry)
    list_.FlipMask(*entry, field);
  else
    errorLog_.ReportError("chkfix click", 0, "no entry is selected");
  Refresh();
}

void FixForm::PressAdd() {
  std::array<std::string, kFixFields> typed;
  std::array<std::string_view, kFixFields> fields;
  for (std::size_t i = 0; i < kFixFields; ++i)
    fields[i] = typed[i] = core::UCase(Box(i).Text.Get());
  const auto entry = MakeFixEntry(core::UCase(txtAddCall.Text.Get()), fields);
  if (!entry || !list_.Add(*entry)) {
    const auto* problem = entry ? "The list is full." : "This is no call with fields to correct.";
    errorLog_.ReportError("cmdadd fix spots", 0, problem);
    lblResult.Caption.Set(problem);
    return;
  }
  list_.SaveNewData(*entry);
  list_.delayedCBOtoFixSpotsConversion();
  lblResult.Caption.Set({});
  txtAddCall.Text.Set({});
  for (std::size_t i = 0; i < kFixFields; ++i) Box(i).Text.Set({});
}

void FixForm::PressDelete() {
  const auto entry = SelectedEntry();
  if (!entry) return;
  list_.Remove(*entry);
  list_.WriteFix();
}

void FixForm::PressDeleteAdd() {
  const FixEntry* entry = EntryOf(cboCall.Selected.Get());
  if (!entry) return;
  txtAddCall.Text.Set(entry->FixCall);
  for (std::size_t i = 0; i < kFixFields; ++i)
    Box(i).Text.Set(std::string(core::Trim(entry->fields[i])));
  PressDelete();
}

// The first press fetches the list, the next imports what has come.
void FixForm::PressWebUpdate() {
  if (auto text = std::exchange(arrived_, std::nullopt)) {
    cmdWebUpdate.Caption.Set(kWebUpdate);
    ReadFixSpots2(*text);
    return;
  }
  cmdWebUpdate.Enabled.Set(false);
  needs_.fetch(kListPath);
}

void FixForm::Arrived(std::string text) {
  arrived_ = std::move(text);
  cmdWebUpdate.Caption.Set(kReady);
  cmdWebUpdate.Enabled.Set(true);
}

void FixForm::FetchFailed() {
  cmdWebUpdate.Enabled.Set(true);
  lblResult.Caption.Set("The list could not be fetched.");
}

std::size_t FixForm::ReadFixSpots2(std::string_view text) {
  std::vector<FixEntry> entries;
  while (!text.empty() && entries.size() < FixList::kMostEntries)
    if (auto entry = ParseFixLine(core::TakeLine(text))) entries.push_back(std::move(*entry));
  const std::size_t count = entries.size();
  if (count == 0)
    errorLog_.ReportError("readfixspots2", 0, "the text holds no entry");
  else
    list_.Import(std::move(entries), optFixSpot.Selected.Get() == Replace);
  lblResult.Caption.Set(Entries(count) + " imported");
  return count;
}

}  // namespace spots
