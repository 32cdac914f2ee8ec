#include "ui/spots_dialog.h"

#include <QCheckBox>
#include <QLabel>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/form.h"
#include "ui/one_line.h"

namespace ui {
namespace {

using platform::qt::TextOf;

constexpr int kWidth = 420;
constexpr int kNumberWidth = 72;

}  // namespace

SpotsDialog::SpotsDialog(spots::SpotsForm& model, Frames& frames, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(QLatin1String(spots::SpotsForm::kTitle));
  QFormLayout* form = MakeForm(this);
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  AddCheck(form, model.chkSave, "S", frames);
  AddCheck(form, model.chkDelete, "D", frames);
  AddNumber(form, model.Text1, "k", frames);
  AddCheck(form, model.chkLoad, "L", frames);
  AddNumber(form, model.txtReloadNr, "h", frames);
  AddReload(form, model, frames);
  AddMemory(form, model, frames);
  AddCheck(form, model.chkShowNrs, "N", frames);
  AddCloseButton(form, this, QStringLiteral("C"));
  SetUsualWidth(this, kWidth);
  BindDialog(this, model.Open, frames);
}

void SpotsDialog::AddCheck(QFormLayout* form, core::Check& model, const char* key, Frames& frames) {
  auto* box = new QCheckBox(this);
  box->setProperty("mnemonic", QLatin1String(key));
  BindCheck(box, model, frames);
  form->addRow(box);
}

void SpotsDialog::AddNumber(QFormLayout* form, core::TextBox& model, const char* key,
                            Frames& frames) {
  AddField(form, Marked(TextOf(model.Caption.Get()), QLatin1String(key)), model, frames)
      ->setFixedWidth(kNumberWidth);
}

void SpotsDialog::AddMemory(QFormLayout* form, spots::SpotsForm& model, Frames& frames) {
  const std::array says = {tr("all bands together"), tr("each band")};
  const std::array keyed = {tr("&all bands together"), tr("each &band")};
  auto* heading = new QLabel(this);
  heading->setProperty("heading", true);
  BindLabel(heading, model.lblMemory, frames);
  form->addRow(heading);
  for (std::size_t i = 0; i < says.size(); ++i) {
    core::TextBox& box = model.txtMemory[i];
    auto* field = new QLineEdit(this);
    field->setFixedWidth(kNumberWidth);
    field->setAccessibleName(tr("Max spots displayed, %1").arg(says[i]));
    BindTextBox(field, box, frames);
    form->addRow(tr("%1, %2").arg(TextOf(box.Caption.Get()), keyed[i]), field);
  }
}

void SpotsDialog::AddReload(QFormLayout* form, spots::SpotsForm& model, Frames& frames) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  form->addRow(row);
  AddButton(row, tr("Reload the spot log"), QStringLiteral("R"), model.cmdReload, frames);
  AddButton(row, tr("Stop the reload"), QStringLiteral("t"), model.cmdStop, frames);
  auto* count = new QLabel(this);
  count->setProperty("dim", true);
  count->setAccessibleName(tr("Spots read"));
  BindCount(count, model.lblCount, frames);
  auto* unit = new QLabel(tr("spots read"), this);
  unit->setProperty("dim", true);
  row->addWidget(count);
  row->addWidget(unit);
  row->addStretch();
}

}  // namespace ui
