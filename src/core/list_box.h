#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/controls.h"

namespace core {

// A list of texts of which one may be selected. It tells what has changed, never a whole new list.
class ListBox : public Control {
 public:
  // At that place `removed` items went, and then `added` ones came in.
  struct Change {
    std::size_t at = 0;
    std::size_t removed = 0;
    std::size_t added = 0;

    bool operator==(const Change&) const = default;
  };

  static constexpr int kNone = -1;
  Property<int> Selected{kNone};  // the place of the selected item
  // The user's act.
  void UserSelects(int place) {
    Selected.Set(place);
    Click.Tell();
  }
  Observers<> Click;

  const std::vector<std::string>& Items() const { return items_; }

  void Add(std::string item) {
    items_.push_back(std::move(item));
    changes_.Tell({.at = items_.size() - 1, .added = 1});
  }

  // There must be an item at that place. The selection stays with its item, or ends with it.
  void Remove(std::size_t place) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(place));
    const int selected = Selected.Get();
    const int removed = static_cast<int>(place);
    if (selected >= removed) Selected.Set(selected == removed ? kNone : selected - 1);
    changes_.Tell({.at = place, .removed = 1});
  }

  void Clear() {
    if (items_.empty()) return;
    Selected.Set(kNone);
    const std::size_t removed = items_.size();
    items_.clear();
    changes_.Tell({.removed = removed});
  }

  // Told of each change until the result goes; what stands here already is told as added at once.
  platform::Registration Observe(std::function<void(const Change&)> observer) {
    observer({.added = items_.size()});
    return changes_.Add(std::move(observer));
  }

 private:
  std::vector<std::string> items_;
  Observers<const Change&> changes_;
};

}  // namespace core
