#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "session/outgoing.h"
#include "session/session_state.h"
#include "session/timers.h"
#include "session/tnc_link.h"

namespace session {

// How far the script has come with one row of steps, and the colour that its fields have for it.
struct TncStepMark {
  enum class Progress { Idle, Waiting, Answered, TimedOut };

  core::Property<Progress> progress{Progress::Idle};
  core::Property<core::Colour> ForeColour{core::kThemeColour};
};

// Walks the connect script until the cluster answers: each step sends a text to the TNC and waits
// for its reply. Also ends a session over the TNC, in whatever way its link has to be ended.
class TncScript {
 public:
  static constexpr std::size_t kMostSteps = 6;
  static constexpr int kLongestTimeOut = 65;  // seconds

  // What the script asks of the connection.
  struct Needs {
    std::function<void()> beginning;         // an attempt begins
    std::function<void()> stepBegins;        // and goes on
    std::function<void()> linked;            // the last step has its reply
    std::function<void()> drop;              // what is unread belongs to a session that is over
    std::function<void(std::string)> ended;  // the session is over; why, unless it is known
    std::function<void()> noScript;          // there is no step to begin with
  };

  TncScript(const core::Settings& settings, SessionState& state, Outgoing& outgoing,
            TncLink& tncLink, Timers& timers, Needs needs);

  bool ScriptRunning = false;
  int ScriptStep = 0;                         // the one that runs, from 0
  std::array<TncStepMark, kMostSteps> steps;  // by the row in the settings

  // Whether there is a step to connect with.
  static bool HasSteps(const core::Settings& settings) { return !StepsIn(settings).empty(); }

  // Begins the script anew, from its first step. Steps without a time-out are none.
  void Connect();
  // In TNC mode: says good-bye, has the TNC end its link, and ends the session.
  void DisconnectTNC();
  // The session has logged in: the script has done its work, wherever it was.
  void LoggedIn() { Stop(); }
  // The program has gone over to telnet: no line is a reply any more.
  void Abandon();
  // The user has chosen other colours for the phases of the link.
  void Recolour();
  // The port has gone, with all behind it: ends a session that has begun.
  void PortLost();

  // Line handler; true claims the line.
  bool Netrom(std::string_view line);

 private:
  struct Step {
    core::TncStep texts;
    std::size_t row;  // in the settings
  };

  static std::vector<Step> StepsIn(const core::Settings& settings);
  const Step& Now() const { return script_[static_cast<std::size_t>(ScriptStep)]; }
  void BeginStep();
  void Mark(TncStepMark::Progress progress);
  core::Colour ColourOf(TncStepMark::Progress progress) const;
  void Finish(std::string_view line);
  void TimedOut();
  void Stop();
  void HangUp();
  void End(std::string why);
  std::string WhyNoReply() const;

  const core::Settings& settings_;
  SessionState& state_;
  Outgoing& outgoing_;
  TncLink& tncLink_;
  Timers& timers_;
  Needs needs_;
  std::vector<Step> script_;  // as it stood when it was begun
};

}  // namespace session
