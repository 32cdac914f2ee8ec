#include "core/configuration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/sim/world.h"
#include "platform/tasks.h"
#include "thoroughness.h"

namespace core {
namespace {

using namespace std::chrono_literals;
using platform::Answer;
using platform::Message;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto kDenied = "Molva Desk  -  Critical Error";
constexpr auto kUseBackup = "Configuration File Not Found - Use Backup?";
constexpr auto kCreateOne = "Configuration File Not Found - Create One?";
constexpr auto kNoPermission =
    "This user account does not have permission to write files to the hard drive\n"
    "The \"System Administrator\" must update permission.";

struct Copy {
  bool primary = true;
  bool folderIsNew = false;
};

// One run of the program on the folder /molva.
class Session {
 public:
  explicit Session(platform::sim::World& world, Copy copy = {})
      : world_(world),
        configuration(world.files, world.dialogs, calendar_, log_, "/molva", copy.primary,
                      copy.folderIsNew) {
    tasks_.Start("ReadCfg", Read());
    world_.Run(0ms);
  }

  bool Loading() const { return !loaded_; }
  const Configuration::Loaded& Loaded() const { return loaded_.value(); }
  const Settings& settings() const { return loaded_.value().settings; }

 private:
  platform::sim::World& world_;
  Calendar calendar_{world_.clock};
  ErrorLog log_{world_.files, world_.dialogs, calendar_, "/molva"};

 public:
  Configuration configuration;

 private:
  platform::Task<> Read() { loaded_ = co_await configuration.ReadCfg(); }

  std::optional<Configuration::Loaded> loaded_;
  platform::Tasks tasks_{world_.scheduler, log_.FaultHandler()};
};

class ConfigurationTest : public testing::Test {
 protected:
  ConfigurationTest() { world.clock.Set(std::chrono::sys_days{2026y / 1 / 5} + 21h + 7min + 9s); }

  std::string& File(const std::string& name) { return world.files.content["/molva/" + name]; }
  bool HasFile(const std::string& name) { return world.files.Exists("/molva/" + name); }
  std::vector<std::string> Shown() const {
    std::vector<std::string> titles;
    for (const Message& message : world.dialogs.shown) titles.push_back(message.title);
    return titles;
  }
  static Settings With(std::string qth) {
    Settings settings;
    settings.MyQth = std::move(qth);
    return settings;
  }

