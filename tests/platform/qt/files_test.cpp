#include "platform/qt/qt_files.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <csignal>
#include <filesystem>

namespace platform::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Access = Files::Access;
using Fault = Files::Fault;

mode_t ModeOf(const std::string& path) {
  struct stat found = {};
  stat(path.c_str(), &found);
  return found.st_mode & 0777;
}

struct QtFilesTest : testing::Test {
  QTemporaryDir folder;
  QtFiles files;

  std::string Path(const std::string& name) const {
    return folder.path().toStdString() + "/" + name;
  }
  std::vector<std::string> Names() { return files.List(folder.path().toStdString()); }
};

TEST_F(QtFilesTest, BytesComeBackAsTheyWere) {
  const std::string bytes("line\r\n\0\xFF", 8);
  EXPECT_EQ(files.Replace(Path("a"), bytes, Access::Usual), Fault::None);
  const auto content = files.Read(Path("a"));
  EXPECT_EQ(content.fault, Fault::None);
  EXPECT_EQ(content.bytes, bytes);
  EXPECT_EQ(files.Size(Path("a")), 8U);
}

TEST_F(QtFilesTest, AFileLargerThanOnePieceIsReadWhole) {
  const std::string bytes(300'000, 'x');
  files.Replace(Path("a"), bytes, Access::Usual);
  EXPECT_EQ(files.Read(Path("a")).bytes, bytes);
}

TEST_F(QtFilesTest, WhatIsNotThereIsNotFound) {
  EXPECT_EQ(files.Read(Path("none")).fault, Fault::NotFound);
  EXPECT_EQ(files.Replace(Path("none/a"), "x", Access::Usual), Fault::NotFound);
  EXPECT_EQ(files.Append(Path("none/a"), "x"), Fault::NotFound);
  EXPECT_FALSE(files.Exists(Path("none")));
  EXPECT_EQ(files.Size(Path("none")), 0U);
  EXPECT_THAT(files.List(Path("none")), IsEmpty());
}

TEST_F(QtFilesTest, AFolderOrAPipeIsNotRead) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(files.Read(Path("pipe")).fault, Fault::Other);
  EXPECT_EQ(files.Read(Path("")).fault, Fault::Other);
  EXPECT_EQ(files.Read("/dev/zero").fault, Fault::Other);
}

TEST_F(QtFilesTest, ReplacingLeavesNothingButTheNewFile) {
  files.Replace(Path("a"), "a long old text", Access::Usual);
  EXPECT_EQ(files.Replace(Path("a"), "new", Access::Usual), Fault::None);
  EXPECT_EQ(files.Read(Path("a")).bytes, "new");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(QtFilesTest, APrivateFileIsItsOwnersAloneWhateverItWas) {
  files.Replace(Path("new"), "secret", Access::Private);
  EXPECT_EQ(ModeOf(Path("new")), 0600U);
  files.Replace(Path("old"), "x", Access::Usual);
  ASSERT_EQ(chmod(Path("old").c_str(), 0644), 0);
  files.Replace(Path("old"), "secret", Access::Private);
  EXPECT_EQ(ModeOf(Path("old")), 0600U);
}

TEST_F(QtFilesTest, AUsualFileHasTheModeOfTheUsersMaskAndKeepsALaterOne) {
  const mode_t mask = umask(022);
  files.Replace(Path("a"), "x", Access::Usual);
  EXPECT_EQ(ModeOf(Path("a")), 0644U);
  chmod(Path("a").c_str(), 0660);
  files.Replace(Path("a"), "y", Access::Usual);
  EXPECT_EQ(ModeOf(Path("a")), 0660U);
  umask(mask);
}

TEST_F(QtFilesTest, ReplacingThroughASymbolicLinkKeepsTheLink) {
  files.Replace(Path("target"), "old", Access::Usual);
  std::filesystem::create_symlink("target", Path("link"));
  EXPECT_EQ(files.Replace(Path("link"), "new", Access::Usual), Fault::None);
  EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
  EXPECT_EQ(files.Read(Path("target")).bytes, "new");
}

// While it lives, no file grows beyond the bound: writing goes wrong in the middle.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t most) {
    onExcess_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit bound = before_;
    bound.rlim_cur = most;
    setrlimit(RLIMIT_FSIZE, &bound);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, onExcess_);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit before_;
  void (*onExcess_)(int);
};

