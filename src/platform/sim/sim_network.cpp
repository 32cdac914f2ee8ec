#include "platform/sim/sim_network.h"

#include <algorithm>
#include <cctype>

namespace platform::sim {

// One end of a stream. Both ends share a Link, through which what is sent finds whoever is left.
class Stream : public TcpTransport {
 public:
  struct Link {
    Stream* ends[2] = {nullptr, nullptr};
  };

  explicit Stream(SimNetwork& network) : network_(network) { network_.streams_.insert(this); }
  ~Stream() override {
    Leave(std::nullopt);
    network_.streams_.erase(this);
  }

  void Open(const std::string& host, std::uint16_t port) override;
  void Close() override;
  std::size_t Read(char* into, std::size_t size) override;
  void Write(std::string_view bytes) override;
  std::string PeerAddress() const override { return peerAddress_; }
  std::uint16_t LocalPort() const override { return localPort_; }

  // Makes this the other end of `opener`, which is waiting to be accepted.
  void Join(Stream& opener);
  void Break(const SocketFault& fault);

 private:
  void Reach(const std::string& address, std::uint16_t port);
  void Fail(Milliseconds after, int number, const char* text);
  void Leave(std::optional<SocketFault> fault);
  template <class Deliver>
  void Carry(Deliver deliver);

  SimNetwork& network_;
  std::shared_ptr<Link> link_;
  int side_ = 0;
  std::string received_;
  std::string peerAddress_;
  std::uint16_t localPort_ = 0;
  Registration attempt_;
};

class Listener : public TcpListener {
 public:
  explicit Listener(SimNetwork& network) : network_(network) {}
  ~Listener() override { Close(); }

  std::optional<SocketFault> Listen(const std::string& address, std::uint16_t port) override;
  void Close() override;
  SocketState State() const override {
    return listening_ ? SocketState::Listening : SocketState::Closed;
  }
  std::uint16_t LocalPort() const override { return port_; }
  std::unique_ptr<TcpTransport> TakePending() override;

  bool IsAt(const std::string& address, std::uint16_t port) const {
    return listening_ && port == port_ && (address_ == address || address_ == "0.0.0.0");
  }
  // False if nobody took the peer.
  bool Offer(Stream& opener);

