#pragma once

#include <array>
#include <string_view>

namespace session {

// The software of the node.
enum class NodeKind { Unknown, ArCluster, Zelva, Spider, DxNet, Clx, WinCluster, Skimmer };

// What one software differs in from the others, as far as it is the same in all its versions.
struct Dialect {
  NodeKind kind;
  std::string_view titleWord;  // behind the node's call in the title of the window
  std::string_view software;   // what it calls itself
  std::string_view prompt;     // how its prompt ends, before the node is told otherwise
  std::string_view showDx;     // the command that lists spots
  bool hasAr17;                // may have the extended spot lines
  std::array<std::string_view, 5> directory;  // its commands for lists of mail; empty: the usual
};

// An unknown node is spoken to like an AR-Cluster.
const Dialect& DialectOf(NodeKind kind);

// The software that a line of a node's login text names; Unknown if it names none.
NodeKind RecognisedIn(std::string_view line);

// Whether the line is the node's prompt. `prompt` is the prompt word in force.
bool EndsInPrompt(std::string_view line, NodeKind kind, std::string_view prompt);

}  // namespace session
