#include "ui/settings_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWheelEvent>

#include "ui/bind.h"
#include "ui/form.h"
#include "ui/macro_panel.h"
#include "ui/style.h"
#include "ui/technical_panel.h"

namespace ui {
namespace {

constexpr int kInGroup = 8;
constexpr int kBetweenGroups = 20;
constexpr int kBetweenColumns = 32;
constexpr int kColumnWidth = 560;

// The wheel goes to the page, unless the box was chosen before.
class ScrolledComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    event->ignore();
    if (hasFocus()) QComboBox::wheelEvent(event);
  }
};

QHBoxLayout* AddRow(QVBoxLayout* group) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kInGroup);
  group->addLayout(row);
  return row;
}

}  // namespace

SettingsPage::SettingsPage(program::Program& program, Frames& frames, LiveTheme& theme,
                           QWidget* parent)
    : QScrollArea(parent), page_(new QWidget(this)), columns_(new QHBoxLayout(page_)) {
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setWidget(page_);
  columns_->setContentsMargins(16, 16, 16, 16);
  columns_->setSpacing(kBetweenColumns);
  QVBoxLayout* left = AddColumn();
  FillUserInfo(AddGroup(left, tr("User information")), program.userInfo, frames);
  FillConnection(AddGroup(left, tr("Way to the node")), program, frames);
  FillStart(AddGroup(left, tr("Start and login")), program.startOptions, frames);
  FillKeepAlive(AddGroup(left, tr("Keep-alive")), program.session, frames);
  left->addStretch();
  QVBoxLayout* right = AddColumn();
  FillAppearance(AddGroup(right, tr("Appearance")), program.appearance, frames);
  AddGroup(right, tr("Macros"))->addWidget(new MacroPanel(program.session.macros, frames, page_));
  FillLinking(AddGroup(right, tr("Linked copies")), program.MultiNode, frames);
  AddGroup(right, tr("Technical"))->addWidget(new TechnicalPanel(program, frames, page_));
  right->addStretch();
  columns_->addStretch();
  BindGround(program.colourForm.OnShow, frames, theme);
}

void SettingsPage::BindGround(core::Property<program::ColourValues>& values, Frames& frames,
                              LiveTheme& theme) {
  const auto show = [this, &values, &theme] {
    constexpr auto kKey = program::ColourKey::Settings;
    Dress(this, Surface(kKey, values.Get()[kKey], theme.Get()));
  };
  BindProperty<program::ColourValues>(this, values, frames, [show](const auto&) { show(); });
  BindProperty<Theme>(this, theme, frames, [show](const Theme&) { show(); });
}

void SettingsPage::focusInEvent(QFocusEvent* event) { first_->setFocus(event->reason()); }

QVBoxLayout* SettingsPage::AddColumn() {
  auto* column = new QWidget(page_);
  column->setMaximumWidth(kColumnWidth);
  columns_->addWidget(column, 1);
  auto* groups = new QVBoxLayout(column);
  groups->setContentsMargins(0, 0, 0, 0);
  groups->setSpacing(kBetweenGroups);
  return groups;
}

QVBoxLayout* SettingsPage::AddGroup(QVBoxLayout* column, const QString& heading) {
  auto* group = new QVBoxLayout;
  group->setSpacing(kInGroup);
  auto* title = new QLabel(heading, page_);
  title->setProperty("heading", true);
  group->addWidget(title);
  column->addLayout(group);
  return group;
}

void SettingsPage::AddChoice(QHBoxLayout* row, const QString& label, const QString& name,
                             core::Choice& model, Frames& frames) {
  auto* box = new ScrolledComboBox(page_);
  box->setFocusPolicy(Qt::StrongFocus);
  auto* words = new QLabel(label, page_);
  NameByLabel(box, words, name);
  BindChoice(box, model, frames);
  row->addWidget(words);
  row->addWidget(box);
}

