#include "ui/colour_dialog.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "gui/opened_dialog.h"
#include "ui/fonts.h"

// frmColour, driven by its names.
namespace gui {
namespace {

using program::ColourKey;
using testing::HasSubstr;
using ui::Token;

class ColourDialogTest : public OpenedDialog {
 protected:
  void SetUp() override {
    Open();
    program->colourForm.Show();
    Run(300ms);
  }
  QDialog& Dialog() {
    for (QDialog* each : window->findChildren<QDialog*>())
      if (each->windowTitle() == "Color and Font Selection") return *each;
    ADD_FAILURE() << "no dialog of colours";
    static QDialog none;
    return none;
  }
  QListWidget& List() { return *Named<QListWidget>(Dialog(), "Colours"); }
  void Select(ColourKey key) {
    List().setCurrentRow(static_cast<int>(key));
    Run(300ms);
  }
  // The dialog in which a colour is picked; nothing if none is open.
  QColorDialog* Picker() {
    for (QColorDialog* each : Dialog().findChildren<QColorDialog*>())
      if (each->isVisible()) return each;
    return nullptr;
  }
  void BeginPicking(ColourKey key) {
    Select(key);
    Click(Dialog(), "Choose the colour that is selected");
    ASSERT_NE(Picker(), nullptr);
  }
  // The field of the picking dialog where it is typed, "#102040".
  QLineEdit& NumberOfTheColour() {
    for (QLabel* each : Picker()->findChildren<QLabel*>())
      if (auto* field = qobject_cast<QLineEdit*>(each->buddy())) return *field;
    throw std::runtime_error("no field for a colour");
  }
  void TryColour(const QColor& colour) {
    Picker()->setCurrentColor(colour);
    Run(300ms);
  }
  void End(void (QDialog::*end)()) {
    (Picker()->*end)();
    Run(300ms);
  }
  QString Spoken(ColourKey key) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&List());
    return list->child(static_cast<int>(key))->text(QAccessible::Name);
  }
  QColor GroundOfTheTable() {
    QWidget& table = *Named(*window, "Spots");
    const QImage shown = table.grab().toImage();
    return shown.pixelColor(shown.width() - 40, shown.height() - 5);
  }
  QCheckBox& Box(const char* name) { return *Named<QCheckBox>(Dialog(), name); }
  QComboBox& Choice(const char* name) { return *Named<QComboBox>(Dialog(), name); }
};

TEST_F(ColourDialogTest, TabFollowsTheEye) {
  program->dxLook.chkBold.UserSets(true);
  program->settings.ColourRaw = 1;
  program->colourForm.Load();
  Run(300ms);
  EXPECT_EQ(TabOrder(Dialog()),
            QStringList({"Colours", "Choose the colour that is selected",
                         "Give the colour that is selected back to the theme",
                         "Default Colour: all colours as the theme has them", "Font of the spots",
                         "Size of the spots, in pixels", "Spots in bold", "Spots in italic",
                         "Default Font of the spots", "Show DX Tab Title: the heads of the columns",
                         "Close"}));
  EXPECT_TRUE(List().hasFocus()) << "to begin with";
}

TEST_F(ColourDialogTest, TheGivenTextsStandInIt) {
  QStringList texts;
  for (const QAbstractButton* each : Dialog().findChildren<QAbstractButton*>())
    texts << each->text().remove('&');
  for (const QLabel* each : Dialog().findChildren<QLabel*>()) texts << each->text().remove('&');
  for (const char* text : {"Default Colour", "Select Font", "Default Font", "Size", "Bold",
                           "Italic", "Show DX Tab Title"})
    EXPECT_TRUE(texts.contains(text)) << text;
}

TEST_F(ColourDialogTest, WhatCannotBeUsedSaysWhy) {
  for (const auto* each : Dialog().findChildren<QAbstractButton*>())
    EXPECT_TRUE(!each->isVisible() || each->isEnabled() || !each->toolTip().isEmpty())
        << each->accessibleName().toStdString();
}

TEST_F(ColourDialogTest, EachColourIsSpokenWithWhoseItIs) {
  EXPECT_EQ(List().count(), 21);
  EXPECT_EQ(Spoken(ColourKey::Dx), "DX spots, as the theme has it");
  BeginPicking(ColourKey::Dx);
  TryColour(QColor("#102040"));
  End(&QDialog::accept);
  EXPECT_EQ(Spoken(ColourKey::Dx), "DX spots, your own, #102040");
}

