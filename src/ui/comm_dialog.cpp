#include "ui/comm_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "ui/bind.h"
#include "ui/form.h"

namespace ui {
namespace {

constexpr int kDeviceLetters = 30;  // of its path and its product, in sight
constexpr int kPortNumberWidth = 72;

}  // namespace

CommDialog::CommDialog(session::CommForm& model, Frames& frames, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(tr("Connection"));
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(16, 16, 16, 16);
  whole->setSpacing(16);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(32);
  whole->addLayout(columns, 1);
  const auto addColumn = [columns] {
    auto* column = new QVBoxLayout;
    column->setSpacing(20);
    columns->addLayout(column, 1);
    return column;
  };
  QVBoxLayout* left = addColumn();
  FillNode(AddGroup(left, tr("Way to the node")), model, frames);
  FillTnc(AddGroup(left, tr("TNC")), model, frames);
  left->addStretch();
  QVBoxLayout* right = addColumn();
  FillNetwork(AddGroup(right, tr("Local network")), model, frames);
  FillOthers(right, model, frames);
  right->addStretch();
  AddFoot(whole, model, frames);
  BindDialog(this, model.Open, model.cmdClose, frames);
}

QFormLayout* CommDialog::AddGroup(QVBoxLayout* column, const QString& heading) {
  auto* group = new QFormLayout;
  group->setHorizontalSpacing(12);
  group->setVerticalSpacing(8);
  group->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  column->addLayout(group);
  auto* title = new QLabel(heading, this);
  title->setProperty("heading", true);
  group->addRow(title);
  return group;
}

void CommDialog::AddChoice(QFormLayout* group, const QString& label, const QString& name,
                           core::Choice& model, Frames& frames) {
  auto* box = new QComboBox(this);
  auto* words = new QLabel(label, this);
  NameByLabel(box, words, name);
  group->addRow(words, box);
  BindChoice(box, model, frames);
}

void CommDialog::AddCheck(QFormLayout* group, const QString& name, const QString& mnemonic,
                          core::Check& model, Frames& frames) {
  auto* box = new QCheckBox(this);
  box->setAccessibleName(name);
  box->setProperty("mnemonic", mnemonic);
  group->addRow(box);
  BindCheck(box, model, frames);
}

void CommDialog::AddNumber(QFormLayout* group, const QString& label, const QString& name,
                           core::TextBox& model, Frames& frames) {
  auto* field = new QLineEdit(this);
  field->setFixedWidth(kPortNumberWidth);
  field->setAccessibleName(name);
  group->addRow(label, field);
  BindTextBox(field, model, frames);
}

void CommDialog::FillNode(QFormLayout* group, session::CommForm& model, Frames& frames) {
  auto* modes = new QButtonGroup(this);
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  const auto add = [&](const QString& words, const QString& name, int mode) {
    auto* button = new QRadioButton(words, this);
    button->setAccessibleName(name);
    modes->addButton(button, mode);
    row->addWidget(button);
  };
  add(tr("&Telnet"), tr("Connect by telnet"), session::CommForm::Telnet);
  add(tr("T&NC"), tr("Connect by TNC"), session::CommForm::Tnc);
  row->addStretch();
  group->addRow(tr("Connect by"), row);
  BindOptions(modes, model.optMode, frames);
  AddChoice(group, tr("&Watch"), tr("Keep-alive watches what is sent, Tx, or received, Rx"),
            model.optKA, frames);
  auto* minutes = new QComboBox(this);
  auto* words = new QLabel(this);
  words->setProperty("mnemonic", QStringLiteral("K"));
  NameByLabel(minutes, words, tr("Keep-alive minutes, 0 is off"));
  group->addRow(words, minutes);
  BindLabel(words, model.lblKA, frames);
  BindChoice(minutes, model.cboKA, frames);
}

void CommDialog::AddPort(QFormLayout* group, const std::array<QString, 3>& labels,
                         const QString& whose, session::PortChoice& model, Frames& frames) {
  AddChoice(group, labels[0], tr("Port of the %1").arg(whose), model.optCommPort, frames);
  auto* device = new QComboBox(this);
  auto* words = new QLabel(labels[1], this);
  NameByLabel(device, words, tr("Device of the %1").arg(whose));
  device->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  device->setMinimumContentsLength(kDeviceLetters);
  group->addRow(words, device);
  BindChoice(device, model.cboDevice, frames);
  AddChoice(group, labels[2], tr("Baud of the %1").arg(whose), model.cboBaud, frames);
}

void CommDialog::FillTnc(QFormLayout* group, session::CommForm& model, Frames& frames) {
  using Form = session::CommForm;
  AddPort(group, {tr("&Port"), tr("&Device"), tr("&Baud")}, tr("TNC"), model.tnc, frames);
  AddChoice(group, tr("Pa&rity"), tr("Parity of the TNC"), model.cboTNC[Form::kParity], frames);
  AddChoice(group, tr("Data b&its"), tr("Data bits of the TNC"), model.cboTNC[Form::kDataBits],
            frames);
  AddChoice(group, tr("&Stop bits"), tr("Stop bits of the TNC"), model.cboTNC[Form::kStopBits],
            frames);
  AddChoice(group, tr("&Flow control"), tr("Flow control of the TNC"), model.cboTNC[Form::kFlow],
            frames);
  auto* line = new QLabel(this);
  line->setProperty("dim", true);
  line->setAccessibleName(tr("Settings of the TNC's port"));
  group->addRow(tr("Settings"), line);
  BindLabel(line, model.lblSettings, frames);
}

void CommDialog::FillNetwork(QFormLayout* group, session::CommForm& model, Frames& frames) {
  AddCheck(group, {}, QStringLiteral("m"), model.chkNetwork, frames);
  AddPort(group, {tr("P&ort"), tr("De&vice"), tr("Ba&ud")}, tr("local network"), model.network,
          frames);
  AddCheck(group, tr("Echo what is typed on the local network"), QStringLiteral("E"), model.chkEcho,
           frames);
}

void CommDialog::FillOthers(QVBoxLayout* column, session::CommForm& model, Frames& frames) {
  QFormLayout* logger = AddGroup(column, tr("Logging programs"));
  AddCheck(logger, {}, {}, model.chkLogger, frames);
  AddNumber(logger, tr("TCP port"), tr("TCP port for logging programs"), model.txtLoggerPort,
            frames);
  QFormLayout* radio = AddGroup(column, tr("Radio"));
  AddNumber(radio, tr("K3 port"), tr("Port of the K3"), model.txtK3Port, frames);
}

void CommDialog::AddFoot(QVBoxLayout* column, session::CommForm& model, Frames& frames) {
  auto* says = new QVBoxLayout;
  says->setSpacing(4);
  column->addLayout(says);
  AddNotice(says, tr("Before you apply"), model.lblWarning, frames)->setProperty("caution", true);
  AddNotice(says, tr("What is to be put right"), model.lblProblem, frames)
      ->setProperty("bad", true);
  AddNotice(says, tr("Result"), model.lblResult, frames);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  column->addLayout(row);
  AddButton(row, tr("Look for devices"), QStringLiteral("L"), model.cmdLook, frames);
  row->addStretch();
  MakePrimary(
      AddButton(row, tr("Apply the connection"), QStringLiteral("A"), model.cmdComm, frames));
  AddButton(row, tr("Close"), QStringLiteral("C"), model.cmdClose, frames);
}

}  // namespace ui
