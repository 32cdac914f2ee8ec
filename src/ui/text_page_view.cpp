#include "ui/text_page_view.h"

#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "core/text.h"
#include "platform/qt/qt_text.h"
#include "ui/fonts.h"

namespace ui {
namespace {

// A line of megabytes is no use to a reader, and laying it out would hold up the window.
constexpr core::Position kLongestShown = 4000;

// One line of the widget: whatever would break or bend it is shown as a symbol.
QString Shown(std::string_view line) {
  QString text = platform::qt::TextOf(core::Left(line, kLongestShown));
  if (core::Len(line) > kLongestShown) text += QStringLiteral(" …");
  for (QChar& character : text) {
    if (character < QChar(' ')) character = QChar(0x2400 + character.unicode());
    if (character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
      character = QChar(0x2424);
  }
  return text;
}

}  // namespace

TextPageView::TextPageView(core::TextPage& page, Frames& frames, QWidget* parent)
    : QPlainTextEdit(parent), page_(page) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setUndoRedoEnabled(false);
  setFont(FixedFont());
  setFrameShape(QFrame::NoFrame);
  item_ = frames.Add([this] { Refresh(); });
  observing_ = page_.Observe([this](const core::TextPage::Change& change) { Collect(change); });
}

void TextPageView::showEvent(QShowEvent* event) {
  QPlainTextEdit::showEvent(event);
  item_->Changed();
}

void TextPageView::Collect(const core::TextPage::Change& change) {
  removed_ = std::min(removed_ + change.removed, shown_);
  if (isVisible()) item_->Changed();
}

void TextPageView::Refresh() {
  if (!isVisible()) return;
  QScrollBar* bar = verticalScrollBar();
  const bool atEnd = bar->value() >= bar->maximum();
  const int stays = bar->value() - static_cast<int>(removed_);
  setUpdatesEnabled(false);
  RemoveFirst(removed_);
  AppendLast(page_.Lines().size() - shown_);
  bar->setValue(atEnd ? bar->maximum() : std::max(stays, 0));
  setUpdatesEnabled(true);
}

void TextPageView::RemoveFirst(std::size_t lines) {
  removed_ = 0;
  if (lines == 0) return;
  shown_ -= lines;
  if (shown_ == 0) {
    clear();
    return;
  }
  QTextCursor cursor(document());
  cursor.setPosition(document()->findBlockByNumber(static_cast<int>(lines)).position(),
                     QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
}

void TextPageView::AppendLast(std::size_t lines) {
  if (lines == 0) return;
  const auto& all = page_.Lines();
  QString text;
  for (std::size_t i = all.size() - lines; i < all.size(); ++i) {
    if (shown_ + (i - (all.size() - lines)) > 0) text += QLatin1Char('\n');
    text += Shown(all[i]);
  }
  QTextCursor cursor(document());
  cursor.movePosition(QTextCursor::End);
  cursor.insertText(text);
  shown_ += lines;
}

}  // namespace ui
