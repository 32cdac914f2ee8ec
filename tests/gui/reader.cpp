#include "gui/reader.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QTest>
#include <algorithm>
#include <set>

namespace gui {
namespace {

constexpr int kMoreThanAnyRound = 200;

bool IsUsed(QAccessible::Role role) {
  static const std::set<QAccessible::Role> roles = {
      QAccessible::PushButton, QAccessible::ButtonMenu,   QAccessible::CheckBox,
      QAccessible::ComboBox,   QAccessible::EditableText, QAccessible::RadioButton,
      QAccessible::List,       QAccessible::Tree,         QAccessible::Table};
  return roles.contains(role);
}

QString KeyOf(const QString& caption) { return QKeySequence::mnemonic(caption).toString(); }

QList<QAbstractButton*> GroupOf(const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  return button != nullptr && button->group() != nullptr ? button->group()->buttons()
                                                         : QList<QAbstractButton*>();
}

// What a reader says first: of a combo box the label, for its own name is what is chosen in it.
QString NameOf(QAccessibleInterface& control) {
  if (control.role() == QAccessible::ComboBox)
    for (const auto& [label, relation] : control.relations(QAccessible::Label))
      return label->text(QAccessible::Name);
  return control.text(QAccessible::Name);
}

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

// The first place of the Tab key in the window's own order.
QWidget* FirstOf(const QWidget& window, const std::vector<QWidget*>& places) {
  for (QWidget* each = window.nextInFocusChain(); each != &window; each = each->nextInFocusChain())
    if (std::ranges::find(places, each) != places.end()) return each;
  return nullptr;
}

}  // namespace

void Walk(QAccessibleInterface* from, const std::function<void(QAccessibleInterface&)>& visit) {
  if (from == nullptr || !from->isValid() || from->state().invisible) return;
  visit(*from);
  for (int child = 0; child < from->childCount(); ++child) Walk(from->child(child), visit);
}

std::vector<Control> ControlsIn(QWidget& window) {
  std::vector<Control> controls;
  Walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& each) {
    auto* widget = qobject_cast<QWidget*>(each.object());
    if (widget == nullptr || widget == &window || widget->window() != &window) return;
    if ((widget->focusPolicy() & Qt::TabFocus) != 0 || IsUsed(each.role()))
      controls.push_back({widget, NameOf(each), each.role()});
  });
  return controls;
}

std::vector<QWidget*> TabRound(QWidget& window) {
  std::vector<QWidget*> round;
  QApplication::setActiveWindow(&window);
  for (int press = 0; press < kMoreThanAnyRound; ++press) {
    QWidget* at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QTest::keyClick(at, Qt::Key_Tab);
    QWidget* now = window.focusWidget();
    const bool isNew = std::ranges::find(round, now) == round.end();
    if (now == nullptr || (!isNew && now != at)) break;
    if (isNew) round.push_back(now);  // else it has places of its own, as a text has links
  }
  if (QWidget* first = FirstOf(window, round))
    std::rotate(round.begin(), std::ranges::find(round, first), round.end());
  return round;
}

bool IsReached(const QWidget& widget, const std::vector<QWidget*>& round) {
  const auto stops = [&](const QWidget* each) {
    return std::ranges::find(round, each) != round.end();
  };
  return stops(&widget) || std::ranges::any_of(GroupOf(widget), stops);
}

std::map<QString, QStringList> KeysIn(const QWidget& window) {
  std::map<QString, QStringList> keys;
  const auto add = [&](const QString& caption) {
    if (const QString key = KeyOf(caption); !key.isEmpty()) keys[key] << caption;
  };
  for (const QLabel* each : window.findChildren<QLabel*>())
    if (each->isVisible() && each->buddy() != nullptr) add(each->text());
  for (const QAbstractButton* each : window.findChildren<QAbstractButton*>())
    if (each->isVisible()) add(each->text());
  for (const QMenuBar* bar : window.findChildren<QMenuBar*>())
    for (const QAction* each : bar->actions()) add(each->text());
  return keys;
}

bool HasKey(const QWidget& widget) {
  for (const QLabel* each : widget.window()->findChildren<QLabel*>())
    if (each->isVisible() && each->buddy() == &widget && !KeyOf(each->text()).isEmpty())
      return true;
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  const auto marked = [](const QAbstractButton* each) { return !KeyOf(each->text()).isEmpty(); };
  return (button != nullptr && marked(button)) || std::ranges::any_of(GroupOf(widget), marked);
}

bool RoleFits(const Control& control) {
  const QWidget* widget = control.widget;
  if (widget->inherits("QCheckBox")) return control.role == QAccessible::CheckBox;
  if (widget->inherits("QRadioButton")) return control.role == QAccessible::RadioButton;
  if (widget->inherits("QComboBox")) return control.role == QAccessible::ComboBox;
  if (widget->inherits("QLineEdit")) return control.role == QAccessible::EditableText;
  if (widget->inherits("QPushButton"))
    return control.role == QAccessible::PushButton || control.role == QAccessible::ButtonMenu ||
           control.role == QAccessible::CheckBox;
  if (widget->inherits("QTextBrowser")) return control.role == QAccessible::StaticText;
  return control.role != QAccessible::NoRole && control.role != QAccessible::Client &&
         control.role != QAccessible::StaticText;
}

bool IsWord(const QString& name) {
  return std::ranges::count_if(name, [](QChar each) { return each.isLetter(); }) > 1;
}

bool ComesBefore(const QWidget& oneWidget, const QWidget& otherWidget) {
  if (oneWidget.isAncestorOf(&otherWidget) || otherWidget.isAncestorOf(&oneWidget)) return true;
  const QRect one = PlaceOf(oneWidget);
  const QRect other = PlaceOf(otherWidget);
  if (one.right() < other.left()) return true;
  const int common = std::min(one.bottom(), other.bottom()) - std::max(one.top(), other.top());
  return common < std::min(one.height(), other.height()) / 2 && one.top() < other.top();
}

const QWidget* LabelOf(QWidget& field) {
  const auto related = QAccessible::queryAccessibleInterface(&field)->relations(QAccessible::Label);
  for (const auto& [label, relation] : related)
    if (const auto* widget = qobject_cast<QWidget*>(label->object()))
      if (widget->isVisible()) return widget;
  return nullptr;
}

}  // namespace gui
