#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "core/controls.h"
#include "platform/tasks.h"

namespace program {

// SSTab1: the views behind the tabs, and which one is on show.
class Views {
 public:
  enum Tab { Settings, Country, State, Bands, Users, Dx, Wwv, LoginMsg, Ann, Wx, Mail, kTabs };

  struct Needs {
    std::function<bool()> winCluster;  // whether the node is one
    std::function<void()> delayedWriteCfg;
    // What one of those that hear of a change has failed with; the change holds.
    platform::FaultHandler onFault = [](std::string_view, std::string_view) {};
  };

  explicit Views(Needs needs);

  // A tab counts what came unseen in its caption ("DX = 12"). One that is disabled says why.
  std::array<core::Label, kTabs> tab;
  core::Property<int> onShow{Dx};

  // From one view to another. Told when the view's name is set and while the caption of the view
  // that is entered still counts. The name is set before onShow tells.
  struct Step {
    int from;
    int to;
  };
  core::Observers<const Step&> Changed;

  // The fixed name of the view on show, as SetTabType stores it; captions count, names do not.
  std::string_view TabType() const { return tabType_; }

  // The one to begin with. Which is Dx where that tab can't be had.
  void Begin(int wanted);
  // The user's act, or a rule's. A disabled tab is not to be had; one that the node's software does
  // not offer gives Dx.
  void Choose(int wanted);
  // The node is known, or another. A view that it does not offer is left.
  void FollowNode();

 private:
  bool Offered(int each) const;
  void Change(int from, int to);
  void Show(int which);
  void SetTabType(int which);
  void RestoreCaption(int each);

  Needs needs_;
  std::string_view tabType_;
};

}  // namespace program
