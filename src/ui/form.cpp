#include "ui/form.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "ui/bind.h"
#include "ui/one_line.h"

namespace ui {
namespace {

QString SpokenName(QString label) { return label.remove(QLatin1Char('&')); }

void BindNotice(QLabel* notice, core::Label& model, Frames& frames) {
  BindLabel(notice, model, frames);
  BindProperty<std::string>(notice, model.Caption, frames, [notice](const std::string& text) {
    notice->setVisible(!text.empty());
    QAccessibleEvent alert(notice, QAccessible::Alert);
    if (!text.empty()) QAccessible::updateAccessibility(&alert);
  });
}

QHBoxLayout* MakeCloseButton(QDialog* dialog, const QString& mnemonic) {
  const QString caption = QObject::tr("Close");
  auto* close = new QPushButton(Marked(caption, mnemonic), dialog);
  close->setAccessibleName(caption);
  close->setAutoDefault(false);
  QObject::connect(close, &QPushButton::clicked, dialog, &QDialog::reject);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addStretch();
  row->addWidget(close);
  return row;
}

}  // namespace

QFormLayout* MakeForm(QWidget* dialog) {
  auto* form = new QFormLayout(dialog);
  form->setContentsMargins(16, 16, 16, 16);
  form->setHorizontalSpacing(12);
  form->setVerticalSpacing(8);
  form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  return form;
}

void SetUsualWidth(QDialog* dialog, int width) {
  dialog->resize(dialog->sizeHint().expandedTo(QSize(width, 0)));
}

QLineEdit* AddField(QFormLayout* form, const QString& label, core::TextBox& model, Frames& frames) {
  auto* field = new QLineEdit(form->parentWidget());
  field->setAccessibleName(SpokenName(label));
  form->addRow(label, field);
  BindTextBox(field, model, frames);
  return field;
}

void NameByLabel(QComboBox* box, QLabel* label, const QString& name) {
  box->setAccessibleName(name);
  label->setAccessibleName(name);
  label->setBuddy(box);
}

void AddProblem(QFormLayout* form, core::Label& model, Frames& frames) {
  auto* problem = new QLabel(form->parentWidget());
  problem->setProperty("bad", true);
  problem->setWordWrap(true);
  problem->setAccessibleName(QObject::tr("What is to be put right"));
  form->addRow(problem);
  BindNotice(problem, model, frames);
}

QLabel* AddNotice(QBoxLayout* column, const QString& name, core::Label& model, Frames& frames) {
  auto* notice = new QLabel(column->parentWidget());
  notice->setWordWrap(true);
  notice->setAccessibleName(name);
  column->addWidget(notice);
  BindNotice(notice, model, frames);
  return notice;
}

QPushButton* AddButton(QBoxLayout* row, const QString& name, const QString& mnemonic,
                       core::Button& model, Frames& frames) {
  auto* button = new QPushButton(row->parentWidget());
  button->setAutoDefault(false);
  button->setAccessibleName(name);
  button->setProperty("mnemonic", mnemonic);
  row->addWidget(button);
  BindButton(button, model, frames);
  return button;
}

void AddButtons(QFormLayout* form, std::initializer_list<KeyedButton> buttons, Frames& frames) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addStretch();
  for (const KeyedButton& each : buttons) {
    auto* button = new QPushButton(form->parentWidget());
    const bool first = &each == buttons.begin();
    button->setProperty("mnemonic", QLatin1String(each.mnemonic));
    button->setProperty("primary", first);
    button->setDefault(first);
    button->setAutoDefault(first);
    BindButton(button, each.model, frames);
    row->addWidget(button);
  }
  form->addRow(row);
}

// The style sheet may have looked at the button before.
void MakePrimary(QPushButton* button, bool primary) {
  button->setProperty("primary", primary);
  if (primary) button->setDefault(true);
  button->style()->unpolish(button);
  button->style()->polish(button);
}

QHBoxLayout* AddCloseButton(QFormLayout* form, QDialog* dialog, const QString& mnemonic) {
  QHBoxLayout* row = MakeCloseButton(dialog, mnemonic);
  form->addRow(row);
  return row;
}

QHBoxLayout* AddCloseButton(QBoxLayout* column, QDialog* dialog, const QString& mnemonic) {
  QHBoxLayout* row = MakeCloseButton(dialog, mnemonic);
  column->addLayout(row);
  return row;
}

}  // namespace ui
