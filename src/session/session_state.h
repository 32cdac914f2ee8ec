#pragma once

#include <cstdint>
#include <string>

#include "core/controls.h"

namespace session {

// The software of the node.
enum class NodeKind { Unknown, ArCluster, Zelva, Spider, DxNet, Clx, WinCluster, Skimmer };

enum class LinkPhase { Disconnected, Trying, Connected };

// Where the session stands. One for the program; Connection says how it changes.
struct SessionState {
  bool TncMode = false;  // the session runs over the TNC, not telnet
  NodeKind Kind = NodeKind::Unknown;
  bool ArpcRefused = false;      // the node has no extended spot lines
  bool LoggedIn = false;         // the call has been sent to a login prompt
  bool SocketConnected = false;  // the connect event of this attempt has come
  bool ConnectFailed = false;    // the attempt is to be given up, and its failure shown
  bool UserDisconnected = true;  // nothing reconnects by itself until a connect
  bool ConnectEventSeen = false;
  bool LoginMsgActive = false;    // the login text is being collected
  bool LoginTextDone = false;     // the first prompt behind the login has come
  bool LoginFinished = false;     // the login sequence is complete: prompts for it mean nothing now
  bool LastSendWasUser = false;   // no prompt has come since the last text was sent
  std::string ConnectedNodeCall;  // the call that the node gave for itself
  std::string ConnectHost;        // what this attempt goes to: a name or an address

  bool IsArCluster() const { return Kind == NodeKind::ArCluster; }
  bool IsZelva() const { return Kind == NodeKind::Zelva; }
  bool IsSpider() const { return Kind == NodeKind::Spider; }
  bool IsClx() const { return Kind == NodeKind::Clx; }

  core::Property<LinkPhase> Phase{LinkPhase::Disconnected};
  core::Label txtNode;  // the state of the link in words, in the colour of its phase
};

}  // namespace session
