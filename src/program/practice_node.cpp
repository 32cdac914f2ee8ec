#include "program/practice_node.h"

#include <charconv>
#include <chrono>

#include "session/built_in_nodes.h"

using namespace std::chrono_literals;

namespace program {
namespace {

using session::kPracticeNode;

constexpr const char* kProgram = "molva-practice-node";
constexpr auto kPoll = 10ms;
constexpr auto kLongestStart = 5s;

std::uint16_t PortOf(const session::BuiltInNode& node) {
  std::uint16_t port = 0;
  std::from_chars(node.port.data(), node.port.data() + node.port.size(), port);
  return port;
}

}  // namespace

PracticeNode::PracticeNode(const platform::Platform& platform, const core::Settings& settings)
    : platform_(platform), settings_(settings) {}

platform::Task<> PracticeNode::Wake() {
  if (!IsChosen() || !AddressIsFree()) co_return;
  Start();
  const platform::Milliseconds end = platform_.scheduler.Now() + kLongestStart;
  while (IsStarting() && platform_.scheduler.Now() < end) co_await platform::Delay(kPoll);
}

bool PracticeNode::IsChosen() const {
  return settings_.NodeCall == kPracticeNode.call && settings_.NodeHost == kPracticeNode.host &&
         settings_.NodePort == kPracticeNode.port;
}

// Asked by taking it for a moment: a call would be answered, and another node would count it.
bool PracticeNode::AddressIsFree() const {
  const auto listener = platform_.network.MakeListener();
  return !listener->Listen(std::string(kPracticeNode.host), PortOf(kPracticeNode));
}

void PracticeNode::Start() {
  const auto& [call, host, port] = kPracticeNode;
  child_ = platform_.programs.Start(kProgram, {"--call", std::string(call), "--address",
                                               std::string(host), "--port", std::string(port)});
}

// It says where it listens as soon as it does.
bool PracticeNode::IsStarting() { return child_->Running() && child_->Output().empty(); }

}  // namespace program
