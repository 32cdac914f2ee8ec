#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace session {

// Where lines go besides the views: the logging programs and the local network.
class LineFeed {
 public:
  virtual ~LineFeed() = default;
  // Every line that comes in, as it came.
  virtual void RawLine(std::string_view line) = 0;
  // A line that no rule keeps back, of a session that is logged in.
  virtual void SendLocal(std::string_view line) = 0;
};

// The answers to the program's own commands, which are nothing to a logging program.
class StopLists {
 public:
  void Build(std::string_view ownCall);
  bool Stops(std::string_view line, bool spider) const;

 private:
  std::vector<std::string> SuppressPrefixes;
  std::vector<std::string> SuppressSuffixes;  // on a DXSpider node only
};

}  // namespace session
