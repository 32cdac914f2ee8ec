#include "ui/tnc_dialog.h"

#include <QLabel>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/form.h"

namespace ui {
namespace {

using platform::qt::TextOf;

constexpr QSize kUsualTncSize(760, 420);
constexpr int kSecondsWidth = 56;
constexpr int kClusterWidth = 140;
constexpr int kProgressWidth = 72;
constexpr int kHeadRows = 2;

enum StepColumn { kNumber, kCommand, kReply, kTime, kUnit, kProgress };

}  // namespace

TncDialog::TncDialog(session::TncForm& model, Frames& frames, QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("TNC"));
  resize(kUsualTncSize);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(16, 16, 16, 16);
  whole->setSpacing(16);
  AddCluster(whole, model, frames);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(kCommand, 1);
  grid->setColumnStretch(kReply, 1);
  whole->addLayout(grid);
  AddHead(grid, kCommand, model.lblCmd, frames);
  AddHead(grid, kReply, model.lblScript, frames);
  AddHead(grid, kTime, model.lblTimeOut, frames);
  for (std::size_t step = 0; step < session::TncForm::kSteps; ++step)
    AddStep(grid, step, model, frames);
  whole->addStretch();
  AddFoot(whole, model, frames);
  BindDialog(this, model.Open, model.cmdClose, frames);
}

void TncDialog::AddCluster(QVBoxLayout* column, session::TncForm& model, Frames& frames) {
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  column->addLayout(row);
  auto* label = new QLabel(tr("Cluster Call&sign"), this);
  auto* field = new QLineEdit(this);
  field->setFixedWidth(kClusterWidth);
  field->setAccessibleName(TextOf(model.lblCluster.Caption.Get()));
  label->setBuddy(field);
  row->addWidget(label);
  row->addWidget(field);
  row->addStretch();
  BindTextBox(field, model.txtCluster, frames);
}

void TncDialog::AddHead(QGridLayout* grid, int column, core::Label& model, Frames& frames) {
  auto* head = new QLabel(this);
  head->setProperty("heading", true);
  grid->addWidget(head, 0, column);
  BindLabel(head, model, frames);
  auto* more = new QLabel(TextOf(model.ToolTip.Get()), this);
  more->setProperty("dim", true);
  grid->addWidget(more, 1, column, 1, column == kTime ? 2 : 1, Qt::AlignTop);
}

void TncDialog::AddStep(QGridLayout* grid, std::size_t step, session::TncForm& model,
                        Frames& frames) {
  const int number = static_cast<int>(step) + 1;
  const int row = static_cast<int>(step) + kHeadRows;
  auto* label = new QLabel(tr("&%1").arg(number), this);
  grid->addWidget(label, row, kNumber);
  label->setBuddy(AddCell(grid, row, kCommand, tr("Step %1, connect string").arg(number),
                          model.txtCmd[step], frames));
  AddCell(grid, row, kReply, tr("Step %1, connect response").arg(number), model.txtScript[step],
          frames);
  AddCell(grid, row, kTime, tr("Step %1, time out in seconds").arg(number), model.txtTimeOut[step],
          frames)
      ->setFixedWidth(kSecondsWidth);
  auto* unit = new QLabel(tr("s"), this);
  unit->setProperty("dim", true);
  grid->addWidget(unit, row, kUnit);
  auto* progress = new QLabel(this);
  progress->setAccessibleName(tr("Step %1").arg(number));
  progress->setFixedWidth(kProgressWidth);
  grid->addWidget(progress, row, kProgress);
  BindLabel(progress, model.lblStep[step], frames);
}

QLineEdit* TncDialog::AddCell(QGridLayout* grid, int row, int column, const QString& name,
                              core::TextBox& model, Frames& frames) {
  auto* cell = new QLineEdit(this);
  cell->setAccessibleName(name);
  grid->addWidget(cell, row, column);
  BindTextBox(cell, model, frames);
  return cell;
}

void TncDialog::AddFoot(QVBoxLayout* column, session::TncForm& model, Frames& frames) {
  auto* says = new QVBoxLayout;
  says->setSpacing(4);
  column->addLayout(says);
  AddNotice(says, tr("What is to be put right"), model.lblProblem, frames)
      ->setProperty("bad", true);
  AddNotice(says, tr("Result"), model.lblResult, frames);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  column->addLayout(row);
  const auto add = [&](const QString& name, const char* mnemonic, core::Button& button) {
    return AddButton(row, name, QLatin1String(mnemonic), button, frames);
  };
  add(tr("Send conv to the TNC"), "v", model.cmdConv);
  add(tr("Send Ctrl-C to the TNC"), "m", model.cmdCmd);
  add(tr("Help on the TNC"), "H", model.cmdHelp);
  row->addStretch();
  add(tr("Run the script"), "R", model.cmdRun);
  MakePrimary(add(tr("Save the script"), "a", model.cmdSave));
  add(tr("Close"), "C", model.cmdClose);
}

}  // namespace ui
