#include "spots/reject_lists.h"

#include <algorithm>
#include <utility>

#include "core/call.h"
#include "core/quoted.h"
#include "core/text.h"
#include "spots/state_codes.h"

namespace spots {
namespace {

using Fault = platform::Files::Fault;

// By Kind.
constexpr std::array<std::string_view, RejectLists::kKinds> kKindWords = {"Dx", "Call", "Comment"};

constexpr auto kBlank = " \t\r\n";

// How the file gives a text back.
std::string AsKept(std::string_view text) {
  std::string kept = core::QuotedField(text);
  std::erase(kept, '"');
  return kept;
}

}  // namespace

RejectLists::RejectLists(platform::Files& files, const core::Settings& settings, std::string path)
    : file(files, std::move(path)), settings_(settings) {
  lblRejected.Visible.Set(false);
}

void RejectLists::ReadReject() {
  for (const Kind kind : {kDx, kCall, kComment}) {
    lstReject[kind].Clear();
    Forget(kind);
  }
  const auto content = file.Read();
  if (content.fault != Fault::None) return;
  const Taken taken = Take(std::string_view(content.bytes).substr(0, kMostBytes));
  if (taken.full || content.bytes.size() > kMostBytes) return file.Found(FileState::TooLong, true);
  const bool torn = IsTorn(content.bytes);
  const bool noList = taken.passedOver && taken.lines == 0;
  file.Found(torn || noList ? FileState::Damaged : FileState::Read, torn || taken.passedOver);
}

RejectLists::Taken RejectLists::Take(std::string_view text) {
  Taken taken;
  while (!text.empty()) TakeLine(core::TakeLine(text), taken);
  return taken;
}

void RejectLists::TakeLine(std::string_view line, Taken& taken) {
  const core::RecordPair pair = core::SplitRecord(line);
  const auto word = std::find(kKindWords.begin(), kKindWords.end(), pair.first);
  if (word == kKindWords.end()) {
    taken.passedOver = taken.passedOver || line.find_first_not_of(kBlank) != line.npos;
    return;
  }
  ++taken.lines;
  const auto kind = static_cast<Kind>(word - kKindWords.begin());
  if (IsFull(kind))
    taken.full = true;
  else
    Add(kind, pair.second);
}

Fault RejectLists::WriteReject() {
  std::string text;
  for (const Kind kind : {kDx, kCall, kComment})
    for (const std::string& entry : lstReject[kind].Items())
      text += core::Record({core::QuotedField(kKindWords[kind]), core::QuotedField(entry)});
  return file.Write(text);
}

bool RejectLists::Add(Kind kind, std::string_view text) {
  std::string entry = AsKept(text);
  if (IsFull(kind)) return false;
  if (core::Trim(entry).empty() || entries_[kind].Exact(entry)) return false;
  Index(kind, entry);
  lstReject[kind].Add(std::move(entry));
  return true;
}

void RejectLists::Remove(Kind kind, std::size_t place) {
  lstReject[kind].Remove(place);
  Forget(kind);
  for (const std::string& entry : lstReject[kind].Items()) Index(kind, entry);
}

void RejectLists::Forget(Kind kind) {
  entries_[kind].Clear();
  if (kind == kComment) words_.Clear();
}

void RejectLists::Index(Kind kind, const std::string& entry) {
  entries_[kind].Add(entry);
  if (kind == kComment) words_.Add(entry);
}

bool RejectLists::RejectDX(const Spot& spot) {
  if (!settings_.RejSpots) return false;
  Reason reason = ReasonOf(spot);
  if (reason) Count(std::move(*reason));
  return reason.has_value();
}

RejectLists::Reason RejectLists::ReasonOf(const Spot& spot) {
  if (HasInvalidCountry(spot)) return "";
  if (const auto dx = entries_[kDx].FirstMatch(spot.DxCall))
    return "Rejected by DX Call (\"" + Entry(kDx, *dx) + "\") = ";
  if (const auto call = FindCall(spot)) return "Rejected by Call (\"" + Entry(kCall, *call) + "\")";
  if (const auto word = words_.FirstIn(spot.Comment))
    return "Rejected by Comment (\"" + Entry(kComment, *word) + "\")";
  return {};
}

// A state names its country too.
bool RejectLists::HasInvalidCountry(const Spot& spot) const {
  return settings_.RejectInvalidCountry && CountryWordSeen.Get() &&
         ((spot.DxCty.empty() && !IsStateCode(core::Trim(spot.DxState))) || spot.DxCty == "QQ" ||
          spot.DxCty == "??");
}

// An entry that is the spotter goes before any that is the node.
RejectedCalls::Place RejectLists::FindCall(const Spot& spot) const {
  const RejectedCalls& calls = entries_[kCall];
  if (calls.Empty()) return {};
  const auto spotter = calls.Exact(spot.Spotter);
  return spotter ? spotter : calls.Exact(core::Nossid(spot.Node));
}

void RejectLists::Count(std::string reason) {
  ++rejected_;
  lblRejected.Caption.Set("Dx Spots Rejected = " + std::to_string(rejected_));
  lblRejected.ToolTip.Set(std::move(reason));
  lblRejected.Visible.Set(true);
}

const std::string& RejectLists::Entry(Kind kind, std::size_t place) const {
  return lstReject[kind].Items()[place];
}

bool RejectLists::RejectAnn(std::string_view to, std::string_view from, std::string_view comment) {
  if (!settings_.RejSpots) return false;
  return entries_[kDx].Exact(to) || entries_[kCall].Exact(from) || words_.FirstIn(comment);
}

}  // namespace spots
