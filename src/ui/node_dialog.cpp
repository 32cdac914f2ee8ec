#include "ui/node_dialog.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <array>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/fonts.h"
#include "ui/form.h"
#include "ui/whole_rows.h"

namespace ui {
namespace {

using platform::qt::TextOf;

constexpr QSize kNodeDialogSize(660, 660);
constexpr std::array<int, NodeRows::kInfo> kColumnWidths = {120, 230, 64};
constexpr int kPortWidth = 72;
constexpr int kBarHeight = 8;

// Return chooses the first node that fits, and Down goes into the table.
class NodeSearch : public QLineEdit {
 public:
  NodeSearch(std::function<void()> chooseFirst, std::function<void()> goDown, QWidget* parent)
      : QLineEdit(parent), chooseFirst_(std::move(chooseFirst)), goDown_(std::move(goDown)) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn) return chooseFirst_();
    if (event->key() == Qt::Key_Down) return goDown_();
    QLineEdit::keyPressEvent(event);
  }

 private:
  std::function<void()> chooseFirst_;
  std::function<void()> goDown_;
};

// Goes by its caption, unless it is given a name.
QPushButton* AddButton(QBoxLayout* row, core::Button& model, const char* key, Frames& frames,
                       QWidget* parent, bool primary = false) {
  auto* button = new QPushButton(parent);
  button->setAutoDefault(false);
  button->setProperty("primary", primary);
  button->setProperty("mnemonic", QLatin1String(key));
  BindButton(button, model, frames);
  row->addWidget(button);
  return button;
}

QCheckBox* MakeCheck(core::Check& model, const char* key, Frames& frames, QWidget* parent) {
  auto* box = new QCheckBox(parent);
  box->setProperty("mnemonic", QLatin1String(key));
  BindCheck(box, model, frames);
  return box;
}

// `look` is a property that the style sheet knows: it has to be there before the first polish.
QLabel* MakeLabel(core::Label& model, const char* look, Frames& frames, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setProperty(look, true);
  BindLabel(label, model, frames);
  return label;
}

QLabel* MakeNamed(core::Label& model, const QString& name, Frames& frames, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setAccessibleName(name);
  BindLabel(label, model, frames);
  return label;
}

QHBoxLayout* MakeLine() {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  return row;
}

}  // namespace

NodeDialog::NodeDialog(Model model, Frames& frames, QWidget* parent)
    : QDialog(parent), model_(model), item_(frames.Add([this] { Renew(); })) {
  setWindowTitle(tr("Nodes"));
  resize(kNodeDialogSize);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(12);
  column->addLayout(MakeSearch(frames));
  column->addWidget(MakeRows(frames), 1);
  column->addLayout(MakeFields(frames));
  column->addWidget(MakeCheck(model_.form.chkSecondary, "S", frames, this));
  AddNotice(column, tr("Result"), model_.form.lblResult, frames);
  column->addLayout(MakeButtons(frames));
  column->addSpacing(8);
  AddUpdate(column, frames);
  BindProperty<bool>(this, model_.form.Open, frames, [this](bool open) {
    if (open) Begin();
  });
  BindDialog(this, model_.form.Open, model_.form.cmdExit, frames);
}

QLayout* NodeDialog::MakeSearch(Frames& frames) {
  session::NodeForm& form = model_.form;
  search_ = new NodeSearch([&form] { form.txtSearch.UserPressesReturn(); },
                           [this, &form] {
                             if (form.cboNode.Selected.Get() == session::NodeForm::kNone)
                               form.txtSearch.UserPressesReturn();
                             view_->setFocus(Qt::TabFocusReason);
                           },
                           this);
  search_->setAccessibleName(tr("Find a node by its call, host or info"));
  search_->setPlaceholderText(tr("Call, host or info"));
  search_->setClearButtonEnabled(true);
  BindTextBox(search_, form.txtSearch, frames);
  auto* label = new QLabel(tr("&Find"), this);
  label->setBuddy(search_);
  QHBoxLayout* row = MakeLine();
  row->addWidget(label);
  row->addWidget(search_, 1);
  return row;
}

QWidget* NodeDialog::MakeRows(Frames& frames) {
  session::NodeForm& form = model_.form;
  view_ = new QTreeView(this);
  rows_ = new NodeRows(form, model_.directory, view_);
  view_->setModel(rows_);
  view_->setAccessibleName(tr("List of nodes"));
  view_->setFont(FixedFont());
  view_->setProperty("framed", true);
  view_->setRootIsDecorated(false);
  view_->setIndentation(0);
  view_->setUniformRowHeights(true);
  for (int column = 0; column < NodeRows::kInfo; ++column)
    view_->header()->resizeSection(column, kColumnWidths[static_cast<std::size_t>(column)]);
  BindProperty<std::vector<std::string>>(view_, form.cboNode.Options, frames,
                                         [this](const auto&) { item_->Changed(); });
  BindProperty<int>(view_, form.cboNode.Selected, frames, [this](int row) { SelectRow(row); });
  changing_ = model_.directory.Changed.Add([this] { item_->Changed(); });
  // What is chosen, not what is current: coming in by Tab chooses nothing.
  connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    const auto chosen = view_->selectionModel()->selectedRows();
    core::Choice& choice = model_.form.cboNode;
    if (!chosen.isEmpty() && chosen.front().row() != choice.Selected.Get())
      choice.UserSelects(chosen.front().row());
  });
  connect(view_, &QTreeView::doubleClicked, this, [&form] { form.cmdApply.Press(); });
  return new WholeRows(view_, this);
}

