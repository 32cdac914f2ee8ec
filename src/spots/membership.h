#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "platform/files.h"
#include "spots/call_table.h"
#include "spots/file_state.h"
#include "spots/spot.h"

namespace spots {

// Which stations use LoTW and eQSL, from two files that list them: the mark of each spot, the
// rejection of all others, and the answer to a typed call.
class Membership {
 public:
  enum class List { Lotw, Eqsl };
  // A fetched file has just been put in place of the older one.
  enum class Origin { Stored, Fetched };

  // The references outlive it. The folder is the one that holds the program's data files.
  // `startUpdate` is asked for when the user clicks the switch of an empty list.
  Membership(platform::Files& files, std::string folder, core::Settings& settings,
             std::function<void(List)> startUpdate);

  // The lists that mark spots, and the rejection; its caption says of whom.
  core::Check showlotw;
  core::Check showeqsl;
  core::Check RejectNot;

  // The query: a switch for each list, and the box, hidden with both off.
  struct QueryBox : core::TextBox {
    core::Property<std::string> Hint;  // stands in the box while that is empty
  };
  core::Check LotwChecker;
  core::Check eQSLchecker;
  QueryBox txtLotw;
  core::Label lblLotw;  // the answer in one word, beside the box

  // What FindLotw has found.
  bool OnLotw = false;
  bool OnEqsl = false;

  // Sets the switches as the settings have them; a click of the user writes them there.
  void TakeSettings();

  // What became of the files when they were last read.
  core::Property<FileState> LotwFile{FileState::Missing};
  core::Property<FileState> EqslFile{FileState::Missing};

  // Read the files lotw.txt and eqsl.txt. One that is missing or of no good leaves its list empty
  // and the caption as it was. A fetched LoTW list also goes into lotwlist.txt, a call a line; an
  // eQSL list as it was fetched is rewritten in order.
  void ReadLotw(Origin origin = Origin::Stored) { LotwFile.Set(TakeLotw(origin)); }
  void ReadeQSL() { EqslFile.Set(TakeeQSL()); }

  // Looks the call up, byte for byte, in the lists that are on.
  void FindLotw(std::string_view call);

  // Sets the spot's mark. False: the spot is rejected. A list that is on and empty marks and
  // rejects nothing.
  bool MarkSpot(Spot& spot);

  std::size_t LotwCount() const { return lotwCalls_.Count(); }
  std::size_t EqslCount() const { return eqslCalls_.Count(); }
  std::size_t SkippedLotw() const { return skippedLotw_; }  // columns that were no call to list
  std::size_t Memory() const { return lotwCalls_.Memory() + eqslCalls_.Memory(); }

 private:
  FileState TakeLotw(Origin origin);
  FileState TakeeQSL();
  void ObserveClicks();
  void ClickList(core::Check& check, const CallTable& calls, List list);
  void RejectNotSetup();
  void CheckerSetup();
  void Answer();
  void Find(std::string_view call, bool lotw, bool eqsl);
  bool UsesLotw() const { return showlotw.Value.Get() && !lotwCalls_.Empty(); }
  bool UsesEqsl() const { return showeqsl.Value.Get() && !eqslCalls_.Empty(); }

  platform::Files& files_;
  const std::string folder_;
  core::Settings& settings_;
  std::function<void(List)> startUpdate_;
  CallTable lotwCalls_;
  CallTable eqslCalls_;
  std::size_t skippedLotw_ = 0;
  std::vector<platform::Registration> acts_;
};

}  // namespace spots
