#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/world.h"

namespace gui {

// A cluster node in the simulated world that says what a test tells it to, and keeps what it hears.
class ScriptedNode {
 public:
  // Listens where the configuration of the tests connects to.
  explicit ScriptedNode(platform::sim::World& world);

  void Say(std::string_view line);        // with a line end behind it
  void SayBytes(std::string_view bytes);  // as they stand
  void HangUp() { caller_->Close(); }
  // Nobody is let in any more.
  void StopListening() { listener_->Close(); }
  void ListenAgain();

  // The lines heard since the start, whatever the number of calls.
  std::vector<std::string> Heard() const;
  int calls = 0;

 private:
  void LetIn();

  platform::sim::World& world_;
  std::unique_ptr<platform::TcpListener> listener_;
  std::vector<std::unique_ptr<platform::TcpSocket>> all_;
  platform::TcpSocket* caller_ = nullptr;  // the last one let in
  std::string heard_;
};

}  // namespace gui