void SettingsPage::AddCheck(QVBoxLayout* group, core::Check& model, const char* mnemonic,
                            Frames& frames) {
  auto* box = new QCheckBox(page_);
  box->setProperty("mnemonic", QLatin1String(mnemonic));
  BindCheck(box, model, frames);
  group->addWidget(box);
}

QPushButton* SettingsPage::AddButton(QHBoxLayout* row, const QString& name, core::Button& model,
                                     const char* mnemonic, Frames& frames) {
  auto* button = new QPushButton(page_);
  button->setAccessibleName(name);
  button->setProperty("mnemonic", QLatin1String(mnemonic));
  BindButton(button, model, frames);
  row->addWidget(button);
  return button;
}

void SettingsPage::FillUserInfo(QVBoxLayout* group, program::UserInfo& model, Frames& frames) {
  auto* who = new QLabel(page_);
  who->setAccessibleName(tr("Your call, name and QTH"));
  who->setMinimumWidth(1);
  BindLabel(who, model.lblWho, frames);
  QHBoxLayout* row = AddRow(group);
  row->setSpacing(2 * kInGroup);
  row->addWidget(who);
  first_ = AddButton(row, tr("User info"), model.cmdOpen, "U", frames);
  row->addStretch();
}

void SettingsPage::FillConnection(QVBoxLayout* group, program::Program& program, Frames& frames) {
  QHBoxLayout* row = AddRow(group);
  AddButton(row, tr("Connection: telnet or TNC, and serial ports"), program.commForm.cmdOpen, "i",
            frames);
  AddButton(row, tr("TNC: the way to the cluster"), program.tncForm.cmdOpen, "T", frames);
  row->addStretch();
}

void SettingsPage::FillStart(QVBoxLayout* group, program::StartOptions& model, Frames& frames) {
  AddCheck(group, model.AutoStart, "p", frames);
  AddCheck(group, model.ChkAskSettings, "s", frames);
  AddCheck(group, model.AutoFilter, "k", frames);
  AddCheck(group, model.GetMissedOnes, "l", frames);
  AddCheck(group, model.DontAsk, "w", frames);
}

void SettingsPage::FillKeepAlive(QVBoxLayout* group, session::Session& session, Frames& frames) {
  session::KeepAlivePanel& model = session.keepAlivePanel;
  QHBoxLayout* row = AddRow(group);
  AddChoice(row, tr("&Minutes"), tr("Keep-alive minutes, 0 is off"), model.optKA, frames);
  AddChoice(row, tr("W&atch"), tr("Keep-alive watches what is sent, Tx, or received, Rx"),
            model.optDirection, frames);
  AddChoice(row, tr("St&ored for"), tr("Keep-alive is stored for Telnet or TNC"), model.optMode,
            frames);
  AddButton(row, tr("Apply keep-alive"), model.cmdExit, "y", frames);
  row->addStretch();
  AddCheck(group, session.connection.AutoReconnect, "R", frames);
}

void SettingsPage::FillLinking(QVBoxLayout* group, core::Check& model, Frames& frames) {
  auto* box = new QCheckBox(tr("Ena&ble Linking"), page_);
  box->setAccessibleName(tr("Enable Linking of two running copies"));
  BindTick(box, model, frames);
  auto* which = new QLabel(page_);
  which->setProperty("dim", true);
  which->setTextFormat(Qt::PlainText);
  BindProperty<std::string>(which, model.Caption, frames, [which](const std::string& text) {
    const QString caption = QString::fromStdString(text);
    which->setText(caption);
    which->setAccessibleName(tr("This copy is: %1").arg(caption));
  });
  QHBoxLayout* row = AddRow(group);
  row->setSpacing(2 * kInGroup);
  row->addWidget(box);
  row->addWidget(which);
  row->addStretch();
}

void SettingsPage::FillAppearance(QVBoxLayout* group, program::Appearance& model, Frames& frames) {
  QHBoxLayout* row = AddRow(group);
  AddChoice(row, tr("Th&eme"), tr("Theme: as the system has it, light or dark"), model.optTheme,
            frames);
  row->addStretch();
}

}  // namespace ui
