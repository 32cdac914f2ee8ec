#include "ui/bind.h"

#include "platform/qt/qt_text.h"

namespace ui {
namespace {

using platform::qt::TextOf;

void BindCommon(QWidget* widget, core::Control& model, Frames& frames) {
  BindProperty<bool>(widget, model.Enabled, frames, [widget](bool on) { widget->setEnabled(on); });
  BindProperty<bool>(widget, model.Visible, frames, [widget](bool on) { widget->setVisible(on); });
  BindProperty<std::string>(widget, model.ToolTip, frames, [widget](const std::string& text) {
    widget->setToolTip(TextOf(text).toHtmlEscaped());
  });
}

}  // namespace

void BindLabel(QLabel* widget, core::Label& model, Frames& frames) {
  widget->setTextFormat(Qt::PlainText);
  BindCommon(widget, model, frames);
  BindProperty<std::string>(widget, model.Caption, frames,
                            [widget](const std::string& text) { widget->setText(TextOf(text)); });
}

void BindButton(QAbstractButton* widget, core::Button& model, Frames& frames) {
  BindCommon(widget, model, frames);
  BindProperty<std::string>(widget, model.Caption, frames,
                            [widget](const std::string& text) { widget->setText(TextOf(text)); });
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&model] { model.Press(); });
}

void BindTextBox(QLineEdit* widget, core::TextBox& model, Frames& frames) {
  BindCommon(widget, model, frames);
  BindProperty<std::string>(widget, model.Text, frames, [widget](const std::string& text) {
    const QString now = TextOf(text);
    if (widget->text() != now) widget->setText(now);
  });
  QObject::connect(widget, &QLineEdit::textEdited, widget,
                   [&model](const QString& text) { model.UserTypes(text.toStdString()); });
  QObject::connect(widget, &QLineEdit::returnPressed, widget,
                   [&model] { model.UserPressesReturn(); });
}

}  // namespace ui
