#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QMainWindow>
#include <algorithm>
#include <array>

#include "platform/qt/qt_text.h"

namespace platform::qt {
namespace {

QMessageBox::StandardButton ButtonOf(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return QMessageBox::Ok;
    case Answer::Cancel:
      return QMessageBox::Cancel;
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::No:
      return QMessageBox::No;
    case Answer::Retry:
      break;
  }
  return QMessageBox::Retry;
}

QMessageBox::Icon IconOf(Message::Kind kind) {
  switch (kind) {
    case Message::Kind::Question:
      return QMessageBox::Question;
    case Message::Kind::Warning:
      return QMessageBox::Warning;
    case Message::Kind::Critical:
      return QMessageBox::Critical;
    case Message::Kind::Plain:
      break;
  }
  return QMessageBox::NoIcon;
}

Answer AnswerOfClosing(const std::vector<Answer>& answers) {
  for (const Answer harmless : {Answer::Cancel, Answer::No})
    if (std::ranges::find(answers, harmless) != answers.end()) return harmless;
  return answers.back();
}

QWidget* MainWindow() {
  for (QWidget* widget = QApplication::activeWindow(); widget; widget = widget->parentWidget())
    if (qobject_cast<QMainWindow*>(widget)) return widget;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (qobject_cast<QMainWindow*>(widget) && widget->isVisible()) return widget;
  return nullptr;
}

// What is shown before its window would stand behind it.
bool WindowIsToCome() {
  const QWidgetList all = QApplication::topLevelWidgets();
  return MainWindow() == nullptr && std::ranges::any_of(all, [](QWidget* widget) {
           return qobject_cast<QMainWindow*>(widget) != nullptr;
         });
}

void OpenOverWindow(QMessageBox& box) {
  box.setParent(MainWindow(), box.windowFlags());
  box.open();
}

QMessageBox* MakeBox(const Message& message) {
  auto* const box = new QMessageBox(MainWindow());
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->setWindowTitle(TextOf(message.title));
  box->setText(TextOf(message.text));
  box->setIcon(IconOf(message.kind));
  for (const Answer answer : message.answers) box->addButton(ButtonOf(answer));
  box->setDefaultButton(ButtonOf(message.answers.front()));
  box->setEscapeButton(ButtonOf(AnswerOfClosing(message.answers)));
  return box;
}

Answer AnswerPressed(const QMessageBox& box, const Message& message, Answer otherwise) {
  const auto pressed = box.standardButton(box.clickedButton());
  const auto answer = std::ranges::find(message.answers, pressed, ButtonOf);
  return answer == message.answers.end() ? otherwise : *answer;
}

}  // namespace

QtDialogs::~QtDialogs() {
  QObject::disconnect(&receiver_, nullptr, nullptr, nullptr);
  for (const auto& each : std::exchange(shown_, {})) delete each->box;
}

void QtDialogs::Tell(Message message) { Show(std::move(message)); }

Task<Answer> QtDialogs::Ask(Message message) {
  const auto shown = Show(std::move(message));
  co_await shown->answered.Next();
  co_return shown->answer;
}

std::shared_ptr<QtDialogs::Shown> QtDialogs::Show(Message message) {
  if (message.answers.empty()) message.answers = {Answer::Ok};
  for (const auto& each : shown_)
    if (each->message == message) return each;
  QMessageBox* const box = MakeBox(message);
  const Answer closing = AnswerOfClosing(message.answers);
  std::shared_ptr<Shown> shown(new Shown{std::move(message), box, closing, {}});
  shown_.push_back(shown);
  QObject::connect(box, &QMessageBox::finished, &receiver_, [this, shown] {
    shown->answer = AnswerPressed(*shown->box, shown->message, shown->answer);
    Close(*shown);
  });
  // A window that goes takes its boxes along, and they say nothing else.
  QObject::connect(box, &QObject::destroyed, &receiver_, [this, shown] { Close(*shown); });
  if (WindowIsToCome())
    QMetaObject::invokeMethod(
        box, [box] { OpenOverWindow(*box); }, Qt::QueuedConnection);
  else
    box->open();
  return shown;
}

void QtDialogs::Close(const Shown& closed) {
  const auto place = std::ranges::find(shown_, &closed, &std::shared_ptr<Shown>::get);
  if (place == shown_.end()) return;
  const auto shown = *place;
  shown_.erase(place);
  shown->answered.Notify();
}

}  // namespace platform::qt
