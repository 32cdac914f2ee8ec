#include "gui/by_name.h"

#include <QPixmap>
#include <QScrollBar>
#include <QTextBlock>

namespace gui {

QStringList LinesOf(const QPlainTextEdit& view) {
  QStringList lines;
  for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next())
    lines << block.text();
  return lines;
}

QString TopLine(const QPlainTextEdit& view) {
  return view.cursorForPosition(view.viewport()->rect().topLeft() + QPoint(6, 6)).block().text();
}

bool IsAtEnd(const QPlainTextEdit& view) {
  return view.verticalScrollBar()->value() == view.verticalScrollBar()->maximum();
}

QColor MiddleOf(QWidget& widget) {
  return widget.grab().toImage().pixelColor(widget.width() / 2, widget.height() / 2);
}

}  // namespace gui
