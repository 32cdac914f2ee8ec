#include "platform/qt/qt_tcp_transport.h"

#include <poll.h>
#include <sys/socket.h>

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QTimer>
#include <algorithm>

namespace platform::qt {
namespace {

constexpr qint64 kReadBuffer = qint64{64} * 1024;

// A stream of lines is taken in batches: each wake-up of the program costs more than a line does.
// A window that nobody touches is painted five times a second: a batch is a little sooner due, so
// that the frame comes with it. What comes first behind a write is an answer, and is told at once;
// what comes soon behind it may be the rest of one.
constexpr Milliseconds kBatch{190};
constexpr Milliseconds kBatchInTalk{100};
constexpr Milliseconds kTalk{2000};     // behind a write
constexpr int kMuch = kReadBuffer / 4;  // of bytes don't wait for their batch

// How long a closed socket may go on sending to a peer that doesn't take it.
constexpr Milliseconds kLongestFarewell = std::chrono::seconds(30);

// Qt has one error for all of these, told apart by its text alone.
SocketFault::Number NetworkFault(const QString& text) {
  const auto is = [&](const char* known) {
    return text == QCoreApplication::translate("QNativeSocketEngine", known);
  };
  if (is("Host unreachable")) return SocketFault::HostUnreachable;
  if (is("Connection timed out")) return SocketFault::TimedOut;
  if (is("Connection reset by peer")) return SocketFault::ConnectionReset;
  return SocketFault::NetworkDown;
}

SocketFault::Number NumberOf(QAbstractSocket::SocketError error, const QString& text) {
  switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
      return SocketFault::Refused;
    case QAbstractSocket::RemoteHostClosedError:
      return SocketFault::ConnectionReset;
    case QAbstractSocket::HostNotFoundError:
      return SocketFault::HostNotFound;
    case QAbstractSocket::SocketAccessError:
      return SocketFault::AccessDenied;
    case QAbstractSocket::SocketTimeoutError:
      return SocketFault::TimedOut;
    case QAbstractSocket::AddressInUseError:
      return SocketFault::AddressInUse;
    case QAbstractSocket::NetworkError:
      return NetworkFault(text);
    default:
      return SocketFault::Other;
  }
}

// Whether the peer has ended its side, though bytes of it may still be unread.
bool PeerHasLeft(qintptr descriptor) {
  pollfd socket{.fd = static_cast<int>(descriptor), .events = POLLRDHUP, .revents = 0};
  return poll(&socket, 1, 0) > 0;
}

void LetGo(QTcpSocket* socket) {
  if (socket->state() != QAbstractSocket::ConnectedState) {
    socket->abort();
    socket->deleteLater();
    return;
  }
  QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  QTimer::singleShot(kLongestFarewell, socket, [socket] { socket->abort(); });
  socket->flush();
  socket->disconnectFromHost();
}

}  // namespace

std::string Dotted(const QHostAddress& address) {
  bool isIpv4 = false;
  const QHostAddress ipv4(address.toIPv4Address(&isIpv4));
  return (isIpv4 ? ipv4 : address).toString().toStdString();
}

SocketFault FaultOf(QAbstractSocket::SocketError error, const QString& text) {
  return {NumberOf(error, text), text.toStdString()};
}

QtTcpTransport::QtTcpTransport(Scheduler& scheduler, QObject& leaving)
    : scheduler_(scheduler), leaving_(leaving) {}

QtTcpTransport::QtTcpTransport(Scheduler& scheduler, QObject& leaving, QTcpSocket* accepted)
    : QtTcpTransport(scheduler, leaving) {
  accepted->setParent(&leaving_);
  Watch(accepted);
  if (!Connected()) End(News::PeerClosed);
}

QtTcpTransport::~QtTcpTransport() { Close(); }

void QtTcpTransport::Open(const std::string& host, std::uint16_t port) {
  Close();
  Watch(new QTcpSocket(&leaving_));
  socket_->setProxy(QNetworkProxy::NoProxy);
  socket_->connectToHost(QString::fromStdString(host), port);
}

