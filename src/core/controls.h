#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/observers.h"

// What the operator sees and sets, as the rules know it: values that can be watched. The rules set
// them; the user's acts come in through the calls named so, and those alone run the rules of a
// click or a change.
namespace core {

// Decimal 24-bit, in blue-green-red order. kThemeColour follows the theme; so do the three that
// mean good, bad and accent.
using Colour = int;
inline constexpr Colour kThemeColour = 0;
inline constexpr Colour kRed = 0x0000FF;
inline constexpr Colour kGreen = 0x00FF00;
inline constexpr Colour kBlue = 0xFF0000;

// One value. Setting it to what it is tells nobody.
template <class T>
class Property {
 public:
  Property() = default;
  explicit Property(T value) : value_(std::move(value)) {}

  const T& Get() const { return value_; }

  void Set(T value) {
    if (value == value_) return;
    value_ = std::move(value);
    observers_.Tell(value_);
  }

  // Tells the present value at once, and then each change, until the result goes.
  platform::Registration Observe(std::function<void(const T&)> observer) {
    observer(value_);
    return observers_.Add(std::move(observer));
  }

 private:
  T value_{};
  Observers<const T&> observers_;
};

struct Control {
  Property<std::string> Caption;
  Property<std::string> ToolTip;
  Property<Colour> ForeColour{kThemeColour};
  Property<bool> Enabled{true};
  Property<bool> Visible{true};
};

struct Label : Control {};

struct Button : Control {
  // The user's act, or a rule's in his place. Nothing happens while it is disabled.
  void Press() {
    if (Enabled.Get()) Click.Tell();
  }
  Observers<> Click;
};

struct Check : Control {
  Property<bool> Value{false};
  // The user's act.
  void UserSets(bool ticked) {
    if (ticked == Value.Get()) return;
    Value.Set(ticked);
    Click.Tell();
  }
  Observers<> Click;
};

// One of several, by its place in Options.
struct Choice : Control {
  Property<std::vector<std::string>> Options;
  Property<int> Selected{0};
  // The user's act; choosing what is chosen counts too.
  void UserSelects(int option) {
    Selected.Set(option);
    Click.Tell();
  }
  Observers<> Click;
};

struct TextBox : Control {
  Property<std::string> Text;  // bytes; valid UTF-8 where the user typed it
  // The user's acts.
  void UserTypes(const std::string& text) {
    Text.Set(text);
    Change.Tell();
  }
  void UserPressesReturn() { Return.Tell(); }
  Observers<> Change;
  Observers<> Return;
};

}  // namespace core
