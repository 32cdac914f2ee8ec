#include "session/page_prompt.h"

#include <array>

#include "core/text.h"

namespace session {
namespace {

struct Page {
  NodeKind kind;
  std::string_view beginning;
  std::string_view never;  // the command for pages without end
};

constexpr std::array kPages = {
    Page{NodeKind::Spider, "Press Enter to continue,", "SET/PAGE 9999"},
    Page{NodeKind::DxNet, "<CR> Continue, <A> Abort", "SET/PAGE 0"},
    Page{NodeKind::DxNet, "<CR> Continuer, <A> Arreter >", "SET/PAGE 0"},
};

}  // namespace

bool PagePrompt(std::string_view line, const SessionState& state, Outgoing& outgoing,
                Intake& intake) {
  for (const Page& page : kPages) {
    if (page.kind != state.Kind || !core::StartsWith(line, page.beginning)) continue;
    intake.ForwardSuppressed = true;
    outgoing.SendAsIs(" ");
    outgoing.SendAsIs(page.never);
    return true;
  }
  return false;
}

}  // namespace session
