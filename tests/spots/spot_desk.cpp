#include "spot_desk.h"

#include "core/text.h"
#include "spots/classic_row.h"

namespace {

std::string Padded(std::string text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

}  // namespace

std::string Line::Text() const {
  std::string head = "DX de " + spotter + ":";
  if (head.size() + kHz.size() < 24) head.append(24 - head.size() - kHz.size(), ' ');
  return head + kHz + "  " + Padded(call, 12) + " " + Padded(comment, 30) + " " + time + "Z" + tail;
}

spots::SpotParts::Needs SpotDesk::Needs() {
  return {.receivers = receivers,
          .countryFilter = receivers,
          .nodeFacts = [this] { return node; },
          .slotSwitches = [] { return spots::SlotSwitches{}; },
          .ar17Probing = [] { return false; },
          .nodeCall = [] { return std::string_view("N0NODE"); },
          .showDxCommand = [] { return std::string_view("sh/dx"); },
          .tncMode = [] { return false; },
          .multiNode = [] { return false; },
          .keepsBottomOfBand = [this] { return settings.BobDx; },
          .RcvdPrompt = [](std::string_view line) { return line.ends_with(" >"); },
          .latency = [] { return platform::Milliseconds{0}; },
          .send =
              [this](std::string_view text) {
                if (text.empty())
                  ++settlingLines;
                else
                  sent.emplace_back(text);
              },
          .sendAsIs =
              [this](std::string_view text) {
                sent.emplace_back(text);
                return true;
              },
          .holdIntake = [] { return platform::Registration(); },
          .showRaw = [this](std::string_view line) { rawText.emplace_back(line); },
          .addToRawText = [this](std::string_view remark) { rawText.emplace_back(remark); },
          .logTrouble = [](platform::Files::Fault) {},
          .tell = [this](std::string_view text) { messages.emplace_back(text); },
          .updateMembers = [](spots::Membership::List) {},
          .fetchFixes = [](std::string_view) {},
          .openFixPage = [](std::string_view) {},
          .delayedWriteCfg = [this] { ++writes; },
          .onFault = [](std::string_view, std::string_view) {}};
}

void SpotDesk::ReceiveCalls(const Texts& calls, const std::string& kHz) {
  for (const std::string& call : calls) Receive({.kHz = kHz, .call = call});
}

SpotDesk::Texts SpotDesk::CallsOf(const std::deque<spots::TableRow>& rows) {
  Texts calls;
  for (const spots::TableRow& row : rows)
    calls.emplace_back(row.IsStars() ? "*" : spots::LookUpCalls(row).call);
  return calls;
}

std::string SpotDesk::LastRow() const {
  const auto& rows = table.RtbDx.Rows();
  return rows.empty() ? std::string() : std::string(rows.back().Text());
}
