#include "ui/dx_page.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/get_spots_panel.h"
#include "ui/member_panel.h"
#include "ui/tab_order.h"

namespace ui {
namespace {

constexpr int kFindWidth = 200;
constexpr int kLeastFindWidth = 116;
constexpr int kQueryWidth = 250;
constexpr int kLeastQueryWidth = 180;
constexpr int kBetweenGroups = 8;
constexpr int kBeforeTheGap = 100;  // of the room that is left, for fields

// The captions have the marks of their keys.
QPushButton* MakeButton(const QString& caption, const QString& name, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setAccessibleName(name);
  return button;
}

std::function<void()> HelpAt(const DxPage::Acts& acts, const char* page) {
  return [help = acts.help, page] {
    if (help) help(page);
  };
}

}  // namespace

DxPage::DxPage(Models models, Acts acts, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QWidget(parent) {
  spots_ = new SpotView({.table = models.table,
                         .display = models.display,
                         .empty = models.empty,
                         .look = models.look,
                         .settings = models.settings,
                         .click = acts.click,
                         .clickChoice = acts.clickChoice},
                        frames, theme, this);
  auto* rail = new BandRailView(models.table.rail, models.settings, frames, theme, this);
  auto* column = new QVBoxLayout;
  column->setSpacing(0);
  FoldRow* strip = MakeStrip(models, acts, frames);
  column->addWidget(strip);
  column->addWidget(spots_, 1);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(rail);
  row->addLayout(column, 1);
  OrderParts(window(), {rail, strip, spots_});
}

// No focus proxy: the Tab key would go past the bands and the strip to it.
void DxPage::focusInEvent(QFocusEvent* event) { spots_->setFocus(event->reason()); }

FoldRow* DxPage::MakeStrip(const Models& models, const Acts& acts, Frames& frames) {
  auto* strip = new FoldRow(this);
  AddOrder(strip, tr("&Time order"), spots::kTimeOrder, models.table, frames);
  AddOrder(strip, tr("&Last hour"), spots::kLastHour, models.table, frames);
  strip->Controls()->addSpacing(kBetweenGroups);
  AddSources(strip, models.table, frames);
  strip->Controls()->addSpacing(kBetweenGroups);
  AddMembership(strip, models.membership, acts, frames);
  strip->Controls()->addStretch(1);
  auto* rows = new QLabel(strip);
  rows->setAccessibleName(tr("Rows in this view"));
  BindCount(rows, models.numbers.txtrtb2, frames);
  strip->Controls()->addWidget(rows);
  AddFind(strip);
  auto* get = new DropButton(tr("&Get spots"), tr("Get spots…"), strip);
  new GetSpotsPanel(models.requests, acts.clearSpots, HelpAt(acts, "dx#Spots from the node"),
                    frames, get);
  strip->Controls()->addWidget(get);
  const auto add = [&](const QString& caption, const QString& name, std::function<void()> act) {
    QPushButton* button = MakeButton(caption, name, strip);
    connect(button, &QPushButton::clicked, this, [act = std::move(act)] {
      if (act) act();
    });
    strip->AddFolding(button);
  };
  add(tr("Col&umns…"), tr("Columns of the spots"), acts.columns);
  add(tr("S&pot log…"), tr("Spot log"), acts.spotLog);
  add(tr("&Rejects…"), tr("Spots to reject"), acts.rejects);
  add(tr("Correct&ions…"), tr("Corrections of spots"), acts.corrections);
  return strip;
}

void DxPage::AddOrder(FoldRow* strip, const QString& keyed, int button, spots::SpotTable& table,
                      Frames& frames) {
  QPushButton* widget = MakeButton(keyed, QString(keyed).remove(QLatin1Char('&')), strip);
  widget->setCheckable(true);
  const auto show = [widget, button, &table](const int&) {
    widget->setChecked(table.optSortBy.Get() == button);
  };
  BindProperty<int>(widget, table.optSortBy, frames, show);
  // However it was turned: by a click, or by a screen reader.
  connect(widget, &QPushButton::toggled, this, [button, show, &table](bool on) {
    if (on == (table.optSortBy.Get() == button)) return;
    table.SortBy(button);
    show(button);
  });
  strip->Controls()->addWidget(widget);
}

void DxPage::AddSources(FoldRow* strip, spots::SpotTable& table, Frames& frames) {
  const std::array names = {tr("Show spots that are no Skimmer's"), tr("Show Skimmer spots")};
  const std::array keys = {"X", "S"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    auto* check = new QCheckBox(strip);
    check->setAccessibleName(names[i]);
    check->setProperty("mnemonic", QLatin1String(keys[i]));
    BindCheck(check, table.chkShSkm[i], frames);
    strip->Controls()->addWidget(check);
  }
}

void DxPage::AddMembership(FoldRow* strip, spots::Membership& model, const Acts& acts,
                           Frames& frames) {
  auto* lists = new DropButton(tr("LoTW/e&QSL"), tr("LoTW and eQSL users…"), strip);
  new MemberPanel(model, HelpAt(acts, "dx#LoTW and eQSL"), frames, lists);
  strip->Controls()->addWidget(lists);
  auto* query = new QLineEdit(strip);
  query->setMinimumWidth(kLeastQueryWidth);
  query->setMaximumWidth(kQueryWidth);
  query->setAccessibleName(tr("Call to look for among LoTW and eQSL users"));
  BindTextBox(query, model.txtLotw, frames);
  // Holds the answer too.
  BindProperty<std::string>(query, model.txtLotw.Hint, frames, [query](const std::string& hint) {
    query->setPlaceholderText(platform::qt::TextOf(hint));
    query->setAccessibleDescription(platform::qt::TextOf(hint));
  });
  auto* answer = new QLabel(strip);
  answer->setAccessibleName(tr("Answer"));
  BindLabel(answer, model.lblLotw, frames);
  strip->Controls()->addWidget(query, kBeforeTheGap);
  strip->Controls()->addWidget(answer);
}

void DxPage::AddFind(FoldRow* strip) {
  const auto tell = [this](bool found) {
    find_->setProperty("bad", !found);
    find_->style()->polish(find_);
    find_->setAccessibleDescription(found ? QString() : tr("not found"));
  };
  find_ = new FindField(*spots_, tell, strip);
  find_->setMinimumWidth(kLeastFindWidth);
  find_->setMaximumWidth(kFindWidth);
  find_->setPlaceholderText(tr("Find  (Ctrl+F)"));
  find_->setAccessibleName(tr("Find in table"));
  strip->Controls()->addWidget(find_, kBeforeTheGap);
}

void DxPage::OpenFind() {
  find_->setFocus(Qt::ShortcutFocusReason);
  find_->selectAll();
}

}  // namespace ui
