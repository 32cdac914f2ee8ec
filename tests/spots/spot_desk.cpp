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
