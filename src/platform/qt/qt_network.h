#pragma once

#include <QObject>

#include "platform/tcp.h"

namespace platform::qt {

// TCP of the system. Outlives its sockets and listeners.
class QtNetwork final : public Network {
 public:
  explicit QtNetwork(Scheduler& scheduler) : scheduler_(scheduler) {}

  std::unique_ptr<TcpSocket> MakeSocket(TcpSocket::Protocol protocol) override;
  std::unique_ptr<TcpListener> MakeListener() override;

 private:
  Scheduler& scheduler_;
  QObject leaving_;  // parent of the sockets; those that are closed go on sending under it
};

}  // namespace platform::qt
