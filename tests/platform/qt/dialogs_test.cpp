#include "platform/qt/qt_dialogs.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

#include "platform/qt/pump.h"
#include "platform/qt/qt_scheduler.h"
#include "platform/tasks.h"

namespace platform::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct QtDialogsTest : testing::Test {
  QtScheduler scheduler;
  QtDialogs dialogs;
  std::vector<Answer> answers;
  Tasks tasks{scheduler, [](std::string_view, std::string_view what) { FAIL() << what; }};

  static Task<> Note(Dialogs& asked, Message message, std::vector<Answer>& into) {
    auto asking = asked.Ask(message);
    const Answer answer = co_await std::move(asking);
    into.push_back(answer);
  }
  void Ask(const Message& message) { tasks.Start("ask", Note(dialogs, message, answers)); }

  static QList<QMessageBox*> Boxes() {
    QList<QMessageBox*> boxes;
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (auto* const box = qobject_cast<QMessageBox*>(widget); box && box->isVisible())
        boxes.push_back(box);
    return boxes;
  }
  static QMessageBox& Box() { return *Boxes().at(0); }
  static std::vector<std::string> Captions() {
    std::vector<std::string> captions;
    for (const auto* button : Box().buttons())
      captions.push_back(button->text().remove('&').toStdString());
    return captions;
  }
  static void Press(const char* caption) {
    for (auto* button : Box().buttons())
      if (button->text().remove('&') == caption) return button->click();
    FAIL() << "no button " << caption;
  }
  static void PressEscape() {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&Box(), &escape);
  }
  bool PumpUntilAnswers(std::size_t count) {
    return PumpUntil([&] { return answers.size() == count; });
  }
};

Message Plain(std::string text, std::vector<Answer> answers = {Answer::Ok}) {
  return {.title = {}, .text = std::move(text), .answers = std::move(answers)};
}

const Message kQuestion{.title = "Delete",
                        .text = "Really?",
                        .kind = Message::Kind::Question,
                        .answers = {Answer::Yes, Answer::No}};

TEST_F(QtDialogsTest, AMessageIsShownWithoutHoldingAnythingUp) {
  dialogs.Tell({.title = "Title", .text = "Text", .kind = Message::Kind::Warning});
  ASSERT_EQ(Boxes().size(), 1);
  EXPECT_EQ(Box().windowTitle(), "Title");
  EXPECT_EQ(Box().text(), "Text");
  EXPECT_EQ(Box().icon(), QMessageBox::Warning);
  EXPECT_THAT(Captions(), ElementsAre("OK"));
}

TEST_F(QtDialogsTest, ABoxThatIsClosedIsGone) {
  dialogs.Tell(Plain("Text"));
  QPointer<QMessageBox> box(&Box());
  Press("OK");
  EXPECT_TRUE(PumpUntil([&] { return box.isNull(); }));
}

TEST_F(QtDialogsTest, TextIsNeverReadAsMarkup) {
  dialogs.Tell(Plain("<b>not bold</b> &amp; <img src='http://192.0.2.1/x'>"));
  EXPECT_EQ(Box().textFormat(), Qt::PlainText);
  EXPECT_EQ(Box().text(), "<b>not bold</b> &amp; <img src='http://192.0.2.1/x'>");
}

TEST_F(QtDialogsTest, BytesThatAreNotUtf8AreShownAsWindows1252) {
  dialogs.Tell({.title = "J\xFCrgen", .text = "caf\xC3\xA9"});
  EXPECT_EQ(Box().windowTitle(), QString::fromUtf16(u"J\u00FCrgen"));
  EXPECT_EQ(Box().text(), QString::fromUtf16(u"caf\u00E9"));
}

TEST_F(QtDialogsTest, EveryButtonHasItsUsualText) {
  dialogs.Tell(Plain("a", {Answer::Yes, Answer::No, Answer::Cancel}));
  EXPECT_THAT(Captions(), testing::UnorderedElementsAre("Yes", "No", "Cancel"));
  Press("Cancel");
  dialogs.Tell(Plain("b", {Answer::Retry, Answer::Ok}));
  EXPECT_THAT(Captions(), testing::UnorderedElementsAre("Retry", "OK"));
}

TEST_F(QtDialogsTest, TheFirstAnswerIsTheOneForTheEnterKey) {
  Ask(Plain("a", {Answer::No, Answer::Yes}));
  EXPECT_EQ(Box().standardButton(Box().defaultButton()), QMessageBox::No);
}

TEST_F(QtDialogsTest, TheButtonPressedIsTheAnswer) {
  for (const auto& [caption, answer] :
       {std::pair("OK", Answer::Ok), std::pair("Cancel", Answer::Cancel),
        std::pair("Yes", Answer::Yes), std::pair("No", Answer::No),
        std::pair("Retry", Answer::Retry)}) {
    answers.clear();
    Ask(Plain(caption, {Answer::Ok, Answer::Yes, Answer::No, Answer::Retry, Answer::Cancel}));
    Press(caption);
    EXPECT_THAT(answers, IsEmpty());
    ASSERT_TRUE(PumpUntilAnswers(1));
    EXPECT_EQ(answers[0], answer) << caption;
  }
}

