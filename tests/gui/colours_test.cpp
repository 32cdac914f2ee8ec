#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTextBlock>
#include <QTextLayout>

#include "gui/desk.h"
#include "ui/settings_page.h"
#include "ui/style.h"

// The colours that the user has chosen, in the window.
namespace gui {
namespace {

using program::ColourKey;
using ui::Token;

constexpr core::Colour kNight = 0x402010;
const QColor kNightDrawn(0x10, 0x20, 0x40);

class ColoursTest : public Desk {
 protected:
  ~ColoursTest() override { ui::Apply(theme, *qApp); }

  void Open(const std::vector<std::string>& more = {}) {
    Desk::Open(more);
    wardrobe = std::make_unique<ui::Wardrobe>(program->appearance, *qApp);
    following = wardrobe->theme.Observe([this](const ui::Theme& now) { liveTheme.Set(now); });
    Run(200ms);
  }
  void Choose(ColourKey key, core::Colour colour) {
    program::ColourForm& form = program->colourForm;
    form.optColour.UserSelects(static_cast<int>(key));
    form.cmdChoose.Press();
    form.UserTries(colour);
    form.UserTakes();
    Run(200ms);
  }
  void GoDark() {
    program->appearance.SystemHas(platform::ColourScheme::Dark);
    Run(200ms);
  }
  static QColor GroundOf(QWidget& widget) {
    const QImage shown = widget.grab().toImage();
    return shown.pixelColor(shown.width() - 20, shown.height() - 4);
  }
  static QColor TextOf(const QWidget& widget) {
    return widget.palette().color(widget.foregroundRole());
  }
  QPlainTextEdit& Login() { return *Named<QPlainTextEdit>(*window, "Login message of the node"); }

