#include "ui/frames.h"

#include <algorithm>
#include <utility>

namespace ui {

void Frames::Item::Changed() {
  if (!std::exchange(changed_, true)) frames_.changed_.push_back(weak_from_this());
  frames_.Ask();
}

std::shared_ptr<Frames::Item> Frames::Add(std::function<void()> repaint) {
  return std::shared_ptr<Item>(new Item(*this, std::move(repaint)));
}

void Frames::Touched() {
  touched_ = scheduler_.Now();
  if (due_) Ask();  // it comes sooner now
}

void Frames::Ask() {
  const platform::Milliseconds due = Due();
  if (due_ && *due_ <= due) return;
  due_ = due;
  next_ = scheduler_.After(due - scheduler_.Now(), [this] { Paint(); });
}

platform::Milliseconds Frames::Due() const {
  const platform::Milliseconds now = scheduler_.Now();
  if (IsTouched()) return std::max(last_ + kFrame, now);
  return now - last_ < kQuietFrame ? last_ + kLatestFrame : now;
}

void Frames::Paint() {
  last_ = scheduler_.Now();
  due_.reset();
  for (const auto& each : std::exchange(changed_, {})) {
    const auto item = each.lock();
    if (!item) continue;
    item->changed_ = false;
    item->repaint_();
  }
}

}  // namespace ui
