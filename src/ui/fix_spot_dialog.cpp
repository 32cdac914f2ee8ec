#include "ui/fix_spot_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/figures.h"
#include "ui/fonts.h"
#include "ui/form.h"
#include "ui/one_line.h"

namespace ui {
namespace {

using platform::qt::TextOf;

constexpr QSize kUsualSize(680, 620);  // so that the last head has room
constexpr int kCallWidth = 150;
constexpr int kFieldWidth = 68;
constexpr std::array kFieldKeys = {"l", "y", "S", "Q", "U", "G"};  // from the call on

// `key` is a letter of its caption.
QPushButton* MakeButton(const QString& name, const char* key, core::Button& model, Frames& frames,
                        QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setProperty("mnemonic", QLatin1String(key));
  button->setAutoDefault(false);
  button->setAccessibleName(name);
  BindButton(button, model, frames);
  return button;
}

// A tick for a field that has ever applied. Red is said in words too.
QCheckBox* MakeTick(core::Check& model, Frames& frames, QWidget* parent) {
  auto* box = new QCheckBox(parent);
  BindTick(box, model, frames);
  const QString caption = TextOf(model.Caption.Get());
  BindProperty<core::Colour>(box, model.ForeColour, frames, [box, caption](core::Colour colour) {
    const bool red = colour == core::kRed;
    box->setText(red ? QObject::tr("%1 (in this run)").arg(caption) : caption);
    box->setAccessibleName(red ? QObject::tr("%1 has applied, in this run too").arg(caption)
                               : QObject::tr("%1 has applied").arg(caption));
  });
  return box;
}

QHBoxLayout* MakeRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  return row;
}

}  // namespace

FixSpotDialog::FixSpotDialog(Model model, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QDialog(parent), model_(model), item_(frames.Add([this] { Renew(); })) {
  setWindowTitle(tr("Fix Spots"));
  resize(kUsualSize);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(12);
  column->addWidget(MakeRows(frames, theme), 1);
  column->addLayout(MakeEntry(frames));
  column->addLayout(MakeAdding(frames));
  column->addLayout(MakeLists(frames));
  auto* result = new QLabel(this);
  result->setAccessibleName(tr("Result"));
  BindLabel(result, model.form.lblResult, frames);
  auto* fixes = new QLabel(this);
  fixes->setProperty("dim", true);
  fixes->setTextFormat(Qt::PlainText);
  BindProperty<std::string>(
      fixes, model.list.lblFixes.Caption, frames, [fixes](const std::string& count) {
        fixes->setText(count.empty() ? QString() : tr("Spots corrected: %1").arg(Grouped(count)));
      });
  QHBoxLayout* foot = AddCloseButton(column, this, QStringLiteral("C"));
  foot->insertWidget(0, result);
  foot->insertWidget(1, fixes);
  BindDialog(this, model.form.Open, frames);
}

QWidget* FixSpotDialog::MakeRows(Frames& frames, LiveTheme& theme) {
  view_ = new QTreeView(this);
  rows_ = new FixRows(model_.form, theme, view_);
  view_->setModel(rows_);
  view_->setAccessibleName(tr("Corrections"));
  view_->setFont(FixedFont());
  view_->setProperty("framed", true);
  view_->setRootIsDecorated(false);
  view_->setIndentation(0);
  view_->setUniformRowHeights(true);
  view_->header()->resizeSection(FixRows::kCall, kCallWidth);
  for (int field = FixRows::kFirstField; field < FixRows::kApplied; ++field)
    view_->header()->resizeSection(field, kFieldWidth);
  const auto changed = [this](const auto&) { item_->Changed(); };
  BindProperty<Theme>(view_, theme, frames, [this](const Theme&) { view_->viewport()->update(); });
  BindProperty<std::vector<std::string>>(view_, model_.form.cboCall.Options, frames, changed);
  BindProperty<int>(view_, model_.form.cboCall.Selected, frames,
                    [this](int row) { SelectRow(row); });
  changing_ = model_.list.Changed.Add([this] { item_->Changed(); });
  // What is chosen, not what is current: a screen reader chooses without going there.
  connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    const auto chosen = view_->selectionModel()->selectedRows();
    const int row = chosen.isEmpty() ? spots::FixForm::kNone : chosen.front().row();
    core::Choice& choice = model_.form.cboCall;
    if (row != choice.Selected.Get()) choice.UserSelects(row);
  });
  return view_;
}

void FixSpotDialog::Renew() {
  rows_->Renew();
  SelectRow(model_.form.cboCall.Selected.Get());
}

void FixSpotDialog::SelectRow(int row) {
  if (row < 0 || !view_->selectionModel()->isRowSelected(row))
    view_->setCurrentIndex(rows_->index(row, 0));
}

