#include "ui/reject_dialog.h"

#include <QAccessible>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <array>
#include <utility>

#include "ui/bind.h"
#include "ui/fonts.h"
#include "ui/form.h"

namespace ui {
namespace {

constexpr QSize kUsualSize(720, 520);

// The words of a list, for the eye and for the ear.
struct ListWords {
  const char* heading;  // with the key of the field below
  const char* entry;
  const char* example;
};
constexpr std::array<ListWords, spots::RejectLists::kKinds> kWords = {{
    {QT_TR_NOOP("&DX calls"), QT_TR_NOOP("DX call"), QT_TR_NOOP("K1ABC, K1* or */MM")},
    {QT_TR_NOOP("&Spotters and nodes"), QT_TR_NOOP("spotter or node"), QT_TR_NOOP("W1TST")},
    {QT_TR_NOOP("&Words in comments"), QT_TR_NOOP("word in comments"), QT_TR_NOOP("pirate")},
}};

// Its Delete key does what the button does.
class EntryList : public QListWidget {
 public:
  EntryList(core::Button& remove, QWidget* parent) : QListWidget(parent), remove_(remove) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Delete) return remove_.Press();
    QListWidget::keyPressEvent(event);
  }

 private:
  core::Button& remove_;
};

QPushButton* MakeButton(const QString& name, core::Button& model, Frames& frames, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setAutoDefault(false);
  button->setAccessibleName(name);
  BindButton(button, model, frames);
  return button;
}

// A line that is there only while it has something to say.
QLabel* MakeNotice(core::Label& model, Frames& frames, QWidget* parent) {
  auto* notice = new QLabel(parent);
  notice->setWordWrap(true);
  BindLabel(notice, model, frames);
  BindProperty<bool>(notice, model.Visible, frames, [notice](bool on) {
    QAccessibleEvent alert(notice, QAccessible::Alert);
    if (on) QAccessible::updateAccessibility(&alert);
  });
  return notice;
}

}  // namespace

RejectDialog::RejectDialog(spots::RejectForm& form, spots::RejectLists& lists,
                           core::Check& correctErrors, Frames& frames, QWidget* parent)
    : QDialog(parent), form_(form) {
  setWindowTitle(tr("Reject spots"));
  resize(kUsualSize);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(16);
  column->addWidget(MakeSwitches(form, correctErrors, frames));
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  for (const auto kind :
       {spots::RejectLists::kDx, spots::RejectLists::kCall, spots::RejectLists::kComment})
    row->addWidget(MakeList(kind, form, lists, frames), 1);
  column->addLayout(row, 1);
  QLabel* notSaved = MakeNotice(form.lblNotSaved, frames, this);
  notSaved->setProperty("bad", true);
  column->addWidget(notSaved);
  auto* rejected = new QLabel(this);
  rejected->setProperty("dim", true);
  BindLabel(rejected, lists.lblRejected, frames);
  auto* foot = AddCloseButton(column, this, QStringLiteral("l"));
  foot->insertWidget(0, rejected);
}

void RejectDialog::Show() {
  form_.Load();
  show();
  raise();
  activateWindow();
}

QWidget* RejectDialog::MakeSwitches(spots::RejectForm& form, core::Check& correctErrors,
                                    Frames& frames) {
  auto* switches = new QWidget(this);
  auto* column = new QVBoxLayout(switches);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  const std::array<std::pair<core::Check*, const char*>, 6> checks = {{{&form.chkEnabled, "E"},
                                                                       {&form.chkInvalid, "I"},
                                                                       {&form.chkCounty, "C"},
                                                                       {&form.chkDupes, "A"},
                                                                       {&form.chkOwnCall, "O"},
                                                                       {&correctErrors, "F"}}};
  for (const auto& [each, key] : checks) {
    auto* box = new QCheckBox(switches);
    box->setProperty("mnemonic", QLatin1String(key));
    BindCheck(box, *each, frames);
    column->addWidget(box);
    if (each != &form.chkInvalid) continue;
    QLabel* notice = MakeNotice(form.lblInvalid, frames, switches);
    notice->setProperty("dim", true);
    notice->setIndent(24);
    column->addWidget(notice);
  }
  return switches;
}

QWidget* RejectDialog::MakeList(spots::RejectLists::Kind kind, spots::RejectForm& form,
                                spots::RejectLists& lists, Frames& frames) {
  const ListWords& words = kWords[kind];
  const QString entry = tr(words.entry);
  auto* group = new QWidget(this);
  auto* heading = new QLabel(tr(words.heading), group);
  heading->setProperty("heading", true);
  auto* list = new EntryList(form.cmdDelete[kind], group);
  list->setAccessibleName(tr("Rejected: %1").arg(tr(words.heading).remove(QLatin1Char('&'))));
  list->setFont(FixedFont());
  BindList(list, lists.lstReject[kind], frames);
  auto* field = new QLineEdit(group);
  field->setAccessibleName(tr("To be rejected: %1").arg(entry));
  field->setPlaceholderText(tr(words.example));
  heading->setBuddy(field);
  BindTextBox(field, form.txtReject[kind], frames);
  auto* add = MakeButton(tr("Add %1").arg(entry), form.cmdAdd[kind], frames, group);
  auto* remove = MakeButton(tr("Delete %1").arg(entry), form.cmdDelete[kind], frames, group);
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(8);
  grid->addWidget(heading, 0, 0, 1, 2);
  grid->addWidget(list, 1, 0, 1, 2);
  grid->addWidget(field, 2, 0);
  grid->addWidget(add, 2, 1);
  grid->addWidget(remove, 3, 0, Qt::AlignLeft);
  return group;
}

}  // namespace ui
