#include "ui/settings_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "ui/bind.h"

namespace ui {
namespace {

constexpr int kBetweenGroups = 20;

}  // namespace

SettingsPage::SettingsPage(program::Program& program, Frames& frames, QWidget* parent)
    : QWidget(parent), column_(new QVBoxLayout(this)) {
  column_->setContentsMargins(16, 16, 16, 16);
  column_->setSpacing(kBetweenGroups);
  AddUserInfo(program.userInfo, frames);
  AddKeepAlive(program.session, frames);
  AddAppearance(program.appearance, frames);
  AddTechnical(program.session, frames);
  column_->addStretch();
}

QVBoxLayout* SettingsPage::AddGroup(const QString& heading) {
  auto* group = new QVBoxLayout;
  group->setSpacing(8);
  auto* title = new QLabel(heading, this);
  title->setProperty("heading", true);
  group->addWidget(title);
  column_->addLayout(group);
  return group;
}

void SettingsPage::AddUserInfo(program::UserInfo& model, Frames& frames) {
  auto* who = new QLabel(this);
  who->setAccessibleName(tr("Your call, name and QTH"));
  BindLabel(who, model.lblWho, frames);
  auto* change = new QPushButton(this);
  change->setAccessibleName(tr("User info"));
  BindButton(change, model.cmdOpen, frames);
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  row->addWidget(who);
  row->addWidget(change);
  row->addStretch();
  AddGroup(tr("User information"))->addLayout(row);
}

void SettingsPage::AddChoice(QHBoxLayout* row, const QString& label, const QString& name,
                             core::Choice& model, Frames& frames) {
  auto* box = new QComboBox(this);
  box->setAccessibleName(name);
  auto* words = new QLabel(label, this);
  words->setBuddy(box);
  BindChoice(box, model, frames);
  row->addWidget(words);
  row->addWidget(box);
}

void SettingsPage::AddKeepAlive(session::Session& session, Frames& frames) {
  session::KeepAlivePanel& model = session.keepAlivePanel;
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  AddChoice(row, tr("&Minutes"), tr("Keep-alive minutes, 0 is off"), model.optKA, frames);
  AddChoice(row, tr("&Watch"), tr("Keep-alive watches what is sent, Tx, or received, Rx"),
            model.optDirection, frames);
  AddChoice(row, tr("St&ored for"), tr("Keep-alive is stored for Telnet or TNC"), model.optMode,
            frames);
  auto* apply = new QPushButton(this);
  apply->setAccessibleName(tr("Apply keep-alive"));
  BindButton(apply, model.cmdExit, frames);
  row->addWidget(apply);
  row->addStretch();
  auto* reconnect = new QCheckBox(this);
  BindCheck(reconnect, session.connection.AutoReconnect, frames);
  QVBoxLayout* group = AddGroup(tr("Keep-alive"));
  group->addLayout(row);
  group->addWidget(reconnect);
}

void SettingsPage::AddAppearance(program::Appearance& model, Frames& frames) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  AddChoice(row, tr("&Theme"), tr("Theme: as the system has it, light or dark"), model.optTheme,
            frames);
  row->addStretch();
  AddGroup(tr("Appearance"))->addLayout(row);
}

void SettingsPage::AddTechnical(session::Session& session, Frames& frames) {
  auto* group = AddGroup(tr("Counts"));
  const auto add = [&](const QString& name, core::Label& model) {
    auto* label = new QLabel(this);
    label->setAccessibleName(name);
    BindLabel(label, model, frames);
    group->addWidget(label);
  };
  add(tr("Inactivity"), session.keepAlive.lblInactivity);
  add(tr("Keep-alives sent"), session.keepAlive.lblKA[0]);
  add(tr("Nulls received"), session.keepAlive.lblKA[1]);
  add(tr("Links given up"), session.keepAlive.lblKA[2]);
}

}  // namespace ui
