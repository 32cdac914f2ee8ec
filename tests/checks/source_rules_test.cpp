#include "checks/source_rules.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& file) {
  std::ostringstream content;
  content << std::ifstream(file, std::ios::binary).rdbuf();
  return content.str();
}

// Runs a rule over every source file below src/.
template <class Rule>
checks::Findings OverTheTree(Rule rule) {
  const fs::path root = fs::path(MOLVA_SOURCE_FOLDER) / "src";
  checks::Findings all;
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const std::string extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    ++files;
    const std::string path = fs::relative(entry.path(), root).generic_string();
    for (const std::string& finding : rule(path, Content(entry.path()))) all.push_back(finding);
  }
  EXPECT_GT(files, 50) << "the tree was not found";
  return all;
}

TEST(SourceRules, TheTreeKeepsTheOrderOfItsFolders) {
  EXPECT_THAT(OverTheTree(checks::FolderOrder), IsEmpty());
}

TEST(SourceRules, TheTreeHasNoClockOutsidePlatform) {
  EXPECT_THAT(OverTheTree(checks::NoClockOutsidePlatform), IsEmpty());
}

TEST(SourceRules, TheTreeHasNoNestedLoop) {
  EXPECT_THAT(OverTheTree(checks::NoNestedLoop), IsEmpty());
}

TEST(SourceRules, FolderOrderFindsWhatBreaksIt) {
  EXPECT_THAT(checks::FolderOrder("core/a.h", "#include \"core/b.h\"\n#include \"session/c.h\"\n"),
              ElementsAre("core/a.h:2: includes a later folder: session/c.h"));
  EXPECT_THAT(checks::FolderOrder("feeds/a.cpp", "#include \"alerts/b.h\""),
              ElementsAre("feeds/a.cpp:1: includes a later folder: alerts/b.h"));
  EXPECT_THAT(checks::FolderOrder("session/a.cpp", "#include <QString>"),
              ElementsAre("session/a.cpp:1: includes Qt: QString"));
  EXPECT_THAT(checks::FolderOrder("platform/a.h", "#  include \"platform/qt/b.h\""),
              ElementsAre("platform/a.h:1: includes Qt: platform/qt/b.h"));
  EXPECT_THAT(
      checks::FolderOrder("program/a.cpp", "#include \"platform/sim/world.h\""),
      ElementsAre("program/a.cpp:1: includes the simulated platform: platform/sim/world.h"));
  EXPECT_THAT(checks::FolderOrder("ui/a.cpp", "#include <QString>\n#include \"program/b.h\""),
              IsEmpty());
  EXPECT_THAT(checks::FolderOrder("core/a.cpp", "#include <ui/b.h>"),
              ElementsAre("core/a.cpp:1: includes a later folder: ui/b.h"));
  EXPECT_THAT(checks::FolderOrder("core/a.cpp", "#include \"../ui/b.h\""),
              ElementsAre("core/a.cpp:1: includes by a way around: ../ui/b.h"));
  EXPECT_THAT(checks::FolderOrder("unknown/a.cpp", "#include \"core/b.h\""),
              ElementsAre("unknown/a.cpp:1: includes a later folder: core/b.h"));
}

TEST(SourceRules, ClocksAreFoundOutsidePlatformAndNotInComments) {
  const std::string source = "// QTimer is not used\nauto t = std::chrono::steady_clock::now();\n";
  EXPECT_THAT(checks::NoClockOutsidePlatform("core/a.cpp", source),
              ElementsAre("core/a.cpp:2: steady_clock::now"));
  EXPECT_THAT(checks::NoClockOutsidePlatform("platform/qt/a.cpp", source), IsEmpty());
  EXPECT_THAT(checks::NoClockOutsidePlatform("ui/a.cpp", "QTimer::singleShot(0, f);"),
              testing::SizeIs(1));
}

TEST(SourceRules, NestedLoopsAreFoundEverywhereButInMain) {
  EXPECT_THAT(checks::NoNestedLoop("platform/qt/a.cpp", "box.exec();"),
              ElementsAre("platform/qt/a.cpp:1: .exec("));
  EXPECT_THAT(checks::NoNestedLoop("ui/a.cpp", "*p = box.exec();"), testing::SizeIs(1));
  EXPECT_THAT(checks::NoNestedLoop("ui/a.cpp", "socket->waitForConnected(100);"),
              testing::SizeIs(1));
  EXPECT_THAT(checks::NoNestedLoop("main.cpp", "return QApplication::exec();"), IsEmpty());
}

}  // namespace
