#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/controls.h"
#include "session/dialect.h"

namespace session {

enum class LinkPhase { Disconnected, Trying, Connected };

// What is known of the node at the other end, and how far its login has come. Ends with the
// session.
struct NodeState {
  NodeKind Kind = NodeKind::Unknown;
  std::string NodePrompt{DialectOf(NodeKind::Unknown).prompt};
  std::string ShowDxCommand{DialectOf(NodeKind::Unknown).showDx};
  bool UseMyDx = false;            // the node lists spots through the user's own filter
  bool LoginTextDone = false;      // the first prompt behind the login has come
  bool LoginFinished = false;      // the login sequence is complete
  bool Prompted = false;           // the node has prompted behind the login
  bool SunDone = false;            // the sun times have been asked for
  bool FirstPromptDone = false;    // an AR-Cluster has been asked for filters and settings
  bool ArpcAsked = false;          // the node sends extended spot lines
  bool ArpcRefused = false;        // the node has said, or its software says, that it does not
  bool Ar17Overdue = false;        // no software was named in time to wait for them
  bool Ar17Silent = false;         // an AR-Cluster did not answer in time, or prompt to be asked
  bool NoEmailSet = false;         // the node greets with the name: it knows the operator
  bool RequestedSettings = false;  // "sh/settings" has been sent
  bool NodeSentPassword = false;   // the password was sent behind the login
};

// Where the session stands. One for the program; Connection says how it changes.
struct SessionState : NodeState {
  std::uint64_t Sessions = 0;    // that have ended: tells one from the next
  bool TncMode = false;          // the session runs over the TNC, not telnet
  bool LoggedIn = false;         // the call has been sent to a login prompt
  bool SocketConnected = false;  // the connect event of this attempt has come
  bool ConnectFailed = false;    // the attempt is to be given up, and its failure shown
  bool UserDisconnected = true;  // nothing reconnects by itself until a connect
  bool ConnectEventSeen = false;
  bool LoginMsgActive = false;    // the login text is being collected
  bool WantMissedSpots = false;   // the spots missed without a link are to be asked for
  bool FirstConnect = false;      // and have not been yet
  bool SysopLink = false;         // the node is the operator's own
  std::string TempCall;           // the call to log in with in place of one's own; usually empty
  bool LastSendWasUser = false;   // no prompt has come since the last text was sent
  std::string ConnectedNodeCall;  // the call that the node gave for itself
  std::vector<std::string> KnownNodes;  // the connected node, then those it told of
  std::string ConnectHost;              // what this attempt goes to: a name or an address

  bool IsArCluster() const { return Kind == NodeKind::ArCluster; }
  bool IsZelva() const { return Kind == NodeKind::Zelva; }
  bool IsSpider() const { return Kind == NodeKind::Spider; }
  bool IsDxNet() const { return Kind == NodeKind::DxNet; }
  bool IsClx() const { return Kind == NodeKind::Clx; }
  bool IsWinCluster() const { return Kind == NodeKind::WinCluster; }
  bool IsSkimmer() const { return Kind == NodeKind::Skimmer; }

  // The node has named its software.
  void Recognise(NodeKind kind);
  // Everything about the node is forgotten.
  void ForgetNode() { static_cast<NodeState&>(*this) = {}; }

  // Whether no extended spot lines are to be waited for.
  bool Ar17Refused() const;
  // Whether what the node asks at a login still means something. Nobody may draw out the password
  // behind it.
  bool LoginRuns() const { return !LoginFinished && !Prompted; }
  // Whether the line is the node's prompt.
  bool RcvdPrompt(std::string_view line) const { return EndsInPrompt(line, Kind, NodePrompt); }
  // The same, where a DXSpider's prompt counts too that the node has not been told to change yet.
  bool RcvdAnyPrompt(std::string_view line) const;
  // The call that the node knows the operator by; `myCall` is his own.
  const std::string& LoginCall(const std::string& myCall) const {
    return TempCall.empty() ? myCall : TempCall;
  }

  core::Property<LinkPhase> Phase{LinkPhase::Disconnected};
  core::Label txtNode;  // the state of the link in words, in the colour of its phase
};

}  // namespace session
