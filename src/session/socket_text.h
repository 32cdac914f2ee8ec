#pragma once

#include <string>
#include <string_view>

#include "platform/tcp.h"

namespace session {

// The state of the link in the words that stand in front of the node's call.
std::string StateText(platform::SocketState state, bool loggedIn);

// The node's call from the line by which it greets `ownCall`, in upper case: " de K1TST N0NODE ..."
// or "K1TST de N0NODE ...". Some nodes send their greeting unexpanded, "%C de %M": then it is
// `chosenNode`. Empty for any other line.
std::string GreetingCall(std::string_view line, std::string_view ownCall,
                         std::string_view chosenNode);

}  // namespace session
