#pragma once

#include <functional>
#include <utility>

namespace platform {

// Holds something that was registered (a timer, a posted call, an observer) and takes it back when
// it goes. Move-only. Empty by default, and after Release.
class [[nodiscard]] Registration {
 public:
  Registration() = default;
  explicit Registration(std::function<void()> undo) : undo_(std::move(undo)) {}
  Registration(Registration&& other) noexcept : undo_(std::exchange(other.undo_, nullptr)) {}
  Registration& operator=(Registration&& other) noexcept {
    if (this != &other) {
      Release();
      undo_ = std::exchange(other.undo_, nullptr);
    }
    return *this;
  }
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
  ~Registration() { Release(); }

  // Takes the registered thing back now. May be called any number of times.
  void Release() {
    if (auto undo = std::exchange(undo_, nullptr)) undo();
  }

  // Leaves the registered thing as it is, for good.
  void Keep() { undo_ = nullptr; }

 private:
  std::function<void()> undo_;
};

}  // namespace platform
