#include "gui/scripted_node.h"

namespace gui {
namespace {

constexpr std::uint16_t kPort = 7373;
constexpr std::size_t kPiece = 65536;

}  // namespace

ScriptedNode::ScriptedNode(platform::sim::World& world)
    : world_(world), listener_(world.network.MakeListener()) {
  listener_->connectionRequest = [this] { LetIn(); };
  ListenAgain();
}

void ScriptedNode::ListenAgain() { listener_->Listen("127.0.0.1", kPort); }

void ScriptedNode::LetIn() {
  ++calls;
  all_.push_back(world_.network.MakeSocket(platform::TcpSocket::Protocol::Plain));
  caller_ = all_.back().get();
  caller_->dataArrival = [this, from = caller_] { heard_ += from->GetData(kPiece); };
  caller_->closed = [] {};
  caller_->error = [](const platform::SocketFault&) {};
  caller_->Accept(*listener_);
}

void ScriptedNode::Say(std::string_view line) { SayBytes(std::string(line) + "\r\n"); }

void ScriptedNode::SayBytes(std::string_view bytes) { caller_->SendData(bytes); }

std::vector<std::string> ScriptedNode::Heard() const {
  std::vector<std::string> lines;
  std::size_t from = 0;
  for (auto end = heard_.find("\r\n"); end != std::string::npos; end = heard_.find("\r\n", from)) {
    lines.push_back(heard_.substr(from, end - from));
    from = end + 2;
  }
  return lines;
}

}  // namespace gui
