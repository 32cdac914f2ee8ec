#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "core/settings.h"
#include "session/outgoing.h"
#include "session/session_state.h"

namespace session {

// What a node keeps of its user.
enum class ProfileField { Name, Qth, Location, Grid, HomeNode, Email };

// Answers what a node asks its user about himself from what the program knows, so that a first
// login needs no typing. Each question is answered once a session.
class ProfileHints {
 public:
  ProfileHints(const core::Settings& settings, SessionState& state, Outgoing& outgoing)
      : settings_(settings), state_(state), outgoing_(outgoing) {}

  // Line handlers; true claims the line.
  bool NoName(std::string_view line);
  bool SetEmail(std::string_view line);
  bool YourInfo(std::string_view line);

  // Whether the field has gone to the node in this session.
  bool Answered(ProfileField field) const { return answered_.contains(field); }

  // The session has ended.
  void Forget() { answered_.clear(); }

 private:
  const std::string& Value(ProfileField field) const;
  bool Acknowledged(std::string_view line) const;
  bool AnswerYesOrNo(std::string_view line);
  bool AnswerPlaceholder(std::string_view line);
  bool AnswerQuestion(std::string_view line);
  bool AnswerLocation();
  bool Answer(ProfileField field, std::string_view command);

  const core::Settings& settings_;
  SessionState& state_;
  Outgoing& outgoing_;
  std::set<ProfileField> answered_;
};

}  // namespace session
