#include "practice_node/caller.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"
#include "practice_node/commands.h"
#include "practice_node/wording.h"

namespace practice_node {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t kMostBytesAtOnce = 4096;
constexpr auto kPasswordPatience = 60s;
constexpr auto kListDelay = 300ms;
constexpr auto kSilence = 5min;  // before a prompt comes unasked

// Spots that a user can do without, on the nodes that let him.
struct Choice {
  Toggle toggle;
  bool (*concerns)(const Spot& spot);
};

constexpr std::array<Choice, 3> kChoices = {{
    {Toggle::DxSpots, [](const Spot&) { return true; }},
    {Toggle::BottomOfBand, IsBottomOfBand},
    {Toggle::Skimmer, IsSkimmer},
}};

bool IsLetter(char byte) { return core::UCase(byte) >= 'A' && core::UCase(byte) <= 'Z'; }
bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

bool IsSsid(std::string_view text) {
  return !text.empty() && text.size() <= 2 && std::all_of(text.begin(), text.end(), IsDigit);
}

// Letters and digits, of both some, and perhaps an SSID.
bool IsCall(std::string_view text) {
  const auto dash = text.find('-');
  const auto base = text.substr(0, dash);
  if (dash != std::string_view::npos && !IsSsid(text.substr(dash + 1))) return false;
  return base.size() >= 3 && base.size() <= 10 &&
         std::all_of(base.begin(), base.end(), [](char c) { return IsLetter(c) || IsDigit(c); }) &&
         std::any_of(base.begin(), base.end(), IsDigit) &&
         std::any_of(base.begin(), base.end(), IsLetter);
}

}  // namespace

Caller::Caller(const NodeFacts& facts, House& house, platform::Scheduler& scheduler,
               const platform::Clock& clock, std::unique_ptr<platform::TcpSocket> socket)
    : facts_(facts),
      house_(house),
      scheduler_(scheduler),
      clock_(clock),
      socket_(std::move(socket)),
      mischief_(scheduler, facts.mischief, facts.seed, *this) {
  socket_->dataArrival = [this] { OnData(); };
  socket_->closed = [this] { Close(); };
  socket_->error = [this](const platform::SocketFault&) { Close(); };
}

void Caller::Greet() {
  if (facts_.mischief.close) {
    Close();
    return;
  }
  Say(facts_.dialect.greeting);
  mischief_.Prompt(facts_.dialect.loginPrompt);
}

void Caller::Hear(const Spot& spot) {
  if (!LoggedIn() || !Wants(spot)) return;
  const bool rings = facts_.dialect.bells && profile_->Has(Toggle::Beep);
  SayLine(SpotLine(spot, Style()) + (rings ? "\a\a" : ""));
}

void Caller::HearLine(std::string_view line) {
  if (LoggedIn()) SayLine(line);
}

void Caller::Replace() {
  Say(facts_.dialect.replaced);
  HangUp();
}

void Caller::Say(std::string_view pattern, std::string_view word) {
  for (const auto line : core::Split(pattern, "\n")) SayLine(Filled(line, word));
}

void Caller::SayLine(std::string_view line) {
  if (stage_ == Stage::Gone) return;
  mischief_.Line(line);
  WatchSilence();
}

void Caller::SayList(const std::vector<std::string>& rows) {
  if (!facts_.version.promptsFirst) {
    for (const std::string& row : rows) SayLine(row);
    return;
  }
  const bool waiting = !lateRows_.empty();
  lateRows_.insert(lateRows_.end(), rows.begin(), rows.end());
  if (waiting) return;
  lateTimer_ = scheduler_.After(kListDelay, [this] {
    for (const std::string& row : std::exchange(lateRows_, {})) SayLine(row);
  });
}

void Caller::HangUp() {
  stage_ = Stage::Gone;
  mischief_.HangUp();
}

SpotStyle Caller::Style() const {
  const Dialect& dialect = facts_.dialect;
  const bool first = profile_->Has(Toggle::DxCountry);
  const bool second = profile_->Has(Toggle::SpotterQth);
  return {.shape = arpc_ ? Shape::Ar17 : dialect.shape,
          .lowerCaseSpotter = dialect.lowerCase,
          .zone = dialect.zoneInSpots,
          .listCall = dialect.listCall,
          .grid = dialect.timeSlots && first,
          .state = dialect.timeSlots && second,
          .itu = dialect.timeSlots && profile_->Has(Toggle::ItuZone),
          .cq = dialect.timeSlots && profile_->Has(Toggle::CqZone),
          .country = !dialect.timeSlots && first,
          .qth = !dialect.timeSlots && second};
}

bool Caller::Wants(const Spot& spot) const {
  return std::none_of(kChoices.begin(), kChoices.end(), [&](const Choice& each) {
    const ToggleWords& words = kToggleWords[static_cast<std::size_t>(each.toggle)];
    const bool choosable = !LabelOf(words, facts_.dialect.kind).empty();
    return choosable && !profile_->Has(each.toggle) && each.concerns(spot);
  });
}