void QtTcpTransport::Watch(QTcpSocket* socket) {
  socket_ = socket;
  socket_->setReadBufferSize(kReadBuffer);
  // These two reach a socket that is connected only.
  const auto setOptions = [socket] {
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket->setSocketOption(QAbstractSocket::KeepAliveOption, 1);
  };
  setOptions();
  QObject::connect(socket, &QTcpSocket::connected, &receiver_, setOptions);
  const auto watch = [&](auto signal, News news) {
    QObject::connect(socket, signal, &receiver_, [this, news] { TellLater(news); });
  };
  watch(&QTcpSocket::hostFound, News::Resolved);
  watch(&QTcpSocket::connected, News::Connected);
  watch(&QTcpSocket::readyRead, News::Readable);
  QObject::connect(socket, &QTcpSocket::errorOccurred, &receiver_,
                   [this](QAbstractSocket::SocketError error) { OnError(error); });
}

void QtTcpTransport::OnError(QAbstractSocket::SocketError error) {
  fault_ = FaultOf(error, socket_->errorString());
  End(error == QAbstractSocket::RemoteHostClosedError ? News::PeerClosed : News::Failed);
}

void QtTcpTransport::End(News news) {
  if (std::exchange(ended_, true)) return;
  // Behind a failed write Qt drops what is unread.
  rest_ = socket_->readAll().toStdString();
  TellLater(news);
}

void QtTcpTransport::Close() {
  telling_.Release();
  resting_.reset();
  wrote_ = kLongAgo;
  news_.clear();
  rest_.clear();
  ended_ = false;
  if (!socket_) return;
  QTcpSocket* const socket = std::exchange(socket_, nullptr);
  QObject::disconnect(socket, nullptr, &receiver_, nullptr);
  LetGo(socket);
}

std::size_t QtTcpTransport::Read(char* into, std::size_t size) {
  if (!rest_.empty()) {
    const std::size_t count = rest_.copy(into, size);
    rest_.erase(0, count);
    return count;
  }
  if (!socket_ || ended_) return 0;
  const qint64 count = socket_->read(into, static_cast<qint64>(size));
  return static_cast<std::size_t>(std::max(count, qint64{0}));
}

void QtTcpTransport::Write(std::string_view bytes) {
  if (!socket_ || ended_) return;
  // What the system still holds the failed write would lose.
  const bool holds = resting_ || socket_->bytesAvailable() >= socket_->readBufferSize();
  if (holds && PeerHasLeft(socket_->socketDescriptor())) return;
  wrote_ = scheduler_.Now();
  Wake();
  socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::string QtTcpTransport::PeerAddress() const {
  return Connected() ? Dotted(socket_->peerAddress()) : std::string();
}

std::uint16_t QtTcpTransport::LocalPort() const { return Connected() ? socket_->localPort() : 0; }

bool QtTcpTransport::Connected() const {
  return socket_ && socket_->state() == QAbstractSocket::ConnectedState;
}

void QtTcpTransport::TellLater(News news) {
  if (!news_.empty() && news_.back() == news) return;
  news_.push_back(news);
  if (news_.size() == 1) telling_ = scheduler_.Post([this] { Tell(); });
}

void QtTcpTransport::Rest() {
  const bool talks = scheduler_.Now() - wrote_ < kTalk;
  WakeFor(kMuch);
  resting_ = scheduler_.After(talks ? kBatchInTalk : kBatch, [this] { Wake(); });
}

void QtTcpTransport::Wake() {
  if (!resting_) return;
  WakeFor(1);
  resting_.reset();
}

void QtTcpTransport::WakeFor(int bytes) {
  setsockopt(static_cast<int>(socket_->socketDescriptor()), SOL_SOCKET, SO_RCVLOWAT, &bytes,
             sizeof bytes);
}

void QtTcpTransport::Tell() {
  const News first = news_.front();
  news_.pop_front();
  if (!news_.empty()) telling_ = scheduler_.Post([this] { Tell(); });
  switch (first) {
    case News::Resolved:
      return events->OnResolved();
    case News::Connected:
      return events->OnConnected();
    case News::Readable:
      Rest();
      return events->OnReadable();
    case News::PeerClosed:
      return events->OnPeerClosed();
    case News::Failed:
      return events->OnFailed(fault_);
  }
}

}  // namespace platform::qt
