#include "spots/fix_list.h"

#include <array>
#include <utility>

#include "core/file_fault.h"
#include "core/quoted.h"

namespace spots {
namespace {

using Fault = platform::Files::Fault;

struct Correction {
  FixField field;
  bool ShownColumns::*column;
  std::string& (*value)(FixTarget&);
  bool spiderOnly;
};

constexpr std::array<Correction, kFixFields> kCorrections = {{
    {kFixCty, &ShownColumns::DxCty, [](FixTarget& t) -> std::string& { return t.cty; }, false},
    {kFixState, &ShownColumns::DxState, [](FixTarget& t) -> std::string& { return t.state; }, true},
    {kFixCq, &ShownColumns::DxCq, [](FixTarget& t) -> std::string& { return t.cq; }, false},
    {kFixItu, &ShownColumns::DxItu, [](FixTarget& t) -> std::string& { return t.itu; }, false},
    {kFixGrid, &ShownColumns::DxGrid, [](FixTarget& t) -> std::string& { return t.grid; }, false},
}};

unsigned Bit(FixField field) { return 1u << field; }

}  // namespace

FixList::FixList(platform::Files& files, platform::Scheduler& scheduler, core::ErrorLog& errorLog,
                 std::string folder)
    : file(files, folder + "/fixspots.dat"),
      files_(files),
      scheduler_(scheduler),
      errorLog_(errorLog),
      path_(std::move(folder) + "/fixspots.dat") {}

void FixList::ReadFixSpots() {
  Clear();
  const auto content = file.Read();
  if (content.fault == Fault::None)
    Take(content.bytes);
  else if (content.fault != Fault::NotFound)
    Report("Form_load", content.fault);
  Changed.Tell();
}

void FixList::Take(std::string_view text) {
  const bool torn = IsTorn(text);
  bool foreign = false;
  while (!text.empty()) {
    const std::string_view line = core::TakeLine(text);
    auto entry = ParseFixLine(line);
    foreign = foreign || (!entry && !IsFixHeading(line));
    if (!entry) continue;
    if (FixCount() == kMostEntries) return file.Found(FileState::TooLong, true);
    if (IsFixRow(line)) delayedCBOtoFixSpotsConversion();
    Append(std::move(*entry));
  }
  const bool noList = foreign && entries_.empty();
  file.Found(torn || noList ? FileState::Damaged : FileState::Read, torn || foreign);
}

bool FixList::ApplySpotFix(std::string_view call, FixTarget target, const FixRules& rules) {
  const auto found = index_.Find(call);
  if (!found) return false;
  FixEntry& entry = entries_[*found];
  const unsigned bits = Correct(entry, target, rules);
  if (!rules.ShDxCollecting) {
    if (bits == 0) return true;
    lblFixes.Caption.Set(std::to_string(++fixes_));
  }
  if (!rules.MultiNode || !rules.DdeOutput) Note(entry, bits);
  return true;
}

// Gives the bits of the fields that it has changed.
unsigned FixList::Correct(FixEntry& entry, FixTarget target, const FixRules& rules) {
  unsigned bits = 0;
  for (const Correction& each : kCorrections) {
    if (!(rules.shown.*each.column) || (each.spiderOnly && !rules.node.IsSpider())) continue;
    const std::string& right = entry.fields[each.field];
    std::string& value = each.value(target);
    if (right.empty() || right == value) continue;
    value = right;
    bits |= Bit(each.field);
  }
  if ((entry.changed | bits) != entry.changed) TellLater();
  entry.changed |= bits;
  return bits;
}

// In the steady state an entry has long been noted, and nothing is left to do.
void FixList::Note(FixEntry& entry, unsigned bits) {
  if (!std::exchange(entry.used, true)) TellLater();
  if ((entry.FixMask | bits) == entry.FixMask) return;
  entry.FixMask |= bits;
  delayedCBOtoFixSpotsConversion();
}

bool FixList::Add(FixEntry entry) {
  const auto older = index_.Of(entry);
  if (!older && FixCount() >= kMostEntries) return false;
  if (older) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(*older));
    Reindex();
  }
  Append(std::move(entry));
  Changed.Tell();
  return true;
}

void FixList::Import(std::vector<FixEntry> entries, bool replace) {
  if (replace) {
    Clear();
    file.GiveUp();
  }
  for (FixEntry& entry : entries) Merge(std::move(entry));
  WriteFix();
  Changed.Tell();
}

void FixList::Merge(FixEntry entry) {
  const auto older = index_.Of(entry);
  if (older) {
    entry.FixMask |= entries_[*older].FixMask;
    entry.used = entry.used || entries_[*older].used;
    entries_[*older] = std::move(entry);
  } else if (FixCount() < kMostEntries) {
    Append(std::move(entry));
  }
}

void FixList::Remove(std::size_t index) {
  if (index >= FixCount()) return;
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
  Reindex();
  Changed.Tell();
}

void FixList::Clear() {
  entries_.clear();
  index_.Clear();
}

void FixList::FlipMask(std::size_t index, FixField field) {
  if (index >= FixCount()) return;
  entries_[index].FixMask ^= Bit(field);
  delayedCBOtoFixSpotsConversion();
}

void FixList::Append(FixEntry entry) {
  index_.Add(entry, entries_.size());
  entries_.push_back(std::move(entry));
}

void FixList::Reindex() {
  index_.Clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) index_.Add(entries_[i], i);
}

// A file that someone has edited may lack the end of its last line.
void FixList::SaveNewData(const FixEntry& entry) {
  const std::string older = files_.Read(path_).bytes;
  const bool open = !older.empty() && older.back() != '\n';
  const Fault fault = files_.Append(path_, (open ? "\r\n" : "") + FixRow(entry) + "\r\n");
  if (fault != Fault::None) Report("SaveNewData", fault);
}

void FixList::WriteFix() {
  const Fault fault = file.Write(Text());
  unwritten_ = fault != Fault::None;
  if (unwritten_) Report("writefix", fault);
}

void FixList::Report(std::string_view where, platform::Files::Fault fault) {
  const auto [number, description] = core::NameOf(fault);
  errorLog_.ReportError(where, number, description);
}

std::string FixList::Text() const {
  std::vector<std::string> rows;
  rows.reserve(entries_.size());
  for (const FixEntry& entry : entries_) rows.push_back(FixRow(entry));
  return CBOtoFixSpotsConversion(rows);
}

void FixList::delayedCBOtoFixSpotsConversion() {
  unwritten_ = true;
  TellLater();
}

// The delay runs from the first of a burst: a contest never puts it off.
void FixList::TellLater() {
  if (std::exchange(pending_, true)) return;
  due_ = scheduler_.After(kWriteDelay, [this] { Due(); });
}

void FixList::Due() {
  pending_ = false;
  if (unwritten_) WriteFix();
  Changed.Tell();
}

void FixList::Flush() {
  due_.Release();
  pending_ = false;
  if (unwritten_) WriteFix();
}

}  // namespace spots
