#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/settings.h"
#include "session/dialect.h"
#include "spots/missed_spots.h"

namespace spots {

// Asks the node for spots: for those of a band or a call that the operator wants to see, and for
// those that were missed without a link.
class SpotRequests {
 public:
  // What the session knows at the moment.
  struct Node {
    session::NodeKind kind = session::NodeKind::Unknown;
    std::string ShowDxCommand;
    bool TncMode = false;  // a slow link, with a count of its own
  };
  struct Needs {
    std::function<Node()> node;
    std::function<MissedFilter()> filter;
    // Sends the text as it stands; false if it is lost.
    std::function<bool(std::string_view text)> sendAsIs;
    std::function<void()> listRequested;  // of a band or a call: it runs until the node has sent it
    std::function<void(bool done)> setShDxDone;
    std::function<void()> missedRequested;  // starts the time, clears what is shown of it
    std::function<void()> settingsChanged;
  };

  // The settings outlive it.
  SpotRequests(core::Settings& settings, Needs needs);

  // How many missed spots to ask for, in the link's own setting.
  core::TextBox txtGetNr;

  // The settings have been read, or the kind of link has changed.
  void Load();

  // The spots of a band, named as in the rail ("20", "MW"), in any case. "ALL" stands for those of
  // the call, and without one for the missed ones. What is lost on the way changes nothing.
  void cmdGetSpots(std::string_view bandWord, std::string_view call);

  // The missed spots. Nothing for a node that has no such request.
  void cmdMissed() { GetEm(); }
  bool GetEm();  // false: nothing was sent

 private:
  int& Count();
  void KeepCount();

  core::Settings& settings_;
  Needs needs_;
  platform::Registration typing_;
};

// The request for the spots of a band, in the words of that software.
std::string GetSpotsCommand(std::string_view bandWord, session::NodeKind kind);

}  // namespace spots
