#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/scheduler.h"
#include "platform/telnet.h"

namespace platform {

// The numbers are those that the program shows for a state it has no text for.
enum class SocketState {
  Closed = 0,
  Listening = 2,
  Pending = 3,
  Resolving = 4,
  Resolved = 5,
  Connecting = 6,
  Connected = 7,
  PeerClosing = 8,
  Error = 9,
};

// What went wrong, in the numbers that operators know from the socket errors of this trade.
struct SocketFault {
  enum Number {
    AccessDenied = 10013,
    AddressInUse = 10048,
    NetworkDown = 10050,
    ConnectionReset = 10054,
    TimedOut = 10060,
    Refused = 10061,
    HostUnreachable = 10065,
    HostNotFound = 11001,
    Other = 10000,
  };
  int number = Other;
  std::string text;
};

// One TCP stream as the system gives it. The program uses it through TcpSocket only, which adds the
// states, the order of events and the telnet commands.
class TcpTransport {
 public:
  // Each comes in a turn of its own, never from inside a call to the transport.
  struct Events {
    virtual ~Events() = default;
    virtual void OnResolved() = 0;  // the name is known; connecting now
    virtual void OnConnected() = 0;
    virtual void OnReadable() = 0;    // Read has something that it had not before
    virtual void OnPeerClosed() = 0;  // nothing more will come; what came can still be read
    virtual void OnFailed(const SocketFault& fault) = 0;  // the same, for any other end
  };

  virtual ~TcpTransport() = default;

  // Starts an attempt. The host is a name or an address. Ends in OnConnected or OnFailed.
  virtual void Open(const std::string& host, std::uint16_t port) = 0;
  // Ends the stream at once, in any state. No event follows. What was written still goes out.
  virtual void Close() = 0;
  // Takes up to `size` received bytes; the count taken, 0 if there are none. What isn't taken is
  // kept, up to a bound of the transport's own; beyond it the peer is made to wait.
  virtual std::size_t Read(char* into, std::size_t size) = 0;
  virtual void Write(std::string_view bytes) = 0;
  virtual std::string PeerAddress() const = 0;  // dotted; empty while not connected
  virtual std::uint16_t LocalPort() const = 0;  // 0 while not connected

  Events* events = nullptr;  // set by its TcpSocket before anything else is called
};

// Waits for peers. One pending peer at a time is told; accept it or it is refused.
class TcpListener {
 public:
  virtual ~TcpListener() = default;

  // Port 0 takes a free one. Nothing on success; the fault (AddressInUse, ...) otherwise.
  virtual std::optional<SocketFault> Listen(const std::string& address, std::uint16_t port) = 0;
  virtual void Close() = 0;
  virtual SocketState State() const = 0;  // Closed or Listening
  virtual std::uint16_t LocalPort() const = 0;

  // The peer that has asked; called inside connectionRequest only, by TcpSocket::Accept.
  virtual std::unique_ptr<TcpTransport> TakePending() = 0;

  std::function<void()> connectionRequest;
};

// One TCP connection, as the rules see it.
//
// Bytes wait until they are taken. dataArrival comes again, in a turn of its own, as long as some
// wait and each time some are taken. A peer's end comes after the last byte received before it was
// taken: closed with the state PeerClosing, error with Error (after a failed look-up the state
// stays Resolving). Until that event the state stays Connected, and what is sent is lost. While the
// socket is held nothing is told. A socket isn't destroyed inside one of its own events.
class TcpSocket : private TcpTransport::Events {
 public:
  // Telnet: commands of that protocol are taken out of what is received, and answered.
  enum class Protocol { Plain, Telnet };

  TcpSocket(Scheduler& scheduler, std::unique_ptr<TcpTransport> transport, Protocol protocol);
  TcpSocket(const TcpSocket&) = delete;
  TcpSocket& operator=(const TcpSocket&) = delete;
  ~TcpSocket() override;

  std::string RemoteHost;        // name or address; read by Connect
  std::uint16_t RemotePort = 0;  // read by Connect

  std::function<void()> connected;
  std::function<void()> closed;
  std::function<void()> dataArrival;
  std::function<void(const SocketFault&)> error;

  // Starts an attempt, closing whatever was open. Ends in connected or error.
  void Connect();
  // Takes over the peer that `listener` is just telling about; the state is Connected.
  void Accept(TcpListener& listener);
  // Closes at once and drops everything unread. No event follows.
  void Close();

  // False, and nothing is sent, unless the state is Connected.
  bool SendData(std::string_view bytes);
  // Takes up to `most` received bytes.
  std::string GetData(std::size_t most);

  // While true no event is delivered; bytes and a peer's end wait.
  void SetHeld(bool held);

  SocketState State() const { return state_; }
  std::size_t BytesReceived() const { return unread_.size() - taken_; }  // waiting to be taken
  std::uint16_t LocalPort() const { return transport_->LocalPort(); }
  std::string RemoteHostIP() const { return transport_->PeerAddress(); }

 private:
  struct End {
    bool byPeer = false;
    SocketFault fault;
  };

  void OnResolved() override;
  void OnConnected() override;
  void OnReadable() override;
  void OnPeerClosed() override;
  void OnFailed(const SocketFault& fault) override;

  void Reset();
  void Fill();
  void TellLater();
  void Tell();
  void TellEnd();

  Scheduler& scheduler_;
  std::unique_ptr<TcpTransport> transport_;
  const Protocol protocol_;
  TelnetFilter telnet_;
  SocketState state_ = SocketState::Closed;
  std::string unread_;
  std::size_t taken_ = 0;  // how much of unread_ is gone
  bool held_ = false;
  bool connectWaits_ = false;
  std::optional<End> end_;
  Registration telling_;
};

// Makes the sockets of a platform.
class Network {
 public:
  virtual ~Network() = default;
  virtual std::unique_ptr<TcpSocket> MakeSocket(TcpSocket::Protocol protocol) = 0;
  virtual std::unique_ptr<TcpListener> MakeListener() = 0;
};

}  // namespace platform
