#include "platform/qt/qt_network.h"

#include "platform/qt/qt_tcp_listener.h"
#include "platform/qt/qt_tcp_transport.h"

namespace platform::qt {

std::unique_ptr<TcpSocket> QtNetwork::MakeSocket(TcpSocket::Protocol protocol) {
  auto transport = std::make_unique<QtTcpTransport>(scheduler_, leaving_);
  return std::make_unique<TcpSocket>(scheduler_, std::move(transport), protocol);
}

std::unique_ptr<TcpListener> QtNetwork::MakeListener() {
  return std::make_unique<QtTcpListener>(scheduler_, leaving_);
}

}  // namespace platform::qt
