#include <QAccessible>
#include <QLabel>
#include <algorithm>
#include <map>

#include "gui/desk.h"
#include "gui/reader.h"

// What a screen reader finds in the window.
namespace gui {
namespace {

// What the user can go to, and what tells him something.
bool Matters(const QAccessibleInterface& each) {
  const auto* widget = qobject_cast<QWidget*>(each.object());
  if (widget != nullptr && widget->isWindow()) return false;
  // It goes by the name of its tab, which counts itself.
  if (each.role() == QAccessible::PageTabList) return false;
  const bool focusable = widget != nullptr && widget->focusPolicy() != Qt::NoFocus;
  return focusable || each.role() == QAccessible::StaticText || each.role() == QAccessible::PageTab;
}

class NamesTest : public Desk {
 protected:
  std::map<QString, int> Names() {
    std::map<QString, int> names;
    Walk(QAccessible::queryAccessibleInterface(window.get()), [&](QAccessibleInterface& each) {
      if (Matters(each)) ++names[each.text(QAccessible::Name)];
    });
    return names;
  }
};

TEST_F(NamesTest, EverythingThatMattersHasANameOfItsOwn) {
  Open();
  LogIn();
  for (int tab = 0; tab < Tabs().count(); ++tab) {
    if (!Tabs().isTabEnabled(tab)) continue;
    Tabs().setCurrentIndex(tab);
    Run(200ms);
    const auto names = Names();
    EXPECT_GT(names.size(), 20U);
    for (const auto& [name, count] : names)
      EXPECT_TRUE(count == 1 && !name.trimmed().isEmpty()) << '"' << name.toStdString() << '"';
  }
}

TEST_F(NamesTest, SoHasWhatComesToTheSettingsPageLater) {
  Open({"\"StartTab\",0", "\"Linking\",-1", "\"Tnc\",-1"});
  session::Session& session = program->session;
  session.macros.fraSendMacro.Visible.Set(true);
  session.macros.fraMacros.Visible.Set(true);
  session.macros.fraMacros.Caption.Set("Local Macros");
  for (core::Label* each :
       {&session.keepAlive.lblKA[0], &session.keepAlive.lblKA[1], &session.keepAlive.lblKA[2],
        &session.connection.lblDisconnects, &session.technical.lblTechnical[0],
        &session.technical.lblTechnical[1], &session.ar17.lblStatus, &session.latency.Text3,
        &program->spotParts.lines.list.lblSeconds, &program->spotParts.lines.list.lblBeyondLatency,
        &program->spotParts.lines.list.lblCount}) {
    each->Caption.Set("Retry in 3");
    each->Visible.Set(true);
  }
  Run(200ms);
  const auto names = Names();
  EXPECT_GT(names.size(), 60U);
  for (const auto& [name, count] : names)
    EXPECT_TRUE(count == 1 && !name.trimmed().isEmpty()) << '"' << name.toStdString() << '"';
}

// With all that the dialogs promise too; what is dropped or opened from here stands in their table.
TEST_F(NamesTest, EachPageIsUsedByKeysAlone) {
  Open();
  LogIn();
  for (int tab = 0; tab < Tabs().count(); ++tab) {
    if (!Tabs().isTabEnabled(tab)) continue;
    SCOPED_TRACE(Tabs().tabText(tab).toStdString());
    Tabs().setCurrentIndex(tab);
    Run(200ms);
    for (const auto& [key, places] : KeysIn(*window))
      EXPECT_EQ(places.size(), 1) << places.join(" | ").toStdString();
    const auto round = TabRound(*window);
    for (const Control& each : ControlsIn(*window)) {
      // The arrow keys go from head to head.
      if (each.name.startsWith("Sort by ")) continue;
      EXPECT_TRUE(RoleFits(each) && IsWord(each.name)) << each.name.toStdString();
      EXPECT_TRUE(!each.widget->isEnabled() || IsReached(*each.widget, round))
          << each.name.toStdString();
    }
    for (std::size_t i = 1; i < round.size(); ++i)
      EXPECT_TRUE(ComesBefore(*round[i - 1], *round[i]))
          << round[i - 1]->accessibleName().toStdString() << ", then "
          << round[i]->accessibleName().toStdString();
  }
}

TEST_F(NamesTest, EachControlOfAPageHasAKey) {
  Open();
  LogIn();
  window->resize(1280, 800);
  // They have keys of another kind, or stand where there may be no room.
  const QStringList others = {"Command to the node", "Maximize", "Disconnect", "Nodes",
                              "Find in table",       "Answer",   "Spots",      "Sort by",
                              "Bands of the spots",  "Raw view"};
  for (const int tab : {program::Views::Settings, program::Views::Dx}) {
    Tabs().setCurrentIndex(tab);
    Run(200ms);
    int keyed = 0;
    for (const Control& each : ControlsIn(*window)) {
      const auto begins = [&](const QString& name) { return each.name.startsWith(name); };
      if (std::ranges::any_of(others, begins) || each.widget == &Tabs()) continue;
      EXPECT_TRUE(HasKey(*each.widget)) << each.name.toStdString();
      ++keyed;
    }
    EXPECT_GT(keyed, 8);
  }
}

TEST_F(NamesTest, ALabelSaysWhatItIsAndWhatItShows) {
  Open();
  LogIn();
  EXPECT_EQ(Named<QLabel>(*window, "Node")->accessibleName(), "Node: N0DE-1");
  EXPECT_THAT(Named<QLabel>(*window, "State of the link")->accessibleName().toStdString(),
              testing::StartsWith("State of the link: connected "));
  EXPECT_THAT(Named<QLabel>(*window, "Time in UTC")->accessibleName().toStdString(),
              testing::MatchesRegex("Time in UTC: 21:00:[0-9][0-9]"));
}

TEST_F(NamesTest, NoLabelHidesItsTextBehindItsName) {
  Open();
  LogIn();
  for (const QLabel* label : window->findChildren<QLabel*>()) {
    const QString name =
        QAccessible::queryAccessibleInterface(const_cast<QLabel*>(label))->text(QAccessible::Name);
    // An "&" marks the key of a field.
    EXPECT_TRUE(name.contains(label->text().remove('&'), Qt::CaseInsensitive))
        << name.toStdString();
  }
}

TEST_F(NamesTest, WhatCannotBeUsedSaysWhy) {
  Open();
  for (const QWidget* each : window->findChildren<QPushButton*>()) {
    const bool speaks = !each->toolTip().isEmpty();
    EXPECT_TRUE(!each->isVisible() || each->isEnabled() || speaks)
        << each->accessibleName().toStdString();
  }
}

}  // namespace
}  // namespace gui
