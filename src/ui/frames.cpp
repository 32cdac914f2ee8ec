#include "ui/frames.h"

#include <algorithm>
#include <utility>

namespace ui {

void Frames::Item::Changed() {
  if (!std::exchange(changed_, true)) frames_.Ask(weak_from_this());
}

std::shared_ptr<Frames::Item> Frames::Add(std::function<void()> repaint) {
  return std::shared_ptr<Item>(new Item(*this, std::move(repaint)));
}

void Frames::Touched() {
  touched_ = scheduler_.Now();
  if (!changed_.empty() && Due() < due_) Wait();  // what is due comes sooner now
}

void Frames::Ask(std::weak_ptr<Item> item) {
  changed_.push_back(std::move(item));
  if (changed_.size() == 1 || Due() < due_) Wait();
}

void Frames::Wait() {
  due_ = Due();
  next_ = scheduler_.After(due_ - scheduler_.Now(), [this] { Paint(); });
}

platform::Milliseconds Frames::Due() const {
  const platform::Milliseconds now = scheduler_.Now();
  if (now - touched_ < kTouch) return std::max(last_ + kFrame, now);
  return now - last_ < kQuietFrame ? last_ + kLatestFrame : now;
}

void Frames::Paint() {
  last_ = scheduler_.Now();
  for (const auto& each : std::exchange(changed_, {})) {
    const auto item = each.lock();
    if (!item) continue;
    item->changed_ = false;
    item->repaint_();
  }
}

}  // namespace ui