TEST_F(QtFilesTest, WhenTheDiskFillsUpTheOldFileStaysWhole) {
  files.Replace(Path("a"), "the old text", Access::Usual);
  {
    const SmallDisk disk(10);
    EXPECT_EQ(files.Replace(Path("a"), "the new text, longer", Access::Usual), Fault::Full);
  }
  EXPECT_EQ(files.Read(Path("a")).bytes, "the old text");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(QtFilesTest, AppendingCreatesAndAdds) {
  EXPECT_EQ(files.Append(Path("log"), "one\n"), Fault::None);
  EXPECT_EQ(files.Append(Path("log"), "two\n"), Fault::None);
  EXPECT_EQ(files.Read(Path("log")).bytes, "one\ntwo\n");
}

TEST_F(QtFilesTest, AppendingToAFullDeviceSaysSo) {
  EXPECT_EQ(files.Append("/dev/full", "x"), Fault::Full);
}

TEST_F(QtFilesTest, WhatIsForbiddenIsDenied) {
  if (geteuid() == 0) GTEST_SKIP() << "nothing is forbidden to root";
  files.Replace(Path("a"), "x", Access::Usual);
  chmod(Path("a").c_str(), 0);
  EXPECT_EQ(files.Read(Path("a")).fault, Fault::Denied);
  EXPECT_EQ(files.Append(Path("a"), "x"), Fault::Denied);
  chmod(folder.path().toStdString().c_str(), 0500);
  EXPECT_EQ(files.Replace(Path("b"), "x", Access::Usual), Fault::Denied);
  EXPECT_EQ(files.MakeFolder(Path("c")), Fault::Denied);
  EXPECT_EQ(files.Remove(Path("a")), Fault::Denied);
  chmod(folder.path().toStdString().c_str(), 0700);
}

TEST_F(QtFilesTest, RemovingWhatIsNotThereIsNoFault) {
  files.Append(Path("a"), "x");
  EXPECT_EQ(files.Remove(Path("a")), Fault::None);
  EXPECT_FALSE(files.Exists(Path("a")));
  EXPECT_EQ(files.Remove(Path("a")), Fault::None);
  EXPECT_EQ(files.Remove(Path("none/a")), Fault::None);
}

TEST_F(QtFilesTest, AFolderIsNotRemoved) {
  files.MakeFolder(Path("kept"));
  EXPECT_NE(files.Remove(Path("kept")), Fault::None);
  EXPECT_TRUE(files.Exists(Path("kept")));
}

TEST_F(QtFilesTest, FoldersThatAreMadeAreTheirOwnersAlone) {
  EXPECT_EQ(files.MakeFolder(Path("a/b/c/")), Fault::None);
  EXPECT_EQ(ModeOf(Path("a")), 0700U);
  EXPECT_EQ(ModeOf(Path("a/b/c")), 0700U);
  EXPECT_EQ(files.MakeFolder(Path("a/b/c")), Fault::None);
}

TEST_F(QtFilesTest, AFolderThatIsThereIsLeftAsItIs) {
  files.MakeFolder(Path("a"));
  chmod(Path("a").c_str(), 0755);
  EXPECT_EQ(files.MakeFolder(Path("a/b")), Fault::None);
  EXPECT_EQ(ModeOf(Path("a")), 0755U);
}

TEST_F(QtFilesTest, WhereAFileIsNoFolderIsMade) {
  files.Append(Path("a"), "x");
  EXPECT_NE(files.MakeFolder(Path("a")), Fault::None);
  EXPECT_NE(files.MakeFolder(Path("a/b")), Fault::None);
}

TEST_F(QtFilesTest, NamesComeSortedByTheirBytes) {
  for (const char* name : {"b", "a", ".hidden", "B"}) files.Append(Path(name), "x");
  EXPECT_THAT(Names(), ElementsAre(".hidden", "B", "a", "b"));
}

// Another process that takes the lock, says whether it has it, and stays until it is killed.
class Other {
 public:
  explicit Other(const std::string& lock) {
    int ends[2];
    if (pipe(ends) != 0) return;
    process_ = fork();
    if (process_ == 0) {
      QtFiles files;
      const char answer = files.Lock(lock) ? 'y' : 'n';
      if (write(ends[1], &answer, 1) != 1) _exit(1);
      for (;;) pause();
    }
    if (read(ends[0], &answer_, 1) != 1) answer_ = '?';
    close(ends[0]);
    close(ends[1]);
  }
  ~Other() { Kill(); }
  Other(const Other&) = delete;
  Other& operator=(const Other&) = delete;

  bool HasLock() const { return answer_ == 'y'; }
  void Kill() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = 0;
  }

 private:
  pid_t process_ = 0;
  char answer_ = '?';
};

TEST_F(QtFilesTest, ALockIsHeldByOneProcess) {
  ASSERT_TRUE(files.Lock(Path("lock")));
  EXPECT_TRUE(files.Lock(Path("lock")));
  const Other other(Path("lock"));
  EXPECT_FALSE(other.HasLock());
}

TEST_F(QtFilesTest, ALockGoesWithItsProcessHoweverThatEnds) {
  Other other(Path("lock"));
  ASSERT_TRUE(other.HasLock());
  EXPECT_FALSE(files.Lock(Path("lock")));
  other.Kill();
  EXPECT_TRUE(files.Exists(Path("lock")));
  EXPECT_TRUE(files.Lock(Path("lock")));
}

TEST_F(QtFilesTest, ALockThatCannotBeHadAtAllIsHeldByNobody) {
  EXPECT_TRUE(files.Lock(Path("none/lock")));
}

}  // namespace
}  // namespace platform::qt
