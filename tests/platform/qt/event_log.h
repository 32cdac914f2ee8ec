#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "platform/tcp.h"

namespace platform::qt {

// Writes down what a transport tells, and takes its bytes when asked to.
struct EventLog final : TcpTransport::Events {
  std::vector<std::string> told;
  std::vector<SocketFault> faults;
  int readable = 0;
  std::function<void()> onReadable;

  void OnResolved() override { told.push_back("resolved"); }
  void OnConnected() override { told.push_back("connected"); }
  void OnReadable() override {
    ++readable;
    if (onReadable) onReadable();
  }
  void OnPeerClosed() override { told.push_back("closed"); }
  void OnFailed(const SocketFault& fault) override {
    told.push_back("failed");
    faults.push_back(fault);
  }
  bool Has(const std::string& event) const {
    return std::find(told.begin(), told.end(), event) != told.end();
  }
};

inline std::string ReadAll(TcpTransport& transport) {
  std::string all;
  char piece[10'000];
  while (const std::size_t count = transport.Read(piece, sizeof piece)) all.append(piece, count);
  return all;
}

}  // namespace platform::qt
