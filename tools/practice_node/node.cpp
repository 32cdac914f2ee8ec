#include "practice_node/node.h"

#include <algorithm>
#include <utility>

namespace practice_node {
namespace {

constexpr std::size_t kSpotsKept = 1000;
constexpr int kSpotsOfThePast = 60;
constexpr std::chrono::seconds kPastPeriod{40};
constexpr std::size_t kMostConnections = 200;
constexpr std::size_t kMostProfiles = 1000;

}  // namespace

Node::Node(platform::Scheduler& scheduler, const platform::Clock& clock, platform::Network& network,
           NodeFacts facts, StreamPlan stream)
    : scheduler_(scheduler),
      clock_(clock),
      network_(network),
      facts_(std::move(facts)),
      stream_(std::move(stream)),
      source_(stream_.seed, facts_.dialect.kind == Kind::Skimmer ? 100 : stream_.skimmersPercent),
      spotPacer_(scheduler, stream_.lines ? 0 : stream_.rate, [this] { StreamSpot(); }),
      started_(scheduler.Now()) {}

Node::~Node() = default;

std::string Node::Start(const std::string& address, std::uint16_t port) {
  address_ = address;
  port_ = port;
  FillPast();
  if (facts_.mischief.refuse) return {};
  listener_ = network_.MakeListener();
  listener_->connectionRequest = [this] { OnRequest(); };
  if (const auto fault = listener_->Listen(address, port)) {
    listener_.reset();
    return "can't listen on " + address + ":" + std::to_string(port) + ": " +
           (fault->number == platform::SocketFault::AddressInUse ? "the port is taken"
                                                                 : fault->text);
  }
  port_ = listener_->LocalPort();
  return {};
}

std::string Node::Banner() const {
  const std::string what = listener_ ? "listening on " : "refusing callers on ";
  return what + address_ + ":" + std::to_string(port_) + " as " + facts_.call + " (" +
         std::string(facts_.dialect.software) + ")";
}

std::shared_ptr<Profile> Node::ProfileOf(const std::string& call) {
  if (profiles_.size() >= kMostProfiles && !profiles_.contains(call)) profiles_.clear();
  auto& profile = profiles_[call];
  if (!profile) profile = std::make_shared<Profile>(call);
  return profile;
}

std::shared_ptr<const Profile> Node::FindProfile(const std::string& call) const {
  const auto found = profiles_.find(call);
  return found == profiles_.end() ? nullptr : found->second;
}

std::size_t Node::Users() const {
  return static_cast<std::size_t>(std::count_if(
      visits_.begin(), visits_.end(), [](const Visit& each) { return each.caller->LoggedIn(); }));
}

void Node::OnLoggedIn(Caller& caller) {
  ReplaceOthers(caller);
  if (!stream_.lines) {
    spotPacer_.Start();
    return;
  }
  Visit& visit = VisitOf(caller);
  visit.playing =
      std::make_unique<Pacer>(scheduler_, stream_.rate, [this, &visit] { Play(visit); });
  visit.playing->Start();
}

void Node::OnGone(Caller& caller) {
  VisitOf(caller).over = true;
  sweeping_ = scheduler_.Post([this] { Sweep(); });
}

void Node::OnRequest() {
  // What isn't accepted is refused.
  if (visits_.size() >= kMostConnections) return;
  auto socket = network_.MakeSocket(platform::TcpSocket::Protocol::Telnet);
  socket->Accept(*listener_);
  Visit& visit = visits_.emplace_back();
  visit.caller = std::make_unique<Caller>(facts_, static_cast<House&>(*this), scheduler_, clock_,
                                          std::move(socket));
  visit.caller->Greet();
}

void Node::Sweep() {
  visits_.remove_if([](const Visit& each) { return each.over; });
  if (Users() == 0) spotPacer_.Stop();
}

Node::Visit& Node::VisitOf(const Caller& caller) {
  return *std::find_if(visits_.begin(), visits_.end(),
                       [&](const Visit& each) { return each.caller.get() == &caller; });
}

void Node::ReplaceOthers(const Caller& newcomer) {
  for (const Visit& each : visits_)
    if (each.caller.get() != &newcomer && each.caller->LoggedIn() &&
        each.caller->call() == newcomer.call())
      each.caller->Replace();
}

void Node::Play(Visit& visit) {
  const auto& lines = *stream_.lines;
  if (stream_.loop && visit.nextLine >= lines.size()) visit.nextLine = 0;
  if (visit.nextLine >= lines.size()) {
    visit.playing->Stop();
    return;
  }
  visit.caller->HearLine(lines[visit.nextLine++]);
}

void Node::FillPast() {
  for (int ago = kSpotsOfThePast; ago > 0; --ago)
    Remember(source_.Next(clock_.UtcNow() - kPastPeriod * ago));
}

void Node::Remember(Spot spot) {
  spots_.push_back(std::move(spot));
  if (spots_.size() > kSpotsKept) spots_.pop_front();
}

void Node::StreamSpot() {
  Remember(source_.Next(clock_.UtcNow()));
  for (const Visit& each : visits_) each.caller->Hear(spots_.back());
}

}  // namespace practice_node
