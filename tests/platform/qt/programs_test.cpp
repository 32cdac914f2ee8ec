#include "platform/qt/qt_programs.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <array>
#include <csignal>

#include "platform/qt/pump.h"

namespace platform::qt {
namespace {

// A program by its name beside this one is, for any other, its path from here.
std::string PathFromHere(const char* path) {
  return QDir(QCoreApplication::applicationDirPath()).relativeFilePath(path).toStdString();
}

std::unique_ptr<ChildProgram> StartScript(const std::string& script) {
  return QtPrograms().Start(PathFromHere("/bin/sh"), {"-c", script});
}

// What it has written, once that is at least a line.
std::string FirstLine(ChildProgram& child) {
  std::string output;
  PumpUntil([&] {
    output += child.Output();
    return output.ends_with('\n');
  });
  return output;
}

TEST(QtProgramsTest, OutputIsWhatTheProgramHasWrittenSince) {
  const auto child = StartScript("echo one; exec sleep 600");
  EXPECT_EQ(FirstLine(*child), "one\n");
  EXPECT_EQ(child->Output(), "");
  EXPECT_TRUE(child->Running());
}

TEST(QtProgramsTest, ArgumentsComeAsTheyAre) {
  const auto child = QtPrograms().Start(PathFromHere("/bin/echo"), {"a b", "", "'$HOME'\"", "*"});
  EXPECT_EQ(FirstLine(*child), "a b  '$HOME'\" *\n");
}

TEST(QtProgramsTest, AProgramThatIsNotThereDoesNotRun) {
  const auto child = QtPrograms().Start("no-such-program", {});
  EXPECT_TRUE(PumpUntil([&] { return !child->Running(); }));
  EXPECT_EQ(child->Output(), "");
}

TEST(QtProgramsTest, AProgramThatHasEndedDoesNotRun) {
  const auto child = StartScript("exit 3");
  EXPECT_TRUE(PumpUntil([&] { return !child->Running(); }));
}

TEST(QtProgramsTest, AProgramEndsWithItsOwnerEvenIfItHandlesSignals) {
  auto child = StartScript("trap '' TERM INT HUP; echo $$; exec sleep 600");
  const int id = std::stoi(FirstLine(*child));
  EXPECT_EQ(kill(id, 0), 0);
  child.reset();
  EXPECT_EQ(kill(id, 0), -1);
}

TEST(QtProgramsTest, CtrlCInATerminalIsNotForTheProgram) {
  const auto child = StartScript("echo $$; exec sleep 600");
  const int id = std::stoi(FirstLine(*child));
  EXPECT_NE(getpgid(id), getpgid(0));
}

// Only it holds the write end: once it has ended, the read end is at its end.
TEST(QtProgramsTest, AProgramEndsWithThisProcessEvenIfThatIsKilled) {
  std::array<int, 2> ends = {-1, -1};
  ASSERT_EQ(pipe(ends.data()), 0);
  EXPECT_EXIT(
      {
        const auto child = StartScript("echo ready; exec sleep 600");
        FirstLine(*child);
        std::raise(SIGKILL);
      },
      testing::KilledBySignal(SIGKILL), "");
  close(ends[1]);
  pollfd end{.fd = ends[0], .events = POLLIN, .revents = 0};
  EXPECT_EQ(poll(&end, 1, 10'000), 1) << "it runs on";
  EXPECT_TRUE(end.revents & POLLHUP);
  close(ends[0]);
}

}  // namespace
}  // namespace platform::qt
