#pragma once

#include <array>
#include <string_view>

namespace session {

struct BuiltInNode {
  std::string_view call;
  std::string_view host;  // empty: that of the endpoints
  std::string_view port;
};

// Comes with the program, so that there is always one to talk to.
inline constexpr BuiltInNode kPracticeNode = {"N0DE-1", "127.0.0.1", "7373"};

// The nodes that every directory begins with. The first whose host is known is the default one.
inline constexpr std::array<BuiltInNode, 13> kBuiltInNodes = {{
    {"MOLVA-1", "", "23"},
    kPracticeNode,
    {"W3LPL-1", "dxc.w3lpl.net", "7373"},
    {"K1TTT", "k1ttt.net", "7373"},
    {"NC7J", "dxc.nc7j.com", "7373"},
    {"N2WQ-1", "cluster.n2wq.com", "7373"},
    {"AI9T", "dxc.ai9t.com", "7300"},
    {"K3LR", "dx.k3lr.com", "23"},
    {"W9PA-4", "dxc.w9pa.net", "7373"},
    {"VE9SC", "ve9sc.no-ip.org", "6300"},
    {"JA2YYF-9", "dxcluster.jp", "7300"},
    {"VK3HRA-2", "dxcluster.parksnpeaks.org", "7300"},
    {"RBN", "telnet.reversebeacon.net", "7000"},  // all skimmers
}};

}  // namespace session
