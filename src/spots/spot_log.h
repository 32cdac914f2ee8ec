#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>

#include "core/dates.h"
#include "core/settings.h"
#include "platform/files.h"
#include "platform/scheduler.h"
#include "spots/spot.h"

namespace spots {

// Writes accepted spots to the files of their days. Lines are gathered and handed to the system
// together, half a second behind the first or when there are many, so that no file stays open in
// between and a flood costs few calls. A crash of the program loses that half second at most; its
// end, which calls Close, nothing.
//
// Lines that the disk doesn't take are lost; the next ones are tried again.
class SpotLog {
 public:
  // The references, and what `trouble` goes to, outlive the log; `folder` is the program's.
  // `trouble` is told why lines were lost, once until that changes, and Fault::None when they are
  // taken again.
  SpotLog(platform::Scheduler& scheduler, platform::Files& files, core::Calendar& calendar,
          const core::Settings& settings, std::string folder,
          std::function<void(platform::Files::Fault)> trouble);
  SpotLog(const SpotLog&) = delete;
  SpotLog& operator=(const SpotLog&) = delete;

  // The start of the program or of a day: closes the log and makes the folder of today's year.
  void EnableLoggingSpots();

  // Nothing if logging is off.
  void Write(const Spot& spot);

  // Hands over what waits. With logging off there is no trouble any more.
  void Close();

 private:
  // Lines of one day that wait.
  struct Page {
    int day = 0;
    std::string lines;
  };
  // Around midnight spots of two days come in turns, and a list holds more.
  static constexpr std::size_t kPages = 8;
  static constexpr std::size_t kMostWaiting = 65536;

  Page& PageOf(int day);
  void HandOver();
  platform::Files::Fault HandOver(Page& page);
  void Tell(platform::Files::Fault fault);

  platform::Scheduler& scheduler_;
  platform::Files& files_;
  core::Calendar& calendar_;
  const core::Settings& settings_;
  const std::string folder_;
  const std::function<void(platform::Files::Fault)> trouble_;
  std::array<Page, kPages> pages_;
  std::size_t pagesInUse_ = 0;
  std::size_t waiting_ = 0;  // bytes
  platform::Files::Fault told_ = platform::Files::Fault::None;
  bool torn_ = false;  // a line may have been written in part
  bool asked_ = false;
  platform::Registration handingOver_;
};

}  // namespace spots
