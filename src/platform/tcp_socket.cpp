#include <array>
#include <utility>

#include "platform/tcp.h"

namespace platform {
namespace {

constexpr std::size_t kMostUnread =
    std::size_t{64} * 1024;  // beyond it the transport, then the peer, waits

}  // namespace

TcpSocket::TcpSocket(Scheduler& scheduler, std::unique_ptr<TcpTransport> transport,
                     Protocol protocol)
    : scheduler_(scheduler), transport_(std::move(transport)), protocol_(protocol) {
  transport_->events = this;
}

TcpSocket::~TcpSocket() { transport_->Close(); }

void TcpSocket::Connect() {
  Close();
  state_ = SocketState::Resolving;
  transport_->Open(RemoteHost, RemotePort);
}

void TcpSocket::Accept(TcpListener& listener) {
  Close();
  transport_ = listener.TakePending();
  transport_->events = this;
  state_ = SocketState::Connected;
  OnReadable();  // bytes may have come before we did
}

void TcpSocket::Close() {
  transport_->Close();
  Reset();
}

void TcpSocket::Reset() {
  state_ = SocketState::Closed;
  telnet_ = {};
  unread_.clear();
  taken_ = 0;
  connectWaits_ = false;
  end_.reset();
  telling_.Release();
}

bool TcpSocket::SendData(std::string_view bytes) {
  if (state_ != SocketState::Connected) return false;
  if (!end_) transport_->Write(bytes);
  return true;
}

std::string TcpSocket::GetData(std::size_t most) {
  std::string data = unread_.substr(taken_, most);
  taken_ += data.size();
  if (data.empty()) return data;
  Fill();
  if (BytesReceived() > 0 || end_) TellLater();
  return data;
}

void TcpSocket::SetHeld(bool held) {
  held_ = held;
  if (!held) TellLater();
}

void TcpSocket::OnResolved() { state_ = SocketState::Connecting; }

void TcpSocket::OnConnected() {
  state_ = SocketState::Connected;
  connectWaits_ = true;
  TellLater();
}

void TcpSocket::OnReadable() {
  Fill();
  TellLater();
}

void TcpSocket::OnPeerClosed() {
  end_ = End{.byPeer = true, .fault = {}};
  OnReadable();
}

void TcpSocket::OnFailed(const SocketFault& fault) {
  end_ = End{.byPeer = false, .fault = fault};
  OnReadable();
}

void TcpSocket::Fill() {
  if (taken_ >= kMostUnread || taken_ == unread_.size()) {
    unread_.erase(0, taken_);
    taken_ = 0;
  }
  std::array<char, 16384> piece;
  std::string replies;
  while (BytesReceived() < kMostUnread) {
    const std::size_t count = transport_->Read(piece.data(), piece.size());
    if (count == 0) break;
    const std::string_view bytes(piece.data(), count);
    if (protocol_ == Protocol::Telnet)
      telnet_.Filter(bytes, unread_, replies);
    else
      unread_ += bytes;
  }
  if (!replies.empty()) SendData(replies);
}

void TcpSocket::TellLater() {
  if (held_ || state_ == SocketState::Closed) return;
  telling_ = scheduler_.Post([this] { Tell(); });
}

void TcpSocket::Tell() {
  if (held_) return;
  if (std::exchange(connectWaits_, false)) {
    TellLater();
    if (connected) connected();
  } else if (BytesReceived() > 0) {
    if (dataArrival) dataArrival();
  } else if (end_) {
    TellEnd();
  }
}

void TcpSocket::TellEnd() {
  const End end = *std::exchange(end_, std::nullopt);
  if (end.byPeer) {
    state_ = SocketState::PeerClosing;
    if (closed) closed();
  } else {
    if (state_ != SocketState::Resolving) state_ = SocketState::Error;
    if (error) error(end.fault);
  }
}

}  // namespace platform
