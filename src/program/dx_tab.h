#pragma once

#include <array>
#include <string_view>

#include "core/controls.h"
#include "program/views.h"
#include "session/session_state.h"
#include "spots/spot_table.h"

namespace program {

// The tab of the spots: ties their table to the views, and knows what an empty table waits for.
class DxTab {
 public:
  // All three outlive it.
  DxTab(Views& views, spots::SpotTable& table, session::SessionState& session);

  core::Label lblEmpty;  // stands in the table while it has no rows

  // The user's act, from wherever he is: the table with the spots of that band comes on show.
  void ChooseBand(int band);

 private:
  void TellOnShow(int tab);
  void ShowEmpty();

  Views& views_;
  spots::SpotTable& table_;
  session::SessionState& session_;
  platform::Registration onShow_;
  platform::Registration caption_;
  std::array<platform::Registration, 5> waitsFor_;
};

// A band in words: "6 m", "70 cm", "microwaves"; empty for those that are none.
std::string_view BandWords(int band);

}  // namespace program
