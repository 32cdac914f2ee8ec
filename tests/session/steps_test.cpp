#include "session/steps.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/sim/world.h"

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Notes = std::vector<std::string>;

platform::Task<> Note(Notes& notes, std::string text) {
  notes.push_back(text + " begins");
  co_await platform::Delay(1s);
  notes.push_back(text + " ends");
}

platform::Task<> NoteAtOnce(Notes& notes, std::string text) {
  notes.push_back(text);
  co_return;
}

platform::Task<> Fail(std::string what = "boom") {
  throw std::runtime_error(what);
  co_return;
}

platform::Task<> PushAnother(session::Steps& steps, Notes& notes) {
  notes.push_back("pushes");
  steps.Push("pushed", NoteAtOnce(notes, "pushed"));
  co_await platform::Delay(1s);
  notes.push_back("pushed it");
}

class StepsTest : public testing::Test {
 protected:
  platform::sim::World world;
  Notes notes;
  Notes faults;
  int changes = 0;
  session::Steps steps{world.scheduler,
                       [this](std::string_view name, std::string_view what) {
                         faults.push_back(std::string(name) + ": " + std::string(what));
                       },
                       [this] { ++changes; }};
};

TEST_F(StepsTest, StepBeginsInALaterTurn) {
  steps.Push("a", NoteAtOnce(notes, "a"));
  EXPECT_TRUE(steps.Busy());
  EXPECT_THAT(notes, IsEmpty());
  world.Run(1ms);
  EXPECT_THAT(notes, ElementsAre("a"));
  EXPECT_FALSE(steps.Busy());
}

TEST_F(StepsTest, StepsAreDoneOneAfterTheOtherInTheOrderOfPushing) {
  steps.Push("a", Note(notes, "a"));
  steps.Push("b", Note(notes, "b"));
  world.Run(3s);
  EXPECT_THAT(notes, ElementsAre("a begins", "a ends", "b begins", "b ends"));
}

TEST_F(StepsTest, StepThatIsPushedByAStepComesBehindIt) {
  steps.Push("a", PushAnother(steps, notes));
  world.Run(3s);
  EXPECT_THAT(notes, ElementsAre("pushes", "pushed it", "pushed"));
  EXPECT_FALSE(steps.Busy());
}

TEST_F(StepsTest, ChangesAreToldOncePerBusyTime) {
  steps.Push("a", Note(notes, "a"));
  steps.Push("b", Note(notes, "b"));
  EXPECT_EQ(changes, 1);
  world.Run(3s);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(steps.Pushed(), 2u);
}

TEST_F(StepsTest, StepThatFailsIsReportedAndTheNextIsDone) {
  steps.Push("first", Fail());
  steps.Push("second", NoteAtOnce(notes, "second"));
  world.Run(1s);
  EXPECT_THAT(faults, ElementsAre("first: boom"));
  EXPECT_THAT(notes, ElementsAre("second"));
  EXPECT_FALSE(steps.Busy());
}

TEST_F(StepsTest, StepThatFailsWithoutAWordIsReportedToo) {
  steps.Push("first", Fail(""));
  world.Run(1s);
  EXPECT_THAT(faults, ElementsAre("first: "));
}

TEST_F(StepsTest, DroppedStepsAreNotDoneAndTheOneThatRunsIs) {
  steps.Push("a", Note(notes, "a"));
  steps.Push("b", Note(notes, "b"));
  world.Run(500ms);
  steps.DropWaiting();
  world.Run(3s);
  EXPECT_THAT(notes, ElementsAre("a begins", "a ends"));
  EXPECT_FALSE(steps.Busy());
}

TEST_F(StepsTest, StepDroppedBeforeItHasBegunLeavesNobodyHeld) {
  steps.Push("a", Note(notes, "a"));
  steps.DropWaiting();
  world.Run(1s);
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_FALSE(steps.Busy());
}

TEST_F(StepsTest, StepPushedRightBehindADropIsDone) {
  steps.Push("a", Note(notes, "a"));
  world.Run(500ms);
  steps.DropWaiting();
  steps.Push("b", Note(notes, "b"));
  world.Run(3s);
  EXPECT_THAT(notes, ElementsAre("a begins", "a ends", "b begins", "b ends"));
}

}  // namespace
