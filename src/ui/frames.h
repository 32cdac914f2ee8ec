#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/scheduler.h"

namespace ui {

// Repaints what has changed, however often it changes: at most once in 33 ms while somebody is at
// it, and five times a second when nobody is. What changes soon after a frame waits then for what
// comes next, so that a batch of lines and its frame need one wake-up, whatever the clock did
// between two of them.
class Frames {
 public:
  // Something on the screen. Marked as changed it is repainted with the next frame.
  class Item : public std::enable_shared_from_this<Item> {
   public:
    void Changed();

   private:
    friend class Frames;
    Item(Frames& frames, std::function<void()> repaint)
        : frames_(frames), repaint_(std::move(repaint)) {}

    Frames& frames_;
    std::function<void()> repaint_;
    bool changed_ = false;
  };

  static constexpr platform::Milliseconds kFrame{33};
  // When nobody is at it: a change is painted at once that long after the last frame,
  static constexpr platform::Milliseconds kQuietFrame{170};
  // and a sooner one at the latest then.
  static constexpr platform::Milliseconds kLatestFrame{200};
  // How long a touch counts.
  static constexpr platform::Milliseconds kTouch{2000};

  explicit Frames(platform::Scheduler& scheduler) : scheduler_(scheduler) {}

  // A key, a button, the wheel: somebody is at it.
  void Touched();
  // Somebody has been at it just now.
  bool IsTouched() const { return scheduler_.Now() - touched_ < kTouch; }

  // The item is repainted as long as the result is kept.
  std::shared_ptr<Item> Add(std::function<void()> repaint);

 private:
  void Ask();
  void Paint();
  // When that is to be painted which changes now.
  platform::Milliseconds Due() const;

  platform::Scheduler& scheduler_;
  std::vector<std::weak_ptr<Item>> changed_;  // in the order of their changes
  platform::Milliseconds last_{-kLatestFrame};
  platform::Milliseconds touched_{-kTouch};
  std::optional<platform::Milliseconds> due_;  // while something has changed
  platform::Registration next_;
};

}  // namespace ui
