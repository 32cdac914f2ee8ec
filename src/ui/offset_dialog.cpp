#include "ui/offset_dialog.h"

#include <QCheckBox>

#include "ui/bind.h"
#include "ui/form.h"

namespace ui {
namespace {

constexpr int kWidth = 400;

}  // namespace

OffsetDialog::OffsetDialog(program::OffsetForm& model, Frames& frames, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(tr("Offset from GMT"));
  QFormLayout* form = MakeForm(this);
  auto* zone = new QCheckBox(this);
  zone->setProperty("mnemonic", QStringLiteral("z"));
  BindCheck(zone, model.chkSystemZone, frames);
  form->addRow(tr("Time zone"), zone);
  QLineEdit* hours = AddField(form, tr("&Hours to add to local time"), model.txtHours, frames);
  hours->setPlaceholderText(tr("for example 5 or -5.5"));
  BindProperty<bool>(hours, model.chkSystemZone.Value, frames,
                     [hours](bool system) { hours->setEnabled(!system); });
  AddProblem(form, model.lblProblem, frames);
  AddButtons(form, {{model.cmdOk, "O"}, {model.cmdCancel, "a"}}, frames);
  SetUsualWidth(this, kWidth);
  BindDialog(this, model.Open, model.cmdCancel, frames);
}

}  // namespace ui
