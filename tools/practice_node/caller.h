#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/scheduler.h"
#include "platform/tcp.h"
#include "practice_node/dialect.h"
#include "practice_node/line_reader.h"
#include "practice_node/mischief.h"
#include "practice_node/profile.h"
#include "practice_node/spot.h"
#include "practice_node/spot_lines.h"

namespace practice_node {

class Caller;

// What stays the same about a node while it runs.
struct NodeFacts {
  const Dialect& dialect;
  SpiderVersion version;  // of other software: one without peculiarities
  std::string call;
  std::optional<std::string> password;  // asked for; an empty one accepts any
  bool knowsArpc = true;                // AR-Cluster: whether it accepts "set/dx_arpc on"
  MischiefPlan mischief;
  std::uint32_t seed = 1;
};

// What a conversation needs of its node.
class House {
 public:
  virtual ~House() = default;
  // Makes the profile of a new user.
  virtual std::shared_ptr<Profile> ProfileOf(const std::string& call) = 0;
  // Null for a user that was never here.
  virtual std::shared_ptr<const Profile> FindProfile(const std::string& call) const = 0;
  virtual const std::deque<Spot>& Spots() const = 0;  // the latest; oldest first
  virtual std::size_t Users() const = 0;              // logged in
  virtual platform::Milliseconds UpTime() const = 0;

  virtual void OnLoggedIn(Caller& caller) = 0;
  // The connection has ended. The caller is not destroyed inside this call.
  virtual void OnGone(Caller& caller) = 0;
};

// The conversation with one who has connected: from the greeting to the good-bye. He may send
// anything.
class Caller : private Mischief::Wire {
 public:
  // The socket is connected.
  Caller(const NodeFacts& facts, House& house, platform::Scheduler& scheduler,
         const platform::Clock& clock, std::unique_ptr<platform::TcpSocket> socket);
  Caller(const Caller&) = delete;
  Caller& operator=(const Caller&) = delete;

  void Greet();
  void Hear(const Spot& spot);           // passes it on, as this user wants it
  void HearLine(std::string_view line);  // passes it on as it is
  void Replace();                        // his call has logged in once more

  bool LoggedIn() const { return stage_ == Stage::Commands; }
  const std::string& call() const { return call_; }  // upper case; empty before the login

  // For those who answer his commands.
  const NodeFacts& facts() const { return facts_; }
  const House& house() const { return house_; }
  const platform::Clock& clock() const { return clock_; }
  Profile& profile() { return *profile_; }
  // One line, or several parted by LF; what "%" and a letter stand for is put in.
  void Say(std::string_view pattern, std::string_view word = {});
  void SayLine(std::string_view line);                 // as it is
  void SayList(const std::vector<std::string>& rows);  // when this software sends its lists
  void HangUp();
  void EnableArpc() { arpc_ = true; }  // spots come as AR17 lines from now on
  SpotStyle Style() const;

 private:
  enum class Stage { Call, Password, Commands, Gone };

  bool Wants(const Spot& spot) const;
  void Write(std::string_view bytes) override;
  void Close() override;
  void OnData();
  void Take(const std::string& line);
  void TakeCall(const std::string& line);
  void TakePassword(const std::string& line);
  void LogIn();
  void SayHints();
  void Obey(const std::string& line);
  void CountUnknown(bool known);
  void Prompt();
  void WatchSilence();
  std::string Filled(std::string_view pattern, std::string_view word) const;
  std::string Cased(const std::string& call) const;
  std::string UpTimeText() const;

  const NodeFacts& facts_;
  House& house_;
  platform::Scheduler& scheduler_;
  const platform::Clock& clock_;
  std::unique_ptr<platform::TcpSocket> socket_;
  LineReader reader_;
  Mischief mischief_;
  Stage stage_ = Stage::Call;
  std::string call_;
  std::shared_ptr<Profile> profile_;
  bool arpc_ = false;
  unsigned unknownInRow_ = 0;
  std::vector<std::string> lateRows_;
  platform::Registration lateTimer_;
  platform::Registration silenceTimer_;
  platform::Registration passwordTimer_;
};

}  // namespace practice_node