TEST_F(ColourDialogTest, AColourIsChosenByKeyboardAlone) {
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  Run(300ms);
  EXPECT_EQ(program->colourForm.Selected(), ColourKey::Dx);
  Press(Qt::Key_Return);
  Run(300ms);
  ASSERT_NE(Picker(), nullptr);
  EXPECT_EQ(Picker()->windowTitle(), "Colour: DX spots");
  QLineEdit& number = NumberOfTheColour();
  number.setFocus();
  number.selectAll();
  QTest::keyClicks(&number, "#102040");
  Run(300ms);
  EXPECT_EQ(GroundOfTheTable(), QColor("#102040"));
  QTest::keyClick(&number, Qt::Key_Return);
  Run(300ms);
  EXPECT_EQ(Picker(), nullptr);
  EXPECT_EQ(program->settings.ColourDx, 0x402010);
}

TEST_F(ColourDialogTest, WhatIsLookedAtIsSeenBehindAtOnceAndGoesWithCancel) {
  EXPECT_EQ(GroundOfTheTable(), theme[Token::Ground]);
  BeginPicking(ColourKey::Dx);
  TryColour(QColor("#204010"));
  EXPECT_EQ(GroundOfTheTable(), QColor("#204010"));
  End(&QDialog::reject);
  EXPECT_EQ(GroundOfTheTable(), theme[Token::Ground]);
  EXPECT_EQ(program->settings.ColourDx, core::Settings().ColourDx);
}

TEST_F(ColourDialogTest, PickingBeginsAtWhatIsOnShow) {
  BeginPicking(ColourKey::NodeTrying);
  EXPECT_EQ(Picker()->currentColor(), theme[Token::Caution]);
  End(&QDialog::accept);
  EXPECT_EQ(program->settings.ColourNodeTrying, 0) << "nothing was chosen";
}

TEST_F(ColourDialogTest, EscapeWhilePickingEndsThePickingAlone) {
  BeginPicking(ColourKey::Dx);
  QTest::keyClick(Picker(), Qt::Key_Escape);
  Run(300ms);
  EXPECT_EQ(Picker(), nullptr);
  EXPECT_TRUE(Dialog().isVisible());
  QTest::keyClick(&Dialog(), Qt::Key_Escape);
  Run(300ms);
  EXPECT_FALSE(Dialog().isVisible());
}

TEST_F(ColourDialogTest, TheStreamGoesOnWhileAColourIsPicked) {
  LogIn();
  BeginPicking(ColourKey::Raw);
  node.Say("DX de W1TST:     14025.0  3Y0J         loud                           2148Z");
  Run(1s);
  EXPECT_NE(Picker(), nullptr);
  EXPECT_TRUE(LinesOf(Raw()).join('\n').contains("3Y0J"));
  End(&QDialog::reject);
}

TEST_F(ColourDialogTest, ColoursAreGivenBackOneByOneOrAllAtOnce) {
  for (const ColourKey key : {ColourKey::Raw, ColourKey::Dx, ColourKey::Mail}) {
    BeginPicking(key);
    TryColour(QColor("#102040"));
    End(&QDialog::accept);
  }
  EXPECT_EQ(Named<QLabel>(Dialog(), "Your own colours")->text(), "3 of 21 are your own.");
  Click(Dialog(), "Give the colour that is selected back to the theme");
  EXPECT_EQ(program->settings.ColourMail, 0);
  EXPECT_EQ(GroundOfTheTable(), QColor("#102040"));
  Click(Dialog(), "Default Colour: all colours as the theme has them");
  EXPECT_EQ(GroundOfTheTable(), theme[Token::Ground]);
  EXPECT_EQ(program->settings.ColourDx, core::Settings().ColourDx);
}

TEST_F(ColourDialogTest, ATextThatIsHardToReadIsTold) {
  const auto told = [this] {
    for (const QLabel* each : Dialog().findChildren<QLabel*>())
      if (each->isVisible() && each->text().startsWith("Hard to read")) return each->text();
    return QString();
  };
  EXPECT_EQ(told(), "");
  BeginPicking(ColourKey::RawText);
  TryColour(QColor("#FFFFEE"));
  EXPECT_EQ(told(), "Hard to read in the light theme: a contrast of 1.0 to 1.");
  TryColour(QColor("#202020"));
  EXPECT_EQ(told(), "Hard to read in the dark theme: a contrast of 1.1 to 1.");
  End(&QDialog::accept);
  BeginPicking(ColourKey::Raw);
  TryColour(QColor("#303030"));
  EXPECT_EQ(told(), "Hard to read: a contrast of 1.2 to 1.");
  End(&QDialog::accept);
  Select(ColourKey::Dx);
  EXPECT_EQ(told(), "");
}

