#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "checks/picture_names.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

const fs::path kRoot = MOLVA_SOURCE_FOLDER;

std::string TextOf(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

checks::PictureNames InTheFolder() {
  checks::PictureNames names;
  for (const auto& entry : fs::directory_iterator(kRoot / "docs/pictures"))
    if (entry.path().extension() == ".png") names.insert(entry.path().stem());
  return names;
}

checks::PictureNames OnThePages() {
  checks::PictureNames names = checks::ShownBy(TextOf(kRoot / "README.md"));
  for (const auto& entry : fs::recursive_directory_iterator(kRoot / "docs"))
    if (entry.path().extension() == ".md") names.merge(checks::ShownBy(TextOf(entry.path())));
  return names;
}

TEST(Pictures, EachOfAPageIsInTheFolderAndEachOfTheFolderOnAPage) {
  EXPECT_EQ(OnThePages(), InTheFolder());
  EXPECT_THAT(InTheFolder(), testing::SizeIs(testing::Gt(10U))) << "the folder was not found";
}

TEST(Pictures, TheCommandMakesThoseOfTheFolderAndNoOther) {
  EXPECT_EQ(checks::MadeBy(TextOf(kRoot / "tools/pictures/pictures.py")), InTheFolder());
}

// They are part of the program. Each is small, and so are all together.
TEST(Pictures, AreSmall) {
  constexpr std::uintmax_t kMostOfOne = 100'000;  // bytes
  constexpr std::uintmax_t kMostOfAll = 1'500'000;
  std::uintmax_t all = 0;
  for (const std::string& name : InTheFolder()) {
    const auto size = fs::file_size(kRoot / "docs/pictures" / (name + ".png"));
    EXPECT_LE(size, kMostOfOne) << name;
    all += size;
  }
  EXPECT_LE(all, kMostOfAll);
}

TEST(Pictures, PageShowsWhatItsImagesName) {
  EXPECT_THAT(
      checks::ShownBy("![The window](docs/pictures/window.png)\n\ntext ![](../pictures/b-2.png)"),
      ElementsAre("b-2", "window"));
  EXPECT_THAT(checks::ShownBy("[a link](../pictures/a.png), pictures/b.png, ![](pictures/c.svg)"),
              IsEmpty());
}

TEST(Pictures, CommandMakesWhatItsRowsName) {
  EXPECT_THAT(checks::MadeBy("class Picture:\n  Picture(\"window\"),\n  Picture(\n    \"b\", 1)"),
              ElementsAre("b", "window"));
}

}  // namespace
