#include "spots/cty_file.h"

#include <gmock/gmock.h>

#include "cty_text.h"
#include "platform/sim/sim_dialogs.h"
#include "platform/sim/sim_files.h"

namespace spots {
namespace {

using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

class CtyFileTest : public testing::Test {
 protected:
  void Read() { ReadWLCty(files, dialogs, "/molva", table); }
  void Read(std::string text) {
    files.content[path] = std::move(text);
    Read();
  }

  platform::sim::SimFiles files;
  platform::sim::SimDialogs dialogs;
  CtyTable table;
  const std::string path = "/molva/cty.dat";
};

TEST_F(CtyFileTest, IsReadWithoutAWord) {
  const std::string text = CtyText({Country{}.Line()});
  Read(text);
  EXPECT_EQ(table.CountryName("GD"), "ISLE OF MAN");
  EXPECT_EQ(files.content[path], text);
  EXPECT_THAT(dialogs.shown, IsEmpty());
}

TEST_F(CtyFileTest, ThatIsMissingIsTold) {
  Read();
  EXPECT_EQ(table.CtyCount(), -1);
  ASSERT_THAT(dialogs.shown, SizeIs(1));
  EXPECT_EQ(dialogs.shown[0].kind, platform::Message::Kind::Critical);
  EXPECT_EQ(dialogs.shown[0].text,
            "The file cty.dat was not found\n"
            "If you just updated this program, you put the update in the wrong directory.\n"
            "Error #53 in Directory /molva");
}

TEST_F(CtyFileTest, ThatCannotBeReadIsTold) {
  files.denied.insert(path);
  Read(CtyText({}));
  EXPECT_EQ(table.CtyCount(), -1);
  ASSERT_THAT(dialogs.shown, SizeIs(1));
  EXPECT_THAT(dialogs.shown[0].text, EndsWith("\nError #70 in Directory /molva"));
}

TEST_F(CtyFileTest, ThatIsEmptyIsTold) {
  Read("");
  ASSERT_THAT(dialogs.shown, SizeIs(1));
  EXPECT_THAT(dialogs.shown[0].text, EndsWith("\nError #62 in Directory /molva"));
}

TEST_F(CtyFileTest, ThatHasGoneLeavesNothingOfTheLastOne) {
  Read(CtyText({}));
  files.content.erase(path);
  Read();
  EXPECT_EQ(table.CtyCount(), -1);
}

TEST_F(CtyFileTest, OfFewLinesIsToldAsDamagedAndStays) {
  const std::string text = CtyText({}).substr(0, 5000);
  Read(text);
  EXPECT_EQ(table.CtyCount(), -1);
  EXPECT_EQ(files.content[path], text);
  ASSERT_THAT(dialogs.shown, SizeIs(1));
  EXPECT_EQ(dialogs.shown[0].text,
            "The file cty.dat is damaged: it holds too few countries\n"
            "Delete it, and the next start of this program puts a good one in its place.\n"
            "Directory /molva");
}

TEST_F(CtyFileTest, WithoutMarionIslandIsRewrittenOnce) {
  Read(CtyTextWithoutMarion({}));
  const std::string rewritten = files.content[path];
  EXPECT_THAT(rewritten, EndsWith("ZS8:\r\n"));
  EXPECT_EQ(rewritten.find(';'), std::string::npos) << "the lists of prefixes are gone";
  files.bytesFree = 0;
  Read();
  EXPECT_EQ(files.content[path], rewritten);
  EXPECT_EQ(table.CtyCount(), 310);
}

TEST_F(CtyFileTest, ThatCannotBeRewrittenIsReadAllTheSame) {
  const std::string text = CtyTextWithoutMarion({});
  files.bytesFree = 100;
  Read(text);
  EXPECT_TRUE(table.HasPrefix("ZS8"));
  EXPECT_EQ(files.content[path], text);
  EXPECT_THAT(dialogs.shown, IsEmpty());
}

}  // namespace
}  // namespace spots
