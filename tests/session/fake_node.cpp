#include "fake_node.h"

#include <gtest/gtest.h>

using platform::SocketFault;
using platform::TcpSocket;

FakeNode::FakeNode(platform::sim::World& world, std::string address, std::uint16_t port)
    : world_(world), listener_(world.network.MakeListener()) {
  listener_->connectionRequest = [this] { Answer(); };
  EXPECT_EQ(listener_->Listen(address, port), std::nullopt);
}

void FakeNode::Answer() {
  called.push_back(world_.scheduler.Now());
  if (refuses) return;
  if (link_) past_.push_back(std::move(link_));
  link_ = world_.network.MakeSocket(TcpSocket::Protocol::Plain);
  link_->dataArrival = [this] { pieces_.push_back(link_->GetData(1'000'000)); };
  link_->closed = [this] { left.push_back(world_.scheduler.Now()); };
  link_->error = [this](const SocketFault&) { left.push_back(world_.scheduler.Now()); };
  link_->Accept(*listener_);
}

void FakeNode::Say(std::string_view bytes) {
  ASSERT_TRUE(link_) << "nobody has called";
  EXPECT_TRUE(link_->SendData(bytes)) << "the caller has gone";
}

void FakeNode::Close() {
  ASSERT_TRUE(link_) << "nobody has called";
  link_->Close();
}

void FakeNode::Reset() { world_.network.CutAll(); }

std::vector<std::string> FakeNode::TakePieces() { return std::exchange(pieces_, {}); }

std::vector<std::string> FakeNode::TakeLines() {
  std::string heard;
  for (const auto& piece : TakePieces()) heard += piece;
  std::vector<std::string> lines;
  std::size_t from = 0;
  for (auto end = heard.find("\r\n"); end != std::string::npos; end = heard.find("\r\n", from)) {
    lines.push_back(heard.substr(from, end - from));
    from = end + 2;
  }
  if (from < heard.size()) lines.push_back("(unfinished) " + heard.substr(from));
  return lines;
}
