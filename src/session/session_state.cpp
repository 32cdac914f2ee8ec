#include "session/session_state.h"

namespace session {

void SessionState::Recognise(NodeKind kind) {
  Kind = kind;
  NodePrompt = DialectOf(kind).prompt;
  ShowDxCommand = DialectOf(kind).showDx;
}

bool SessionState::Ar17Refused() const {
  if (ArpcRefused || !DialectOf(Kind).hasAr17) return true;
  if (Ar17Silent && !ArpcAsked) return true;
  return Kind == NodeKind::Unknown && Ar17Overdue;
}

bool SessionState::RcvdAnyPrompt(std::string_view line) const {
  return RcvdPrompt(line) || (IsSpider() && EndsInPrompt(line, Kind, "dxspider >"));
}

}  // namespace session