  platform::sim::World world;
};

// Reading.

TEST_F(ConfigurationTest, TheFileIsReadWithoutAQuestion) {
  File("molva.cfg") = "\"My Call\",\"k1tst-2\"\r\n\"My QTH\",\"Ann Arbor, MI\"\r\n";
  Session run(world);
  EXPECT_EQ(run.settings().MyCall, "K1TST-2");
  EXPECT_EQ(run.settings().MyQth, "Ann Arbor, MI");
  EXPECT_FALSE(run.Loaded().exit);
  EXPECT_FALSE(run.Loaded().created);
  EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(ConfigurationTest, AFileOfNoBytesIsAccessDeniedAndEndsTheProgram) {
  File("molva.cfg") = "";
  File("molva.cfg.bak") = "My QTH,Bonn\r\n";
  Session run(world);
  ASSERT_THAT(world.dialogs.shown, SizeIs(1));
  const Message& message = world.dialogs.shown.front();
  EXPECT_EQ(message.title, kDenied);
  EXPECT_EQ(message.text, "Access to configuration file is Denied.");
  EXPECT_EQ(message.kind, Message::Kind::Critical);
  EXPECT_TRUE(run.Loading());
  world.dialogs.AnswerNow(kDenied, Answer::Cancel);
  world.Run(0ms);
  EXPECT_TRUE(run.Loaded().exit);
}

TEST_F(ConfigurationTest, AConfigurationThatCannotBeReadLeavesEveryFileUntouched) {
  File("molva.cfg") = "My QTH,Bonn\r\n";
  File("molva.cfg.bak") = "My QTH,Bonn\r\n";
  world.files.denied.insert("/molva/molva.cfg");
  world.dialogs.WillAnswer(kDenied, Answer::Cancel);
  const auto before = world.files.content;
  Session run(world);
  EXPECT_TRUE(run.Loaded().exit);
  world.files.denied.clear();
  run.configuration.WriteCfg(run.settings());
  EXPECT_EQ(world.files.content, before);
}

TEST_F(ConfigurationTest, InTheFirstCopyEveryAnswerToDeniedAccessEndsTheProgram) {
  for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Retry}) {
    File("molva.cfg") = "";
    world.dialogs.WillAnswer(kDenied, answer);
    EXPECT_TRUE(Session(world).Loaded().exit);
  }
}

TEST_F(ConfigurationTest, InASecondCopyRetryReadsAgain) {
  File("molva2.cfg") = "";
  Session run(world, {.primary = false});
  EXPECT_THAT(world.dialogs.shown.back().answers, ElementsAre(Answer::Retry, Answer::Cancel));
  world.dialogs.AnswerNow(kDenied, Answer::Retry);
  world.Run(0ms);
  EXPECT_THAT(Shown(), ElementsAre(kDenied, kDenied));
  File("molva2.cfg") = "My QTH,Bonn\r\n";
  world.dialogs.AnswerNow(kDenied, Answer::Retry);
  world.Run(0ms);
  EXPECT_EQ(run.settings().MyQth, "Bonn");
}

TEST_F(ConfigurationTest, InASecondCopyCancelEndsTheProgram) {
  File("molva2.cfg") = "";
  world.dialogs.WillAnswer(kDenied, Answer::Cancel);
  EXPECT_TRUE(Session(world, {.primary = false}).Loaded().exit);
}

TEST_F(ConfigurationTest, NothingIsWrittenBeforeThereAreSettings) {
  File("molva.cfg") = "";
  Session run(world);
  run.configuration.WriteCfg(Settings{});
  EXPECT_EQ(File("molva.cfg"), "");
}

// A missing file.

TEST_F(ConfigurationTest, AMissingFileIsReplacedByItsBackupIfTheUserSaysSo) {
  File("molva.cfg.bak") = "My QTH,Bonn\r\n";
  world.dialogs.WillAnswer(kUseBackup, Answer::Yes);
  Session run(world);
  EXPECT_EQ(run.settings().MyQth, "Bonn");
  EXPECT_FALSE(run.Loaded().created);
  ASSERT_THAT(Shown(), ElementsAre(kUseBackup));
  EXPECT_EQ(world.dialogs.shown.front().text,
            "Configuration File = /molva/molva.cfg\nBackup File = /molva/molva.cfg.bak\n\n"
            "Use Backup Configuration File?\n\nSelect Yes to use backup file.\n"
            "    Select No to create new file.");
}

TEST_F(ConfigurationTest, WithoutTheBackupTheUserIsAskedForANewFile) {
  File("molva.cfg.bak") = "My QTH,Bonn\r\n";
  world.dialogs.WillAnswer(kUseBackup, Answer::No);
  world.dialogs.WillAnswer(kCreateOne, Answer::Yes);
  Session run(world);
  EXPECT_THAT(Shown(), ElementsAre(kUseBackup, kCreateOne));
  EXPECT_EQ(run.settings(), Settings{});
  EXPECT_TRUE(run.Loaded().created);
}

TEST_F(ConfigurationTest, AnEmptyBackupIsNoConfiguration) {
  File("molva.cfg.bak") = "";
  world.dialogs.WillAnswer(kUseBackup, Answer::Yes);
  world.dialogs.WillAnswer(kCreateOne, Answer::Yes);
  EXPECT_TRUE(Session(world).Loaded().created);
}

TEST_F(ConfigurationTest, ABackupThatCannotBeReadEndsTheProgramAndIsKept) {
  File("molva.cfg.bak") = "My QTH,Bonn\r\n";
  world.files.denied.insert("/molva/molva.cfg.bak");
  world.dialogs.WillAnswer(kUseBackup, Answer::Yes);
  world.dialogs.WillAnswer(kDenied, Answer::Cancel);
  EXPECT_TRUE(Session(world).Loaded().exit);
  EXPECT_FALSE(HasFile("molva.cfg"));
  EXPECT_EQ(File("molva.cfg.bak"), "My QTH,Bonn\r\n");
}

TEST_F(ConfigurationTest, YesToCreateWritesANewFile) {
  world.dialogs.WillAnswer(kCreateOne, Answer::Yes);
  Session run(world);
  ASSERT_THAT(Shown(), ElementsAre(kCreateOne));
  EXPECT_EQ(world.dialogs.shown.front().text, "Select Yes to create file.\n   Select No to exit.");
  EXPECT_EQ(ParseSettings(File("molva.cfg")), Settings{});
  EXPECT_EQ(run.settings().GmtOffset, "");
}

TEST_F(ConfigurationTest, NoToCreateEndsTheProgramAfterTwoSeconds) {
  world.dialogs.WillAnswer(kCreateOne, Answer::No);
  Session run(world);
  world.Run(1999ms);
  EXPECT_TRUE(run.Loading());
  world.Run(1ms);
  EXPECT_TRUE(run.Loaded().exit);
  EXPECT_FALSE(HasFile("molva.cfg"));
}

TEST_F(ConfigurationTest, AnOpenQuestionCanBeLeft) {
  { Session run(world); }
  world.dialogs.AnswerNow(kCreateOne, Answer::Yes);
  world.Run(10s);
  EXPECT_FALSE(HasFile("molva.cfg"));
}

TEST_F(ConfigurationTest, ANewFolderGetsANewConfigurationWithoutAQuestion) {
  Session run(world, {.folderIsNew = true});
  EXPECT_THAT(Shown(), IsEmpty());
  EXPECT_TRUE(run.Loaded().created);
  EXPECT_EQ(run.settings().GmtOffset, "Ok");
  EXPECT_EQ(ParseSettings(File("molva.cfg")), run.settings());
}

// The second copy.

TEST_F(ConfigurationTest, ASecondCopyLogsInUnderAnotherCall) {
  File("molva.cfg") = "My Call,K1TST\r\n";
  File("molva2.cfg") = "My Call,k1tst-2\r\n";
  EXPECT_EQ(Session(world, {.primary = false}).settings().MyCall, "K1TST-16");
}

TEST_F(ConfigurationTest, ASecondCopyTakes14IfTheFirstHas16) {
  File("molva.cfg") = "My Call,k1tst-16\r\n";
  File("molva2.cfg") = "My Call,K1TST\r\n";
  EXPECT_EQ(Session(world, {.primary = false}).settings().MyCall, "K1TST-14");
}

TEST_F(ConfigurationTest, ASecondCopyWithoutACallHasNone) {
  File("molva2.cfg") = "My QTH,Bonn\r\n";
  EXPECT_EQ(Session(world, {.primary = false}).settings().MyCall, "");
}

TEST_F(ConfigurationTest, ASecondCopyNeverWritesTheFileOfTheFirst) {
  File("molva.cfg") = "My Call,K1TST\r\n";
  File("molva2.cfg") = "My Call,K1TST\r\n";
  Session run(world, {.primary = false});
  run.configuration.WriteCfg(run.settings());
  EXPECT_EQ(File("molva.cfg"), "My Call,K1TST\r\n");
  EXPECT_FALSE(HasFile("molva.cfg.bak"));
  EXPECT_EQ(ParseSettings(File("molva2.cfg")).MyCall, "K1TST-16");
  EXPECT_TRUE(HasFile("molva2.cfg.bak"));
}

// Writing.

class WriteCfgTest : public ConfigurationTest {
 protected:
  WriteCfgTest() {
    File("molva.cfg") = "My QTH,Bonn\r\n";
    run = std::make_unique<Session>(world);
  }
  void Write(const std::string& qth) { run->configuration.WriteCfg(With(qth)); }
  std::string SavedQth(const std::string& name = "molva.cfg") {
    return ParseSettings(File(name)).MyQth;
  }

