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
  const bool quiet = Frame() == kQuietFrame;
  touched_ = scheduler_.Now();
  if (!changed_.empty() && quiet) Wait();  // what is due comes sooner now
}

void Frames::Ask(std::weak_ptr<Item> item) {
  changed_.push_back(std::move(item));
  if (changed_.size() == 1) Wait();
}

void Frames::Wait() {
  const auto wait = std::max(last_ + Frame() - scheduler_.Now(), platform::Milliseconds{0});
  next_ = scheduler_.After(wait, [this] { Paint(); });
}

platform::Milliseconds Frames::Frame() const {
  return scheduler_.Now() - touched_ < kTouch ? kFrame : kQuietFrame;
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
