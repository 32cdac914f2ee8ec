#include "ui/conditions_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/bind.h"
#include "ui/lamp.h"

namespace ui {

ConditionsBar::ConditionsBar(program::Conditions& model, Frames& frames, LiveTheme& theme,
                             QWidget* parent)
    : QWidget(parent) {
  setObjectName(QStringLiteral("ConditionsBar"));
  setAttribute(Qt::WA_StyledBackground);
  auto* mark = new Lamp(this);
  auto* text = new QLabel(this);
  auto* more = new QLabel(this);
  auto* help = new QPushButton(this);
  text->setAccessibleName(tr("Condition"));
  text->setMinimumWidth(1);
  more->setAccessibleName(tr("More conditions"));
  more->setProperty("dim", true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 4, 12, 4);
  row->setSpacing(8);
  row->addWidget(mark);
  row->addWidget(text);
  row->addWidget(more);
  row->addSpacing(8);
  row->addWidget(help);
  row->addStretch();
  BindLabel(text, model.lblText, frames);
  BindLabel(more, model.lblMore, frames);
  BindButton(help, model.cmdHelp, frames);
  BindProperty<Theme>(mark, theme, frames,
                      [mark](const Theme& now) { mark->SetColour(now[Token::Caution]); });
  BindProperty<bool>(this, model.lblText.Visible, frames, [this](bool any) { setVisible(any); });
  BindProperty<std::string>(text, model.lblText.Caption, frames, [text](const std::string& now) {
    QAccessibleEvent alert(text, QAccessible::Alert);
    if (!now.empty()) QAccessible::updateAccessibility(&alert);
  });
}

}  // namespace ui
