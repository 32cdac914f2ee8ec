#include <gmock/gmock.h>

#include "program/desk.h"

using testing::IsEmpty;

namespace {

// A file that the user keeps, or could replace, and what he loses by its fault.
struct KeptFile {
  const char* name;
  const char* good;
  const char* damaged;
  const char* loss;
  const char* remedy;
};

void PrintTo(const KeptFile& file, std::ostream* out) { *out << file.name; }

constexpr std::array kKeptFiles = {
    KeptFile{"state.dat", "", "the states\r\nAL ALABAMA                     32.78   86.83\r\nAK A",
             ": bearings go by the country alone.",
             " Delete it, and the next start puts a good one in its place."},
    KeptFile{"reject.dat", "\"Dx\",\"P5DX\"\r\n", "\"Dx\",\"P5DX\"\r\n\"Dx\",\"K1",
             ": spots that you reject may show.", ""},
    KeptFile{"fixspots.dat", "\"K1ABC\",\"K\"\r\n", "<html>\r\n<body>",
             ": corrections of yours are missing.", ""},
    KeptFile{"lotw.txt", "LOTW\r\n", "LOTW\r\nK1ABC\r\n", ": LoTW marks are missing.",
             " Put a good one there."},
    KeptFile{"eqsl.txt", "", " 3 MOLVA SORTED LIST OF AG MEMBERS AS OF\r\nK1ABC\r\nK2",
             ": eQSL marks are missing.", " Put a good one there."},
};

class UnreadFiles : public testing::Test {
 protected:
  UnreadFiles() { desk.HasUsualConfiguration(); }
  std::string Told() const { return desk.program->conditions.lblText.Caption.Get(); }

  Desk desk;
};

class UnreadFile : public UnreadFiles, public testing::WithParamInterface<KeptFile> {
 protected:
  // The program starts and ends.
  void Run() {
    desk.Start();
    told = Told();
    dialogs = desk.world.dialogs.shown.size();
    EXPECT_FALSE(desk.program->Loading) << "the rest of the start goes on";
    desk.program->RequestClose(program::Program::Close::WithoutAsking);
    desk.world.Run(std::chrono::seconds{10});
    EXPECT_EQ(desk.quits, 1);
  }

  std::string told;
  std::size_t dialogs = 0;
};

TEST_P(UnreadFile, MayNotBeReadIsToldAndLeftAsItIs) {
  desk.Content(GetParam().name) = GetParam().good;
  desk.world.files.denied.insert(desk.File(GetParam().name));
  Run();
  EXPECT_EQ(told, std::string(GetParam().name) + " can't be read" + GetParam().loss);
  EXPECT_EQ(dialogs, 0u);
  EXPECT_EQ(desk.Content(GetParam().name), GetParam().good);
}

TEST_P(UnreadFile, HasAFolderInItsPlaceIsTold) {
  desk.world.files.folders.insert(desk.File(GetParam().name));
  Run();
  EXPECT_EQ(told, std::string(GetParam().name) + " can't be read" + GetParam().loss);
  EXPECT_FALSE(desk.world.files.content.contains(desk.File(GetParam().name)));
}

TEST_P(UnreadFile, IsDamagedIsToldAndLeftAsItIs) {
  desk.Content(GetParam().name) = GetParam().damaged;
  Run();
  EXPECT_EQ(told,
            std::string(GetParam().name) + " is damaged" + GetParam().loss + GetParam().remedy);
  EXPECT_EQ(desk.Content(GetParam().name), GetParam().damaged);
  EXPECT_EQ(desk.Content("error.log"), "");
}

INSTANTIATE_TEST_SUITE_P(Each, UnreadFile, testing::ValuesIn(kKeptFiles), [](const auto& each) {
  std::string name = each.param.name;
  std::erase(name, '.');
  return name;
});

TEST_F(UnreadFiles, SeveralFilesThatCannotBeReadAreToldTogether) {
  for (const KeptFile& file : kKeptFiles) {
    desk.Content(file.name) = file.good;
    desk.world.files.denied.insert(desk.File(file.name));
  }
  desk.Start();
  EXPECT_EQ(Told(), "eqsl.txt can't be read: eQSL marks are missing.");
  EXPECT_EQ(desk.program->conditions.lblMore.Caption.Get(), "+4");
  EXPECT_THAT(desk.world.dialogs.shown, IsEmpty());
}

TEST_F(UnreadFiles, StateFileIsGoodAgainOnceTheDamagedOneIsDeleted) {
  desk.Content("state.dat") = "spoilt";
  desk.Start();
  desk.world.files.Remove(desk.File("state.dat"));
  desk.program.reset();
  desk.Start();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(desk.program->spotParts.reference.states.StateCount(), 65);
}

TEST_F(UnreadFiles, ListThatIsWrittenAnewIsGoodAndTheOlderFileIsKept) {
  const std::string cut = "\"Dx\",\"P5DX\"\r\n\"Dx\",\"K1";
  desk.Content("reject.dat") = cut;
  desk.Start();
  auto& form = desk.program->spotParts.rejectForm;
  form.txtReject[spots::RejectLists::kDx].UserTypes("3Y0J");
  form.cmdAdd[spots::RejectLists::kDx].Press();
  EXPECT_EQ(desk.Content("reject.dat.bad"), cut);
  EXPECT_EQ(Told(),
            "reject.dat held what could not be read: the older file is kept as reject.dat.bad.");
  desk.program->conditions.cmdHelp.Press();
  EXPECT_EQ(Told(), "");
  desk.program.reset();
  desk.Start();
  EXPECT_EQ(Told(), "");
}

TEST_F(UnreadFiles, CorrectionsThatAreWrittenAnewKeepTheOlderFile) {
  desk.Content("fixspots.dat") = "<html>\r\n<body>";
  desk.Start();
  auto& form = desk.program->spotParts.fixForm;
  form.txtAddCall.UserTypes("K1ABC");
  form.txtAddCty.UserTypes("K");
  form.cmdAdd.Press();
  EXPECT_EQ(Told(), "fixspots.dat is damaged: corrections of yours are missing.");
  desk.world.Run(spots::FixList::kWriteDelay);
  EXPECT_EQ(Told(),
            "fixspots.dat held what could not be read: the older file is kept as "
            "fixspots.dat.bad.");
  EXPECT_THAT(desk.Content("fixspots.dat.bad"), testing::StartsWith("<html>\r\n<body>"));
  EXPECT_THAT(desk.Content("fixspots.dat"), testing::StartsWith("\"K1ABC\",\"K\""));
}

TEST_F(UnreadFiles, OneThatAGoodOneWasPutInPlaceOfIsReadAgainByTheButton) {
  const std::string title = " MOLVA SORTED LIST OF AG MEMBERS AS OF\r\n";
  desk.Content("eqsl.txt") = " 3" + title + "K1ABC\r\nK2";
  desk.Start();
  core::Button& button = desk.program->conditions.cmdHelp;
  EXPECT_EQ(button.Caption.Get(), "Read again");
  button.Press();
  EXPECT_EQ(Told(), "eqsl.txt is damaged: eQSL marks are missing. Put a good one there.");
  desk.Content("eqsl.txt") = " 1" + title + "K1ABC\r\n";
  button.Press();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(desk.program->spotParts.membership.EqslCount(), 1u);
}

}  // namespace
