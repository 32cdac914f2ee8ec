#include "program/link_condition.h"

namespace program {
namespace {

constexpr auto kKey = "link";

}  // namespace

LinkCondition::LinkCondition(Conditions& conditions, session::Session& session)
    : conditions_(conditions), session_(session) {
  phase_ = session.state.Phase.Observe([this](session::LinkPhase) { Look(); });
  wanted_ = session.connection.AutoReconnect.Value.Observe([this](bool) { Look(); });
}

void LinkCondition::Look() {
  session::Connection& connection = session_.connection;
  const bool holds = session_.state.Phase.Get() == session::LinkPhase::Connected;
  const bool wanted = connection.AutoReconnect.Value.Get() && !session_.state.UserDisconnected;
  if (holds || !wanted || connection.WhyEnded.empty()) {
    conditions_.Clear(kKey);
    return;
  }
  // What helps stands in the bar of the link.
  conditions_.Raise(
      {.key = kKey,
       .text = "No link to the node: " + connection.WhyEnded + ". It is tried again by itself.",
       .button = {}});
}

}  // namespace program
