#include "spots/membership.h"

#include <array>
#include <utility>

#include "core/text.h"
#include "spots/member_files.h"

namespace spots {
namespace {

// By both flags: eQSL counts two, LoTW one.
struct Found {
  const char* mark;
  const char* word;
  const char* line;
  const char* ofOne;  // with one list asked: nothing is known of the other
};
constexpr std::array<Found, 4> kFound = {{
    {" ", "NO", "No", "No"},
    {"+", "LoTW", "LoTW User only", "LoTW User"},
    {"-", "eQSL", "eQSL User only ", "eQSL User"},
    {"=", "Both", "LoTW and eQSL User ", ""},
}};

// By both switches, counted in the same way.
struct Wording {
  const char* reject;
  const char* hint;
  const char* tip;
};
constexpr std::array<Wording, 4> kWordings = {{
    {"", "", ""},
    {"Reject All Except LoTW", "LoTW Check - Enter a callsign. ",
     "Enter a call sign.  LoTW Checker"},
    {"Reject All Except eQSL", "eQSL Check - Enter a callsign. ",
     "Enter a call sign.  eQSL Checker"},
    {"Reject All Except LoTW + eQSL", "LoTW and eQSL Check - Enter a callsign. ",
     "Enter a call sign.  LoTW and eQSL Checker"},
}};

constexpr std::array kEmpty = {" LoTW database is Empty.  Click to Update. ",
                               " eQSL database is Empty.  Click to Update. "};

std::size_t Both(bool lotw, bool eqsl) { return (eqsl ? 2u : 0u) + (lotw ? 1u : 0u); }

// Of a file that gave no list.
FileState WithoutCalls(platform::Files::Fault fault) {
  return fault == platform::Files::Fault::None ? FileState::Damaged : StateOf(fault);
}

std::string Users(const char* list, const CallTable& calls) {
  return std::string("Show ") + list + " (" + std::to_string(calls.Count()) + " users)";
}

}  // namespace

Membership::Membership(platform::Files& files, std::string folder, core::Settings& settings,
                       std::function<void(List)> startUpdate)
    : files_(files),
      folder_(std::move(folder)),
      settings_(settings),
      startUpdate_(std::move(startUpdate)) {
  showlotw.Caption.Set(kEmpty[0]);
  showeqsl.Caption.Set(kEmpty[1]);
  LotwChecker.Caption.Set("LoTW Checker");
  eQSLchecker.Caption.Set("eQSL Checker");
  ObserveClicks();
  TakeSettings();
}

void Membership::ObserveClicks() {
  acts_.push_back(showlotw.Click.Add([this] {
    settings_.ShLoTW = showlotw.Value.Get();
    ClickList(showlotw, lotwCalls_, List::Lotw);
  }));
  acts_.push_back(showeqsl.Click.Add([this] {
    settings_.SheQSL = showeqsl.Value.Get();
    ClickList(showeqsl, eqslCalls_, List::Eqsl);
  }));
  acts_.push_back(
      RejectNot.Click.Add([this] { settings_.RejectNotLoTWeQSL = RejectNot.Value.Get(); }));
  acts_.push_back(LotwChecker.Click.Add([this] {
    settings_.LoTWChecking = LotwChecker.Value.Get();
    CheckerSetup();
  }));
  acts_.push_back(eQSLchecker.Click.Add([this] {
    settings_.eQSLChecking = eQSLchecker.Value.Get();
    CheckerSetup();
  }));
  acts_.push_back(txtLotw.Return.Add([this] { Answer(); }));
}

void Membership::TakeSettings() {
  showlotw.Value.Set(settings_.ShLoTW);
  showeqsl.Value.Set(settings_.SheQSL);
  RejectNot.Value.Set(settings_.RejectNotLoTWeQSL);
  LotwChecker.Value.Set(settings_.LoTWChecking);
  eQSLchecker.Value.Set(settings_.eQSLChecking);
  RejectNotSetup();
  CheckerSetup();
}

void Membership::ClickList(core::Check& check, const CallTable& calls, List list) {
  RejectNotSetup();
  if (!calls.Empty()) return;
  check.Caption.Set(kEmpty[list == List::Lotw ? 0 : 1]);
  startUpdate_(list);
}

void Membership::RejectNotSetup() {
  const std::size_t on = Both(showlotw.Value.Get(), showeqsl.Value.Get());
  RejectNot.Caption.Set(kWordings[on].reject);
  RejectNot.Visible.Set(on != 0);
}

void Membership::CheckerSetup() {
  const std::size_t on = Both(LotwChecker.Value.Get(), eQSLchecker.Value.Get());
  LotwChecker.ToolTip.Set(kWordings[on | 1].tip);
  eQSLchecker.ToolTip.Set(kWordings[on | 2].tip);
  txtLotw.ToolTip.Set(kWordings[on].tip);
  txtLotw.Hint.Set(kWordings[on].hint);
  txtLotw.Visible.Set(on != 0);
  lblLotw.Caption.Set({});
  lblLotw.Visible.Set(on != 0);
}

FileState Membership::TakeLotw(Origin origin) {
  const auto content = files_.Read(folder_ + "/lotw.txt");
  const auto file = ParseLotw(content.bytes);
  lotwCalls_ = CallTable(file ? file->calls : std::vector<std::string_view>{});
  skippedLotw_ = file ? file->skipped : 0;
  if (!file) return WithoutCalls(content.fault);
  showlotw.Caption.Set(lotwCalls_.Empty() ? kEmpty[0] : Users("LoTW", lotwCalls_));
  if (origin == Origin::Fetched)
    files_.Replace(folder_ + "/lotwlist.txt", lotwCalls_.Lines("\r\n"));
  return file->whole ? FileState::Read : FileState::Damaged;
}

FileState Membership::TakeeQSL() {
  const std::string path = folder_ + "/eqsl.txt";
  auto content = files_.Read(path);
  for (char& byte : content.bytes) byte = core::UCase(byte);
  const auto file = ParseEqsl(content.bytes);
  eqslCalls_ = CallTable(file ? file->calls : std::vector<std::string_view>{});
  if (!file) return WithoutCalls(content.fault);
  showeqsl.Caption.Set(eqslCalls_.Empty() ? kEmpty[1] : Users("eQSL", eqslCalls_));
  if (!file->sorted && file->whole) files_.Replace(path, FormatEqsl(*file));
  if (file->whole) return FileState::Read;
  return file->sorted ? FileState::Damaged : FileState::TooLong;
}

void Membership::FindLotw(std::string_view call) {
  Find(call, showlotw.Value.Get(), showeqsl.Value.Get());
}

void Membership::Find(std::string_view call, bool lotw, bool eqsl) {
  OnLotw = lotw && lotwCalls_.Contains(call);
  OnEqsl = eqsl && eqslCalls_.Contains(call);
}

bool Membership::MarkSpot(Spot& spot) {
  spot.LotwMark = " ";
  if (!UsesLotw() && !UsesEqsl()) return true;
  FindLotw(spot.DxCall);
  spot.LotwMark = kFound[Both(OnLotw, OnEqsl)].mark;
  return OnLotw || OnEqsl || !RejectNot.Value.Get();
}

// The box is free for the next call at once: the answer stands where its hint does.
void Membership::Answer() {
  const std::string call = core::UCase(core::Trim(txtLotw.Text.Get()));
  if (call.empty()) return;
  Find(call, LotwChecker.Value.Get(), eQSLchecker.Value.Get());
  const std::size_t on = Both(OnLotw, OnEqsl);
  const bool both = LotwChecker.Value.Get() && eQSLchecker.Value.Get();
  lblLotw.Caption.Set(kFound[on].word);
  txtLotw.Hint.Set(both ? kFound[on].line : kFound[on].ofOne);
  txtLotw.Text.Set({});
}

}  // namespace spots
