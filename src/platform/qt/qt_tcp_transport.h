#pragma once

#include <QHostAddress>
#include <QObject>
#include <QTcpSocket>
#include <deque>
#include <optional>
#include <string>

#include "platform/tcp.h"

namespace platform::qt {

// One QTcpSocket a connection. Its signals become the transport's events through the scheduler.
class QtTcpTransport final : public TcpTransport {
 public:
  // `leaving` keeps the sockets that are closed but still have bytes to send.
  QtTcpTransport(Scheduler& scheduler, QObject& leaving);
  // Takes over a socket that is connected, or was.
  QtTcpTransport(Scheduler& scheduler, QObject& leaving, QTcpSocket* accepted);
  ~QtTcpTransport() override;

  void Open(const std::string& host, std::uint16_t port) override;
  void Close() override;
  std::size_t Read(char* into, std::size_t size) override;
  void Write(std::string_view bytes) override;
  std::string PeerAddress() const override;
  std::uint16_t LocalPort() const override;

 private:
  static constexpr Milliseconds kLongAgo{-10000};
  enum class News { Resolved, Connected, Readable, PeerClosed, Failed };

  void Watch(QTcpSocket* socket);
  void OnError(QAbstractSocket::SocketError error);
  void End(News news);
  void TellLater(News news);
  void Tell();
  // Until the next batch is due, or much has come, or the peer ends, the system keeps what comes
  // and wakes nobody up for it.
  void Rest();
  void Wake();
  void WakeFor(int bytes);  // or more
  bool Connected() const;

  Scheduler& scheduler_;
  QObject& leaving_;
  QObject receiver_;  // of the signals
  QTcpSocket* socket_ = nullptr;
  std::deque<News> news_;          // not yet told
  Milliseconds wrote_ = kLongAgo;  // when the last write was
  bool ended_ = false;
  SocketFault fault_;
  std::string rest_;  // received and unread when the stream ended
  Registration telling_;
  std::optional<Registration> resting_;
};

// "192.0.2.1", also for an IPv4 address that is written as an IPv6 one.
std::string Dotted(const QHostAddress& address);

// What an error of Qt's is called here.
SocketFault FaultOf(QAbstractSocket::SocketError error, const QString& text);

}  // namespace platform::qt
