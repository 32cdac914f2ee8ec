#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include "gui/desk.h"
#include "session/links.h"
#include "ui/style.h"

namespace gui {
namespace {

using ui::Token;

class LoginViewTest : public Desk {
 protected:
  void SetUp() override {
    Open({"\"StartTab\",7"});
    Button("Connect").click();
    Run(2s);
  }
  void Say(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) node.Say(line);
    Run(1s);
  }
  QPlainTextEdit& View() { return *Named<QPlainTextEdit>(*window, "Login message of the node"); }

  // The texts that are underlined, in their order.
  std::vector<std::string> Underlined() {
    std::vector<std::string> texts;
    for (QTextBlock block = View().document()->begin(); block.isValid(); block = block.next())
      for (const auto& range : block.layout()->formats())
        if (range.format.fontUnderline())
          texts.push_back(block.text().mid(range.start, range.length).toStdString());
    return texts;
  }
  // What that text is drawn in, if it is marked by itself.
  QTextCharFormat FormatOf(const QString& text) {
    for (QTextBlock block = View().document()->begin(); block.isValid(); block = block.next())
      for (const auto& range : block.layout()->formats())
        if (block.text().mid(range.start, range.length) == text) return range.format;
    return {};
  }
  int SizeOf(const QString& text) { return FormatOf(text).font().pixelSize(); }
  QColor ColourOf(const QString& text) { return FormatOf(text).foreground().color(); }
  QPoint MiddleOfText(const QString& text) {
    const QTextCursor found = View().document()->find(text);
    EXPECT_FALSE(found.isNull());
    QTextCursor end = found;
    end.setPosition(found.selectionStart());
    return (View().cursorRect(end).center() + View().cursorRect(found).center()) / 2;
  }
  void Click(const QString& text) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, MiddleOfText(text));
  }
  QAction* MenuEntry(const char* text) {
    for (QAction* each : View().findChildren<QAction*>())
      if (each->text() == QString::fromUtf8(text)) return each;
    return nullptr;
  }
  void AskForMenu(const QPoint& point, QContextMenuEvent::Reason reason) {
    QContextMenuEvent event(reason, point, View().viewport()->mapToGlobal(point));
    QApplication::sendEvent(View().viewport(), &event);
  }
};

TEST_F(LoginViewTest, LinksAreUnderlinedInTheColourOfLinks) {
  Say({"Welcome, see http://example.org/a and", "www.example.org for more", "no link here"});
  EXPECT_THAT(Underlined(), ElementsAre("http://example.org/a", "www.example.org"));
  EXPECT_EQ(ColourOf("www.example.org"), theme[Token::Accent]);
}

TEST_F(LoginViewTest, LinksAreDrawnSoWithoutTheFocusToo) {
  Say({"Welcome, see http://example.org/a"});
  Raw().setFocus();
  ASSERT_FALSE(View().hasFocus());
  const QImage shown = View().viewport()->grab().toImage();
  int underlined = 0;
  for (int x = 0; x < shown.width(); ++x)
    for (int y = 0; y < shown.height(); ++y)
      if (shown.pixelColor(x, y) == theme[Token::Accent]) ++underlined;
  EXPECT_GT(underlined, 100);
}

TEST_F(LoginViewTest, AClickOpensTheLink) {
  Say({"See http://example.org/a. And", "www.example.org too"});
  Click("www.example.org");
  EXPECT_THAT(world.browser.opened, ElementsAre("http://www.example.org"));
  Click("http://example.org/a.");
  EXPECT_EQ(world.browser.opened.back(), "http://example.org/a") << "without the full stop";
}

TEST_F(LoginViewTest, AClickBesideALinkOpensNothing) {
  Say({"See http://example.org/a"});
  Click("See");
  const QPoint link = MiddleOfText("http://example.org/a");
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, {View().width() - 40, link.y()});
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, {link.x(), link.y() + 60});
  QTest::mouseClick(View().viewport(), Qt::RightButton, {}, link);
  EXPECT_TRUE(world.browser.opened.empty());
}

