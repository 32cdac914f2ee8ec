#include "ui/frames.h"

#include <algorithm>
#include <utility>

namespace ui {

void Frames::Item::Changed() {
  changed_ = true;
  frames_.Ask();
}

std::shared_ptr<Frames::Item> Frames::Add(std::function<void()> repaint) {
  std::shared_ptr<Item> item(new Item(*this, std::move(repaint)));
  items_.push_back(item);
  return item;
}

void Frames::Touched() {
  const bool quiet = Frame() == kQuietFrame;
  touched_ = scheduler_.Now();
  if (asked_ && quiet) Wait();  // what is due comes sooner now
}

void Frames::Ask() {
  if (!std::exchange(asked_, true)) Wait();
}

void Frames::Wait() {
  const auto wait = std::max(last_ + Frame() - scheduler_.Now(), platform::Milliseconds{0});
  next_ = scheduler_.After(wait, [this] { Paint(); });
}

platform::Milliseconds Frames::Frame() const {
  return scheduler_.Now() - touched_ < kTouch ? kFrame : kQuietFrame;
}

void Frames::Paint() {
  asked_ = false;
  last_ = scheduler_.Now();
  std::erase_if(items_, [](const auto& item) { return item.expired(); });
  for (std::size_t i = 0; i < items_.size(); ++i) {
    const auto item = items_[i].lock();
    if (item && std::exchange(item->changed_, false)) item->repaint_();
  }
}

}  // namespace ui
