#pragma once

#include <string>
#include <vector>

#include "platform/task.h"

namespace platform {

enum class Answer { Ok, Cancel, Yes, No, Retry };

// A box in front of the window. Shown without holding anything up.
struct Message {
  enum class Kind { Plain, Question, Warning, Critical };
  std::string title;
  std::string text;  // line ends are '\n'
  Kind kind = Kind::Plain;
  // The buttons. Closing the box gives Cancel, else No, else the last of them.
  std::vector<Answer> answers = {Answer::Ok};

  bool operator==(const Message&) const = default;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Shows the message and goes on. One that is on show is not shown again.
  virtual void Tell(Message message) = 0;
  // Shows the message and waits for the user. A second asker of one that is on show gets the same
  // answer.
  virtual Task<Answer> Ask(Message message) = 0;
};

}  // namespace platform
