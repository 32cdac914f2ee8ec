#include "ui/display_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/form.h"
#include "ui/one_line.h"

namespace ui {
namespace {

using Choice = spots::DisplayChoice;

constexpr int kWidthOfField = 56;

constexpr std::array kDxStation = {Choice::kDxCty,   Choice::kCountryName, Choice::kDxState,
                                   Choice::kDxCq,    Choice::kDxItu,       Choice::kDxGrid,
                                   Choice::kBearing, Choice::kDistance,    Choice::kKilometres};
constexpr std::array kSpotter = {Choice::kOrigCty,  Choice::kOrigState, Choice::kOrigCq,
                                 Choice::kOrigItu,  Choice::kOrigGrid,  Choice::kNode,
                                 Choice::kSpotterIp};
constexpr std::array kRow = {Choice::kComments, Choice::kWide, Choice::kDate, Choice::kDontUse};

constexpr std::array kFormatKeys = {"l", "x"};
// By Choice::Check, the letter of its key.
constexpr std::array<const char*, Choice::kChecks> kKeys = {"N", "m", "B", "c", "y", "k", "t",
                                                            "O", "a", "D", "Q", "I", "7", "S",
                                                            "u", "Z", "e", "G", "r", "W"};

// Where the caption alone says too little to the ear.
QString NameOf(Choice::Check check) {
  switch (check) {
    case Choice::kKilometres:
      return DisplayDialog::tr("Distance in km");
    case Choice::kNode:
      return DisplayDialog::tr("Node of the spotter");
    case Choice::kWide:
      return DisplayDialog::tr("Wide comments");
    default:
      return {};
  }
}

}  // namespace

DisplayDialog::DisplayDialog(spots::DisplayChoice& model, Frames& frames, QWidget* parent)
    : QDialog(parent), model_(model) {
  setWindowTitle(platform::qt::TextOf(Choice::kTitle));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(16);
  column->addWidget(MakeFormat(frames));
  auto* groups = new QHBoxLayout;
  groups->setSpacing(24);
  groups->addLayout(MakeGroup(tr("DX station"), kDxStation, frames));
  groups->addLayout(MakeGroup(tr("Spotter"), kSpotter, frames));
  QVBoxLayout* row = MakeGroup(tr("Row"), kRow, frames);
  AddWidth(row, frames);
  groups->addLayout(row);
  for (int i = 0; i < groups->count(); ++i)
    static_cast<QVBoxLayout*>(groups->itemAt(i)->layout())->addStretch();
  column->addLayout(groups, 1);
  column->addWidget(MakeFoot(frames));
}

void DisplayDialog::Show() {
  model_.Read();
  show();
  raise();
  activateWindow();
}

QWidget* DisplayDialog::MakeFormat(Frames& frames) {
  auto* format = new QWidget(this);
  auto* column = new QVBoxLayout(format);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  auto* says = new QLabel(format);
  says->setProperty("heading", true);
  says->setAccessibleName(tr("Chosen"));
  BindLabel(says, model_.fraFormat, frames);
  column->addWidget(says);
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  auto* group = new QButtonGroup(format);
  std::size_t option = 0;
  for (const std::string& caption : model_.optFormat.Options.Get()) {
    const QString words = platform::qt::TextOf(caption);
    auto* button = new QRadioButton(Marked(words, QLatin1String(kFormatKeys[option])), format);
    button->setAccessibleName(tr("%1 display").arg(words));
    group->addButton(button, static_cast<int>(option++));
    row->addWidget(button);
  }
  row->addStretch();
  column->addLayout(row);
  BindOptions(group, model_.optFormat, frames);
  return format;
}

QVBoxLayout* DisplayDialog::MakeGroup(const QString& heading, std::span<const Check> checks,
                                      Frames& frames) {
  auto* group = new QVBoxLayout;
  group->setSpacing(8);
  auto* title = new QLabel(heading, this);
  title->setProperty("heading", true);
  group->addWidget(title);
  for (const Check each : checks) {
    auto* box = new QCheckBox(this);
    box->setAccessibleName(NameOf(each));
    box->setProperty("mnemonic", QLatin1String(kKeys[each]));
    BindCheck(box, model_.chkAr17[each], frames);
    group->addWidget(box);
  }
  return group;
}

void DisplayDialog::AddWidth(QVBoxLayout* group, Frames& frames) {
  auto* field = new QLineEdit(this);
  field->setFixedWidth(kWidthOfField);
  field->setAccessibleName(tr("Width of a classic row, 45 to 130 characters"));
  auto* label = new QLabel(tr("Widt&h"), this);
  label->setBuddy(field);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addWidget(label);
  row->addWidget(field);
  row->addWidget(new QLabel(tr("characters"), this));
  row->addStretch();
  group->addLayout(row);
  BindTextBox(field, model_.txtSpotWidth, frames);
}

QWidget* DisplayDialog::MakeFoot(Frames& frames) {
  auto* foot = new QWidget(this);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  row->addStretch();
  MakePrimary(
      AddButton(row, tr("Apply the display"), QStringLiteral("p"), model_.cmdApply, frames));
  auto* close = new QPushButton(tr("Close"), foot);
  close->setAutoDefault(false);
  close->setAccessibleName(close->text());
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  row->addWidget(close);
  return foot;
}

}  // namespace ui
