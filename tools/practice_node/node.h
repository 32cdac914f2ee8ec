#pragma once

#include <deque>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/scheduler.h"
#include "platform/tcp.h"
#include "practice_node/caller.h"
#include "practice_node/pacer.h"
#include "practice_node/spot_source.h"

namespace practice_node {

// What a node streams.
struct StreamPlan {
  double rate = 1;  // spots or lines a second
  std::uint32_t seed = 1;
  std::size_t skimmersPercent = 25;  // of the spots; a Skimmer sends its own alone
  // Lines to play instead of spots, to each caller from the first one on.
  std::shared_ptr<const std::vector<std::string>> lines;
  bool loop = false;
};

// One cluster node on one port: it takes callers and streams to those who have logged in. Spots are
// the same for all, and rest while nobody listens.
class Node : private House {
 public:
  Node(platform::Scheduler& scheduler, const platform::Clock& clock, platform::Network& network,
       NodeFacts facts, StreamPlan stream);
  ~Node() override;
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;

  // Port 0 takes a free one. Empty on success, otherwise why not, in plain words. A node that is
  // to refuse its callers doesn't listen and calls that a success.
  std::string Start(const std::string& address, std::uint16_t port);

  // "listening on 127.0.0.1:7373 as N0DE-1 (DXSpider)"
  std::string Banner() const;
  std::uint16_t Port() const { return port_; }
  std::size_t Connections() const { return visits_.size(); }

 private:
  struct Visit {
    std::unique_ptr<Caller> caller;
    std::unique_ptr<Pacer> playing;
    std::size_t nextLine = 0;
    bool over = false;
  };

  std::shared_ptr<Profile> ProfileOf(const std::string& call) override;
  std::shared_ptr<const Profile> FindProfile(const std::string& call) const override;
  const std::deque<Spot>& Spots() const override { return spots_; }
  std::size_t Users() const override;
  platform::Milliseconds UpTime() const override { return scheduler_.Now() - started_; }
  void OnLoggedIn(Caller& caller) override;
  void OnGone(Caller& caller) override;

  void OnRequest();
  void Sweep();
  Visit& VisitOf(const Caller& caller);
  void ReplaceOthers(const Caller& newcomer);
  void Play(Visit& visit);
  void FillPast();
  void Remember(Spot spot);
  void StreamSpot();

  platform::Scheduler& scheduler_;
  const platform::Clock& clock_;
  platform::Network& network_;
  const NodeFacts facts_;
  const StreamPlan stream_;
  SpotSource source_;
  Pacer spotPacer_;
  std::deque<Spot> spots_;
  std::map<std::string, std::shared_ptr<Profile>> profiles_;
  platform::Milliseconds started_;
  std::string address_;
  std::uint16_t port_ = 0;
  std::unique_ptr<platform::TcpListener> listener_;
  std::list<Visit> visits_;
  platform::Registration sweeping_;
};

}  // namespace practice_node
