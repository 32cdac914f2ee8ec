#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include "platform/tcp.h"

namespace platform::qt {

class QtTcpListener final : public TcpListener {
 public:
  // `leaving` as for QtTcpTransport.
  QtTcpListener(Scheduler& scheduler, QObject& leaving);

  std::optional<SocketFault> Listen(const std::string& address, std::uint16_t port) override;
  void Close() override;
  SocketState State() const override;
  std::uint16_t LocalPort() const override;
  std::unique_ptr<TcpTransport> TakePending() override;

 private:
  void Tell();

  Scheduler& scheduler_;
  QObject& leaving_;
  QTcpServer server_;
  std::unique_ptr<QTcpSocket> pending_;  // while connectionRequest runs
  Registration telling_;
};

}  // namespace platform::qt