 private:
  SimNetwork& network_;
  bool listening_ = false;
  std::string address_;
  std::uint16_t port_ = 0;
  Stream* pending_ = nullptr;
};

void Stream::Open(const std::string& host, std::uint16_t port) {
  Close();
  const auto address = network_.Address(host);
  if (!address) {
    Fail(network_.latency, SocketFault::HostNotFound, "Host not found");
    return;
  }
  attempt_ = network_.scheduler_.After(network_.latency, [this, to = *address, port] {
    events->OnResolved();
    Reach(to, port);
  });
}

void Stream::Reach(const std::string& address, std::uint16_t port) {
  if (network_.silentAddresses.contains(address)) {
    Fail(network_.connectTimeout, SocketFault::TimedOut, "Connection timed out");
    return;
  }
  attempt_ = network_.scheduler_.After(network_.latency, [this, address, port] {
    Listener* listener = network_.ListenerAt(address, port);
    if (listener == nullptr || !listener->Offer(*this)) {
      Fail(Milliseconds{0}, SocketFault::Refused, "Connection refused");
      return;
    }
    peerAddress_ = address;
    localPort_ = network_.nextPort_++;
    events->OnConnected();
  });
}

void Stream::Fail(Milliseconds after, int number, const char* text) {
  attempt_ = network_.scheduler_.After(
      after, [this, fault = SocketFault{number, text}] { events->OnFailed(fault); });
}

void Stream::Join(Stream& opener) {
  link_ = std::make_shared<Link>();
  opener.link_ = link_;
  link_->ends[0] = &opener;
  link_->ends[1] = this;
  side_ = 1;
  peerAddress_ = "127.0.0.1";
}

void Stream::Close() {
  attempt_.Release();
  Leave(std::nullopt);
  received_.clear();
  peerAddress_.clear();
  localPort_ = 0;
}

void Stream::Leave(std::optional<SocketFault> fault) {
  if (!link_) return;
  Carry([fault](Stream& peer) {
    if (fault)
      peer.events->OnFailed(*fault);
    else
      peer.events->OnPeerClosed();
  });
  link_->ends[side_] = nullptr;
  link_.reset();
  side_ = 0;
}

void Stream::Break(const SocketFault& fault) {
  if (!link_) return;
  link_->ends[side_] = nullptr;
  link_.reset();
  side_ = 0;
  Fail(Milliseconds{0}, fault.number, fault.text.c_str());
}

std::size_t Stream::Read(char* into, std::size_t size) {
  const std::size_t count = std::min(size, received_.size());
  received_.copy(into, count);
  received_.erase(0, count);
  return count;
}

void Stream::Write(std::string_view bytes) {
  while (link_ && !bytes.empty()) {
    const std::size_t count = network_.NextPiece(bytes.size());
    Carry([piece = std::string(bytes.substr(0, count))](Stream& peer) {
      peer.received_ += piece;
      peer.events->OnReadable();
    });
    bytes.remove_prefix(count);
  }
}

template <class Deliver>
void Stream::Carry(Deliver deliver) {
  network_.scheduler_
      .After(network_.latency,
             [link = link_, other = 1 - side_, deliver = std::move(deliver)] {
               if (Stream* peer = link->ends[other]) deliver(*peer);
             })
      .Keep();
}

std::optional<SocketFault> Listener::Listen(const std::string& address, std::uint16_t port) {
  Close();
  const std::uint16_t chosen = port != 0 ? port : network_.nextPort_++;
  if (network_.ListenerAt(address, chosen) != nullptr)
    return SocketFault{SocketFault::AddressInUse, "Address already in use"};
  address_ = address;
  port_ = chosen;
  listening_ = true;
  network_.listeners_.insert(this);
  return std::nullopt;
}

void Listener::Close() {
  listening_ = false;
  port_ = 0;
  network_.listeners_.erase(this);
}

bool Listener::Offer(Stream& opener) {
  pending_ = &opener;
  if (connectionRequest) connectionRequest();
  return std::exchange(pending_, nullptr) == nullptr;
}

std::unique_ptr<TcpTransport> Listener::TakePending() {
  auto accepted = std::make_unique<Stream>(network_);
  accepted->Join(*std::exchange(pending_, nullptr));
  return accepted;
}

void SimNetwork::CutAll() {
  const auto open = streams_;
  for (Stream* stream : open)
    stream->Break({SocketFault::ConnectionReset, "Connection reset by peer"});
}

std::unique_ptr<TcpSocket> SimNetwork::MakeSocket(TcpSocket::Protocol protocol) {
  return std::make_unique<TcpSocket>(scheduler_, std::make_unique<Stream>(*this), protocol);
}

std::unique_ptr<TcpListener> SimNetwork::MakeListener() {
  return std::make_unique<Listener>(*this);
}

Task<std::vector<std::string>> SimNetwork::Resolve(std::string host) {
  co_await Delay(latency);
  std::vector<std::string> addresses;
  if (const auto known = Address(host)) addresses.push_back(*known);
  co_return addresses;
}

std::optional<std::string> SimNetwork::Address(const std::string& host) const {
  const auto numeric = [](char c) {
    return c == '.' || std::isdigit(static_cast<unsigned char>(c));
  };
  if (!host.empty() && std::all_of(host.begin(), host.end(), numeric)) return host;
  const auto known = hosts_.find(host);
  if (known == hosts_.end()) return std::nullopt;
  return known->second;
}

Listener* SimNetwork::ListenerAt(const std::string& address, std::uint16_t port) {
  const auto at = std::find_if(listeners_.begin(), listeners_.end(),
                               [&](Listener* each) { return each->IsAt(address, port); });
  return at == listeners_.end() ? nullptr : *at;
}

std::size_t SimNetwork::NextPiece(std::size_t remaining) {
  if (largestPiece == 0) return remaining;
  const std::size_t most = std::min(largestPiece, remaining);
  if (!raggedSeed) return most;
  if (!ragged_) ragged_.emplace(*raggedSeed);
  return std::uniform_int_distribution<std::size_t>(1, most)(*ragged_);
}

}  // namespace platform::sim
