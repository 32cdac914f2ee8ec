#include <gmock/gmock.h>

#include <random>

#include "program/desk.h"
#include "session/fake_node.h"
#include "spots/classic_row.h"

using namespace std::chrono_literals;
using testing::AllOf;
using testing::Contains;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr const char* kLogFolder = "/home/op/molva/2026";
constexpr const char* kRefused = "Spots are not logged: no permission to write there.";
constexpr const char* kDiskIsFull = "Spots are not logged: the disk is full.";

// The whole program at a node that sends spots. It is 20 November 2026, 21:00 UTC.
class SpotFaults : public testing::Test {
 protected:
  SpotFaults() {
    desk.world.network.AddHost("node.example", "10.1.2.3");
    Configure("");
  }

  void Configure(const std::string& more) {
    desk.HasUsualConfiguration(
        "\"SelectedNode\",\"N0NODE\"\r\n\"SelectedNodesAddress\",\"node.example\"\r\n"
        "\"PrimaryPort\",\"7300\"\r\n\"LogDxSpots\",-1\r\n" +
        more);
  }
  // The program runs, and the node's spots are taken.
  void LogIn() {
    program = &desk.Start();
    program->session.connection.cmdConnect.Press();
    desk.world.Run(2s);
    node.Say("Please enter your call: ");
    desk.world.Run(1s);
    node.Say("Hello K1TST-2\r\n");
    desk.world.Run(6s);
  }
  static std::string Spot(const std::string& call) {
    return "DX de K1ABC:      14025.0  " + call + std::string(13 - call.size(), ' ') +
           std::string(31, ' ') + "2100Z\r\n";
  }
  // A second passes behind it.
  void ReceiveSpot(const std::string& call) {
    node.Say(Spot(call));
    desk.world.Run(1s);
  }
  std::string Table() const {
    std::string calls;
    for (const auto& row : program->spotParts.table.RtbDx.Rows())
      calls.append(spots::LookUpCalls(row).call).append(" ");
    return calls;
  }
  const std::string& Log() { return desk.Content("2026/dx-20-Nov-2026.txt"); }
  std::string Told() const { return program->conditions.lblText.Caption.Get(); }

  Desk desk;
  FakeNode node{desk.world, "10.1.2.3", 7300};
  program::Program* program = nullptr;
};

// The log cannot be written.

class LogFolderFault : public SpotFaults {
 protected:
  // Spots come in as long as the fault lasts, and some behind it.
  void Break(const std::function<void()>& begin, const std::function<void()>& end) {
    LogIn();
    ReceiveSpot("K1BEFORE");
    told = program->conditions.lblText.Caption.Observe([this](const std::string& text) {
      if (!text.empty()) ++tellings;
    });
    begin();
    for (int i = 0; i < 30; ++i) ReceiveSpot("K2A" + std::to_string(i));
    during = Told();
    end();
    ReceiveSpot("K1BEHIND");
  }

  platform::Registration told;
  int tellings = 0;
  std::string during;
};

TEST_F(LogFolderFault, ReadOnlyFolderIsToldOnceLosesNoRowAndLoggingResumes) {
  Break([this] { desk.world.files.denied.insert(kLogFolder); },
        [this] { desk.world.files.denied.clear(); });
  EXPECT_EQ(during, kRefused);
  EXPECT_EQ(tellings, 1);
  EXPECT_THAT(desk.world.dialogs.shown, IsEmpty());
  EXPECT_THAT(Table(), AllOf(HasSubstr("K1BEFORE K2A0 K2A1 "), HasSubstr("K2A29 K1BEHIND ")));
  EXPECT_THAT(Log(), AllOf(HasSubstr("K1BEFORE"), Not(HasSubstr("K2A")), HasSubstr("K1BEHIND")));
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(desk.Content("error.log"), "");
}

TEST_F(LogFolderFault, FullDiskIsToldOnceLosesNoRowAndLoggingResumes) {
  Break([this] { desk.world.files.bytesFree = 0; },
        [this] { desk.world.files.bytesFree = 1'000'000; });
  EXPECT_EQ(during, kDiskIsFull);
  EXPECT_EQ(tellings, 1);
  EXPECT_THAT(Table(), AllOf(HasSubstr("K1BEFORE K2A0 K2A1 "), HasSubstr("K2A29 K1BEHIND ")));
  EXPECT_THAT(Log(), AllOf(HasSubstr("K1BEFORE"), Not(HasSubstr("K2A")), HasSubstr("K1BEHIND")));
  EXPECT_EQ(Told(), "");
}

