#pragma once

#include <functional>
#include <string_view>

namespace spots {

// A switch of the node's, as far as the session knows.
enum class NodeSwitch { Unknown, Off, On };

// What a DXSpider node may put before and behind the time of a line.
struct SlotSwitches {
  NodeSwitch State = NodeSwitch::Unknown;
  NodeSwitch Grid = NodeSwitch::Unknown;
  NodeSwitch Cq = NodeSwitch::Unknown;
  NodeSwitch Itu = NodeSwitch::Unknown;

  // The node puts nothing there.
  bool AllOff() const {
    return State == NodeSwitch::Off && Grid == NodeSwitch::Off && Cq == NodeSwitch::Off &&
           Itu == NodeSwitch::Off;
  }
};

// What the words that a node adds to a line are told from words of the comment by.
struct WordFacts {
  bool CountriesLoaded = false;
  // Whether a word is a prefix of the country table, in any case. Asked only while it is loaded.
  std::function<bool(std::string_view word)> isPrefix = nullptr;
  SlotSwitches Slots = {};
};

}  // namespace spots
