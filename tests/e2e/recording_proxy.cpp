#include "e2e/recording_proxy.h"

#include <sys/socket.h>

#include <algorithm>

namespace e2e {

RecordingProxy::RecordingProxy(quint16 nodePort) : nodePort_(nodePort) {
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { LetIn(); });
  server_.listen(QHostAddress::LocalHost);
}

void RecordingProxy::LetIn() {
  Link link{server_.nextPendingConnection(), new QTcpSocket(&server_)};
  links_.push_back(link);
  QObject::connect(link.client, &QTcpSocket::readyRead, link.node, [this, link] {
    const QByteArray bytes = link.client->readAll();
    fromClients += bytes;
    link.node->write(bytes);
  });
  QObject::connect(link.node, &QTcpSocket::readyRead, link.client, [this, link] {
    const QByteArray bytes = link.node->readAll();
    fromNode += bytes;
    link.client->write(bytes);
  });
  QObject::connect(link.client, &QTcpSocket::disconnected, link.node,
                   [link] { link.node->disconnectFromHost(); });
  QObject::connect(link.node, &QTcpSocket::disconnected, link.client,
                   [link] { link.client->disconnectFromHost(); });
  link.node->connectToHost(QHostAddress::LocalHost, nodePort_);
}

bool RecordingProxy::Linked() const {
  return std::any_of(links_.begin(), links_.end(), [](const Link& each) {
    return each.client->state() == QAbstractSocket::ConnectedState;
  });
}

void RecordingProxy::Cut() {
  for (const Link& each : links_) {
    // With no time to linger a close is a reset.
    const linger atOnce{.l_onoff = 1, .l_linger = 0};
    setsockopt(static_cast<int>(each.client->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
               sizeof atOnce);
    each.client->abort();
    each.node->abort();
  }
}

void RecordingProxy::HangUp() {
  for (const Link& each : links_)
    shutdown(static_cast<int>(each.client->socketDescriptor()), SHUT_WR);
}

}  // namespace e2e
