#include "platform/qt/qt_tcp_listener.h"

#include <QHostAddress>
#include <QNetworkProxy>

#include "platform/qt/qt_tcp_transport.h"

namespace platform::qt {
namespace {

constexpr int kMostPending = 8;  // further peers wait with the system

}  // namespace

QtTcpListener::QtTcpListener(Scheduler& scheduler, QObject& leaving)
    : scheduler_(scheduler), leaving_(leaving) {
  server_.setProxy(QNetworkProxy::NoProxy);
  server_.setMaxPendingConnections(kMostPending);
  QObject::connect(&server_, &QTcpServer::newConnection, &server_,
                   [this] { telling_ = scheduler_.Post([this] { Tell(); }); });
}

std::optional<SocketFault> QtTcpListener::Listen(const std::string& address, std::uint16_t port) {
  Close();
  QHostAddress where;
  if (!where.setAddress(QString::fromStdString(address)))
    return SocketFault{SocketFault::Other, "not an address: " + address};
  if (server_.listen(where, port)) return std::nullopt;
  return FaultOf(server_.serverError(), server_.errorString());
}

void QtTcpListener::Close() {
  telling_.Release();
  server_.close();  // those not yet told about go with it
}

SocketState QtTcpListener::State() const {
  return server_.isListening() ? SocketState::Listening : SocketState::Closed;
}

std::uint16_t QtTcpListener::LocalPort() const { return server_.serverPort(); }

std::unique_ptr<TcpTransport> QtTcpListener::TakePending() {
  return std::make_unique<QtTcpTransport>(scheduler_, leaving_, pending_.release());
}

void QtTcpListener::Tell() {
  pending_.reset(server_.nextPendingConnection());
  if (!pending_) return;
  if (server_.hasPendingConnections()) telling_ = scheduler_.Post([this] { Tell(); });
  if (connectionRequest) connectionRequest();
  pending_.reset();
}

}  // namespace platform::qt
