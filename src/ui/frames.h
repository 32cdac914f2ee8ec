#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/scheduler.h"

namespace ui {

// Repaints what has changed, at most once in 33 ms, however often it changes.
class Frames {
 public:
  // Something on the screen. Marked as changed it is repainted with the next frame.
  class Item {
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

  explicit Frames(platform::Scheduler& scheduler) : scheduler_(scheduler) {}

  // The item is repainted as long as the result is kept.
  std::shared_ptr<Item> Add(std::function<void()> repaint);

 private:
  void Ask();
  void Paint();

  platform::Scheduler& scheduler_;
  std::vector<std::weak_ptr<Item>> items_;
  platform::Milliseconds last_{-kFrame};
  bool asked_ = false;
  platform::Registration next_;
};

}  // namespace ui
