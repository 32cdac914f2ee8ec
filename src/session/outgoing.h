#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/text_page.h"
#include "platform/tcp.h"

namespace session {

// Everything that goes to the node, and what the operator sees of the traffic.
class Outgoing {
 public:
  // `lineSent` is told of each line that is to be sent, a lost one too, as the raw view shows it.
  Outgoing(platform::TcpSocket& socket, std::function<void(std::string_view text)> lineSent)
      : socket_(socket), lineSent_(std::move(lineSent)) {}

  core::TextPage Text2;      // the raw view: lines received, and those sent behind "   <- "
  std::string NodePassword;  // empty: none is stored

  // Sends the text in upper case.
  bool Send(std::string_view text);
  // Sends the text as it stands, with a line end behind it. False if it is lost, because there is
  // no link. While the link is being made text waits for it, and counts as sent.
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
    std::string shown;
  };

  bool Dispatch(Line line);
  void Put(const Line& line);

  platform::TcpSocket& socket_;
  std::function<void(std::string_view text)> lineSent_;
  std::vector<Line> waiting_;
};

}  // namespace session
