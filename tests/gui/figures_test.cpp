#include "ui/figures.h"

#include <QAccessible>
#include <QLabel>

#include "gui/desk.h"

namespace gui {
namespace {

class FiguresTest : public Desk {
 protected:
  void SetUp() override { Open(); }
  std::string Shown(const char* name) { return Named<QLabel>(*window, name)->text().toStdString(); }
};

TEST_F(FiguresTest, ThreeDigitsMakeAGroup) {
  EXPECT_EQ(ui::Grouped(std::uint64_t{0}), "0");
  EXPECT_EQ(ui::Grouped(std::uint64_t{999}), "999");
  EXPECT_EQ(ui::Grouped(std::uint64_t{1000}), "1,000");
  EXPECT_EQ(ui::Grouped(std::uint64_t{1234567}), "1,234,567");
}

TEST_F(FiguresTest, WhatIsNoCountStaysAsItIs) {
  for (const char* text : {"", "001.25", "-1234", "12345 spots"})
    EXPECT_EQ(ui::Grouped(std::string_view(text)), text);
}

TEST_F(FiguresTest, UnseenCountsAreWrittenLikeTotals) {
  spots::BandRail& rail = program->spotParts.table.rail;
  rail.lblUnseen[2].Caption.Set("1234");
  rail.lblUnseen[2].Visible.Set(true);
  rail.lblTotal[2].Caption.Set("56789");
  QWidget& bands = *Named(*window, "Bands of the spots");
  const auto spoken =
      QAccessible::queryAccessibleInterface(&bands)->child(2)->text(QAccessible::Name);
  EXPECT_TRUE(spoken.endsWith("1,234 unseen, 56,789 in all")) << spoken.toStdString();
}

TEST_F(FiguresTest, SoAreTheCountsOfTheTableOfTheLogAndOfTheTechnicalPanel) {
  spots::SpotParts& parts = program->spotParts;
  parts.numbers.ShowRows(2000);
  parts.spotsForm.lblCount.Caption.Set("123456");
  parts.fixList.lblFixes.Caption.Set("1234");
  Run(200ms);
  EXPECT_EQ(Shown("Rows in this view"), "2,000");
  EXPECT_EQ(Shown("Spots read"), "123,456");
  EXPECT_EQ(Shown("Spots corrected"), "1,234");
}

}  // namespace
}  // namespace gui
