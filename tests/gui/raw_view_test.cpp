#include <QTextBlock>
#include <QTextLayout>

#include "gui/desk.h"

namespace gui {
namespace {

class RawViewTest : public Desk {
 protected:
  void SetUp() override {
    Open();
    LogIn();
  }
  // What the raw view makes of a line of the node.
  QString Shown(const std::string& line) {
    node.Say(line);
    Run(1s);
    const QStringList lines = LinesOf(Raw());
    EXPECT_EQ(lines.size(), static_cast<qsizetype>(program->session.outgoing.Text2.Lines().size()));
    return lines.last();
  }
};

TEST_F(RawViewTest, ShowsWhatComesAndWhatGoesInTheirOrder) {
  const QString line = "To ALL de W1TST <2100Z> : good evening";
  node.Say(line.toStdString());
  Run(1s);
  QTest::keyClicks(&CommandLine(), "sh/wwv");
  QTest::keyClick(&CommandLine(), Qt::Key_Return);
  Run(1s);
  const QStringList lines = LinesOf(Raw());
  EXPECT_THAT(lines, Contains(QString("   <- K1TST-2")));
  EXPECT_EQ(lines.mid(lines.size() - 2), QStringList({line, "   <- sh/wwv"}));
}

TEST_F(RawViewTest, MarkupStaysAsItIs) {
  EXPECT_EQ(Shown("<b>x</b> &amp; <img src='http://example.org/a.png'>"),
            "<b>x</b> &amp; <img src='http://example.org/a.png'>");
}

TEST_F(RawViewTest, BytesAreUtf8WhereTheyCanBeAndWindows1252Elsewhere) {
  EXPECT_EQ(Shown("Caf\xC3\xA9 \xE9 \x80 \xF0\x9F\x93\xA1 \xC3"),
            QString::fromUtf8("Café é € 📡 Ã"));
}

TEST_F(RawViewTest, NothingInALineBreaksIt) {
  for (const std::string odd :
       {"\x0B", "\x0C", "\x1B", "\x1F", "\x7F", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9",
        "\xEF\xB7\x90", "\xEF\xB7\x91", "\xEF\xBF\xBC", "\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
    const QString shown = Shown("left" + odd + "right");
    EXPECT_TRUE(shown.startsWith("left") && shown.endsWith("right")) << shown.toStdString();
    const QTextBlock block = Raw().document()->lastBlock();
    Raw().document()->documentLayout()->blockBoundingRect(block);
    EXPECT_EQ(block.layout()->lineCount(), 1) << shown.toStdString();
  }
}

TEST_F(RawViewTest, NothingInALineTurnsItsDirection) {
  for (const int code : {0x202E, 0x202B, 0x2067}) {
    const QString turning{QChar(code)};
    EXPECT_FALSE(Shown("left " + turning.toStdString() + "right").contains(turning));
  }
}

TEST_F(RawViewTest, AMegabyteWithoutALineEndIsCutWithAnEllipsis) {
  const QString shown = Shown(std::string(1'000'000, 'x'));
  EXPECT_TRUE(shown.endsWith(QString::fromUtf8("x …")));
  EXPECT_LT(shown.size(), 5000);
  EXPECT_EQ(Shown("and goes on"), "and goes on");
}

TEST_F(RawViewTest, ACutLineEndsWithAWholeCharacter) {
  for (const char* before : {"", "x", "xx", "xxx"}) {
    std::string line = before;
    while (line.size() < 10'000) line += "\xF0\x9F\x93\xA1";
    const QString shown = Shown(line);
    EXPECT_TRUE(shown.endsWith(QString::fromUtf8("📡 …"))) << shown.right(6).toStdString();
  }
}

}  // namespace
}  // namespace gui
