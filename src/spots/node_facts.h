#pragma once

namespace spots {

// What the session knows of its node and the readers of spots go by.
struct NodeFacts {
  bool IsClx = false;
  bool IsWinCluster = false;
  bool KeepsLeadingBlanks = false;  // blanks that begin a comment mean something
  bool Ar17Active = false;          // the node has agreed to send extended lines
  bool Ar17Refused = false;         // the node has refused, or is of a kind that cannot
  bool SessionUp = false;
};

}  // namespace spots
