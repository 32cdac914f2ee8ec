#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include "platform/scheduler.h"
#include "platform/tcp.h"

namespace practice_tnc {

// What a TNC is, and how it misbehaves.
struct TncPlan {
  std::string call = "K1TST";      // its own, MYCALL
  std::string host = "127.0.0.1";  // the node that every call leads to
  std::uint16_t port = 7373;
  platform::Milliseconds perTry{2000};  // what an attempt takes, and one that fails
  unsigned failures = 0;                // so many attempts are retried out at first
  platform::Milliseconds dropAfter{0};  // a link ends by itself; 0: never
  bool reconnects = false;              // and the other end begins it anew at once
  bool echo = false;                    // what is typed comes back
  bool silent = false;                  // never says a word
  bool garbage = false;                 // noise in the place of every answer
  std::uint32_t seed = 1;               // of the noise
};

// A TNC between a serial line and a node: it takes commands, makes links, and then passes text on.
//
// Its line ends are those of the air: a CR. A text of the node that ends without one gets it when
// nothing follows for a while, as a packet does that is sent when its time is up.
class Tnc {
 public:
  struct Wire {
    std::function<void(std::string_view bytes)> toComputer;
    std::function<void(const std::string& what)> tell = [](const std::string&) {};  // what happens
  };

  // The network outlives it.
  Tnc(platform::Scheduler& scheduler, platform::Network& network, TncPlan plan, Wire wire);
  Tnc(const Tnc&) = delete;
  Tnc& operator=(const Tnc&) = delete;

  // Says who it is, and prompts.
  void PowerUp();
  // What the computer has sent.
  void Hear(std::string_view bytes);

  bool Linked() const { return link_ == Link::Up; }
  bool Conversing() const { return conversing_; }

 private:
  enum class Link { None, Calling, Up };
  struct Command;

  void HearByte(char byte);
  void SendLine();
  void Obey(const std::string& line);
  void Call(const std::string& call);
  void Disconnect();
  void Converse();
  void MyCall(const std::string& call);
  void Noise(const std::string& amount);

  void TryIsOver();
  void OnLinked();
  void OnText();
  void EndLine();
  void OnLost();
  void Drop();
  void EndLink(const std::string& notice);

  void Say(const std::string& line);
  void Prompt();
  void SayNoise(std::size_t bytes);
  void Put(std::string_view bytes);

  platform::Scheduler& scheduler_;
  TncPlan plan_;
  Wire wire_;
  std::mt19937 random_;
  Link link_ = Link::None;
  bool conversing_ = false;
  unsigned failed_ = 0;
  std::string typed_;
  std::string partner_;
  bool lineBegun_ = false;  // of the node's text
  std::unique_ptr<platform::TcpSocket> socket_;
  platform::Registration trying_;
  platform::Registration dropping_;
  platform::Registration ending_;
};

}  // namespace practice_tnc
