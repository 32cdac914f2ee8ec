#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/world.h"

// A node in the simulated world. It does nothing of its own accord: the test tells it what to say.
class FakeNode {
 public:
  FakeNode(platform::sim::World& world, std::string address, std::uint16_t port);

  bool refuses = false;  // turns away whoever calls

  // When callers came, refused ones included, and when the links ended that it did not end itself.
  std::vector<platform::Milliseconds> called;
  std::vector<platform::Milliseconds> left;

  void Say(std::string_view bytes);
  // Hangs up, behind everything said before.
  void Close();
  // Breaks the link as a reset does.
  void Reset();
  bool HasCaller() const { return link_ && link_->State() == platform::SocketState::Connected; }

  // Each piece that came since the last call, as it was written.
  std::vector<std::string> TakePieces();
  // The lines that came since the last call. What has no CR LF comes behind them, marked.
  std::vector<std::string> TakeLines();

 private:
  void Answer();

  platform::sim::World& world_;
  std::unique_ptr<platform::TcpListener> listener_;
  std::vector<std::unique_ptr<platform::TcpSocket>> past_;
  std::unique_ptr<platform::TcpSocket> link_;
  std::vector<std::string> pieces_;
};
