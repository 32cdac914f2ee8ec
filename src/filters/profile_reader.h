#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "filters/profile_report.h"
#include "filters/user_settings.h"
#include "platform/scheduler.h"
#include "session/intake.h"
#include "session/keep_alive.h"
#include "session/outgoing.h"
#include "session/profile_hints.h"
#include "session/requests.h"
#include "session/session_state.h"

namespace filters {

// Reads the report of "stat/user", in which DXSpider and Zelva Cluster tell what they keep of their
// user, and completes there what is missing.
class ProfileReader {
 public:
  // Everything outlives the reader.
  ProfileReader(platform::Scheduler& scheduler, const core::Settings& settings,
                session::SessionState& state, session::Outgoing& outgoing, session::Intake& intake,
                const session::ProfileHints& hints, const session::KeepAlive& keepAlive,
                session::LoginRequests& requests, UserSettings& page);

  // The login has asked for the report.
  void AskedByLogin();
  // The session has ended.
  void Forget();

  // A line handler; true claims the line.
  bool StatUser(std::string_view line);

 private:
  enum class Phase {
    Closed,
    Open,    // the lines of the report
    Behind,  // what some nodes tell behind the line that ends it
  };

  // What the report has told so far.
  struct Report {
    bool echoOff = false;
    bool promptRight = false;
    bool english = false;
    bool grid = false;
    bool location = false;
    bool name = false;
    bool prompted = false;  // before it was over
    std::string latitude;
    std::string longitude;
  };

  // What goes to the node to complete the profile, and the pauses before it.
  struct Message {
    int pauses;
    std::string text;
  };

  bool ReadEntry(const Entry& entry);
  void ReadFilterAnswers(std::string_view line);
  bool ReadSwitch(const Entry& entry);
  bool ReadField(const Entry& entry);
  bool ReadMark(const Entry& entry);
  void ReadLatitude(const Entry& entry);
  void AtPrompt();
  void AwaitRest();
  void End();
  void Close();
  std::vector<Message> Missing(bool first) const;
  void AddEnding(bool first, int pauses, std::vector<Message>& messages) const;
  platform::Task<> SendAll(std::vector<Message> messages, std::uint64_t session);
  bool TellsNameAtPrompt() const;
  bool Wanted(session::ProfileField field, const std::string& value) const;

  platform::Scheduler& scheduler_;
  const core::Settings& settings_;
  session::SessionState& state_;
  session::Outgoing& outgoing_;
  session::Intake& intake_;
  const session::ProfileHints& hints_;
  const session::KeepAlive& keepAlive_;
  session::LoginRequests& requests_;
  UserSettings& page_;

  Phase phase_ = Phase::Closed;
  Report report_;
  bool askedByLogin_ = false;
  bool completed_ = false;  // once in this session
  bool askNameAtPrompt_ = false;
  platform::Registration rest_;  // of the report, behind a prompt
};

}  // namespace filters
