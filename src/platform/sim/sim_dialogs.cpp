#include "platform/sim/sim_dialogs.h"

#include <algorithm>

namespace platform::sim {

std::shared_ptr<SimDialogs::Box> SimDialogs::Show(Message message) {
  for (const auto& box : open_)
    if (box->message == message) return box;
  shown.push_back(message);
  open_.push_back(std::make_shared<Box>(std::move(message)));
  return open_.back();
}

void SimDialogs::Tell(Message message) {
  const std::string title = message.title;
  Show(std::move(message));
  if (const auto scripted = script_.find(title); scripted != script_.end())
    AnswerNow(title, scripted->second);
}

Task<Answer> SimDialogs::Ask(Message message) {
  const auto box = Show(std::move(message));
  if (const auto scripted = script_.find(box->message.title); scripted != script_.end())
    AnswerNow(box->message.title, scripted->second);
  if (!box->answered) co_await box->closed.Next();
  co_return box->answer;
}

bool SimDialogs::AnswerNow(const std::string& title, Answer answer) {
  const auto found = std::find_if(open_.begin(), open_.end(),
                                  [&](const auto& box) { return box->message.title == title; });
  if (found == open_.end()) return false;
  const auto box = *found;
  open_.erase(found);
  box->answer = answer;
  box->answered = true;
  box->closed.Notify();
  return true;
}

bool SimDialogs::OnShow(const std::string& title) const {
  return std::any_of(open_.begin(), open_.end(),
                     [&](const auto& box) { return box->message.title == title; });
}

}  // namespace platform::sim
