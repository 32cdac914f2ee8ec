#include "ui/theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <QRegularExpression>

#include "ui/style.h"

namespace gui {
namespace {

using ui::BandColour;
using ui::Theme;
using ui::Token;

const Theme kLightTheme(Theme::Kind::Light);
const Theme kDarkTheme(Theme::Kind::Dark);

template <class Key>
struct Row {
  Key key;
  const char* light;
  const char* dark;
};

constexpr std::array<Row<Token>, 11> kTokens = {{
    {Token::Ground, "#FCFCFB", "#16191D"},
    {Token::Panel, "#F1F2F0", "#1D2126"},
    {Token::Line, "#D9DBD7", "#32383F"},
    {Token::Text, "#1D2125", "#E3E6E8"},
    {Token::DimText, "#4F575F", "#9AA4AE"},
    {Token::Accent, "#1B65A3", "#6CB6F5"},
    {Token::Good, "#20702F", "#69DB7C"},
    {Token::Caution, "#9A4C00", "#FFB454"},
    {Token::Bad, "#B3202A", "#FF7B72"},
    {Token::Selection, "#DCEBF8", "#21384D"},
    {Token::AlarmGround, "#FFF1D6", "#3A2E14"},
}};

constexpr std::array<Row<BandColour>, 16> kBands = {{
    {BandColour::M160, "#A43A41", "#FFB4B3"},
    {BandColour::M80, "#903302", "#F59977"},
    {BandColour::M60, "#905201", "#FFBA7C"},
    {BandColour::M40, "#6D5001", "#D8AD52"},
    {BandColour::M30, "#6C6601", "#D6CF6E"},
    {BandColour::M20, "#446003", "#A0C26C"},
    {BandColour::M17, "#0B742E", "#93E09E"},
    {BandColour::M15, "#06654D", "#57CDA8"},
    {BandColour::M12, "#01726F", "#57E3DD"},
    {BandColour::M10, "#01606E", "#3CC8E1"},
    {BandColour::M6, "#066C94", "#8AD5FE"},
    {BandColour::M4, "#0A54A0", "#7FB7FE"},
    {BandColour::M2, "#4F58B1", "#BCC7FE"},
    {BandColour::M1, "#5F3F98", "#BDA3F7"},
    {BandColour::Cm70, "#844495", "#ECB1FD"},
    {BandColour::Mw, "#852E6D", "#E795CC"},
}};

void ExpectReadable(const Theme& theme, const QColor& text) {
  EXPECT_GE(ui::Contrast(text, theme[Token::Ground]), 5.5) << text.name().toStdString();
  for (const Token ground : {Token::Panel, Token::Selection, Token::AlarmGround})
    EXPECT_GE(ui::Contrast(text, theme[ground]), 4.5)
        << text.name().toStdString() << " on " << theme[ground].name().toStdString();
}

TEST(ThemeTest, TheColoursAreThoseOfTheTable) {
  static_assert(kTokens.size() == static_cast<std::size_t>(Token::Count));
  static_assert(kBands.size() == static_cast<std::size_t>(BandColour::Count));
  const auto expectRow = [](const auto& row) {
    EXPECT_EQ(kLightTheme[row.key], QColor(row.light)) << row.light;
    EXPECT_EQ(kDarkTheme[row.key], QColor(row.dark)) << row.dark;
  };
  for (const auto& row : kTokens) expectRow(row);
  for (const auto& row : kBands) expectRow(row);
}

TEST(ThemeTest, EveryTextCanBeReadOnEveryGround) {
  for (const Theme& theme : {kLightTheme, kDarkTheme}) {
    for (const Token text :
         {Token::Text, Token::DimText, Token::Accent, Token::Good, Token::Caution, Token::Bad})
      ExpectReadable(theme, theme[text]);
    for (const auto& band : kBands) ExpectReadable(theme, theme[band.key]);
  }
}

TEST(ThemeTest, ContrastRunsFromOneToTwentyOne) {
  EXPECT_NEAR(ui::Contrast(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(ui::Contrast(Qt::white, Qt::black), 21, 0.001);
  EXPECT_NEAR(ui::Contrast(QColor("#123456"), QColor("#123456")), 1, 0.001);
  EXPECT_NEAR(ui::Contrast(QColor("#777777"), Qt::white), 4.48, 0.005);
}

TEST(ThemeTest, RedGreenAndBlueOfTheRulesAreBadGoodAndAccent) {
  for (const Theme& theme : {kLightTheme, kDarkTheme}) {
    EXPECT_EQ(theme.Of(core::kRed, Token::Text), theme[Token::Bad]);
    EXPECT_EQ(theme.Of(core::kGreen, Token::Text), theme[Token::Good]);
    EXPECT_EQ(theme.Of(core::kBlue, Token::Text), theme[Token::Accent]);
    EXPECT_EQ(theme.Of(core::kThemeColour, Token::DimText), theme[Token::DimText]);
  }
}

TEST(ThemeTest, AColourThatTheUserChoseHoldsInBothThemes) {
  for (const Theme& theme : {kLightTheme, kDarkTheme}) {
    EXPECT_EQ(theme.Of(0xCC8040, Token::Text), QColor(0x40, 0x80, 0xCC));
    EXPECT_EQ(theme.Of(1, Token::Text), QColor(1, 0, 0)) << "a chosen black";
  }
}

class StyleTest : public testing::Test {
 protected:
  ~StyleTest() override { ui::Apply(kLightTheme, *qApp); }
};

TEST_F(StyleTest, PaintsTheWholeApplication) {
  for (const Theme& theme : {kDarkTheme, kLightTheme}) {
    ui::Apply(theme, *qApp);
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette.color(QPalette::Base), theme[Token::Ground]);
    EXPECT_EQ(palette.color(QPalette::Window), theme[Token::Panel]);
    EXPECT_EQ(palette.color(QPalette::Text), theme[Token::Text]);
    EXPECT_EQ(palette.color(QPalette::Highlight), theme[Token::Selection]);
    EXPECT_FALSE(qApp->styleSheet().contains(QRegularExpression("\\{[a-z]+\\}")))
        << "a colour by its name";
  }
}

}  // namespace
}  // namespace gui