QLayout* FixSpotDialog::MakeEntry(Frames& frames) {
  QHBoxLayout* row = MakeRow();
  row->addWidget(new QLabel(tr("Has applied:"), this));
  for (core::Check& each : model_.form.chkFix) row->addWidget(MakeTick(each, frames, this));
  row->addStretch();
  row->addWidget(MakeButton(tr("Delete the correction"), "D", model_.form.cmdDel, frames, this));
  row->addWidget(MakeButton(tr("Delete the correction and edit it"), "t", model_.form.cmdDelAdd,
                            frames, this));
  return row;
}

QLayout* FixSpotDialog::MakeAdding(Frames& frames) {
  spots::FixForm& form = model_.form;
  const std::array boxes = {&form.txtAddCall, &form.txtAddCty, &form.txtAddState,
                            &form.txtAddCq,   &form.txtAddItu, &form.txtAddGrid};
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  auto* heading = new QLabel(tr("Add Call"), this);
  heading->setProperty("heading", true);
  grid->addWidget(heading, 0, 0, 1, 7);
  int column = 0;
  for (core::TextBox* box : boxes) {
    const QString caption = TextOf(box->Caption.Get());
    auto* field = new QLineEdit(this);
    field->setFont(FixedFont());
    field->setMinimumWidth(kFieldWidth);
    field->setAccessibleName(tr("%1 of the correction").arg(caption));
    BindTextBox(field, *box, frames);
    connect(field, &QLineEdit::returnPressed, this, [&form] { form.cmdAdd.Press(); });
    const QLatin1String key(kFieldKeys[static_cast<std::size_t>(column)]);
    auto* label = new QLabel(Marked(caption, key), this);
    label->setBuddy(field);
    label->setProperty("dim", true);
    grid->addWidget(label, 1, column);
    grid->addWidget(field, 2, column);
    grid->setColumnStretch(column, column == 0 ? 2 : 1);
    ++column;
  }
  grid->addWidget(MakeButton(tr("Add the correction"), "A", form.cmdAdd, frames, this), 2, column);
  return grid;
}

QLayout* FixSpotDialog::MakeLists(Frames& frames) {
  QHBoxLayout* row = MakeRow();
  auto* group = new QButtonGroup(this);
  int option = 0;
  for (const std::string& caption : model_.form.optFixSpot.Options.Get()) {
    const QString words = TextOf(caption);
    auto* button = new QRadioButton(Marked(words, words.left(1)), this);
    button->setAccessibleName(tr("Import: %1").arg(words));
    group->addButton(button, option++);
    row->addWidget(button);
  }
  BindOptions(group, model_.form.optFixSpot, frames);
  row->addWidget(
      MakeButton(tr("Web Update of the corrections"), "W", model_.form.cmdWebUpdate, frames, this));
  row->addWidget(
      MakeButton(tr("Help on the list from the web"), "H", model_.form.cmdHelp, frames, this));
  row->addStretch();
  const auto add = [&](const QString& caption, const QString& name, void (FixSpotDialog::*act)()) {
    auto* button = new QPushButton(caption, this);
    button->setAutoDefault(false);
    button->setAccessibleName(name);
    connect(button, &QPushButton::clicked, this, act);
    row->addWidget(button);
  };
  add(tr("&Import…"), tr("Import corrections from a file"), &FixSpotDialog::ChooseImport);
  add(tr("&Export…"), tr("Export corrections to a file"), &FixSpotDialog::ChooseExport);
  return row;
}

void FixSpotDialog::ChooseImport() {
  auto* chooser = new QFileDialog(this, tr("Import corrections"));
  chooser->setAttribute(Qt::WA_DeleteOnClose);
  chooser->setFileMode(QFileDialog::ExistingFile);
  connect(chooser, &QFileDialog::fileSelected, this, &FixSpotDialog::Import);
  chooser->open();
}

void FixSpotDialog::ChooseExport() {
  auto* chooser = new QFileDialog(this, tr("Export corrections"));
  chooser->setAttribute(Qt::WA_DeleteOnClose);
  chooser->setAcceptMode(QFileDialog::AcceptSave);
  chooser->selectFile(QStringLiteral("fixspots.txt"));
  connect(chooser, &QFileDialog::fileSelected, this, &FixSpotDialog::Export);
  chooser->open();
}

void FixSpotDialog::Import(const QString& path) {
  const platform::Files::Content content = model_.files.Read(path.toStdString());
  if (content.fault == platform::Files::Fault::None)
    model_.form.ReadFixSpots2(content.bytes);
  else
    model_.form.lblResult.Caption.Set("The file could not be read.");
}

void FixSpotDialog::Export(const QString& path) {
  const auto fault = model_.files.Replace(path.toStdString(), model_.form.Export());
  model_.form.lblResult.Caption.Set(fault == platform::Files::Fault::None
                                        ? "The list has been exported."
                                        : "The file could not be written.");
}

}  // namespace ui
