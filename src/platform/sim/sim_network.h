#pragma once

#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>

#include "platform/name_lookup.h"
#include "platform/tcp.h"

namespace platform::sim {

class Stream;
class Listener;

// Hosts, links and their faults. Sockets reach the listeners of the same network.
class SimNetwork : public Network, public NameLookup {
 public:
  explicit SimNetwork(Scheduler& scheduler) : scheduler_(scheduler) {}

  // Faults and conditions, to be switched by a test at any time.
  Milliseconds latency{1};                // of every piece, one way, and of a look-up
  std::size_t largestPiece = 0;           // 0: what is written arrives in one piece
  std::optional<unsigned> raggedSeed;     // pieces of a random size up to largestPiece
  std::set<std::string> silentAddresses;  // swallow every attempt without a word
  Milliseconds connectTimeout{std::chrono::seconds{127}};  // when the system gives such a one up

  // Names an address. Dotted addresses need no name.
  void AddHost(const std::string& name, const std::string& address) { hosts_[name] = address; }
  void RemoveHost(const std::string& name) { hosts_.erase(name); }

  // Breaks every open stream, from both sides, as a reset does.
  void CutAll();

  std::unique_ptr<TcpSocket> MakeSocket(TcpSocket::Protocol protocol) override;
  std::unique_ptr<TcpListener> MakeListener() override;
  Task<std::vector<std::string>> Resolve(std::string host) override;

 private:
  friend class Stream;
  friend class Listener;

  std::optional<std::string> Address(const std::string& host) const;
  Listener* ListenerAt(const std::string& address, std::uint16_t port);
  std::size_t NextPiece(std::size_t remaining);

  Scheduler& scheduler_;
  std::map<std::string, std::string> hosts_ = {{"localhost", "127.0.0.1"}};
  std::set<Listener*> listeners_;
  std::set<Stream*> streams_;
  std::uint16_t nextPort_ = 40000;
  std::optional<std::mt19937> ragged_;
};

}  // namespace platform::sim
