#include "ui/macro_panel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/bind.h"
#include "ui/fonts.h"
#include "ui/one_line.h"

namespace ui {
namespace {

constexpr core::Position kLongestTitle = 80;

void ShowWith(core::Control& frame, QWidget* widget, Frames& frames) {
  BindProperty<bool>(widget, frame.Visible, frames, [widget](bool on) { widget->setVisible(on); });
}

// The title stands above them.
int RowOf(std::size_t index) { return static_cast<int>(index) + 1; }

}  // namespace

MacroPanel::MacroPanel(session::Macros& model, Frames& frames, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(8);
  grid_->setVerticalSpacing(4);
  grid_->setColumnStretch(1, 1);
  AddTitle(model, frames);
  for (std::size_t i = 0; i < session::Macros::kCount; ++i) {
    AddButton(model, i, frames);
    AddField(model, i, frames);
  }
}

void MacroPanel::AddTitle(session::Macros& model, Frames& frames) {
  auto* title = new QLabel(this);
  title->setProperty("dim", true);
  title->setTextFormat(Qt::PlainText);
  title->setMinimumWidth(1);
  BindProperty<std::string>(title, model.fraMacros.Caption, frames,
                            [title](const std::string& text) {
                              const QString whose = OneLine(text, kLongestTitle);
                              title->setText(whose);
                              title->setAccessibleName(tr("Shown: %1").arg(whose));
                            });
  ShowWith(model.fraMacros, title, frames);
  grid_->addWidget(title, 0, 0, 1, 2);
}

void MacroPanel::AddButton(session::Macros& model, std::size_t index, Frames& frames) {
  const bool getsThem = index == 0;
  auto* button = new QPushButton(this);
  button->setAccessibleName(getsThem ? tr("Get Macros") : tr("Send macro %1").arg(index));
  if (getsThem) button->setProperty("mnemonic", QStringLiteral("G"));
  BindButton(button, model.cmdMacro[index], frames);
  if (!getsThem) ShowWith(model.fraSendMacro, button, frames);
  grid_->addWidget(button, RowOf(index), 0);
}

void MacroPanel::AddField(session::Macros& model, std::size_t index, Frames& frames) {
  auto* field = new QLineEdit(this);
  field->setFont(FixedFont());
  field->setAccessibleName(tr("Macro %1").arg(index));
  field->setPlaceholderText(index == 0 ? tr("Macro 0, sent with Return") : field->accessibleName());
  BindTextBox(field, model.txtMacro[index], frames);
  ShowWith(model.fraMacros, field, frames);
  grid_->addWidget(field, RowOf(index), 1);
}

}  // namespace ui
