#include "session/intake.h"

#include <exception>
#include <utility>

namespace session {
namespace {

// What one turn takes from the socket: the rest waits for the next, and the window gets its time.
constexpr std::size_t kTurnBytes = std::size_t{16} * 1024;

}  // namespace

Intake::Intake(platform::Scheduler& scheduler, platform::TcpSocket& socket, SessionState& state,
               Chain& chain, LineFeed& feed, Needs needs)
    : scheduler_(scheduler),
      socket_(socket),
      state_(state),
      chain_(chain),
      feed_(feed),
      needs_(std::move(needs)),
      steps_(scheduler, needs_.onFault, [this] { HoldChanged(); }) {}

platform::Registration Intake::Hold() {
  ++holds_;
  HoldChanged();
  return platform::Registration([this] {
    --holds_;
    HoldChanged();
  });
}

void Intake::HoldChanged() {
  // What is left of the batch goes before anything the socket may have to tell.
  if (Held())
    goingOn_.Release();
  else
    goingOn_ = scheduler_.Post([this] { Turn(); });
  socket_.SetHeld(Held());
}

void Intake::Turn() {
  if (Held()) return;
  if (batchAt_ >= batch_.size()) {
    batch_ = socket_.GetData(kTurnBytes);
    batchAt_ = 0;
  }
  Consume();
}

void Intake::Receive(std::string_view bytes) {
  batch_.erase(0, batchAt_);
  batchAt_ = 0;
  batch_ += bytes;
  Consume();
}

void Intake::Consume() {
  while (!Held() && batchAt_ < batch_.size()) {
    try {
      InputCharacter(static_cast<std::uint8_t>(batch_[batchAt_++]));
    } catch (const std::exception& fault) {
      needs_.onFault("InputCharacter", fault.what());
    }
  }
}

void Intake::InputCharacter(std::uint8_t byte) {
  switch (line_.Put(byte, PromptsNow())) {
    case LineBuffer::Event::None:
      break;
    case LineBuffer::Event::Nul:
      needs_.nulReceived(++NullsReceived);
      break;
    case LineBuffer::Event::PasswordPrompt:
      needs_.sendPassword();
      FinishLine();
      break;
    case LineBuffer::Event::Line:
      FinishLine();
      break;
  }
}

LineBuffer::Prompts Intake::PromptsNow() const {
  if (state_.TncMode) return LineBuffer::Prompts::Tnc;
  return state_.LoginRuns() ? LineBuffer::Prompts::Login : LineBuffer::Prompts::None;
}

void Intake::FinishLine() {
  line_.Take(whole_);
  const int escapes = RepairEscapes(whole_);
  if (escapes > 0) needs_.escapesRepaired(EscapedErrors += escapes);
  InputLine(whole_);
  GiveBackGiant(whole_);
}

void Intake::InputLine(std::string_view line) {
  line_.Clear();
  LastLineAt = scheduler_.Now();
  needs_.lineReceived();
  needs_.showRaw(line);
  if (needs_.isEcho(line)) return;
  if (!line.starts_with("ZV11")) feed_.RawLine(line);
  ForwardSuppressed = false;
  Run(line, 1);
}

void Intake::Run(std::string_view line, int row) {
  while (row <= chain_.Rows()) {
    if (ClosedToSession(row)) return;
    const std::uint64_t pushedBefore = steps_.Pushed();
    const std::uint64_t sessionBefore = sessions_;
    const Chain::Claim claim = Offer(row, line);
    if (claim != Chain::Claim::None && onClaimed) onClaimed(row, line);
    if (claim == Chain::Claim::Quiet) return;
    row = claim == Chain::Claim::Tail ? chain_.Rows() + 1 : row + 1;
    if (steps_.Pushed() != pushedBefore) {
      if (sessions_ != sessionBefore) return;  // the row has closed the session as well
      steps_.Push("Rest", Rest(std::string(line), row));
      return;
    }
  }
  Forward(line);
}

bool Intake::ClosedToSession(int row) const {
  return state_.TncMode && !state_.LoggedIn && row >= chain_.FirstRowForSession();
}

Chain::Claim Intake::Offer(int row, std::string_view line) {
  try {
    return chain_.Offer(row, line);
  } catch (const std::exception& fault) {
    needs_.onFault(chain_.Name(row), fault.what());
  }
  return Chain::Claim::None;
}

platform::Task<> Intake::Rest(std::string line, int row) {
  Run(line, row);
  co_return;
}

void Intake::Forward(std::string_view line) {
  if (stopLists.Stops(line, state_.IsSpider())) ForwardSuppressed = true;
  if (!ForwardSuppressed && state_.LoggedIn) feed_.SendLocal(line);
}

void Intake::PushStep(std::string name, platform::Task<> step) {
  steps_.Push(std::move(name), std::move(step));
}

void Intake::Drop() {
  ++sessions_;
  batch_.clear();
  batchAt_ = 0;
  line_.Clear();
  steps_.DropWaiting();
}

}  // namespace session