void Caller::Write(std::string_view bytes) { socket_->SendData(bytes); }

void Caller::OnData() {
  const std::string bytes = socket_->GetData(kMostBytesAtOnce);
  for (const std::string& line : reader_.Take(bytes)) Take(line);
}

void Caller::Close() {
  stage_ = Stage::Gone;
  socket_->Close();
  house_.OnGone(*this);
}

void Caller::Take(const std::string& line) {
  switch (stage_) {
    case Stage::Call:
      TakeCall(line);
      break;
    case Stage::Password:
      TakePassword(line);
      break;
    case Stage::Commands:
      Obey(line);
      break;
    case Stage::Gone:
      break;
  }
}

void Caller::TakeCall(const std::string& line) {
  if (facts_.version.echoes) SayLine(line);
  if (line.empty()) {
    mischief_.Prompt(facts_.dialect.loginPrompt);
    return;
  }
  if (!IsCall(line)) {
    Say(facts_.dialect.badCall, line);
    HangUp();
    return;
  }
  call_ = core::UCase(line);
  if (!facts_.password) {
    LogIn();
    return;
  }
  stage_ = Stage::Password;
  mischief_.Prompt("password: ");
  passwordTimer_ = scheduler_.After(kPasswordPatience, [this] { HangUp(); });
}

void Caller::TakePassword(const std::string& line) {
  passwordTimer_.Release();
  const bool right = facts_.password->empty() ? !line.empty() : line == *facts_.password;
  if (right) {
    LogIn();
    return;
  }
  Say(facts_.dialect.badPassword);
  HangUp();
}

void Caller::LogIn() {
  stage_ = Stage::Commands;
  profile_ = house_.ProfileOf(call_);
  Say(facts_.dialect.welcome);
  SayHints();
  Prompt();
  mischief_.LoggedIn();
  house_.OnLoggedIn(*this);
}

void Caller::SayHints() {
  for (const Hint& hint : facts_.dialect.hints)
    if ((*profile_)[hint.missing].empty()) Say(hint.text);
}

void Caller::Obey(const std::string& line) {
  if (facts_.version.echoes && profile_->echo) SayLine(line);
  const auto command = core::Trim(line);
  const bool known = command.empty() || AnswerCommand(*this, command);
  if (!known) Say(facts_.dialect.unknownCommand, core::UCase(command.substr(0, command.find(' '))));
  CountUnknown(known);
  if (LoggedIn()) Prompt();
}

void Caller::CountUnknown(bool known) {
  unknownInRow_ = known ? 0 : unknownInRow_ + 1;
  if (facts_.version.patience > 0 && unknownInRow_ >= facts_.version.patience) HangUp();
}

void Caller::Prompt() { Say(profile_->prompt.empty() ? facts_.dialect.prompt : profile_->prompt); }

void Caller::WatchSilence() {
  if (!facts_.version.promptsUnasked || !LoggedIn()) return;
  silenceTimer_ = scheduler_.After(kSilence, [this] {
    if (LoggedIn()) Prompt();
  });
}

std::string Caller::Filled(std::string_view pattern, std::string_view word) const {
  const std::string name = profile_ ? (*profile_)[Field::Name] : std::string();
  return Expand(pattern, {{'C', Cased(call_)},
                          {'M', Cased(facts_.call)},
                          {'D', DateText(clock_.UtcNow())},
                          {'T', TimeText(clock_.UtcNow())},
                          {'V', std::string(facts_.version.words)},
                          {'H', name},
                          {'I', name.empty() ? Cased(call_) : name},
                          {'U', UpTimeText()},
                          {'N', std::to_string(house_.Users())},
                          {'W', Quotable(word)}});
}

std::string Caller::Cased(const std::string& call) const {
  return facts_.dialect.lowerCase ? core::LCase(call) : call;
}

std::string Caller::UpTimeText() const {
  const auto seconds =
      static_cast<unsigned>(std::chrono::floor<std::chrono::seconds>(house_.UpTime()).count());
  const unsigned minutes = seconds / 60;
  const unsigned hours = minutes / 60;
  if (!facts_.version.fitsLabels)
    return "Uptime " + std::to_string(hours / 24) + " " + core::Digits(hours % 24, 2) + ":" +
           core::Digits(minutes % 60, 2);
  std::string text = "Uptime:";
  if (hours >= 24) text += " " + std::to_string(hours / 24) + "d";
  if (hours > 0) text += " " + std::to_string(hours % 24) + "h";
  if (minutes > 0) text += " " + std::to_string(minutes % 60) + "m";
  return text + " " + std::to_string(seconds % 60) + "s";
}

}  // namespace practice_node