TEST_F(LogFolderFault, FolderThatIsReadOnlyAtTheStartIsToldBeforeTheFirstSpot) {
  desk.world.files.denied.insert(kLogFolder);
  LogIn();
  EXPECT_EQ(Told(), kRefused);
  ReceiveSpot("K1A");
  EXPECT_THAT(Table(), HasSubstr("K1A "));
}

TEST_F(LogFolderFault, LoggingThatIsSwitchedOffIsNoTroubleAnyMore) {
  Break([this] { desk.world.files.denied.insert(kLogFolder); }, [] {});
  EXPECT_EQ(Told(), kRefused);
  program->spotParts.spotsForm.Show();
  program->spotParts.spotsForm.chkSave.UserSets(false);
  EXPECT_EQ(Told(), "");
}

// The log of a week that something has spoilt.

class SpoiltLog : public SpotFaults {
 protected:
  static constexpr int kDays = 7;

  SpoiltLog() {
    Configure("\"ReloadHours\"," + std::to_string(kDays * 24) + "\r\n\"Spot Memory All\",2000\r\n");
  }
  // The last days have so many lines each, of which a tenth are good.
  void Spoil(int lines) {
    for (int day = 14; day <= 20; ++day)
      desk.Content("2026/dx-" + std::to_string(day) + "-Nov-2026.txt") = TextOf(day, lines);
  }
  std::string TextOf(int day, int lines) {
    std::string text;
    for (int line = 0; line < lines; ++line) {
      const std::string call = "K" + std::to_string(day) + "A" + std::to_string(line);
      const std::string good = "2045,14025.0," + call + ",DL1ABC,,CW,,,,,,,,,,,,,~\r\n";
      switch (line % 10) {
        case 0:
          text += good;
          break;
        case 1:
          text.append(good, 0, random() % good.size()) += "\r\n";
          break;
        case 2:
          for (int i = 0; i < 40; ++i) text += static_cast<char>(random());
          break;
        case 3:
          text += "\r\n";
          break;
        case 4:
          text += "9999,-1e999," + call + ",,,,,,,,,,,,,,,,~\r\n";
          break;
        case 5:
          text += "x" + good;
          break;
        case 6:
          text += std::string(line % 1000 == 6 ? 100'000 : 300, ',') + "\r\n";
          break;
        case 7:
          text += std::string(20, '\0') + good;
          break;
        case 8:
          text += "2045^14025.0^" + call + "\r\n";
          break;
        default:
          text += "%%%^^^~~~\"\"\"\r\n";
      }
    }
    return text;
  }
  spots::SpotsForm& Form() { return program->spotParts.spotsForm; }
  // Until the reload has ended.
  void Reload() {
    desk.world.network.latency = 0ms;
    Form().Show();
    Form().cmdReload.Press();
    desk.world.RunUntil([this] { return !program->spotParts.reload.Reloading.Get(); });
  }

  std::mt19937 random{7};
};

TEST_F(SpoiltLog, IsReloadedWithIntakeHeldAndItsProgressOnShow) {
  constexpr int kLines = 60'000;
  Spoil(kLines);
  LogIn();
  std::vector<int> counts;
  const auto counting = Form().lblCount.Caption.Observe([&](const std::string& count) {
    counts.push_back(std::stoi("0" + count));
    if (counts.back() == 0 || counts.size() > 10) return;
    EXPECT_TRUE(program->session.intake.Held());
    EXPECT_TRUE(Form().cmdStop.Enabled.Get());
    EXPECT_THAT(Table(), IsEmpty()) << "nothing is drawn meanwhile";
    node.Say(Spot("K1N" + std::to_string(counts.size())));
  });
  Reload();
  EXPECT_THAT(counts, Contains(Ge(kDays * kLines / 10)));
  EXPECT_GT(counts.size(), 500u);
  desk.world.Run(1s);
  EXPECT_FALSE(Form().cmdStop.Enabled.Get());
  EXPECT_THAT(Table(), AllOf(HasSubstr("K18A"), HasSubstr("K20A59990 ")));
  EXPECT_TRUE(Table().ends_with("K1N10 "));
  EXPECT_THAT(program->session.outgoing.Text2.Lines(), Contains("Reload Complete"));
  EXPECT_EQ(desk.Content("error.log"), "");
}

TEST_F(SpoiltLog, StopEndsItsReload) {
  Spoil(10'000);
  LogIn();
  const auto counting = program->spotParts.reload.SpotsRead.Observe([this](std::uint64_t spots) {
    if (spots > 2'000) Form().cmdStop.Press();
  });
  Reload();
  EXPECT_LT(program->spotParts.reload.SpotsRead.Get(), 2'200u);
  EXPECT_THAT(program->session.outgoing.Text2.Lines(), Contains("Reload Aborted"));
  EXPECT_FALSE(program->session.intake.Held());
  ReceiveSpot("K1NEW");
  EXPECT_THAT(Table(), AllOf(HasSubstr("K14A"), Not(HasSubstr("K16A"))));
  EXPECT_TRUE(Table().ends_with("K1NEW "));
}

TEST_F(SpoiltLog, ProgramEndsInTheMiddleOfItsReload) {
  Spoil(10'000);
  LogIn();
  const auto counting = program->spotParts.reload.SpotsRead.Observe([this](std::uint64_t spots) {
    if (spots > 2'000 && spots < 2'200)
      program->RequestClose(program::Program::Close::WithoutAsking);
  });
  Reload();
  desk.world.Run(10s);
  EXPECT_EQ(desk.quits, 1);
  EXPECT_FALSE(desk.world.files.Exists(desk.File("2026/tmp.txt")));
}

// Files of reference that are not as they should be.

struct FileFault {
  const char* name;
  void (*apply)(platform::sim::SimFiles& files, const std::string& path);
};

void PrintTo(const FileFault& fault, std::ostream* out) { *out << fault.name; }

constexpr std::size_t kHuge = 50'000'000;

std::string Repeated(std::string_view piece) {
  std::string text;
  text.reserve(kHuge + piece.size());
  while (text.size() < kHuge) text += piece;
  return text;
}

constexpr std::array kFileFaults = {
    FileFault{"IsEmpty", [](platform::sim::SimFiles& files,
                            const std::string& path) { files.content[path].clear(); }},
    FileFault{"MayNotBeRead",
              [](platform::sim::SimFiles& files, const std::string& path) {
                files.content[path] = "\"Dx\",\"K1ABC\"\r\n";
                files.denied.insert(path);
              }},
    FileFault{"IsCut", [](platform::sim::SimFiles& files,
                          const std::string& path) { files.content[path] = "LOTW\r\nK1A"; }},
    FileFault{"IsBinary",
              [](platform::sim::SimFiles& files, const std::string& path) {
                std::mt19937 random(3);
                std::string& text = files.content[path];
                text.clear();
                for (int i = 0; i < 20'000; ++i) text += static_cast<char>(random());
              }},
    FileFault{"HasFiftyMegabytesOfLines",
              [](platform::sim::SimFiles& files, const std::string& path) {
                files.content[path] = Repeated("\"Dx\",\"K1ABC\"\r\n");
              }},
    FileFault{"HasFiftyMegabytesInOneLine",
              [](platform::sim::SimFiles& files, const std::string& path) {
                files.content[path] = std::string(kHuge, 'K');
              }},
};

class ReferenceFile : public SpotFaults,
                      public testing::WithParamInterface<std::tuple<const char*, FileFault>> {};

TEST_P(ReferenceFile, ThatIsNoGoodHoldsNothingUp) {
  const auto& [name, fault] = GetParam();
  fault.apply(desk.world.files, desk.File(name));
  LogIn();
  ReceiveSpot("K1A");
  EXPECT_THAT(Table(), HasSubstr("K1A "));
  EXPECT_LE(desk.world.dialogs.shown.size(), 1u);
  EXPECT_LE(desk.Content("error.log").size(), 200u);
  desk.world.files.denied.clear();
  program->RequestClose(program::Program::Close::WithoutAsking);
  desk.world.Run(10s);
  EXPECT_EQ(desk.quits, 1);
}

INSTANTIATE_TEST_SUITE_P(Each, ReferenceFile,
                         testing::Combine(testing::Values("cty.dat", "state.dat", "lotw.txt",
                                                          "eqsl.txt", "fixspots.dat", "reject.dat",
                                                          "data/grid/grid.dat", "endpoints.cfg",
                                                          "molva.pwd", "debug.cfg"),
                                          testing::ValuesIn(kFileFaults)),
                         [](const auto& each) {
                           std::string name = std::get<0>(each.param);
                           std::erase_if(name,
                                         [](char byte) { return byte == '.' || byte == '/'; });
                           return name + std::get<1>(each.param).name;
                         });

TEST_F(SpotFaults, CountryFileThatIsDamagedIsToldAndReplacedOnceItIsDeleted) {
  desk.Content("cty.dat") = "Sov Mil Order of Malta:   15:  28:  EU:";
  desk.Start();
  ASSERT_THAT(desk.world.dialogs.shown, testing::SizeIs(1));
  EXPECT_THAT(desk.world.dialogs.shown[0].text, HasSubstr("cty.dat is damaged"));
  desk.world.files.Remove(desk.File("cty.dat"));
  desk.program.reset();
  desk.Start();
  EXPECT_THAT(desk.world.dialogs.shown, testing::SizeIs(1));
  EXPECT_GE(desk.program->spotParts.reference.countries.CtyCount(), 300);
}

TEST_F(SpotFaults, MissingFilesOfTheUserAreNothingToTell) {
  LogIn();
  EXPECT_THAT(desk.world.dialogs.shown, IsEmpty());
  EXPECT_EQ(Told(), "");
  ReceiveSpot("K1A");
  EXPECT_THAT(Table(), HasSubstr("K1A "));
}

// A node that never says whether it sends extended lines.

TEST_F(SpotFaults, PlainSpotsOfAnArClusterThatStaysSilentAreShownInTheEnd) {
  program = &desk.Start();
  program->session.connection.cmdConnect.Press();
  desk.world.Run(2s);
  node.Say("login: ");
  desk.world.Run(1s);
  node.Say("\r\nWelcome to the N0NODE AR-Cluster node\r\n");
  node.Say("K1TST-2 de N0NODE 20-Nov-2026 2100Z   arc >\r\n");
  desk.world.Run(20s);
  ReceiveSpot("K1EARLY");
  EXPECT_THAT(Table(), IsEmpty());
  desk.world.Run(10s);
  ReceiveSpot("K1LATE");
  EXPECT_EQ(Table(), "K1LATE ");
}

// A clock that is put right, or wrong.

class ClockJump : public SpotFaults, public testing::WithParamInterface<std::chrono::minutes> {};

TEST_P(ClockJump, NeitherSpotsNorTimersMind) {
  LogIn();
  for (int i = 0; i < 30; ++i) {
    if (i == 10) desk.world.clock.Set(desk.world.clock.UtcNow() + GetParam());
    if (i == 20) desk.world.clock.Set(desk.world.clock.UtcNow() - GetParam());
    ReceiveSpot("K1A" + std::to_string(i));
    ReceiveSpot("K1A" + std::to_string(i));  // once more
  }
  for (int i = 0; i < 30; ++i) {
    const std::string call = "K1A" + std::to_string(i) + " ";
    EXPECT_THAT(Table(), HasSubstr(call));
    EXPECT_EQ(Table().find(call), Table().rfind(call)) << "a duplicate";
  }
  EXPECT_EQ(std::count(Log().begin(), Log().end(), '~'), 30);
  EXPECT_TRUE(node.HasCaller());
  EXPECT_EQ(desk.Content("error.log"), "");
}

TEST_P(ClockJump, LinkIsTriedAgainInItsTime) {
  LogIn();
  node.Close();
  desk.world.Run(1s);
  desk.world.clock.Set(desk.world.clock.UtcNow() + GetParam());
  desk.world.Run(50s);
  EXPECT_EQ(node.called.size(), 1u);
  desk.world.Run(20s);
  EXPECT_EQ(node.called.size(), 2u);
}

INSTANTIATE_TEST_SUITE_P(Of, ClockJump, testing::Values(60min, -60min), [](const auto& each) {
  return each.param > 0min ? "AnHourAhead" : "AnHourBack";
});

}  // namespace
