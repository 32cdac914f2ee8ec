#pragma once

#include <list>
#include <map>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace platform::sim {

// The user before the boxes: what was shown stands in `shown`, and the answers are scripted.
class SimDialogs : public Dialogs {
 public:
  // Every message in the order of showing, told and asked.
  std::vector<Message> shown;

  // What the user will answer to messages of that title. Without one a question stays open.
  void WillAnswer(const std::string& title, Answer answer) { script_[title] = answer; }
  // Answers the message that is on show under that title. False if there is none.
  bool AnswerNow(const std::string& title, Answer answer);
  bool OnShow(const std::string& title) const;

  void Tell(Message message) override;
  Task<Answer> Ask(Message message) override;

 private:
  struct Box {
    explicit Box(Message asked) : message(std::move(asked)) {}
    Message message;
    Answer answer = Answer::Cancel;
    bool answered = false;
    Signal closed;
  };

  std::shared_ptr<Box> Show(Message message);

  std::map<std::string, Answer> script_;
  std::list<std::shared_ptr<Box>> open_;
};

}  // namespace platform::sim
