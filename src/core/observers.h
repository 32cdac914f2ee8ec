#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/registration.h"

namespace core {

// Those who want to be told of something. One may leave, and others come, while all are being told;
// who comes then is told the next time. The registrations may outlive the list.
template <class... Args>
class Observers {
 public:
  using Callback = std::function<void(Args...)>;

  platform::Registration Add(Callback callback) {
    auto entry = std::make_shared<Entry>(std::move(callback));
    list_->entries.push_back(entry);
    return platform::Registration([list = std::weak_ptr(list_), entry] {
      entry->leaving = true;
      if (const auto alive = list.lock()) alive->LetGo();
    });
  }

  void Tell(Args... args) const {
    const Telling telling(list_);
    const std::size_t present = telling.list->entries.size();
    for (std::size_t i = 0; i < present; ++i) {
      const auto entry = telling.list->entries[i];
      if (!entry->leaving) entry->callback(args...);
    }
  }

 private:
  struct Entry {
    explicit Entry(Callback call) : callback(std::move(call)) {}
    Callback callback;
    bool leaving = false;
  };

  struct List {
    std::vector<std::shared_ptr<Entry>> entries;
    int telling = 0;

    void LetGo() {
      if (telling == 0) std::erase_if(entries, [](const auto& entry) { return entry->leaving; });
    }
  };

  // Who leaves while all are being told is let go when that is over.
  struct Telling {
    explicit Telling(std::shared_ptr<List> told) : list(std::move(told)) { ++list->telling; }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;
    ~Telling() {
      --list->telling;
      list->LetGo();
    }
    std::shared_ptr<List> list;
  };

  std::shared_ptr<List> list_ = std::make_shared<List>();
};

}  // namespace core
