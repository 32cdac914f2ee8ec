#include "ui/settings_page.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/bind.h"

namespace ui {

SettingsPage::SettingsPage(program::Program& program, Frames& frames, QWidget* parent)
    : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(8);
  auto* heading = new QLabel(tr("User information"), this);
  heading->setProperty("heading", true);
  auto* who = new QLabel(this);
  who->setAccessibleName(tr("Your call, name and QTH"));
  BindLabel(who, program.userInfo.lblWho, frames);
  auto* change = new QPushButton(this);
  BindButton(change, program.userInfo.cmdOpen, frames);
  change->setAccessibleName(tr("User info"));
  column->addWidget(heading);
  column->addWidget(who);
  column->addWidget(change, 0, Qt::AlignLeft);
  column->addStretch();
}

}  // namespace ui
