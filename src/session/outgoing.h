#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/text_page.h"
#include "platform/tcp.h"
#include "session/session_state.h"

namespace session {

// Everything that goes to the node, and what the operator sees of the traffic.
class Outgoing {
 public:
  struct Needs {
    std::function<void()> lineSent;  // told of each line that is to be sent, a lost one too
    // In TNC mode all goes this way: the text, and what stands for it in the raw view. False if it
    // is lost.
    std::function<bool(std::string_view text, std::string_view shown)> tncSend;
  };

  Outgoing(platform::TcpSocket& socket, SessionState& state, Needs needs);

  core::TextPage Text2;      // the raw view: lines received, and those sent behind "   <- "
  std::string NodePassword;  // empty: none is stored

  // Told of each text that has gone out, as it went; never of a password.
  std::function<void(std::string_view text)> onSent;

  // Sends the text in upper case.
  bool Send(std::string_view text);
  // Sends the text as it stands, but to a CLX node in lower case, with a line end behind it. False
  // if it is lost, because there is no link. While the link is being made text waits for it, and
  // counts as sent.
  bool SendAsIs(std::string_view text);
  // Sends the stored password, if there is one. It is never shown.
  void SendPassword();

  // The link is up: what waited for it goes out. It is down: what waited is lost.
  void LinkUp();
  void LinkDown() { waiting_.clear(); }

  // Adds a line to the raw view.
  void updateText2(std::string_view text) { Text2.Append(text); }

 private:
  struct Line {
    std::string text;
    bool secret;
  };

  bool Dispatch(Line line);
  bool ByTnc(const Line& line);
  void Put(Line line);
  void TellSent(const Line& line);

  platform::TcpSocket& socket_;
  SessionState& state_;
  Needs needs_;
  std::vector<Line> waiting_;
};

}  // namespace session
