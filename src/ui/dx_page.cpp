#include "ui/dx_page.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/bind.h"

namespace ui {
namespace {

constexpr int kFindWidth = 200;

}  // namespace

DxPage::DxPage(program::Program& program, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QWidget(parent) {
  spots::SpotTable& table = program.spotParts.table;
  spots_ = new SpotView({.pane = table.RtbDx,
                         .empty = program.dxTab.lblEmpty,
                         .size = program.textSizes.Size[program::TextSizes::Dx],
                         .settings = program.settings},
                        frames, theme, this);
  auto* rail = new BandRailView(table.rail, program.settings, frames, theme, this);
  auto* column = new QVBoxLayout;
  column->setSpacing(0);
  column->addWidget(MakeStrip(table, frames));
  column->addWidget(spots_, 1);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(rail);
  row->addLayout(column, 1);
  setFocusProxy(spots_);
}

QWidget* DxPage::MakeStrip(spots::SpotTable& table, Frames& frames) {
  auto* strip = new QWidget(this);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(12, 6, 12, 6);
  row->setSpacing(16);
  const std::array names = {tr("Show spots that are no Skimmer's"), tr("Show Skimmer spots")};
  for (std::size_t i = 0; i < names.size(); ++i) {
    auto* check = new QCheckBox(strip);
    check->setAccessibleName(names[i]);
    BindCheck(check, table.chkShSkm[i], frames);
    row->addWidget(check);
  }
  row->addStretch();
  const auto tell = [this](bool found) {
    find_->setProperty("bad", !found);
    find_->style()->polish(find_);
    find_->setAccessibleDescription(found ? QString() : tr("not found"));
  };
  find_ = new FindField(*spots_, tell, strip);
  find_->setFixedWidth(kFindWidth);
  find_->setPlaceholderText(tr("Find in table  (Ctrl+F)"));
  find_->setAccessibleName(tr("Find in table"));
  row->addWidget(find_);
  return strip;
}

void DxPage::OpenFind() {
  find_->setFocus(Qt::ShortcutFocusReason);
  find_->selectAll();
}

}  // namespace ui
