#include <gtest/gtest.h>

#include "platform/sim/sim_files.h"

using platform::Files;
using platform::sim::SimFiles;

namespace {

TEST(SimFiles, ReplaceThatCrashesAtAnyByteLeavesTheOldOrTheNewFile) {
  const std::string oldText = "old", newText = "brand new";
  for (std::size_t bytes = 0; bytes <= newText.size() + 1; ++bytes) {
    SimFiles files;
    files.content["/a"] = oldText;
    files.crashAfterBytes = bytes;
    bool crashed = false;
    try {
      files.Replace("/a", newText, Files::Access::Usual);
    } catch (const platform::sim::Crash&) {
      crashed = true;
    }
    EXPECT_EQ(crashed, bytes <= newText.size()) << bytes;
    EXPECT_EQ(files.content["/a"], crashed ? oldText : newText) << bytes;
  }
}

TEST(SimFiles, FullDiskKeepsTheOldFile) {
  SimFiles files;
  files.content["/a"] = "old";
  files.bytesFree = 2;
  EXPECT_EQ(files.Replace("/a", "newer", Files::Access::Usual), Files::Fault::Full);
  EXPECT_EQ(files.content["/a"], "old");
}

TEST(SimFiles, DeniedFolderDeniesAllBelow) {
  SimFiles files;
  files.denied.insert("/home");
  EXPECT_EQ(files.Append("/home/a/b", "x"), Files::Fault::Denied);
  EXPECT_EQ(files.Read("/home/a/b").fault, Files::Fault::Denied);
}

TEST(SimFiles, ListNamesTheFilesAndTheFoldersOfAFolder) {
  SimFiles files;
  files.content["/a/b"] = files.content["/a/2026/x"] = files.content["/a/2026/y"] = "";
  files.folders.insert("/a/2027");
  EXPECT_EQ(files.List("/a"), (std::vector<std::string>{"2026", "2027", "b"}));
  EXPECT_TRUE(files.List("/none").empty());
}

}  // namespace
