#include "ui/message_dialog.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/form.h"
#include "ui/one_line.h"

namespace ui {
namespace {

constexpr int kWidth = 400;
constexpr int kMargin = 16;
constexpr core::Position kLongestLine = 200;

QString Joined(const std::vector<std::string>& lines) {
  QStringList all;
  for (const std::string& line : lines) all << OneLine(line, kLongestLine);
  return all.join(QLatin1Char('\n'));
}

}  // namespace

MessageDialog::MessageDialog(program::MessageForm& model, Frames& frames, QWidget* parent)
    : QDialog(parent) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* heading = new QLabel(this);
  heading->setProperty("heading", true);
  heading->setWordWrap(true);
  auto* text = new QLabel(this);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setMinimumWidth(kWidth - 2 * kMargin);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* close = new QPushButton(this);
  close->setProperty("mnemonic", QStringLiteral("C"));
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  foot->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(16);
  column->addWidget(heading);
  column->addWidget(text);
  column->addLayout(foot);
  BindLabel(heading, model.lblHeading, frames);
  BindButton(close, model.cmdClose, frames);
  BindProperty<std::string>(this, model.lblHeading.Caption, frames, [this](const std::string& now) {
    setWindowTitle(OneLine(now, kLongestLine));
  });
  BindProperty<std::vector<std::string>>(
      text, model.Lines, frames,
      [text](const std::vector<std::string>& lines) { text->setText(Joined(lines)); });
  SetUsualWidth(this, kWidth);
  BindDialog(this, model.Open, model.cmdClose, frames);
}

}  // namespace ui
