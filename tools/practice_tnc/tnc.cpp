#include "practice_tnc/tnc.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "core/text.h"

using namespace std::chrono_literals;

namespace practice_tnc {
namespace {

constexpr char kCtrlC = 3;
constexpr char kBackspace = 8;
constexpr char kAutobaud = '*';
constexpr std::size_t kLongestLine = 512;
constexpr std::size_t kMostNoise = 100'000;
constexpr std::size_t kMostAtOnce = std::size_t{16} * 1024;
constexpr auto kPacketTime = 100ms;

}  // namespace

struct Tnc::Command {
  std::string_view name;
  std::size_t least;  // letters that name it
  void (*obey)(Tnc& tnc, const std::string& word);
};

Tnc::Tnc(platform::Scheduler& scheduler, platform::Network& network, TncPlan plan, Wire wire)
    : scheduler_(scheduler),
      plan_(std::move(plan)),
      wire_(std::move(wire)),
      random_(plan_.seed),
      socket_(network.MakeSocket(platform::TcpSocket::Protocol::Telnet)) {
  socket_->connected = [this] { OnLinked(); };
  socket_->dataArrival = [this] { OnText(); };
  socket_->closed = [this] { OnLost(); };
  socket_->error = [this](const platform::SocketFault&) { OnLost(); };
}

void Tnc::PowerUp() {
  Say("Practice TNC of " + plan_.call);
  Prompt();
}

void Tnc::Hear(std::string_view bytes) {
  for (const char byte : bytes) HearByte(byte);
}

void Tnc::HearByte(char byte) {
  if (byte == kCtrlC) {
    typed_.clear();
    conversing_ = false;
    Prompt();
    return;
  }
  if (plan_.echo) Put({&byte, 1});
  if (byte == '\r')
    conversing_ ? SendLine() : Obey(std::exchange(typed_, {}));
  else if (byte == kBackspace && !typed_.empty())
    typed_.pop_back();
  else if (!conversing_ && typed_.empty() && byte == kAutobaud)
    PowerUp();
  else if (static_cast<unsigned char>(byte) >= ' ' && typed_.size() < kLongestLine)
    typed_ += byte;
}

void Tnc::SendLine() { socket_->SendData(std::exchange(typed_, {}) + "\r\n"); }

void Tnc::Obey(const std::string& line) {
  static constexpr std::array<Command, 5> kCommands = {{
      {"CONNECT", 1, [](Tnc& tnc, const std::string& word) { tnc.Call(word); }},
      {"DISCONNECT", 1, [](Tnc& tnc, const std::string&) { tnc.Disconnect(); }},
      {"CONVERSE", 4, [](Tnc& tnc, const std::string&) { tnc.Converse(); }},
      {"MYCALL", 2, [](Tnc& tnc, const std::string& word) { tnc.MyCall(word); }},
      {"NOISE", 5, [](Tnc& tnc, const std::string& word) { tnc.Noise(word); }},
  }};
  const std::string whole = core::UCase(core::Trim(line));
  const std::size_t blank = std::min(whole.find(' '), whole.size());
  const std::string name = whole.substr(0, blank);
  const std::string rest(core::Trim(std::string_view(whole).substr(blank)));
  const std::string word = rest.substr(0, rest.find(' '));
  const auto* command = std::ranges::find_if(kCommands, [&](const Command& each) {
    return name.size() >= each.least && each.name.starts_with(name);
  });
  if (command != kCommands.end())
    command->obey(*this, word);
  else if (!name.empty())
    Say("?EH");
  if (!conversing_) Prompt();
}

void Tnc::Call(const std::string& call) {
  if (link_ != Link::None || call.empty()) {
    Say(link_ == Link::None ? "Link state is: DISCONNECTED"
                            : "Link state is: CONNECTED to " + partner_);
    return;
  }
  link_ = Link::Calling;
  partner_ = call;
  wire_.tell("calls " + partner_);
  trying_ = scheduler_.After(plan_.perTry, [this] { TryIsOver(); });
}

void Tnc::TryIsOver() {
  if (failed_ < plan_.failures) {
    ++failed_;
    EndLink("*** retry limit exceeded");
    return;
  }
  socket_->RemoteHost = plan_.host;
  socket_->RemotePort = plan_.port;
  socket_->Connect();
}

void Tnc::OnLinked() {
  link_ = Link::Up;
  conversing_ = true;
  lineBegun_ = false;
  wire_.tell("connected to " + partner_);
  Say("*** CONNECTED to " + partner_);
  if (plan_.dropAfter.count() > 0)
    dropping_ = scheduler_.After(plan_.dropAfter, [this] { Drop(); });
}

// The other end has lost the link and begins it anew, or leaves it at that.
void Tnc::Drop() {
  if (plan_.reconnects) {
    Say("*** RECONNECTED to " + partner_);
    return;
  }
  socket_->Close();
  EndLink({});
}

void Tnc::OnText() {
  std::string text = socket_->GetData(kMostAtOnce);
  std::erase(text, '\n');
  if (text.empty()) return;
  lineBegun_ = text.back() != '\r';
  Put(text);
  if (lineBegun_)
    ending_ = scheduler_.After(kPacketTime, [this] { EndLine(); });
  else
    ending_.Release();
}

void Tnc::EndLine() {
  if (std::exchange(lineBegun_, false)) Put("\r");
}

void Tnc::OnLost() {
  const bool refused = link_ == Link::Calling;
  EndLink(refused ? "*** " + partner_ + " busy" : std::string());
}

void Tnc::Disconnect() {
  if (link_ == Link::None) {
    Say("Can't DISCONNECT");
    return;
  }
  socket_->Close();
  EndLink({});
}

void Tnc::EndLink(const std::string& notice) {
  trying_.Release();
  dropping_.Release();
  ending_.Release();
  EndLine();
  link_ = Link::None;
  const bool conversed = std::exchange(conversing_, false);
  wire_.tell("disconnected from " + partner_);
  if (!notice.empty()) Say(notice);
  Say("*** DISCONNECTED");
  if (conversed) Prompt();
}

void Tnc::Converse() { conversing_ = true; }

void Tnc::MyCall(const std::string& call) {
  if (!call.empty()) plan_.call = call;
  Say("MYCALL   " + plan_.call);
}

void Tnc::Noise(const std::string& amount) {
  const auto bytes = static_cast<std::size_t>(std::max(core::ValInt(amount), 0));
  SayNoise(std::min(bytes, kMostNoise));
}

void Tnc::Say(const std::string& line) {
  if (plan_.garbage)
    SayNoise(line.size());
  else
    Put(line + "\r");
}

void Tnc::Prompt() {
  if (!plan_.garbage) Put("cmd:");
}

void Tnc::SayNoise(std::size_t bytes) {
  constexpr unsigned kByte = 256;
  std::string noise(bytes, '\0');
  for (char& byte : noise) byte = static_cast<char>(random_() % kByte);
  Put(noise);
}

void Tnc::Put(std::string_view bytes) {
  if (!plan_.silent) wire_.toComputer(bytes);
}

}  // namespace practice_tnc