  const ui::Theme dark{ui::Theme::Kind::Dark};
  std::unique_ptr<ui::Wardrobe> wardrobe;
  platform::Registration following;
};

TEST_F(ColoursTest, OfTheRawViewAreThoseOfTheThemeUntilTheUserChooses) {
  Open();
  EXPECT_EQ(GroundOf(Raw()), theme[Token::Ground]);
  EXPECT_EQ(TextOf(Raw()), theme[Token::Text]);
  GoDark();
  EXPECT_EQ(GroundOf(Raw()), dark[Token::Ground]);
  EXPECT_EQ(TextOf(Raw()), dark[Token::Text]);
}

TEST_F(ColoursTest, ADarkRawViewInTheLightThemeHasTheTextOfTheDarkOne) {
  Open();
  Choose(ColourKey::Raw, kNight);
  EXPECT_EQ(GroundOf(Raw()), kNightDrawn);
  EXPECT_EQ(TextOf(Raw()), dark[Token::Text]);
  GoDark();
  EXPECT_EQ(GroundOf(Raw()), kNightDrawn);
  EXPECT_EQ(TextOf(Raw()), dark[Token::Text]);
  program->colourForm.cmdDefault.Press();
  Run(200ms);
  EXPECT_EQ(GroundOf(Raw()), dark[Token::Ground]);
}

TEST_F(ColoursTest, TheTextOfTheRawViewIsAsTheUserChoseItOnAnyGround) {
  Open();
  Choose(ColourKey::RawText, 0x2010C0);
  EXPECT_EQ(TextOf(Raw()), QColor(0xC0, 0x10, 0x20));
  EXPECT_EQ(GroundOf(Raw()), theme[Token::Ground]);
  Choose(ColourKey::Raw, kNight);
  EXPECT_EQ(TextOf(Raw()), QColor(0xC0, 0x10, 0x20));
  EXPECT_EQ(GroundOf(Raw()), kNightDrawn);
  GoDark();
  EXPECT_EQ(TextOf(Raw()), QColor(0xC0, 0x10, 0x20));
}

TEST_F(ColoursTest, OfTheConfigurationAreThereFromTheStartOn) {
  Open({"\"StartTab\",7", "\"ColourLoginMsg\",4202512", "\"ColourRaw\",1"});
  EXPECT_EQ(GroundOf(Login()), kNightDrawn);
  EXPECT_EQ(GroundOf(Raw()), QColor(1, 0, 0)) << "a chosen black";
}

TEST_F(ColoursTest, ABandsOwnColourOfTheConfigurationIsThatOfItsRows) {
  Open({"\"6SpotColor\",12591136"});
  LogIn();
  program->session.state.Recognise(session::NodeKind::Spider);
  node.Say("DX de W1TST:     14025.0  3Y0J         loud                           2148Z");
  Run(1s);
  const auto& table = *Named<QAbstractScrollArea>(*window, "Spots");
  EXPECT_EQ(table.viewport()->grab().toImage().pixelColor(1, 8), QColor(0x20, 0x20, 0xC0));
}

TEST_F(ColoursTest, ALinkOfTheLoginMessageCanBeReadOnAChosenGround) {
  Open({"\"StartTab\",7"});
  Button("Connect").click();
  Run(2s);
  node.Say("See www.example.org");
  Run(1s);
  const auto link = [this] {
    for (QTextBlock block = Login().document()->begin(); block.isValid(); block = block.next())
      for (const auto& range : block.layout()->formats())
        if (range.format.fontUnderline()) return range.format.foreground().color();
    return QColor();
  };
  EXPECT_EQ(link(), theme[Token::Accent]);
  Choose(ColourKey::LoginMsg, kNight);
  EXPECT_GE(ui::Contrast(link(), kNightDrawn), 4.5);
  Choose(ColourKey::LoginMsg, 0x99A0A0);
  EXPECT_GE(ui::Contrast(link(), QColor(0xA0, 0xA0, 0x99)), 4.5);
  program->colourForm.cmdDefault.Press();
  Run(200ms);
  EXPECT_EQ(link(), theme[Token::Accent]);
}

TEST_F(ColoursTest, EverythingOnTheSettingsPageCanBeReadOnAChosenGround) {
  Open({"\"StartTab\",0"});
  auto& page = *dynamic_cast<ui::SettingsPage*>(window->findChild<QScrollArea*>());
  EXPECT_EQ(GroundOf(page), theme[Token::Panel]);
  for (const core::Colour chosen : {kNight, 0xC0F0F0}) {
    Choose(ColourKey::Settings, chosen);
    const QColor ground = ui::AsStored(chosen);
    EXPECT_EQ(GroundOf(page), ground);
    for (QLabel* each : page.findChildren<QLabel*>())
      EXPECT_GE(ui::Contrast(TextOf(*each), ground), 4.5) << each->text().toStdString();
    for (QCheckBox* each : page.findChildren<QCheckBox*>())
      EXPECT_GE(ui::Contrast(TextOf(*each), ground), 4.5) << each->text().toStdString();
    for (QComboBox* each : page.findChildren<QComboBox*>())
      EXPECT_GE(ui::Contrast(each->palette().color(QPalette::Text),
                             each->palette().color(QPalette::Base)),
                4.5);
  }
  program->colourForm.cmdDefault.Press();
  Run(200ms);
  EXPECT_EQ(GroundOf(page), theme[Token::Panel]);
  GoDark();
  EXPECT_EQ(GroundOf(page), dark[Token::Panel]);
  for (QLabel* each : page.findChildren<QLabel*>())
    EXPECT_GE(ui::Contrast(TextOf(*each), dark[Token::Panel]), 4.5) << each->text().toStdString();
}

TEST_F(ColoursTest, TheLampAndTheWordsOfTheNodeChangeWhileItIsConnected) {
  Open();
  LogIn();
  QWidget& lamp = *Named(*window, "Link lamp");
  QLabel& words = *Named<QLabel>(*window, "Link");
  EXPECT_EQ(MiddleOf(lamp), theme[Token::Good]);
  Choose(ColourKey::NodeConn, 0xC02080);
  EXPECT_EQ(MiddleOf(lamp), QColor(0x80, 0x20, 0xC0));
  EXPECT_EQ(TextOf(words), QColor(0x80, 0x20, 0xC0));
  Choose(ColourKey::NodeDisc, 0x123456);
  EXPECT_EQ(MiddleOf(lamp), QColor(0x80, 0x20, 0xC0)) << "it is connected";
  program->colourForm.cmdDefault.Press();
  Run(200ms);
  EXPECT_EQ(MiddleOf(lamp), theme[Token::Good]);
}

TEST_F(ColoursTest, TheTextKeepsItsSizeOnAChosenGround) {
  Open({"\"Raw Size\",20"});
  Choose(ColourKey::Raw, kNight);
  EXPECT_EQ(Raw().font().pixelSize(), 20);
  program->colourForm.cmdDefault.Press();
  Run(200ms);
  EXPECT_EQ(Raw().font().pixelSize(), 20);
  EXPECT_TRUE(Raw().fontInfo().fixedPitch());
}

}  // namespace
}  // namespace gui
