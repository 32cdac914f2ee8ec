#pragma once

#include <deque>
#include <string>
#include <string_view>

namespace session {

// Tells a node's echo of a command from what it has to say. Some send every command back as a line
// of its own.
class Echoes {
 public:
  void Sent(std::string_view text);
  // Whether the line is the echo of the oldest text that has not come back yet. That is done with
  // then.
  bool IsEcho(std::string_view line);
  // The node has prompted: it has dealt with one more text, whether that came back or not. The
  // first prompt of a session answers nothing that was sent.
  void Prompted();
  // A new session.
  void Forget();

 private:
  struct Text {
    std::string trimmed;
    bool cameBack = false;
    int prompts = 0;  // that have come since it was sent
  };

  std::deque<Text> pending_;
  bool prompted_ = false;
  bool echoing_ = false;  // something has come back in this session
};

}  // namespace session
