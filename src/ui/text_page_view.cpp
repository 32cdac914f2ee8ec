#include "ui/text_page_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "ui/fonts.h"
#include "ui/one_line.h"

namespace ui {
namespace {

constexpr int kMargin = 8;     // besides the document's own 4
constexpr int kTopMargin = 4;  // the document's own scrolls away

// A line of megabytes is no use to a reader, and laying it out would hold up the window.
constexpr core::Position kLongestShown = 4000;

}  // namespace

TextPageView::TextPageView(core::TextPage& page, Frames& frames, QWidget* parent)
    : QPlainTextEdit(parent), page_(page), frames_(frames), glyphs_(FixedFont()) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setUndoRedoEnabled(false);
  setFont(FixedFont());
  setFrameShape(QFrame::NoFrame);
  setViewportMargins(kMargin, kTopMargin, 0, 0);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  UnderScrollBar()->setAutoFillBackground(true);
  UnderScrollBar()->setBackgroundRole(QPalette::Base);
  item_ = frames.Add([this] { Refresh(); });
  observing_ = page_.Observe([this](const core::TextPage::Change& change) { Collect(change); });
}

void TextPageView::showEvent(QShowEvent* event) {
  QPlainTextEdit::showEvent(event);
  item_->Changed();
}

// The ground is that of the style sheet. Filled here, nothing behind the view is painted with it.
void TextPageView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  if (!hasFocus() && !textCursor().hasSelection()) return Paint(painter, event->rect());
  painter.fillRect(event->rect(), Ground());
  painter.end();
  QPlainTextEdit::paintEvent(event);
}

void TextPageView::Paint(QPainter& painter, const QRect& area) {
  const int width = viewport()->width();
  QPointF place = contentOffset();
  painter.fillRect(QRectF(0, 0, width, place.y()), Ground());
  for (QTextBlock block = firstVisibleBlock(); block.isValid() && place.y() <= area.bottom();
       block = block.next()) {
    const QRectF row(0, place.y(), width, blockBoundingRect(block).height());
    if (row.bottom() > area.top()) PaintLine(painter, block, row, place.x());
    place.setY(row.bottom());
  }
  painter.fillRect(QRectF(0, place.y(), width, viewport()->height() - place.y()), Ground());
}

void TextPageView::PaintLine(QPainter& painter, const QTextBlock& block, const QRectF& row,
                             double left) {
  const QTextLayout& layout = *block.layout();
  const QTextLine line = layout.lineAt(0);
  const QColor ink = palette().color(QPalette::Text);
  if (layout.formats().isEmpty() && row == row.toRect()) {
    printed_.Begin(painter, row.toRect().size(), Ground());
    printed_.Print(glyphs_, {left + line.x(), line.y() + line.ascent()}, block.text(), ink);
    return printed_.Show(painter, row.toRect().topLeft());
  }
  painter.fillRect(row, Ground());
  painter.setPen(ink);
  layout.draw(&painter, {left, row.top()});
}

void TextPageView::resizeEvent(QResizeEvent* event) {
  const bool atEnd = AtEnd();
  QPlainTextEdit::resizeEvent(event);
  if (atEnd) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void TextPageView::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) glyphs_ = GlyphTiles(font());
  // Another style sheet brings back the font that the view was made with.
  const bool changed = event->type() == QEvent::FontChange && font().pixelSize() != pixels_;
  if (changed && pixels_ > 0) SetSize(pixels_);
}

bool TextPageView::Find(const QString& text, Way way) {
  QTextCursor from = textCursor();
  if (!from.hasSelection()) from = cursorForPosition({0, 0});
  if (way == Way::Here) from.setPosition(from.selectionStart());
  const auto flags =
      way == Way::Previous ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  QTextCursor found = document()->find(text, from, flags);
  if (found.isNull()) {
    from.movePosition(way == Way::Previous ? QTextCursor::End : QTextCursor::Start);
    found = document()->find(text, from, flags);
  }
  if (found.isNull()) return false;
  setTextCursor(found);
  ensureCursorVisible();
  return true;
}

void TextPageView::SetSize(int pixels) {
  const bool atEnd = AtEnd();
  pixels_ = pixels;
  QFont changed = font();
  changed.setPixelSize(pixels);
  setFont(changed);
  if (atEnd) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void TextPageView::SetColours(const std::optional<Colours>& colours) {
  static const QString kSheet = QStringLiteral(
      "QPlainTextEdit { background: %1; color: %2; selection-background-color: %3;"
      " selection-color: %4; } QPlainTextEdit:focus { border: 1px solid %5; }");
  const QString sheet =
      colours ? kSheet.arg(colours->ground.name(), colours->text.name(), colours->selection.name(),
                           colours->selectedText.name(), colours->accent.name())
              : QString();
  if (sheet != styleSheet()) setStyleSheet(sheet);
  QPalette palette;
  if (colours) palette.setColor(QPalette::Base, colours->ground);
  UnderScrollBar()->setPalette(palette);
}

std::optional<TextPageView::Range> TextPageView::RangeOf(std::string_view line,
                                                         core::Position start,
                                                         core::Position count) {
  const core::Position end = start - 1 + count;
  if (end > kLongestShown) return std::nullopt;
  const auto length = [line](core::Position bytes) {
    return static_cast<int>(OneLine(core::Left(line, bytes), kLongestShown).size());
  };
  return Range{length(start - 1), length(end)};
}

std::optional<std::size_t> TextPageView::LineOf(const QTextBlock& block) const {
  const auto number = static_cast<std::size_t>(block.blockNumber());
  if (number < removed_ || number - removed_ >= page_.Lines().size()) return std::nullopt;
  return number - removed_;
}

QColor TextPageView::Ground() const {
  return viewport()->palette().color(viewport()->backgroundRole());
}

QWidget* TextPageView::UnderScrollBar() const { return verticalScrollBar()->parentWidget(); }

bool TextPageView::AtEnd() const {
  return verticalScrollBar()->value() >= verticalScrollBar()->maximum();
}

void TextPageView::Collect(const core::TextPage::Change& change) {
  removed_ = std::min(removed_ + change.removed, shown_);
  if (isVisible()) item_->Changed();
}

// Lines that come in frame after frame, more than there is room for, are gone before anybody has
// read one: every second frame is enough for them while nobody is at it.
bool TextPageView::MayWait() {
  const std::size_t lines = page_.Lines().size() + removed_ - shown_;
  const int inSight = viewport()->height() / std::max(fontMetrics().height(), 1);
  const bool many = lines > static_cast<std::size_t>(inSight) && !frames_.IsTouched();
  const bool may = many && replaced_;
  replaced_ = many && !may;
  return may;
}

void TextPageView::Refresh() {
  if (!isVisible()) return;
  if (MayWait()) return item_->Changed();
  QScrollBar* bar = verticalScrollBar();
  const bool atEnd = AtEnd();
  const int stays = bar->value() - static_cast<int>(removed_);
  viewport()->setUpdatesEnabled(false);
  RemoveFirst(removed_);
  AppendLast(page_.Lines().size() - shown_);
  bar->setValue(atEnd ? bar->maximum() : std::max(stays, 0));
  viewport()->setUpdatesEnabled(true);
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
    text += OneLine(all[i], kLongestShown);
  }
  QTextCursor reader = textCursor();
  const int anchor = reader.anchor(), position = reader.position();
  QTextCursor cursor(document());
  cursor.movePosition(QTextCursor::End);
  cursor.insertText(text);
  shown_ += lines;
  if (anchor == position) return;
  // A selection that reached to the end has grown.
  reader.setPosition(anchor);
  reader.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(reader);
}

}  // namespace ui
