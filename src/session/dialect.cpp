#include "session/dialect.h"

#include <algorithm>

#include "core/text.h"

namespace session {
namespace {

constexpr std::array<std::string_view, 5> kDirectory = {"Dir", "Dir/500", "Dir/Bulletin", "Dir/New",
                                                        "Dir/Own"};
constexpr std::array<std::string_view, 5> kDxNetDirectory = {"LL 10", "LL 40", "LL 500", "LN",
                                                             "LM"};

// In the order of the kinds.
constexpr std::array<Dialect, 8> kDialects = {{
    {NodeKind::Unknown, "", "", "arc >", "sh/dx", true, kDirectory},
    {NodeKind::ArCluster, "ARC", "AR-Cluster", "arc >", "sh/dx", true, kDirectory},
    {NodeKind::Zelva, "Zelva Cluster", "Zelva Cluster", "ZLV >", "sh/mydx", false, kDirectory},
    {NodeKind::Spider, "Spider", "DXSpider", "  dxspider >", "sh/dx", false, kDirectory},
    {NodeKind::DxNet, "DxNet", "DxNet", "DxNet>", "sh/dx", false, kDxNetDirectory},
    {NodeKind::Clx, "CLX", "CLX", " clx >", "sh/dx", false, kDirectory},
    {NodeKind::WinCluster, "WinCluster", "WinCluster", "WinCluster>", "sh/dx", false, kDirectory},
    {NodeKind::Skimmer, "", "Skimmer", " >", "sh/dx", false, kDirectory},
}};

constexpr bool KindsAreInOrder() {
  for (std::size_t i = 0; i < kDialects.size(); ++i)
    if (static_cast<std::size_t>(kDialects[i].kind) != i) return false;
  return true;
}
static_assert(KindsAreInOrder());

struct Mark {
  std::string_view text;
  bool anyCase;
  NodeKind kind;
};

// In the order of looking: the first that a line holds decides.
constexpr std::array kMarks = {
    Mark{"Zelva Cluster", false, NodeKind::Zelva},
    Mark{"ZLV >", false, NodeKind::Zelva},
    Mark{"AR-Cluster", false, NodeKind::ArCluster},
    Mark{" arc >", false, NodeKind::ArCluster},
    Mark{"DXSpider", true, NodeKind::Spider},
    Mark{"DxNet.", true, NodeKind::DxNet},
    Mark{" CLX", true, NodeKind::Clx},
    Mark{"WinCluster", true, NodeKind::WinCluster},
    Mark{"Skimmer Server", true, NodeKind::Skimmer},
    Mark{"CW Skimmer", true, NodeKind::Skimmer},
};

bool Holds(std::string_view line, const Mark& mark) {
  return mark.anyCase ? core::InStrIgnoringCase(line, mark.text) > 0
                      : core::InStr(line, mark.text) > 0;
}

// A line of DXSpider's report about a user shows the prompt that he has chosen.
bool ShowsPrompt(std::string_view line) {
  return core::StartsWith(core::LTrim(line), "Required Prompt:");
}

}  // namespace

const Dialect& DialectOf(NodeKind kind) { return kDialects[static_cast<std::size_t>(kind)]; }

NodeKind RecognisedIn(std::string_view line) {
  const auto found = std::find_if(kMarks.begin(), kMarks.end(),
                                  [line](const Mark& mark) { return Holds(line, mark); });
  return found == kMarks.end() ? NodeKind::Unknown : found->kind;
}

bool EndsInPrompt(std::string_view line, NodeKind kind, std::string_view prompt) {
  if (ShowsPrompt(line)) return false;
  if (core::EndsWith(line, prompt)) return true;
  return kind == NodeKind::DxNet && (core::EndsWith(line, "=>") || core::EndsWith(line, " >"));
}

}  // namespace session
