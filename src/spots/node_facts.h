#pragma once

#include "session/dialect.h"

namespace spots {

// What the session knows of its node and the readers of spots go by.
struct NodeFacts {
  session::NodeKind kind = session::NodeKind::Unknown;
  bool Ar17Active = false;   // the node has agreed to send extended lines
  bool Ar17Refused = false;  // the node has refused, or is of a kind that cannot
  bool SessionUp = false;

  bool IsZelva() const { return kind == session::NodeKind::Zelva; }
  bool IsSpider() const { return kind == session::NodeKind::Spider; }
  bool IsArCluster() const { return kind == session::NodeKind::ArCluster; }
  bool IsClx() const { return kind == session::NodeKind::Clx; }
  bool IsWinCluster() const { return kind == session::NodeKind::WinCluster; }
  // Blanks that begin a comment mean something.
  bool KeepsLeadingBlanks() const { return kind == session::NodeKind::Skimmer; }
};

}  // namespace spots