TEST_F(QtDialogsTest, ClosingTheBoxCancels) {
  Ask(Plain("a", {Answer::Cancel, Answer::Ok}));
  Box().close();
  ASSERT_TRUE(PumpUntilAnswers(1));
  EXPECT_EQ(answers[0], Answer::Cancel);
}

TEST_F(QtDialogsTest, EscapeIsNoWhereNothingCancels) {
  Ask(kQuestion);
  PressEscape();
  ASSERT_TRUE(PumpUntilAnswers(1));
  EXPECT_EQ(answers[0], Answer::No);
}

TEST_F(QtDialogsTest, EscapeIsTheLastAnswerWhereNoneIsHarmless) {
  Ask(Plain("a", {Answer::Retry, Answer::Ok}));
  PressEscape();
  ASSERT_TRUE(PumpUntilAnswers(1));
  EXPECT_EQ(answers[0], Answer::Ok);
}

TEST_F(QtDialogsTest, AMessageThatIsOnShowIsNotShownAgain) {
  dialogs.Tell(Plain("a"));
  dialogs.Tell(Plain("a"));
  EXPECT_EQ(Boxes().size(), 1);
  dialogs.Tell(Plain("b"));
  EXPECT_EQ(Boxes().size(), 2);
}

TEST_F(QtDialogsTest, AMessageThatWasClosedIsShownAgain) {
  dialogs.Tell(Plain("a"));
  Press("OK");
  dialogs.Tell(Plain("a"));
  EXPECT_EQ(Boxes().size(), 1);
}

TEST_F(QtDialogsTest, ASecondAskerGetsTheSameAnswer) {
  Ask(kQuestion);
  Ask(kQuestion);
  EXPECT_EQ(Boxes().size(), 1);
  Press("Yes");
  ASSERT_TRUE(PumpUntilAnswers(2));
  EXPECT_THAT(answers, ElementsAre(Answer::Yes, Answer::Yes));
}

TEST_F(QtDialogsTest, WhoAsksAgainAfterTheAnswerIsAskedAnew) {
  Ask(kQuestion);
  Press("Yes");
  Ask(kQuestion);
  ASSERT_EQ(Boxes().size(), 1);
  Press("No");
  ASSERT_TRUE(PumpUntilAnswers(2));
  EXPECT_THAT(answers, ElementsAre(Answer::Yes, Answer::No));
}

TEST_F(QtDialogsTest, AnAskerThatIsCancelledLeavesTheBoxOpen) {
  Ask(kQuestion);
  tasks.CancelAll();
  ASSERT_EQ(Boxes().size(), 1);
  Press("Yes");
  PumpTurns(scheduler);
  EXPECT_THAT(answers, IsEmpty());
}

TEST_F(QtDialogsTest, ABoxThatIsAskedForBeforeItsWindowIsShownLiesOverItAllTheSame) {
  QMainWindow window;
  dialogs.Tell(Plain("early"));
  EXPECT_TRUE(Boxes().isEmpty());
  window.show();
  ASSERT_TRUE(PumpUntil([] { return Boxes().size() == 1 || QApplication::activeModalWidget(); }));
  EXPECT_EQ(QApplication::activeModalWidget()->parentWidget(), &window);
}

TEST_F(QtDialogsTest, ABoxLiesOverTheMainWindow) {
  QMainWindow window;
  window.show();
  dialogs.Tell(Plain("a"));
  EXPECT_EQ(Box().parentWidget(), &window);
  Press("OK");
}

TEST_F(QtDialogsTest, AWindowThatGoesAnswersItsQuestionsAsIfClosed) {
  auto window = std::make_unique<QMainWindow>();
  window->show();
  Ask(kQuestion);
  ASSERT_EQ(Boxes().size(), 1);
  window.reset();
  ASSERT_TRUE(PumpUntilAnswers(1));
  EXPECT_EQ(answers[0], Answer::No);
}

TEST_F(QtDialogsTest, AQuestionWithoutAnswersHasOne) {
  dialogs.Tell(Plain("a", {}));
  EXPECT_THAT(Captions(), ElementsAre("OK"));
}

TEST(QtDialogsLifeTest, WhatIsOnShowGoesWithTheDialogs) {
  auto dialogs = std::make_unique<QtDialogs>();
  dialogs->Tell(Plain("a"));
  ASSERT_EQ(QtDialogsTest::Boxes().size(), 1);
  dialogs.reset();
  EXPECT_EQ(QtDialogsTest::Boxes().size(), 0);
}

}  // namespace
}  // namespace platform::qt
