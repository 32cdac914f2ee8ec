#include "profile_station.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

ProfileStation::ProfileStation(const std::string& greeting, const std::string& prompt) {
  settings.MyName = "ANNA";
  settings.MyQth = "Newington, CT";
  settings.MyGrid = "FN31";
  settings.MyLocation = "41 42 N 72 43 W";
  settings.HomeCluster = "N0HOME";
  on["Third"] = [this](std::string_view line) {
    return reader.StatUser(line) ? Claim::Tail : Claim::None;
  };
  Connect();
  ReceiveBytes("login: ");
  Receive("");
  Receive("K1TST-2 de N0NODE 20-Nov-2026 2101Z");
  Receive(greeting);
  if (!prompt.empty()) Receive(prompt);
  if (profileAsked > 0) reader.AskedByLogin();
  Sent();
  log.entries.clear();
}

void ProfileStation::ReceiveRows(const Rows& rows, std::size_t width) {
  for (const Row& row : rows) {
    const std::string blanks(width - std::min(width, row.label.size()), ' ');
    Receive(blanks + row.label + ": " + row.value);
  }
}

void ProfileStation::ReceiveReport(Rows rows) {
  rows.insert(rows.begin(), {"Callsign", "K1TST-2"});
  rows.push_back({"Type of User", "U"});
  std::size_t width = 0;
  for (const Row& row : rows) width = std::max(width, row.label.size());
  ReceiveRows(rows, width);
  LetPass(2s);
}

const Rows kComplete = {{"Home Node", "N0HOME"},
                        {"Language", "en"},
                        {"Location", "41 42 N 72 43 W"},
                        {"Locator", "FN31"},
                        {"Name", "ANNA"},
                        {"Req Echo", "No"},
                        {"Required Prompt", kOwnPrompt}};

Rows Without(const std::string& label) {
  Rows rows = kComplete;
  std::erase_if(rows, [&label](const Row& row) { return row.label == label; });
  return rows;
}

Rows With(const std::string& label, const std::string& value) {
  Rows rows = kComplete;
  for (Row& row : rows)
    if (row.label == label) row.value = value;
  return rows;
}
