#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "session/node_directory.h"
#include "session/node_update.h"

namespace session {

// frmNode: picks the node to connect to, and keeps the list of nodes. The row at hand is the one
// whose call stands in txtNodeCall. Add and Delete hold, and are kept, at once.
class NodeForm {
 public:
  struct Needs {
    std::function<void()> chosen;  // another node: shown, and kept with the configuration
  };

  static constexpr int kNone = -1;

  // All outlive the form.
  NodeForm(NodeDirectory& directory, NodeUpdate& update, core::Settings& settings,
           core::ErrorLog& errorLog, Needs needs);

  core::Property<bool> Open{false};
  // What a node's call, host or text is to hold, in upper or lower case. Return chooses the first
  // that fits, and presses cmdApply where that is chosen or nothing is looked for.
  core::TextBox txtSearch;
  core::Choice cboNode;  // the calls that fit the search, in order; kNone if none is at hand
  core::TextBox txtNodeCall;
  core::TextBox txtNodeAddress;
  core::TextBox txtNodePort;
  core::Check chkSecondary;
  core::Label lblResult;    // what is to be put right, in red, or what has happened
  core::Button cmdApply;    // stores host and port, takes the node, and closes the form
  core::Button cmdNewNode;  // adds a row of what stands in the fields
  core::Button cmdDelete;
  core::Button cmdExit;

  // Opens the form with the selected node. One that is open stays as the user has it.
  void Show();
  // The place in the directory of an entry of cboNode; nothing if there is no such entry.
  std::optional<std::size_t> PlaceOf(int entry) const;

 private:
  void Fill();
  void Refill();
  void FillFields(std::size_t place);
  void Choose();
  void ShowSelected();
  bool Fits(std::size_t place, std::string_view what) const;
  void TakeFirst();
  std::optional<std::size_t> AtHand() const;
  bool FieldsAreGood();
  void Apply();
  void AddNode();
  void Delete();
  // False if the file couldn't be written; says so.
  bool Save();
  void Say(const std::string& text, core::Colour colour = core::kThemeColour);

  NodeDirectory& directory_;
  NodeUpdate& update_;
  core::Settings& settings_;
  core::ErrorLog& errorLog_;
  Needs needs_;
  std::vector<std::size_t> places_;  // of the entries of cboNode
  std::vector<platform::Registration> watching_;
};

}  // namespace session
