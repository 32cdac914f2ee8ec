#include "practice_node/mischief.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "core/text.h"

namespace practice_node {
namespace {

constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;
constexpr std::size_t kFloodPiece = std::size_t{64} * 1024;
constexpr unsigned kStallAtLine = 10;
constexpr unsigned kMostMegabytes = 100'000;

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

// Offers, a demand, a command without an option and a sub-negotiation.
constexpr std::array<std::string_view, 5> kNegotiations = {
    "\xFF\xFB\x01", "\xFF\xFD\x1F", "\xFF\xF1", "\xFF\xFB\x03",
    std::string_view("\xFF\xFA\x18\x00\x56\x54\xFF\xF0", 8)};

// One word of a plan. The number is the one behind "=", if there is one.
struct Word {
  enum class Takes { Nothing, Number, NumberOrNothing };
  std::string_view name;
  Takes takes;
  void (*add)(MischiefPlan& plan, std::optional<unsigned> number);
};

using Number = std::optional<unsigned>;
constexpr std::array<Word, 10> kWords = {{
    {"close", Word::Takes::Nothing, [](MischiefPlan& plan, Number) { plan.close = true; }},
    {"close-after", Word::Takes::Number,
     [](MischiefPlan& plan, Number lines) { plan.closeAfterLines = lines; }},
    {"refuse", Word::Takes::Nothing, [](MischiefPlan& plan, Number) { plan.refuse = true; }},
    {"silent", Word::Takes::Nothing, [](MischiefPlan& plan, Number) { plan.silent = true; }},
    {"stall", Word::Takes::NumberOrNothing,
     [](MischiefPlan& plan, Number line) { plan.stallAtLine = line.value_or(kStallAtLine); }},
    {"nuls", Word::Takes::Nothing, [](MischiefPlan& plan, Number) { plan.nuls = true; }},
    {"escapes", Word::Takes::Nothing, [](MischiefPlan& plan, Number) { plan.escapes = true; }},
    {"iac", Word::Takes::Nothing, [](MischiefPlan& plan, Number) { plan.iac = true; }},
    {"no-line-ends", Word::Takes::Nothing,
     [](MischiefPlan& plan, Number) { plan.noLineEnds = true; }},
    {"flood", Word::Takes::Number,
     [](MischiefPlan& plan, Number size) { plan.floodMegabytes = *size; }},
}};

std::optional<unsigned> ReadNumber(std::string_view text) {
  unsigned number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = fault == std::errc{} && end == text.data() + text.size();
  if (!whole || number == 0 || number > kMostMegabytes) return std::nullopt;
  return number;
}

std::string AddWord(std::string_view word, MischiefPlan& plan) {
  const auto equals = word.find('=');
  const auto name = word.substr(0, equals);
  const auto* known = std::find_if(kWords.begin(), kWords.end(),
                                   [&](const Word& each) { return each.name == name; });
  if (known == kWords.end()) return "unknown misbehaviour \"" + std::string(name) + "\"";
  const bool given = equals != std::string_view::npos;
  const Number number = given ? ReadNumber(word.substr(equals + 1)) : std::nullopt;
  const std::string quoted = "misbehaviour \"" + std::string(name) + "\"";
  if (given && known->takes == Word::Takes::Nothing) return quoted + " takes no number";
  if (given && !number) return quoted + " needs a number from 1 up";
  if (!given && known->takes == Word::Takes::Number) return quoted + " needs \"=\" and a number";
  known->add(plan, number);
  return {};
}

}  // namespace

std::string AddMischief(std::string_view words, MischiefPlan& plan) {
  if (words.empty()) return "no misbehaviour named";
  for (const auto word : core::Split(words, ",")) {
    std::string wrong = AddWord(word, plan);
    if (!wrong.empty()) return wrong;
  }
  return {};
}

Mischief::Mischief(platform::Scheduler& scheduler, MischiefPlan plan, std::uint32_t seed,
                   Wire& wire)
    : scheduler_(scheduler),
      plan_(plan),
      random_(seed),
      wire_(wire),
      mute_(plan.silent || plan.close) {}

void Mischief::Line(std::string_view text) {
  if (mute_) return;
  ++lines_;
  std::string line = Spoil(text);
  if (plan_.stallAtLine == lines_) {
    Send(line.substr(0, line.size() / 2));
    mute_ = true;
    return;
  }
  if (!(plan_.noLineEnds && loggedIn_)) line += "\r\n";
  SendLine(line);
  if (plan_.closeAfterLines == lines_) {
    HangUp();
    mute_ = true;
  }
}

void Mischief::Prompt(std::string_view text) {
  if (mute_) return;
  if (plan_.iac)
    for (const auto negotiation : kNegotiations) SendNegotiation(negotiation);
  Send(std::string(text));
}

void Mischief::LoggedIn() {
  loggedIn_ = true;
  if (!mute_ && plan_.floodMegabytes > 0) Queue({{}, plan_.floodMegabytes * kMegabyte});
}

void Mischief::HangUp() {
  if (mute_) return;
  hangUp_ = true;
  if (waiting_.empty()) wire_.Close();
}

// Anywhere in a text, its end included.
std::size_t Mischief::Place(std::string_view text) {
  return static_cast<std::size_t>(random_()) % (text.size() + 1);
}

std::string Mischief::Spoil(std::string_view text) {
  std::string line;
  const std::size_t escaped = Place(text.substr(0, text.size() - 1));
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    const bool escape = plan_.escapes && byte >= ' ' && (at == escaped || byte == '%');
    line += escape ? '%' : text[at];
    if (escape) line += {kHexDigits[byte / 16], kHexDigits[byte % 16]};
  }
  if (plan_.nuls) line.insert(Place(line), 1, '\0');
  return line;
}

void Mischief::SendLine(std::string_view text) {
  if (!plan_.iac) {
    Send(std::string(text));
    return;
  }
  const std::size_t place = Place(text);
  Send(std::string(text.substr(0, place)));
  SendNegotiation(kNegotiations[random_() % kNegotiations.size()]);
  Send(std::string(text.substr(place)));
}

// Each byte goes out by itself.
void Mischief::SendNegotiation(std::string_view bytes) {
  for (const char byte : bytes) Queue({std::string(1, byte)});
}

void Mischief::Send(std::string bytes) {
  if (waiting_.empty())
    wire_.Write(bytes);
  else
    Queue({std::move(bytes)});
}

void Mischief::Queue(Piece piece) {
  waiting_.push_back(std::move(piece));
  if (waiting_.size() == 1) sending_ = scheduler_.Post([this] { SendNext(); });
}

void Mischief::SendNext() {
  Piece& next = waiting_.front();
  if (next.flood > 0) {
    const std::size_t size = std::min(next.flood, kFloodPiece);
    next.flood -= size;
    next.bytes.assign(size, 'x');
    if (next.flood == 0) next.bytes += "\r\n";
  }
  wire_.Write(next.bytes);
  if (next.flood == 0) waiting_.pop_front();
  if (!waiting_.empty())
    sending_ = scheduler_.Post([this] { SendNext(); });
  else if (hangUp_)
    wire_.Close();
}

}  // namespace practice_node
