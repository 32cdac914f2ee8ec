#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/scheduler.h"

namespace practice_tnc {

// A serial line whose other end is a device that programs open by its path. They may come and go.
class PseudoTerminal {
 public:
  PseudoTerminal(platform::Scheduler& scheduler,
                 std::function<void(std::string_view bytes)> received);
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  // Of the device; empty if there is none to be had.
  const std::string& Path() const { return path_; }
  // Lost where nobody reads.
  void Write(std::string_view bytes) const;

 private:
  void Read();

  platform::Scheduler& scheduler_;
  std::function<void(std::string_view)> received_;
  int own_;
  std::string path_;
  std::unique_ptr<QSocketNotifier> readable_;
  platform::Registration waiting_;
};

}  // namespace practice_tnc
