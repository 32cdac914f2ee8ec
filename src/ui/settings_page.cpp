#include "ui/settings_page.h"

#include <QComboBox>
#include <QHBoxLayout>
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
  AddKeepAlive(program.session.keepAlivePanel, frames);
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
  BindButton(change, model.cmdOpen, frames);
  change->setAccessibleName(tr("User info"));
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  row->addWidget(who);
  row->addWidget(change);
  row->addStretch();
  AddGroup(tr("User information"))->addLayout(row);
}

void SettingsPage::AddKeepAlive(session::KeepAlivePanel& model, Frames& frames) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  const auto choice = [&](const QString& label, const QString& name, core::Choice& options) {
    auto* box = new QComboBox(this);
    box->setAccessibleName(name);
    auto* words = new QLabel(label, this);
    words->setBuddy(box);
    BindChoice(box, options, frames);
    row->addWidget(words);
    row->addWidget(box);
  };
  choice(tr("&Minutes"), tr("Keep-alive minutes, 0 is off"), model.optKA);
  choice(tr("&Watch"), tr("Keep-alive watches what is sent, Tx, or received, Rx"),
         model.optDirection);
  choice(tr("St&ored for"), tr("Keep-alive is stored for Telnet or TNC"), model.optMode);
  auto* apply = new QPushButton(this);
  BindButton(apply, model.cmdExit, frames);
  apply->setAccessibleName(tr("Apply keep-alive"));
  row->addWidget(apply);
  row->addStretch();
  AddGroup(tr("Keep-alive"))->addLayout(row);
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