TEST_F(ColourDialogTest, TheFontOfTheTableIsChosenAmongThoseOfFixedWidth) {
  QComboBox& fonts = Choice("Font of the spots");
  QStringList offered;
  for (int i = 0; i < fonts.count(); ++i) offered << fonts.itemText(i);
  EXPECT_EQ(offered, ui::FixedFamilies());
  EXPECT_EQ(fonts.currentText(), QFontInfo(ui::FixedFont()).family());
  fonts.setFocus();
  QTest::keyClick(&fonts, fonts.currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
  Run(300ms);
  EXPECT_EQ(program->settings.DxFont, fonts.currentText().toStdString());
  EXPECT_EQ(program->dxLook.Font.Get().family, program->settings.DxFont);
}

TEST_F(ColourDialogTest, ItsSizeAndTheKeysForLargerTextAreOne) {
  QComboBox& size = Choice("Size of the spots, in pixels");
  EXPECT_EQ(size.currentText(), "13");
  Named(*window, "Spots")->setFocus();
  program->textSizes.Change(program::TextSizes::Dx, 3);
  Run(300ms);
  EXPECT_EQ(size.currentText(), "16");
  size.setFocus();
  QTest::keyClick(&size, Qt::Key_End);
  Run(300ms);
  EXPECT_EQ(program->textSizes.Size[program::TextSizes::Dx].Get(), 32);
}

TEST_F(ColourDialogTest, BoldItalicAndTheDefaultAreSeenBehindAtOnce) {
  LogIn();
  program->session.state.Recognise(session::NodeKind::Spider);
  node.Say("DX de W1TST:     14025.0  3Y0J         loud                           2148Z");
  Run(1s);
  const auto picture = [this] { return Named(*window, "Spots")->grab().toImage(); };
  const QImage usual = picture();
  Box("Spots in bold").click();
  Run(300ms);
  const QImage bold = picture();
  EXPECT_NE(bold, usual);
  Box("Spots in italic").click();
  Run(300ms);
  EXPECT_NE(picture(), bold);
  Click(Dialog(), "Default Font of the spots");
  EXPECT_EQ(picture(), usual);
}

TEST_F(ColourDialogTest, TheTitleOfTheTableIsShownAndHidden) {
  const QWidget& head = *Named(*window, "Sort by DX call");
  EXPECT_TRUE(head.isVisible());
  Box("Show DX Tab Title: the heads of the columns").click();
  Run(300ms);
  EXPECT_FALSE(head.isVisible());
  EXPECT_FALSE(program->settings.DxTitleVisible);
  Box("Show DX Tab Title: the heads of the columns").click();
  Run(300ms);
  EXPECT_TRUE(head.isVisible());
}

TEST_F(ColourDialogTest, TheSampleIsDrawnInTheFontAndTheColours) {
  QWidget& sample = *Named(Dialog(), "Sample of spots in this font");
  const auto picture = [&] { return sample.grab().toImage(); };
  const QImage usual = picture();
  Box("Spots in bold").click();
  Run(300ms);
  EXPECT_NE(picture(), usual);
  BeginPicking(ColourKey::Dx);
  TryColour(QColor("#102040"));
  EXPECT_EQ(picture().pixelColor(sample.width() - 4, sample.height() - 2), QColor("#102040"));
  End(&QDialog::reject);
}

TEST_F(ColourDialogTest, EverythingThatIsPickedWithHasAName) {
  BeginPicking(ColourKey::Raw);
  for (QWidget* each : Picker()->findChildren<QWidget*>()) {
    const bool isInside = qobject_cast<QAbstractSpinBox*>(each->parentWidget()) != nullptr;
    if (isInside || !CanBeReached(*each)) continue;
    const QString name =
        QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name).trimmed();
    EXPECT_FALSE(name.isEmpty()) << each->metaObject()->className();
  }
  End(&QDialog::reject);
}

}  // namespace
}  // namespace gui
