#include "ui/command_row.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include "ui/bind.h"
#include "ui/fonts.h"

namespace ui {

CommandRow::CommandRow(session::Session& session, Frames& frames, QWidget* parent)
    : QWidget(parent), session_(session), line_(new QLineEdit(this)) {
  setObjectName(QStringLiteral("CommandRow"));
  setAttribute(Qt::WA_StyledBackground);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 8, 12, 8);
  row->setSpacing(8);
  row->addWidget(line_, 1);
  for (const std::size_t which :
       {session::CommandLine::kRestoreRaw, session::CommandLine::kMaximiseRaw}) {
    auto* button = new QPushButton(this);
    button->setAutoDefault(false);
    BindButton(button, session.commandLine.cmdRawplus[which], frames);
    row->addWidget(button);
  }
  line_->setFont(FixedFont());
  line_->setPlaceholderText(tr("Command to the node   (↑ history, Ctrl+L)"));
  line_->setAccessibleName(tr("Command to the node"));
  line_->installEventFilter(this);
  BindTextBox(line_, session.commandLine.txtCmdLine, frames);
}

bool CommandRow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != line_ || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
      session_.commandLine.HistoryUp();
      return true;
    case Qt::Key_Down:
      session_.commandLine.HistoryDown();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return false;
    default:
      session_.commandLine.OtherKey();
      return false;
  }
}

}  // namespace ui
