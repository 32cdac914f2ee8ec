#include "core/password_file.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "platform/sim/sim_files.h"

namespace core {
namespace {

using Fault = platform::Files::Fault;

class PasswordFileTest : public testing::Test {
 protected:
  std::string Read() { return ReadPassword(files, path); }
  std::string Read(std::string text) {
    files.content[path] = std::move(text);
    return Read();
  }

  platform::sim::SimFiles files;
  const std::string path = "/molva/molva.pwd";
};

TEST_F(PasswordFileTest, TheSecondFieldIsThePassword) {
  EXPECT_EQ(Read("\"Node\",\"s3cret\"\r\n"), "s3cret");
}

TEST_F(PasswordFileTest, TheLastRecordCounts) {
  EXPECT_EQ(Read("\"Node\",\"first\"\r\n\"Node\",\"last\"\r\n"), "last");
  EXPECT_EQ(Read("\"Node\",\"first\"\n\"Node\",\"last\"\n\r\n"), "last");
  EXPECT_EQ(Read("\"Node\",\"first\"\r\n\"No"), "first");
  EXPECT_EQ(Read("\"Node\",\"first\"\r\n\"Node\",\"\"\r\n"), "");
}

TEST_F(PasswordFileTest, TakesAFileThatWasWrittenByHand) {
  EXPECT_EQ(Read("Node, s3cret"), "s3cret");
}

TEST_F(PasswordFileTest, NoFileOrNoRecordIsNoPassword) {
  EXPECT_EQ(Read(), "");
  EXPECT_EQ(Read(""), "");
  EXPECT_EQ(Read("s3cret\r\n"), "");
  EXPECT_EQ(Read(","), "");
  EXPECT_EQ(Read("\"Node\",\""), "\"");
}

TEST_F(PasswordFileTest, AFileThatCannotBeReadIsNoPassword) {
  files.content[path] = "\"Node\",\"s3cret\"\r\n";
  files.denied.insert(path);
  EXPECT_EQ(Read(), "");
}

TEST_F(PasswordFileTest, SavingWritesOneRecordForItsOwnerAlone) {
  EXPECT_EQ(SavePassword(files, path, "s3cret"), Fault::None);
  EXPECT_EQ(files.content[path], "\"Node\",\"s3cret\"\r\n");
  EXPECT_TRUE(files.privateFiles.contains(path));
}

TEST_F(PasswordFileTest, AnEmptyPasswordRemovesTheFile) {
  files.content[path] = "\"Node\",\"s3cret\"\r\n";
  EXPECT_EQ(SavePassword(files, path, ""), Fault::None);
  EXPECT_FALSE(files.Exists(path));
  EXPECT_EQ(SavePassword(files, path, ""), Fault::None);
}

TEST_F(PasswordFileTest, SavingTellsWhatWentWrongAndKeepsTheOldOne) {
  files.content[path] = "\"Node\",\"old\"\r\n";
  files.bytesFree = 3;
  EXPECT_EQ(SavePassword(files, path, "new"), Fault::Full);
  EXPECT_EQ(Read(), "old");
  files.denied.insert(path);
  EXPECT_EQ(SavePassword(files, path, "new"), Fault::Denied);
  EXPECT_EQ(SavePassword(files, path, ""), Fault::Denied);
}

TEST_F(PasswordFileTest, AnyPasswordOfOneLineComesBackAsItWas) {
  std::mt19937 engine(20260105);
  for (int round = 0; round < 5'000; ++round) {
    std::string password(1 + engine() % 12, '\0');
    for (char& byte : password) do
        byte = engine() % 3 ? static_cast<char>(engine()) : "\", "[engine() % 3];
      while (byte == '\r' || byte == '\n');
    ASSERT_EQ(SavePassword(files, path, password), Fault::None);
    ASSERT_EQ(Read(), password);
  }
}

TEST_F(PasswordFileTest, ALineEndInThePasswordStartsNoRecord) {
  SavePassword(files, path, "s3cret\r\n\"Node\",\"other\"");
  EXPECT_EQ(Read(), "s3cret");
}

}  // namespace
}  // namespace core
