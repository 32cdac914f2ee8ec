#pragma once

#include <QMessageBox>
#include <QObject>
#include <memory>

#include "platform/dialogs.h"

namespace platform::qt {

// Message boxes over the main window. Which side the answers stand on is the desktop's habit.
// Closing a box gives Cancel, else No, else the last answer, whichever it has.
class QtDialogs final : public Dialogs {
 public:
  QtDialogs() = default;
  QtDialogs(const QtDialogs&) = delete;
  QtDialogs& operator=(const QtDialogs&) = delete;
  ~QtDialogs() override;  // takes down what is on show

  void Tell(Message message) override;
  Task<Answer> Ask(Message message) override;

 private:
  struct Shown {
    Message message;
    QMessageBox* box;
    Answer answer;  // until a button is pressed, that of closing it
    Signal answered;
  };

  std::shared_ptr<Shown> Show(Message message);
  void Close(const Shown& closed);

  QObject receiver_;  // of the boxes' signals
  std::vector<std::shared_ptr<Shown>> shown_;
};

}  // namespace platform::qt
