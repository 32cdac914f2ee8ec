#include "program/views.h"

#include <exception>
#include <string>

namespace program {
namespace {

struct View {
  std::string_view caption;
  std::string_view name;
  bool onWinCluster;
  bool isThere;
};

constexpr std::array<View, Views::kTabs> kViews = {{
    {"Settings", "Technical", true, true},
    {"Country", "Country", false, false},
    {"State", "State", false, false},
    {"Bands", "Bands", false, false},
    {"Users", "Users", true, false},
    {"DX", "Dx", true, true},
    {"WWV", "WWV", true, false},
    {"Login Msg", "Talk", true, true},
    {"Ann", "Announce", true, false},
    {"Wx Plus", "Wx", false, false},
    {"Mail", "Mail", false, false},
}};

const View& ViewOf(int tab) { return kViews[static_cast<std::size_t>(tab)]; }

bool IsTab(int tab) { return tab >= 0 && tab < Views::kTabs; }

}  // namespace

Views::Views(Needs needs) : needs_(std::move(needs)) {
  for (int each = 0; each < kTabs; ++each) RestoreCaption(each);
  FollowNode();
  Show(Dx);
}

void Views::Begin(int wanted) {
  const bool good = IsTab(wanted) && tab[static_cast<std::size_t>(wanted)].Enabled.Get();
  Show(good ? wanted : Dx);
}

void Views::Choose(int wanted) {
  if (!IsTab(wanted)) return;
  if (!Offered(wanted)) wanted = Dx;
  const int from = onShow.Get();
  if (wanted == from || !tab[static_cast<std::size_t>(wanted)].Enabled.Get()) return;
  try {
    Change(from, wanted);
  } catch (const std::exception& fault) {
    needs_.onFault("SSTab1", fault.what());
  }
  needs_.delayedWriteCfg();
}

void Views::Change(int from, int to) {
  Show(to);
  Changed.Tell({from, to});
  RestoreCaption(to);
  if (from == Dx) RestoreCaption(Dx);
}

void Views::FollowNode() {
  for (int each = 0; each < kTabs; ++each) {
    core::Label& label = tab[static_cast<std::size_t>(each)];
    const bool isThere = ViewOf(each).isThere;
    label.Enabled.Set(isThere && Offered(each));
    label.ToolTip.Set(!isThere         ? "This view is not part of this version."
                      : !Offered(each) ? "WinCluster does not offer this view."
                                       : "");
  }
  if (!Offered(onShow.Get())) Choose(Dx);
}

bool Views::Offered(int each) const { return ViewOf(each).onWinCluster || !needs_.winCluster(); }

void Views::Show(int which) {
  SetTabType(which);
  onShow.Set(which);
}

void Views::SetTabType(int which) { tabType_ = ViewOf(which).name; }

void Views::RestoreCaption(int each) {
  tab[static_cast<std::size_t>(each)].Caption.Set(std::string(ViewOf(each).caption));
}

}  // namespace program
