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
constexpr int kAboveGroup = 8;
constexpr int kDaysDigits = 4;
constexpr int kHoursDigits = 4;
constexpr int kMemoryDigits = 6;
constexpr int kPadding = 2 * 12;  // of a field, with its frame and the caret

int WidthOf(const QLineEdit& field, int digits) {
  return field.fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0'))) + kPadding;
}

}  // namespace

SpotsDialog::SpotsDialog(spots::SpotsForm& model, Frames& frames, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(QLatin1String(spots::SpotsForm::kTitle));
  QFormLayout* form = MakeForm(this);
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  AddCheck(form, model.chkSave, "S", frames);
  AddCheck(form, model.chkDelete, "D", frames);
  const QString days = TextOf(model.Text1.Caption.Get());
  AddNumber(form, model.Text1, {Marked(days, QStringLiteral("k")), days, kDaysDigits, tr("days")},
            frames);
  AddCheck(form, model.chkLoad, "L", frames);
  const QString hours = TextOf(model.txtReloadNr.Caption.Get());
  AddNumber(form, model.txtReloadNr,
            {Marked(hours, QStringLiteral("h")), hours, kHoursDigits, tr("hours")}, frames);
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

void SpotsDialog::AddNumber(QFormLayout* form, core::TextBox& model, const Number& number,
                            Frames& frames) {
  auto* field = new QLineEdit(this);
  field->setAccessibleName(number.name);
  field->setMaxLength(number.digits);
  field->setFixedWidth(WidthOf(*field, number.digits));
  BindTextBox(field, model, frames);
  auto* unit = new QLabel(number.unit, this);
  unit->setProperty("dim", true);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addWidget(field);
  row->addWidget(unit);
  auto* label = new QLabel(number.label, this);
  label->setBuddy(field);
  form->addRow(label, row);
}

void SpotsDialog::AddMemory(QFormLayout* form, spots::SpotsForm& model, Frames& frames) {
  const std::array says = {tr("all bands together"), tr("each band")};
  const std::array keyed = {tr("&all bands together"), tr("each &band")};
  auto* heading = new QLabel(this);
  heading->setProperty("heading", true);
  heading->setContentsMargins(0, kAboveGroup, 0, 0);
  BindLabel(heading, model.lblMemory, frames);
  form->addRow(heading);
  for (std::size_t i = 0; i < says.size(); ++i) {
    core::TextBox& box = model.txtMemory[i];
    AddNumber(form, box,
              {.label = tr("%1, %2").arg(TextOf(box.Caption.Get()), keyed[i]),
               .name = tr("Max spots displayed, %1").arg(says[i]),
               .digits = kMemoryDigits,
               .unit = tr("spots")},
              frames);
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
