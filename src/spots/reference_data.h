#pragma once

#include <string>

#include "core/controls.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "spots/cty_table.h"
#include "spots/expanded_row.h"
#include "spots/file_state.h"
#include "spots/spot.h"
#include "spots/state_table.h"

namespace spots {

// The files on countries and states, and what they say of a spot.
class ReferenceData {
 public:
  // The first two outlive this. The folder is the one that holds the program's data files.
  ReferenceData(platform::Files& files, platform::Dialogs& dialogs, std::string folder);

  CtyTable countries;
  StateTable states;

  core::Property<FileState> StateFile{FileState::Missing};  // what became of it when last read

  // Reads both files; what is missing stays empty, which the user is told of the countries.
  void Read();
  void ReadStates();
  // Where headings are counted from. Cheap if it is the same.
  void SetHome(const Home& home);

  // The heading of the DX station by the best place at hand: what the line itself gives, the grid,
  // the state, the country. Empty texts if there is none.
  Heading HeadingOf(const Spot& spot) const;

 private:
  bool FromLocation(const Spot& spot, Heading& heading) const;

  platform::Files& files_;
  platform::Dialogs& dialogs_;
  const std::string folder_;
  Home home_;
};

}  // namespace spots
