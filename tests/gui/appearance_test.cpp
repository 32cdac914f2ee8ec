#include <QApplication>
#include <QComboBox>

#include "gui/desk.h"
#include "ui/style.h"

namespace gui {
namespace {

using platform::ColourScheme;
using ui::Token;

class AppearanceTest : public Desk {
 protected:
  ~AppearanceTest() override { ui::Apply(theme, *qApp); }

  void Open(const std::vector<std::string>& more = {}) {
    Desk::Open(more);
    wardrobe = std::make_unique<ui::Wardrobe>(program->appearance, *qApp);
    following = wardrobe->theme.Observe([this](const ui::Theme& now) { liveTheme.Set(now); });
    Run(200ms);
  }
  QColor Ground() { return window->grab().toImage().pixelColor(window->width() / 2, 4); }
  QColor Lamp() { return MiddleOf(*Named(*window, "Link lamp")); }

  const ui::Theme dark{ui::Theme::Kind::Dark};
  std::unique_ptr<ui::Wardrobe> wardrobe;
  platform::Registration following;
};

TEST_F(AppearanceTest, TheWholeWindowFollowsTheSystemWhileItRuns) {
  Open({"\"StartTab\",7"});
  EXPECT_EQ(Ground(), theme[Token::Panel]);
  EXPECT_EQ(Lamp(), theme[Token::Bad]);
  program->appearance.SystemHas(ColourScheme::Dark);
  Run(200ms);
  EXPECT_EQ(Ground(), dark[Token::Panel]);
  EXPECT_EQ(Lamp(), dark[Token::Bad]);
  for (QPlainTextEdit* view : window->findChildren<QPlainTextEdit*>()) {
    const QImage shown = view->grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() - 4), dark[Token::Ground]);
  }
  program->appearance.SystemHas(ColourScheme::Light);
  Run(200ms);
  EXPECT_EQ(Ground(), theme[Token::Panel]);
  EXPECT_EQ(Lamp(), theme[Token::Bad]);
}

TEST_F(AppearanceTest, TheUsersChoiceOnTheSettingsPageTakesEffectAtOnce) {
  Open({"\"StartTab\",0"});
  auto& choice = *Named<QComboBox>(*window, "Theme: as the system has it, light or dark");
  EXPECT_TRUE(choice.isVisible());
  EXPECT_EQ(choice.currentText(), "System");
  choice.setFocus();
  Press(Qt::Key_End);
  Run(200ms);
  EXPECT_EQ(choice.currentText(), "Dark");
  EXPECT_EQ(Ground(), dark[Token::Panel]);
  program->appearance.SystemHas(ColourScheme::Light);
  Run(200ms);
  EXPECT_EQ(Ground(), dark[Token::Panel]) << "whatever the system has then";
}

TEST_F(AppearanceTest, TheSizeOfATextSurvivesAnotherTheme) {
  Open({"\"Raw Size\",20"});
  EXPECT_EQ(Raw().font().pixelSize(), 20);
  program->appearance.SystemHas(ColourScheme::Dark);
  Run(200ms);
  EXPECT_EQ(Raw().font().pixelSize(), 20);
  EXPECT_TRUE(Raw().fontInfo().fixedPitch());
}

}  // namespace
}  // namespace gui
