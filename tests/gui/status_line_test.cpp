#include <QLabel>

#include "gui/desk.h"
#include "ui/lamp.h"

namespace gui {
namespace {

using ui::Token;

class StatusLineTest : public Desk {
 protected:
  QWidget& Line() { return *window->findChild<QWidget*>("StatusLine"); }
  QStringList Words() {
    QStringList words;
    for (const QLabel* each : Line().findChildren<QLabel*>())
      if (each->isVisible()) words << each->text();
    return words;
  }
  // The colours of the lamps that are there, from left to right.
  std::vector<QColor> Lamps() {
    std::vector<QColor> colours;
    for (QWidget* each : Line().findChildren<QWidget*>())
      if (each->isVisible() && dynamic_cast<ui::Lamp*>(each) != nullptr)
        colours.push_back(MiddleOf(*each));
    return colours;
  }
};

TEST_F(StatusLineTest, ShowsTheNodeTheSilenceAndTheLink) {
  Open();
  Run(1s);
  EXPECT_EQ(Words(), QStringList({"Node", "Rx Inact. = 0", ""}));
  EXPECT_THAT(Lamps(), ElementsAre(theme[Token::Bad]));
  LogIn();
  EXPECT_EQ(Words().last(), "***Connected to: N0DE-1");
  EXPECT_THAT(Lamps(), ElementsAre(theme[Token::Good]));
}

TEST_F(StatusLineTest, ShowsTheTncWhereTheLinkGoesOverIt) {
  Open({"\"Tnc\",-1"});
  Run(1s);
  EXPECT_EQ(Words()[1], "TNC");
  EXPECT_EQ(Lamps()[1], theme[Token::Line]);
  EXPECT_EQ(Named<QLabel>(*window, "TNC")->accessibleName(), "TNC: not logged in");
  program->session.tncLink.ShowSession(true);
  Run(200ms);
  EXPECT_EQ(Lamps()[1], theme[Token::Good]);
  EXPECT_EQ(Named<QLabel>(*window, "TNC")->accessibleName(), "TNC: logged in");
}

TEST_F(StatusLineTest, ItsWordsStayQuietWhateverTheLinkIs) {
  Open();
  LogIn();
  for (const QLabel* each : Line().findChildren<QLabel*>())
    EXPECT_EQ(each->palette().color(QPalette::WindowText), theme[Token::DimText]);
}

}  // namespace
}  // namespace gui
