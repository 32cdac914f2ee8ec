#include "ui/colour_dialog.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/colour_list.h"
#include "ui/fonts.h"
#include "ui/form.h"
#include "ui/spot_sample.h"

namespace ui {
namespace {

using platform::qt::TextOf;

constexpr QSize kColourDialogSize(900, 580);
constexpr int kSampleWidth = 440;  // down to the comments, in the usual size

QLabel* MakeHeading(const QString& text, QWidget* parent) {
  auto* heading = new QLabel(text, parent);
  heading->setProperty("heading", true);
  return heading;
}

}  // namespace

ColourDialog::ColourDialog(Model model, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QDialog(parent), model_(model), theme_(theme) {
  setWindowTitle(TextOf(program::ColourForm::kTitle));
  resize(kColourDialogSize);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(16);
  auto* halves = new QHBoxLayout;
  halves->setSpacing(24);
  column->addLayout(halves, 1);
  const auto addHalf = [halves] {
    auto* half = new QVBoxLayout;
    half->setSpacing(8);
    halves->addLayout(half, 1);
    return half;
  };
  FillColours(addHalf(), frames, theme);
  FillSpots(addHalf(), frames, theme);
  auto* foot = new QHBoxLayout;
  foot->setSpacing(8);
  foot->addStretch();
  column->addLayout(foot);
  AddButton(foot, tr("Close"), QStringLiteral("l"), model_.form.cmdClose, frames);
  BindProperty<bool>(this, model_.form.Open, frames, [this](bool open) {
    if (open) Begin();
  });
  BindDialog(this, model_.form.Open, model_.form.cmdClose, frames);
  BindProperty<bool>(this, model_.form.Picking, frames, [this](bool picking) {
    if (picking) return Pick();
    if (picker_ != nullptr) picker_->close();
  });
}

void ColourDialog::FillColours(QVBoxLayout* column, Frames& frames, LiveTheme& theme) {
  QLabel* heading = MakeHeading(tr("C&olours"), this);
  list_ = new ColourList(model_.form, frames, theme, this);
  heading->setBuddy(list_);
  column->addWidget(heading);
  column->addWidget(list_, 1);
  auto* chosen = new QLabel(this);
  chosen->setProperty("dim", true);
  chosen->setAccessibleName(tr("Your own colours"));
  BindLabel(chosen, model_.form.lblChosen, frames);
  column->addWidget(chosen);
  AddAdvice(column, frames);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  column->addLayout(row);
  AddButton(row, tr("Choose the colour that is selected"), QStringLiteral("h"),
            model_.form.cmdChoose, frames);
  AddButton(row, tr("Give the colour that is selected back to the theme"), QStringLiteral("t"),
            model_.form.cmdTheme, frames);
  row->addStretch();
  AddButton(row, tr("Default Colour: all colours as the theme has them"), QStringLiteral("D"),
            model_.form.cmdDefault, frames);
}

void ColourDialog::AddAdvice(QBoxLayout* column, Frames& frames) {
  auto* advice = new QLabel(this);
  advice->setProperty("caution", true);
  advice->setWordWrap(true);
  column->addWidget(advice);
  const auto show = [this, advice] {
    const QString text = Advice();
    if (text == advice->text() && advice->isHidden() == text.isEmpty()) return;
    advice->setText(text);
    advice->setVisible(!text.isEmpty());
    advice->setAccessibleName(text);
    QAccessibleEvent alert(advice, QAccessible::Alert);
    if (!text.isEmpty()) QAccessible::updateAccessibility(&alert);
  };
  program::ColourForm& form = model_.form;
  BindProperty<program::ColourValues>(advice, form.OnShow, frames, [show](const auto&) { show(); });
  BindProperty<int>(advice, form.optColour.Selected, frames, [show](int) { show(); });
}

// What the user chose holds, in both themes: he is told where he will not be able to read it.
QString ColourDialog::Advice() const {
  const auto in = [this](Theme::Kind kind) {
    return ColourList::ContrastOf(model_.form.Selected(), model_.form.OnShow.Get(), Theme(kind));
  };
  const double light = in(Theme::Kind::Light), dark = in(Theme::Kind::Dark);
  const double least = std::min(light, dark);
  if (least >= kReadable) return {};
  const QString text =
      std::max(light, dark) < kReadable ? tr("Hard to read: a contrast of %1 to 1.")
      : light < dark ? tr("Hard to read in the light theme: a contrast of %1 to 1.")
                     : tr("Hard to read in the dark theme: a contrast of %1 to 1.");
  return text.arg(least, 0, 'f', 1);
}

void ColourDialog::FillSpots(QVBoxLayout* column, Frames& frames, LiveTheme& theme) {
  program::DxLook& look = model_.look;
  column->addWidget(MakeHeading(tr("DX spots"), this));
  auto* form = new QFormLayout;
  form->setHorizontalSpacing(12);
  form->setVerticalSpacing(8);
  column->addLayout(form);
  AddChoice(form, QStringLiteral("F"), tr("Font of the spots"), look.optFont, frames);
  AddChoice(form, QStringLiteral("z"), tr("Size of the spots, in pixels"), look.optSize, frames,
            tr("pixels"));
  AddStyle(form, frames);
  column->addSpacing(8);
  AddCheck(column, QStringLiteral("w"), tr("Show DX Tab Title: the heads of the columns"),
           look.chkTitle, frames);
  column->addSpacing(8);
  auto* sample = new SpotSample({.size = model_.size,
                                 .font = look.Font,
                                 .heads = look.chkTitle.Value,
                                 .colours = model_.form.OnShow},
                                model_.settings, frames, theme, this);
  sample->setMinimumWidth(kSampleWidth);
  column->addWidget(sample);
  column->addStretch();
}

void ColourDialog::AddStyle(QFormLayout* form, Frames& frames) {
  program::DxLook& look = model_.look;
  auto* style = new QHBoxLayout;
  style->setSpacing(16);
  AddCheck(style, QStringLiteral("B"), tr("Spots in bold"), look.chkBold, frames);
  AddCheck(style, QStringLiteral("I"), tr("Spots in italic"), look.chkItalic, frames);
  style->addStretch();
  form->addRow(QString(), style);
  auto* usual = new QHBoxLayout;
  form->addRow(QString(), usual);
  AddButton(usual, tr("Default Font of the spots"), QStringLiteral("n"), look.cmdDefaultFont,
            frames);
  usual->addStretch();
}

void ColourDialog::AddChoice(QFormLayout* form, const QString& mnemonic, const QString& name,
                             core::Choice& model, Frames& frames, const QString& unit) {
  auto* box = new QComboBox(this);
  box->setAccessibleName(name);
  box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  QString words = TextOf(model.Caption.Get());
  words.insert(words.indexOf(mnemonic), QLatin1Char('&'));
  auto* label = new QLabel(words, this);
  label->setBuddy(box);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addWidget(box);
  if (!unit.isEmpty()) row->addWidget(new QLabel(unit, this));
  row->addStretch();
  form->addRow(label, row);
  BindChoice(box, model, frames);
}

void ColourDialog::AddCheck(QBoxLayout* row, const QString& mnemonic, const QString& name,
                            core::Check& model, Frames& frames) {
  auto* box = new QCheckBox(this);
  box->setAccessibleName(name);
  box->setProperty("mnemonic", mnemonic);
  row->addWidget(box);
  BindCheck(box, model, frames);
}

void ColourDialog::Begin() {
  if (!std::exchange(familiesTaken_, true)) {
    std::vector<std::string> families;
    for (const QString& family : FixedFamilies()) families.push_back(family.toStdString());
    model_.look.TakeFamilies(std::move(families), QFontInfo(FixedFont()).family().toStdString());
  }
  list_->setFocus(Qt::OtherFocusReason);
  raise();
  activateWindow();
}

// What he looks at is seen in the window at once.
void ColourDialog::Pick() {
  program::ColourForm& form = model_.form;
  const program::ColourKey key = form.Selected();
  const QColor now = theme_.Get().Of(key, form.OnShow.Get()[key]);
  picker_ = new QColorDialog(now, this);
  picker_->setOption(QColorDialog::DontUseNativeDialog);
  picker_->setAttribute(Qt::WA_DeleteOnClose);
  picker_->setWindowTitle(tr("Colour: %1").arg(tr(program::RowOf(key).words)));
  connect(picker_, &QColorDialog::currentColorChanged, this,
          [&form](const QColor& colour) { form.UserTries(StoredAs(colour)); });
  connect(picker_, &QDialog::accepted, this, [&form] { form.UserTakes(); });
  connect(picker_, &QDialog::rejected, this, [&form] { form.UserLeaves(); });
  for (auto* button : picker_->findChildren<QPushButton*>()) button->setIcon({});
  picker_->open();
}

}  // namespace ui
