#pragma once

#include <string>
#include <vector>

#include "filters/profile_reader.h"
#include "session/session_fixture.h"

inline constexpr const char* kOwnPrompt = "%C de %M %D %T 2.4315  dxspider >";
inline constexpr const char* kSetPrompt = "set/prompt %C de %M %D %T 2.4315  dxspider >";

inline constexpr const char* kZelva = "N0NODE, a Zelva Cluster";
inline constexpr const char* kZelvaPrompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z   ZLV >";

struct Row {
  std::string label;
  std::string value;
};
using Rows = std::vector<Row>;

// A station that has asked a node for the profile, and reads it in its row.
class ProfileStation : public Station {
 public:
  // Where the node is asked at its first prompt, it has to prompt.
  explicit ProfileStation(const std::string& greeting = "running DXSpider V1.57 build 441",
                          const std::string& prompt = "");

  // The rows as a node shows them, their labels right-aligned to that width.
  void ReceiveRows(const Rows& rows, std::size_t width);
  // A report whose labels are aligned to its longest one.
  void ReceiveReport(Rows rows);
  bool Ticked(filters::Switch which) const { return page.chkSettings[which].Value.Get(); }
  std::string Told(filters::UserSettings::Pair filters::UserSettings::*field) const {
    return (page.*field)[0].Text.Get();
  }

  filters::UserSettings page;
  filters::ProfileReader reader{world.scheduler,   settings,       program.state,
                                program.outgoing,  program.intake, program.profileHints,
                                program.keepAlive, above,          page};
};

// A profile that lacks nothing, the same without a row, and with another value in one.
extern const Rows kComplete;
Rows Without(const std::string& label);
Rows With(const std::string& label, const std::string& value);
