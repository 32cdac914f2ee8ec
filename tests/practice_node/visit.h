#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/world.h"
#include "practice_node/node.h"
#include "practice_node/options.h"

namespace practice_node {

using namespace std::chrono_literals;
using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

// One who connects to a node and keeps what it says, byte for byte.
class Visitor {
 public:
  using Protocol = platform::TcpSocket::Protocol;

  explicit Visitor(platform::sim::World& world, std::uint16_t port = 7373,
                   Protocol protocol = Protocol::Plain)
      : world_(world), socket_(world.network.MakeSocket(protocol)) {
    socket_->RemoteHost = "127.0.0.1";
    socket_->RemotePort = port;
    socket_->dataArrival = [this] { heard += socket_->GetData(1'000'000); };
    socket_->closed = [this] { closed = true; };
    socket_->error = [this](const platform::SocketFault& fault) { refused = fault.number; };
    socket_->Connect();
    world_.Run(20ms);
  }

  // Sends a line and lets the answer come.
  void Type(std::string_view line) { Send(std::string(line) + "\r\n"); }
  void Send(std::string_view bytes) {
    socket_->SendData(bytes);
    world_.Run(20ms);
  }
  void Leave() {
    socket_->Close();
    world_.Run(20ms);
  }

  // What came for one line typed.
  std::string Ask(std::string_view line) {
    heard.clear();
    Type(line);
    return heard;
  }
  // The whole lines heard, without their ends.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (auto end = heard.find("\r\n"); end != std::string::npos; end = heard.find("\r\n", from)) {
      lines.push_back(heard.substr(from, end - from));
      from = end + 2;
    }
    return lines;
  }
  std::vector<std::string> LinesWith(std::string_view beginning) const {
    std::vector<std::string> lines = Lines();
    std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(beginning); });
    return lines;
  }
  std::vector<std::string> SpotLines() const { return LinesWith("DX de "); }

  std::string heard;
  bool closed = false;
  int refused = 0;

 private:
  platform::sim::World& world_;
  std::unique_ptr<platform::TcpSocket> socket_;
};

// A node in the simulated world, started as with these options. Without --rate it streams nothing.
class NodeTest : public ::testing::Test {
 protected:
  void StartNode(std::initializer_list<std::string_view> arguments) {
    std::vector<std::string_view> all = {"--rate=0"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const ParsedOptions parsed = ParseOptions(all);
    ASSERT_EQ(parsed.wrong, "");
    StartNode(parsed.options);
  }
  void StartNode(const Options& options, std::vector<std::string> play = {}) {
    std::shared_ptr<const std::vector<std::string>> lines;
    if (!play.empty()) lines = std::make_shared<const std::vector<std::string>>(std::move(play));
    node = std::make_unique<Node>(world.scheduler, world.clock, world.network,
                                  FactsOf(options, options.kind), StreamOf(options, lines));
    ASSERT_EQ(node->Start(options.address, options.port), "");
  }
  // One who has logged in, with the login's text forgotten.
  std::unique_ptr<Visitor> LoggedIn(std::string_view call = "K1TST-2") {
    auto visitor = std::make_unique<Visitor>(world);
    visitor->Type(call);
    visitor->heard.clear();
    return visitor;
  }

  platform::sim::World world;
  std::unique_ptr<Node> node;
};

}  // namespace practice_node