QLayout* NodeDialog::MakeFields(Frames& frames) {
  session::NodeForm& form = model_.form;
  QHBoxLayout* row = MakeLine();
  const auto add = [&](const QString& label, const QString& name, core::TextBox& model) {
    auto* field = new QLineEdit(this);
    field->setFont(FixedFont());
    field->setAccessibleName(name);
    BindTextBox(field, model, frames);
    auto* text = new QLabel(label, this);
    text->setBuddy(field);
    row->addWidget(text);
    row->addWidget(field);
    return field;
  };
  add(tr("&Call"), tr("Call of the node"), form.txtNodeCall);
  add(tr("&Host"), tr("Host of the node"), form.txtNodeAddress);
  add(tr("&Port"), tr("Port of the node"), form.txtNodePort)->setFixedWidth(kPortWidth);
  row->setStretch(1, 2);
  row->setStretch(3, 4);
  return row;
}

QLayout* NodeDialog::MakeButtons(Frames& frames) {
  session::NodeForm& form = model_.form;
  QHBoxLayout* row = MakeLine();
  QPushButton* add = AddButton(row, form.cmdNewNode, "A", frames, this);
  AddButton(row, form.cmdDelete, "D", frames, this);
  row->addStretch();
  QPushButton* use = AddButton(row, form.cmdApply, "U", frames, this, true);
  AddButton(row, form.cmdExit, "l", frames, this);
  // Return does the one of the two that is right for the call in the field.
  BindProperty<bool>(add, form.cmdNewNode.Enabled, frames, [add, use](bool isNew) {
    MakePrimary(add, isNew);
    MakePrimary(use, !isNew);
  });
  return row;
}

void NodeDialog::AddUpdate(QBoxLayout* into, Frames& frames) {
  session::NodeUpdate& update = model_.update;
  auto* column = new QVBoxLayout;
  into->addLayout(column);
  column->setSpacing(8);
  column->addWidget(MakeLabel(update.fraUpdate, "heading", frames, this));
  column->addLayout(MakeVersions(frames));
  auto* bar = new QProgressBar(this);
  bar->setAccessibleName(tr("Progress of the update"));
  bar->setTextVisible(false);
  bar->setFixedHeight(kBarHeight);
  BindProperty<int>(bar, update.ProgressBar1, frames, [bar](int value) { bar->setValue(value); });
  BindProperty<bool>(bar, update.Fetching, frames, [bar](bool on) { bar->setVisible(on); });
  column->addWidget(bar);
  AddNotice(column, tr("Result of the update"), update.lblResult, frames);
  for (core::Label& warning : update.lblWarning)
    column->addWidget(MakeLabel(warning, "dim", frames, this));
  column->addWidget(MakeCheck(update.Check1, "m", frames, this));
}

QLayout* NodeDialog::MakeVersions(Frames& frames) {
  session::NodeUpdate& update = model_.update;
  QHBoxLayout* row = MakeLine();
  const std::array values = {&update.lblInstalled, &update.lblAvailable};
  for (std::size_t i = 0; i < values.size(); ++i) {
    const QString says = TextOf(update.lblVersion[i].Caption.Get());
    row->addWidget(MakeLabel(update.lblVersion[i], "dim", frames, this));
    row->addWidget(MakeNamed(*values[i], tr("%1, value").arg(says), frames, this));
    row->addSpacing(16);
  }
  row->addStretch();
  auto* button = AddButton(row, update.cmdNode, "t", frames, this);
  BindProperty<bool>(button, update.Fetching, frames, [button](bool fetching) {
    button->setAccessibleName(fetching ? tr("Stop the update of the list of nodes")
                                       : tr("Update the list of nodes"));
  });
  return row;
}

void NodeDialog::Begin() {
  search_->setFocus(Qt::OtherFocusReason);
  item_->Changed();
  raise();
  activateWindow();
}

void NodeDialog::Renew() {
  rows_->Renew();
  SelectRow(model_.form.cboNode.Selected.Get());
}

void NodeDialog::SelectRow(int row) {
  if (row < 0) {
    view_->clearSelection();
    return;
  }
  if (!view_->selectionModel()->isRowSelected(row)) view_->setCurrentIndex(rows_->index(row, 0));
  view_->scrollTo(rows_->index(row, 0));
}

}  // namespace ui