  std::unique_ptr<Session> run;
};

TEST_F(WriteCfgTest, TheFileHoldsTheSettingsAndTheTimeOfWriting) {
  Write("Ulm");
  EXPECT_THAT(File("molva.cfg"), testing::StartsWith("\"DTS\",\"05-Jan-2026 2107Z> \"\r\n"));
  EXPECT_EQ(ParseSettings(File("molva.cfg")), With("Ulm"));
}

TEST_F(WriteCfgTest, OnlyTheOwnerCanReadTheFiles) {
  Write("Ulm");
  EXPECT_THAT(world.files.privateFiles, ElementsAre("/molva/molva.cfg", "/molva/molva.cfg.bak"));
}

TEST_F(WriteCfgTest, TheBackupIsACopyOfALargerFile) {
  Write("Ulm");
  EXPECT_EQ(File("molva.cfg.bak"), File("molva.cfg"));
  Write("Ulm on the Danube");
  EXPECT_EQ(File("molva.cfg.bak"), File("molva.cfg"));
}

TEST_F(WriteCfgTest, ASmallerFileLeavesTheBackupAsItWas) {
  Write("Ulm on the Danube");
  const std::string backup = File("molva.cfg.bak");
  Write("Ulm");
  EXPECT_EQ(SavedQth(), "Ulm");
  EXPECT_EQ(File("molva.cfg.bak"), backup);
}

TEST_F(WriteCfgTest, AFileOfTheSameSizeLeavesTheBackupAsItWas) {
  Write("Ulm");
  Write("Bor");
  EXPECT_EQ(SavedQth("molva.cfg.bak"), "Ulm");
}

TEST_F(WriteCfgTest, ADiskThatRefusesIsToldOnceAndKeepsTheOldFile) {
  Write("Ulm");
  world.files.denied.insert("/molva");
  Write("Bonn");
  Write("Bonn");
  ASSERT_THAT(world.dialogs.shown, SizeIs(1));
  EXPECT_EQ(world.dialogs.shown.front().text, kNoPermission);
  world.dialogs.AnswerNow("Molva Desk", Answer::Ok);
  Write("Bonn");
  EXPECT_THAT(world.dialogs.shown, SizeIs(1));
  EXPECT_EQ(SavedQth(), "Ulm");
}

TEST_F(WriteCfgTest, AFailureIsToldAgainAfterASuccess) {
  for (int round = 1; round <= 2; ++round) {
    world.files.denied.insert("/molva/molva.cfg");
    Write("Ulm");
    world.dialogs.AnswerNow("Molva Desk", Answer::Ok);
    EXPECT_THAT(world.dialogs.shown, SizeIs(round));
    world.files.denied.clear();
    Write("Ulm");
  }
  EXPECT_EQ(SavedQth(), "Ulm");
}

TEST_F(WriteCfgTest, AFailureIsLoggedUnderItsOwnReason) {
  world.files.denied.insert("/molva/molva.cfg");
  Write("Ulm");
  Write("Ulm");
  EXPECT_EQ(File("error.log"),
            "\"2026-01-05 21:07:09  WriteCfg - Error #70 Permission denied\"\r\n");
}

TEST_F(WriteCfgTest, AFullDiskKeepsTheOldFileAndTheProgramGoesOn) {
  Write("Ulm");
  const std::string backup = File("molva.cfg.bak");
  world.files.bytesFree = 100;
  Write("Ulm on the Danube");
  EXPECT_EQ(SavedQth(), "Ulm");
  EXPECT_EQ(File("molva.cfg.bak"), backup);
  EXPECT_THAT(world.dialogs.shown, SizeIs(1));
  world.files.bytesFree = 1'000'000;
  Write("Ulm on the Danube");
  EXPECT_EQ(SavedQth(), "Ulm on the Danube");
}

TEST_F(WriteCfgTest, ADiskThatIsFullBehindTheFileKeepsTheOldBackup) {
  Write("Ulm");
  world.files.bytesFree = File("molva.cfg").size() + 100;
  Write("Ulm on the Danube");
  EXPECT_EQ(SavedQth(), "Ulm on the Danube");
  EXPECT_EQ(SavedQth("molva.cfg.bak"), "Ulm");
  EXPECT_THAT(world.dialogs.shown, SizeIs(1));
}

TEST_F(WriteCfgTest, ACrashBetweenAnyTwoBytesLeavesTheOldSettingsOrTheNew) {
  Write("Ulm");
  const auto before = world.files.content;
  Write("Ulm on the Danube");
  const std::string old = before.at("/molva/molva.cfg");
  const std::string renewed = File("molva.cfg");
  bool sawOld = false;
  bool sawNew = false;
  for (std::size_t bytes = 0; bytes <= 2 * renewed.size(); bytes += kOneOf) {
    world.files.content = before;
    world.files.crashAfterBytes = bytes;
    EXPECT_THROW(Write("Ulm on the Danube"), platform::sim::Crash);
    world.files.crashAfterBytes = platform::sim::SimFiles{}.crashAfterBytes;
    for (const char* name : {"molva.cfg", "molva.cfg.bak"})
      ASSERT_TRUE(File(name) == old || File(name) == renewed) << name << " at " << bytes;
    const std::string qth = Session(world).settings().MyQth;
    sawOld |= qth == "Ulm";
    sawNew |= qth == "Ulm on the Danube";
  }
  EXPECT_TRUE(sawOld && sawNew);
}

TEST_F(WriteCfgTest, ATruncatedFileLosesNothingBeforeTheCutAndCannotShrinkTheBackup) {
  Settings settings = With("Ulm on the Danube");
  settings.QrzName = "a name that stands behind the cut";
  run->configuration.WriteCfg(settings);
  const std::string whole = File("molva.cfg");
  File("molva.cfg").resize(whole.find("\"FormTop\""));
  Session next(world);
  EXPECT_EQ(next.settings().MyQth, "Ulm on the Danube");
  next.configuration.WriteCfg(next.settings());
  EXPECT_EQ(File("molva.cfg.bak"), whole);
}

}  // namespace
}  // namespace core
