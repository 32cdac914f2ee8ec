#include "session/node_form.h"

#include <algorithm>
#include <utility>

#include "core/file_fault.h"
#include "core/text.h"

namespace session {
namespace {

constexpr const char* kNotInList = "This call is not in the list: add it first.";

// What stands in a field, as it can stand in the file.
std::string Typed(const core::TextBox& box) { return NodeField(box.Text.Get()); }

std::string WithoutDoubleBlanks(std::string_view call) {
  std::string cleaned;
  while (const auto at = core::InStr(call, "  ")) {
    cleaned += core::Left(call, at);
    call = core::Mid(call, at + 2);
  }
  return cleaned + std::string(call);
}

bool Holds(std::string_view text, std::string_view what) {
  return core::InStrIgnoringCase(text, what) > 0;
}

}  // namespace

NodeForm::NodeForm(NodeDirectory& directory, NodeUpdate& update, core::Settings& settings,
                   core::ErrorLog& errorLog, Needs needs)
    : directory_(directory),
      update_(update),
      settings_(settings),
      errorLog_(errorLog),
      needs_(std::move(needs)) {
  cmdApply.Caption.Set("Use node");
  cmdNewNode.Caption.Set("Add node");
  cmdDelete.Caption.Set("Delete node");
  cmdExit.Caption.Set("Close");
  chkSecondary.Caption.Set("Enable Secondary Node Connection");
  chkSecondary.ToolTip.Set(
      "If Primary Connection fails, then the Secondary node will be connected. "
      "This version knows one node only.");
  chkSecondary.Enabled.Set(false);
  cboNode.Selected.Set(kNone);
  const auto on = [this](core::Observers<>& act, void (NodeForm::*what)()) {
    watching_.push_back(act.Add([this, what] { (this->*what)(); }));
  };
  on(txtSearch.Change, &NodeForm::Fill);
  on(txtSearch.Return, &NodeForm::TakeFirst);
  on(cboNode.Click, &NodeForm::Choose);
  on(cmdApply.Click, &NodeForm::Apply);
  on(cmdNewNode.Click, &NodeForm::AddNode);
  on(cmdDelete.Click, &NodeForm::Delete);
  watching_.push_back(cmdExit.Click.Add([this] { Open.Set(false); }));
  watching_.push_back(txtNodeCall.Text.Observe([this](const std::string&) { ShowSelected(); }));
  watching_.push_back(directory_.Changed.Add([this] {
    if (Open.Get()) Refill();
  }));
  // Nothing goes on behind a closed form.
  watching_.push_back(Open.Observe([this](bool open) {
    if (!open) update_.Stop();
  }));
}

void NodeForm::Show() {
  if (Open.Get()) return;
  txtSearch.Text.Set({});
  txtNodeCall.Text.Set(settings_.NodeCall);
  txtNodeAddress.Text.Set(settings_.NodeHost);
  txtNodePort.Text.Set(settings_.NodePort);
  Say({});
  Refill();
  update_.Load();
  Open.Set(true);
}

std::optional<std::size_t> NodeForm::PlaceOf(int entry) const {
  if (entry < 0 || static_cast<std::size_t>(entry) >= places_.size()) return std::nullopt;
  return places_[static_cast<std::size_t>(entry)];
}

void NodeForm::Fill() {
  const std::string what(core::Trim(txtSearch.Text.Get()));
  places_.clear();
  std::vector<std::string> calls;
  for (const std::size_t place : directory_.InOrder()) {
    if (!what.empty() && !Fits(place, what)) continue;
    places_.push_back(place);
    calls.push_back(directory_.NodeCalls()[place]);
  }
  cboNode.Selected.Set(kNone);
  cboNode.Options.Set(std::move(calls));
  ShowSelected();
}

// What stood in the fields must not be written back over a list that has come meanwhile.
void NodeForm::Refill() {
  Fill();
  if (const auto place = AtHand()) FillFields(*place);
}

bool NodeForm::Fits(std::size_t place, std::string_view what) const {
  return Holds(directory_.NodeCalls()[place], what) || Holds(directory_.NodeHosts()[place], what) ||
         Holds(directory_.NodeInfo()[place], what);
}

void NodeForm::FillFields(std::size_t place) {
  txtNodeCall.Text.Set(directory_.NodeCalls()[place]);
  txtNodeAddress.Text.Set(directory_.NodeHosts()[place]);
  txtNodePort.Text.Set(directory_.NodePorts()[place]);
}

void NodeForm::Choose() {
  Say({});
  if (const auto place = PlaceOf(cboNode.Selected.Get())) FillFields(*place);
}

// Who looks for nothing, or has found what he looked for, goes on with what is at hand.
void NodeForm::TakeFirst() {
  const bool found = core::Trim(txtSearch.Text.Get()).empty() || cboNode.Selected.Get() == 0;
  if (found && cmdApply.Enabled.Get())
    cmdApply.Press();
  else if (!places_.empty())
    cboNode.UserSelects(0);
}

// Calls of a file may be in lower case; those that the form adds are not.
std::optional<std::size_t> NodeForm::AtHand() const {
  const std::string call = Typed(txtNodeCall);
  const auto place = directory_.Find(call);
  return place ? place : directory_.Find(core::UCase(call));
}

void NodeForm::ShowSelected() {
  const auto place = AtHand();
  const auto entry = place ? std::find(places_.begin(), places_.end(), *place) : places_.end();
  cboNode.Selected.Set(entry == places_.end() ? kNone : static_cast<int>(entry - places_.begin()));
  for (core::Button* button : {&cmdApply, &cmdDelete}) {
    button->Enabled.Set(place.has_value());
    button->ToolTip.Set(place ? "" : kNotInList);
  }
  cmdNewNode.Enabled.Set(!place);
  cmdNewNode.ToolTip.Set(place ? "This call is in the list already." : "");
}

bool NodeForm::FieldsAreGood() {
  std::string problem;
  if (core::Len(Typed(txtNodeCall)) < 2)
    problem = "Enter the call of the node, for example W1XYZ-2.";
  else if (IsBlockedNode(core::UCase(Typed(txtNodeCall))))
    problem = "MOLVA-1 serves for this call: take that one.";
  else if (Typed(txtNodeAddress).empty())
    problem = "Enter the host of the node: its name, for example cluster.example.org, or address.";
  else if (!IsNodePort(Typed(txtNodePort)))
    problem = "Enter the port of the node: a number from 1 to 65535, often 23, 7300 or 7373.";
  Say(problem, core::kRed);
  return problem.empty();
}

void NodeForm::Apply() {
  if (!FieldsAreGood()) return;
  const std::string call = directory_.NodeCalls()[*AtHand()];
  settings_.NodeCall = WithoutDoubleBlanks(call);
  settings_.NodeHost = Typed(txtNodeAddress);
  settings_.NodePort = Typed(txtNodePort);
  settings_.NodeNumberedAddress.clear();
  directory_.Put(call, settings_.NodeHost, settings_.NodePort);
  needs_.chosen();
  if (Save()) Open.Set(false);
}

void NodeForm::AddNode() {
  if (!FieldsAreGood()) return;
  const std::string call = core::UCase(Typed(txtNodeCall));
  const std::size_t place = directory_.Put(call, Typed(txtNodeAddress), Typed(txtNodePort));
  FillFields(place);
  Say(call + " is in the list now.");
  Save();
}

// What was deleted stays in the fields: Add brings it back.
void NodeForm::Delete() {
  const std::size_t place = *AtHand();
  const std::string call = directory_.NodeCalls()[place];
  directory_.Remove(place);
  Say(call + (IsBuiltInNode(call) ? " comes with the program and is back at its next start."
                                  : " is deleted."));
  Save();
}

bool NodeForm::Save() {
  const auto fault = directory_.Write();
  if (fault == platform::Files::Fault::None) return true;
  const auto [number, words] = core::NameOf(fault);
  errorLog_.ReportError("frmNode", number, words);
  Say("The list could not be saved (" + std::string(words) + "): it holds until the program ends.",
      core::kRed);
  return false;
}

void NodeForm::Say(const std::string& text, core::Colour colour) {
  lblResult.ForeColour.Set(colour);
  lblResult.Caption.Set(text);
}

}  // namespace session
