#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "program/desk.h"
#include "session/fake_node.h"

// Sessions that keep to a script: the whole program, all its rows, and a node that says its lines.

using Lines = std::vector<std::string>;

// What the node says in one go, piece by piece, and the lines that the program answers it with.
struct Turn {
  Lines pieces;
  Lines answers;
};

// What has become of a session.
struct Ending {
  std::string title;
  std::string txtNode;
  std::string showDx;     // the command that lists spots
  std::string lblStatus;  // what is told of the extended spot lines
  Lines flags;            // the marks of the session that stand
  Lines loginText;
  std::map<std::string, int> asked;  // of the program above the session
};

struct Script {
  std::string name;
  std::string configuration = {};  // lines behind the usual ones
  std::string password = {};
  std::vector<Turn> turns;
  Ending ending;
  std::string keepAlive;  // what the node is sent after five silent minutes

  friend void PrintTo(const Script& script, std::ostream* out) { *out << script.name; }
};

struct Played {
  std::vector<Lines> answers;  // turn by turn
  Lines rawView;
  Ending ending;
};

// The desk of K1TST-2, whose node N0NODE answers at node.example:7300.
class Stage {
 public:
  // The program has connected, the node has not said anything.
  explicit Stage(const Script& script);

  // The node says its pieces, one behind the other. Gives what it is answered.
  Lines Say(const Lines& pieces);
  Played Play(const std::vector<Turn>& turns);

  Desk desk;
  FakeNode node{desk.world, "10.1.2.3", 7300};
  program::Program* program = nullptr;
  platform::Milliseconds betweenPieces{3};

 private:
  Ending HowItEnded() const;
};

Played Play(const Script& script, platform::Milliseconds betweenPieces = platform::Milliseconds{3});

// All that the node says, as bytes.
std::string TextOf(const Script& script);
// The same script with the text cut before byte `at` of it, or before each byte.
Script CutAt(Script script, std::size_t at);
Script InSingleBytes(Script script);
