#include "spots/kept_file.h"

#include <gtest/gtest.h>

#include "platform/sim/sim_files.h"

namespace spots {
namespace {

using Fault = platform::Files::Fault;

constexpr auto kKept = "/f/kept.dat";
constexpr auto kBad = "/f/kept.dat.bad";

class KeptFileTest : public testing::Test {
 protected:
  void Have(const std::string& text, bool holdsMore) {
    files.content[kKept] = text;
    file.Read();
    file.Found(holdsMore ? FileState::Damaged : FileState::Read, holdsMore);
  }
  FileState State() const { return file.State.Get(); }

  platform::sim::SimFiles files;
  KeptFile file{files, kKept};
};

TEST_F(KeptFileTest, OneThatWasReadWholeIsWrittenOver) {
  Have("old", false);
  EXPECT_EQ(file.Write("new"), Fault::None);
  EXPECT_EQ(files.content[kKept], "new");
  EXPECT_FALSE(files.content.contains(kBad));
  EXPECT_EQ(State(), FileState::Read);
}

TEST_F(KeptFileTest, OneThatHoldsMoreIsSetAsideOnceBeforeItIsWrittenOver) {
  Have("old and <bad>", true);
  EXPECT_EQ(file.Write("new"), Fault::None);
  EXPECT_EQ(files.content[kKept], "new");
  EXPECT_EQ(files.content[kBad], "old and <bad>");
  EXPECT_EQ(State(), FileState::SetAside);
  EXPECT_EQ(file.Write("newer"), Fault::None);
  EXPECT_EQ(files.content[kBad], "old and <bad>");
  EXPECT_EQ(State(), FileState::SetAside) << "until it is read again";
}

TEST_F(KeptFileTest, WhatWasSetAsideBeforeStays) {
  files.content[kBad] = "first";
  Have("second", true);
  file.Write("new");
  EXPECT_EQ(files.content[kBad], "first\r\nsecond");
}

TEST_F(KeptFileTest, WhatCannotBeSetAsideIsNotWrittenOver) {
  Have("old and <bad>", true);
  files.denied.insert(kBad);
  EXPECT_EQ(file.Write("new"), Fault::Denied);
  EXPECT_EQ(files.content[kKept], "old and <bad>");
  EXPECT_EQ(State(), FileState::Damaged);
  files.denied.clear();
  EXPECT_EQ(file.Write("new"), Fault::None);
  EXPECT_EQ(files.content[kBad], "old and <bad>");
}

TEST_F(KeptFileTest, WhatWasSetAsideIsNotSetAsideAgainIfTheWritingFails) {
  Have("old", true);
  files.bytesFree = 4;
  EXPECT_EQ(file.Write("longer than that"), Fault::Full);
  EXPECT_EQ(files.content[kKept], "old");
  files.bytesFree = 1000;
  EXPECT_EQ(file.Write("new"), Fault::None);
  EXPECT_EQ(files.content[kBad], "old");
}

TEST_F(KeptFileTest, OneThatHasBeenDeletedMeanwhileHoldsNothingToBeKept) {
  Have("old and <bad>", true);
  files.content.clear();
  EXPECT_EQ(file.Write("new"), Fault::None);
  EXPECT_FALSE(files.content.contains(kBad));
  EXPECT_EQ(State(), FileState::Read);
}

TEST_F(KeptFileTest, OneThatCannotBeReadIsNotWrittenOverUntilItIsOrIsGivenUp) {
  files.content[kKept] = "old";
  files.denied.insert(kKept);
  EXPECT_EQ(file.Read().fault, Fault::Denied);
  EXPECT_EQ(State(), FileState::Unreadable);
  files.denied.clear();
  EXPECT_EQ(file.Write("new"), Fault::Other);
  EXPECT_EQ(files.content[kKept], "old");
  file.GiveUp();
  EXPECT_EQ(file.Write("new"), Fault::None);
}

TEST_F(KeptFileTest, MissingFileIsThereOnceItIsWritten) {
  EXPECT_EQ(file.Read().fault, Fault::NotFound);
  EXPECT_EQ(State(), FileState::Missing);
  EXPECT_EQ(file.Write("new"), Fault::None);
  EXPECT_EQ(State(), FileState::Read);
}

}  // namespace
}  // namespace spots
