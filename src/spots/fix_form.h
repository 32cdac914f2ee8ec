#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/error_log.h"
#include "core/settings.h"
#include "spots/fix_list.h"

namespace spots {

// frmFixSpot, "Fix Spots": the corrections of spots, to be read, added to and taken out, and lists
// of them from the web or a file.
class FixForm {
 public:
  struct Needs {
    // Fetches the text at this path of the host of the lists. The answer comes by Arrived or
    // FetchFailed, later.
    std::function<void(std::string_view path)> fetch;
    std::function<void(std::string_view path)> openPage;  // in the browser
  };

  enum Option { Merge, Replace };
  static constexpr int kNone = -1;  // no row is selected

  // The references outlive the form.
  FixForm(FixList& list, core::Settings& settings, core::ErrorLog& errorLog, Needs needs);

  core::Property<bool> Open{false};
  core::Choice cboCall;  // the rows, 50 characters each, sorted; kNone: none is selected
  // Of the selected row: the fields that have ever applied. Red: those that have in this run.
  std::array<core::Check, kFixFields> chkFix;

  core::TextBox txtAddCall;
  core::TextBox txtAddCty;
  core::TextBox txtAddState;
  core::TextBox txtAddCq;
  core::TextBox txtAddItu;
  core::TextBox txtAddGrid;
  core::Button cmdAdd;
  core::Button cmdDel;     // removes the selected row
  core::Button cmdDelAdd;  // removes it and puts its texts into the boxes

  core::Choice optFixSpot;  // what an import does
  core::Button cmdWebUpdate;
  core::Button cmdHelp;
  core::Label lblResult;  // what came of the last act, where there is something to say

  void Show();
  // The entry of a row, of which `changed` are the fields to be drawn in red.
  const FixEntry* EntryOf(int row) const;

  // What was fetched has come, or will not.
  void Arrived(std::string text);
  void FetchFailed();

  // Imports a text, from the web or from a file that the user has chosen. One without any entry
  // leaves the list as it is. Gives the number of entries.
  std::size_t ReadFixSpots2(std::string_view text);
  // The text of a file that ReadFixSpots2 takes.
  std::string Export() const { return list_.Text(); }

 private:
  void SetUp();
  void Refresh();
  void SortRows();
  void ShowEntry();
  void ClickField(FixField field);
  void PressAdd();
  void PressDelete();
  void PressDeleteAdd();
  void PressWebUpdate();
  core::TextBox& Box(std::size_t field);
  std::optional<std::size_t> SelectedEntry() const;

  FixList& list_;
  core::Settings& settings_;
  core::ErrorLog& errorLog_;
  Needs needs_;
  std::vector<std::size_t> entries_;  // of the rows, by their index in the list
  std::string selectedCall_;
  std::optional<std::string> arrived_;
  std::vector<platform::Registration> acts_;
};

}  // namespace spots
