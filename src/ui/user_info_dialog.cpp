#include "ui/user_info_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <array>

#include "ui/bind.h"
#include "ui/form.h"

namespace ui {
namespace {

constexpr int kWidth = 460;
constexpr int kDegreesWidth = 56;

}  // namespace

UserInfoDialog::UserInfoDialog(program::UserInfo& model, Frames& frames, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(tr("User information"));
  QFormLayout* form = MakeForm(this);
  QLineEdit* call = AddField(form, tr("&Call"), model.txtCall, frames);
  call->setPlaceholderText(tr("needed, for example W7XXX"));
  call->setFocus();
  AddField(form, tr("&Name"), model.txtName, frames)->setPlaceholderText(tr("needed"));
  AddField(form, tr("&QTH"), model.txtQth, frames)->setPlaceholderText(tr("needed"));
  AddField(form, tr("&Grid"), model.txtGrid, frames)
      ->setPlaceholderText(tr("for example EN82DG; your location comes from it"));
  AddLocation(form, model, frames);
  AddField(form, tr("&Home node"), model.txtHomeNode, frames);
  AddField(form, tr("&E-mail"), model.txtEmail, frames);
  AddField(form, tr("Node &password"), model.txtPassword, frames)->setEchoMode(QLineEdit::Password);
  AddZone(form, model, frames);
  AddProblem(form, model.lblProblem, frames);
  AddButtons(form, {{model.cmdOk, "O"}, {model.cmdCancel, "a"}}, frames);
  SetUsualWidth(this, kWidth);
  BindDialog(this, model.Open, model.cmdCancel, frames);
}

void UserInfoDialog::AddLocation(QFormLayout* form, program::UserInfo& model, Frames& frames) {
  const std::array names = {tr("Latitude, degrees"),  tr("Latitude, minutes"),
                            tr("Latitude, N or S"),   tr("Longitude, degrees"),
                            tr("Longitude, minutes"), tr("Longitude, E or W")};
  const std::array units = {tr("°"), tr("′"), tr("N/S"), tr("°"), tr("′"), tr("E/W")};
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  for (std::size_t i = 0; i < names.size(); ++i) {
    auto* part = new QLineEdit(this);
    part->setAccessibleName(names[i]);
    part->setFixedWidth(kDegreesWidth);
    BindTextBox(part, model.txtLatLong[i], frames);
    row->addWidget(part);
    row->addWidget(new QLabel(units[i], this));
  }
  row->addStretch();
  auto* label = new QLabel(tr("&Location"), this);
  label->setBuddy(row->itemAt(0)->widget());
  form->addRow(label, row);
  auto* from = new QLabel(this);
  from->setProperty("dim", true);
  from->setAccessibleName(tr("Where the location is from"));
  BindLabel(from, model.lblFromGrid, frames);
  form->addRow(QString(), from);
}

void UserInfoDialog::AddZone(QFormLayout* form, program::UserInfo& model, Frames& frames) {
  auto* zone = new QCheckBox(this);
  zone->setProperty("mnemonic", QStringLiteral("z"));
  BindCheck(zone, model.chkSystemZone, frames);
  form->addRow(tr("Time zone"), zone);
  QLineEdit* hours = AddField(form, tr("Hours to G&MT"), model.txtGmtOffset, frames);
  hours->setPlaceholderText(tr("hours to add to local time, for example 5 or -5.5"));
  BindProperty<bool>(hours, model.chkSystemZone.Value, frames,
                     [hours](bool system) { hours->setEnabled(!system); });
}

}  // namespace ui