TEST_F(LoginViewTest, WhoSelectsTextOpensNothing) {
  Say({"See http://example.org/a/long/address"});
  const QPoint link = MiddleOfText("http://example.org/a");
  QTest::mousePress(View().viewport(), Qt::LeftButton, {}, link);
  QTest::mouseMove(View().viewport(), link + QPoint(40, 0));
  QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, link + QPoint(40, 0));
  EXPECT_TRUE(world.browser.opened.empty());
}

TEST_F(LoginViewTest, AClickIsForWhatWasUnderThePointerWhenTheButtonWentDown) {
  Say({"See http://first.org"});
  const QPoint link = MiddleOfText("http://first.org");
  QTest::mousePress(View().viewport(), Qt::LeftButton, {}, link);
  for (int line = 0; line < 200; ++line) node.Say("See http://other.org");
  Run(1s);
  QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, link);
  EXPECT_THAT(world.browser.opened, ElementsAre("http://first.org"));
}

TEST_F(LoginViewTest, ThePointerIsAHandOverALink) {
  Say({"See http://example.org/a"});
  QTest::mouseMove(View().viewport(), MiddleOfText("http://example.org/a"));
  EXPECT_EQ(View().viewport()->cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(View().viewport(), MiddleOfText("See"));
  EXPECT_EQ(View().viewport()->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(LoginViewTest, TabGoesFromLinkToLinkAndThenOn) {
  Say({"See http://a.org and www.b.org", "http://c.org"});
  View().setFocus(Qt::TabFocusReason);
  for (const char* link : {"http://a.org", "www.b.org", "http://c.org"}) {
    Press(Qt::Key_Tab);
    EXPECT_TRUE(View().hasFocus());
    EXPECT_EQ(View().textCursor().selectedText(), link);
  }
  Press(Qt::Key_Tab);
  EXPECT_FALSE(View().hasFocus());
}

TEST_F(LoginViewTest, ShiftAndTabGoTheOtherWay) {
  Say({"See http://a.org and www.b.org"});
  View().setFocus();
  for (const char* link : {"www.b.org", "http://a.org"}) {
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(View().textCursor().selectedText(), link);
  }
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_FALSE(View().hasFocus());
}

TEST_F(LoginViewTest, EnterOpensTheLinkThatTabWentTo) {
  Say({"See http://a.org"});
  View().setFocus();
  Press(Qt::Key_Return);
  EXPECT_TRUE(world.browser.opened.empty());
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  Press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_THAT(world.browser.opened, ElementsAre("http://a.org", "http://a.org"));
}

TEST_F(LoginViewTest, TheMenuOfALinkOpensAndCopiesIt) {
  Say({"See http://a.org"});
  AskForMenu(MiddleOfText("See"), QContextMenuEvent::Mouse);
  EXPECT_EQ(MenuEntry("&Open link"), nullptr);
  AskForMenu(MiddleOfText("http://a.org"), QContextMenuEvent::Mouse);
  ASSERT_NE(MenuEntry("&Open link"), nullptr);
  MenuEntry("&Open link")->trigger();
  EXPECT_THAT(world.browser.opened, ElementsAre("http://a.org"));
  MenuEntry("Copy &link")->trigger();
  EXPECT_EQ(QApplication::clipboard()->text(), "http://a.org");
}

TEST_F(LoginViewTest, ByKeyTheMenuIsThatOfTheLinkThatTabWentTo) {
  Say({"See http://a.org"});
  View().setFocus();
  Press(Qt::Key_Tab);
  AskForMenu({0, 0}, QContextMenuEvent::Keyboard);
  ASSERT_NE(MenuEntry("&Open link"), nullptr);
  MenuEntry("&Open link")->trigger();
  EXPECT_THAT(world.browser.opened, ElementsAre("http://a.org"));
}

TEST_F(LoginViewTest, HostileTextStaysTextAndOpensNothing) {
  const std::string turnsRound = {'\xe2', '\x80', '\xae'};
  const std::vector<std::string> lines = {
      "<a href=\"http://a.org\">javascript:alert(1)</a>", "<b>bold</b> &lt; file:///etc/passwd",
      "http:/ www. https://", "http://a\x01.org", "http://" + turnsRound + ".org"};
  Say(lines);
  const QStringList shown = LinesOf(View());
  EXPECT_THAT(shown, Contains(QString(" <a href=\"http://a.org\">javascript:alert(1)</a>")));
  EXPECT_THAT(shown, Contains(QString(" <b>bold</b> &lt; file:///etc/passwd")));
  Click("javascript");
  EXPECT_EQ(world.browser.opened.size(), 0U);
  Click("https://");
  EXPECT_TRUE(world.browser.opened.empty());
  EXPECT_TRUE(program->messageForm.Open.Get()) << "the user is told so";
  EXPECT_EQ(program->messageForm.lblHeading.Caption.Get(), "Nothing opens this link");
}

TEST_F(LoginViewTest, ALinkThatIsNotShownWholeIsNone) {
  Say({"See " + std::string(3990, 'x') + " http://a.org/behind-the-cut http://b.org", "www.c.org"});
  EXPECT_THAT(Underlined(), ElementsAre("www.c.org"));
}

TEST_F(LoginViewTest, MarksStayWithTheirLinksWhateverComesAndGoes) {
  for (int batch = 0; batch < 40; ++batch) {
    for (int line = 0; line < 30; ++line) {
      const std::string number = std::to_string(batch * 30 + line);
      node.Say(line % 3 == 0 ? "plain " + number : "\xc3\xa4\xff text http://" + number + ".org x");
    }
    Run(batch % 4 == 0 ? 200ms : 20ms);
    if (batch == 20) View().verticalScrollBar()->setValue(5);
  }
  Run(1s);
  std::vector<std::string> links;
  for (const QString& line : LinesOf(View()))
    for (const session::Link& link : session::FindHTML(line.toStdString()))
      links.push_back(link.text);
  EXPECT_GT(links.size(), 100U);
  EXPECT_LT(links.size(), 800U) << "some have gone";
  EXPECT_EQ(Underlined(), links);
}

TEST_F(LoginViewTest, WithTheSessionTheLinksEndAndTheTextStays) {
  Say({"See http://a.org"});
  ASSERT_THAT(Underlined(), ElementsAre("http://a.org"));
  node.HangUp();
  Run(2s);
  EXPECT_THAT(Underlined(), ElementsAre());
  EXPECT_THAT(LinesOf(View()), Contains(QString(" See http://a.org")));
}

TEST_F(LoginViewTest, AHeadingIsLargerThanTheTextAroundItAndGrowsWithItUpToTheClock) {
  Say({"*.  News of http://a.org", "the text below"});
  EXPECT_EQ(SizeOf("News of "), 16);
  EXPECT_EQ(SizeOf("http://a.org"), 16) << "a link in it as well";
  EXPECT_THAT(Underlined(), ElementsAre("http://a.org"));
  EXPECT_TRUE(FormatOf(" the text below").isEmpty()) << "which is as the view has it";
  View().setFocus();
  const int clock = Named(*window, "Time in UTC")->font().pixelSize();
  const auto enlarge = [this](int steps) {
    for (; steps > 0; --steps) Press(Qt::Key_Plus, Qt::ControlModifier);
    Run(200ms);
  };
  enlarge(1);
  EXPECT_EQ(SizeOf("News of "), 17);
  enlarge(2);
  EXPECT_EQ(SizeOf("News of "), clock);
  enlarge(3);
  EXPECT_EQ(SizeOf("News of "), 19) << "no smaller than the text, which is the user's choice";
}

TEST_F(LoginViewTest, LinksFollowTheTheme) {
  Say({"See http://a.org"});
  const ui::Theme dark{ui::Theme::Kind::Dark};
  ui::Apply(dark, *qApp);
  Run(200ms);
  const QColor colour = ColourOf("http://a.org");
  ui::Apply(theme, *qApp);
  EXPECT_EQ(colour, dark[Token::Accent]);
}

}  // namespace
}  // namespace gui
