#include "ui/login_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QSyntaxHighlighter>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "ui/fonts.h"

namespace ui {

// What is drawn in another way than the text around it. The text itself stays as it is.
class LoginView::Marks : public QSyntaxHighlighter {
 public:
  explicit Marks(LoginView& view) : QSyntaxHighlighter(view.document()), view_(view) {}

 protected:
  void highlightBlock(const QString&) override {
    MarkHeading();
    for (const Place& place : view_.PlacesIn(currentBlock())) MarkLink(place);
  }

 private:
  void MarkHeading() {
    const auto line = view_.LineOf(currentBlock());
    if (!line) return;
    const core::Position start = session::HeadingStart(view_.Page().Lines()[*line]);
    if (start == 0) return;
    const auto before = RangeOf(view_.Page().Lines()[*line], 1, start - 1);
    if (!before) return;
    QFont font = QApplication::font(&view_);
    const int text = view_.font().pixelSize();
    font.setPixelSize(std::max(std::min(text * 5 / 4, kClockPixels), text));
    font.setWeight(QFont::DemiBold);
    setFormat(before->to, currentBlock().length(), font);
  }

  void MarkLink(const Place& place) {
    const int from = place.from - currentBlock().position();
    QTextCharFormat format = this->format(from);
    format.setFontUnderline(true);
    format.setForeground(view_.LinkColour());
    setFormat(from, place.to - place.from, format);
  }

  LoginView& view_;
};

LoginView::LoginView(core::TextPage& page, session::Links& links, Frames& frames, QWidget* parent)
    : TextPageView(page, frames, parent), links_(links), marks_(new Marks(*this)) {
  viewport()->setMouseTracking(true);
  setAccessibleDescription(tr("Tab goes to the links, Enter opens one."));
  clearing_ = links_.Cleared.Add([this] { marks_->rehighlight(); });
}

QColor LoginView::LinkColour() const {
  return linkColour_.isValid() ? linkColour_ : palette().color(QPalette::Link);
}

void LoginView::SetColours(const std::optional<Colours>& colours) {
  TextPageView::SetColours(colours);
  const QColor link = colours ? colours->accent : QColor();
  if (link == linkColour_) return;
  linkColour_ = link;
  marks_->rehighlight();
}

std::vector<LoginView::Place> LoginView::PlacesIn(const QTextBlock& block) const {
  std::vector<Place> places;
  const auto line = LineOf(block);
  if (!line) return places;
  for (const session::Link& link : links_.Of(*line)) {
    const auto range = RangeOf(Page().Lines()[*line], link.start, core::Len(link.text));
    if (range)
      places.push_back({link, block.position() + range->from, block.position() + range->to});
  }
  return places;
}

std::optional<LoginView::Place> LoginView::At(const QPoint& point) const {
  const auto edge = [this](int position) {
    QTextCursor cursor(document());
    cursor.setPosition(position);
    return cursorRect(cursor);
  };
  for (const Place& place : PlacesIn(cursorForPosition(point).block()))
    if (QRect(edge(place.from).topLeft(), edge(place.to).bottomLeft()).contains(point))
      return place;
  return std::nullopt;
}

std::optional<LoginView::Place> LoginView::Chosen() const {
  const QTextCursor cursor = textCursor();
  for (const Place& place : PlacesIn(document()->findBlock(cursor.selectionStart())))
    if (place.from == cursor.selectionStart() && place.to == cursor.selectionEnd()) return place;
  return std::nullopt;
}

std::optional<LoginView::Place> LoginView::Beyond(bool next) const {
  const auto chosen = Chosen();
  std::optional<Place> found;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    for (const Place& place : PlacesIn(block)) {
      if (next && (!chosen || place.from > chosen->from)) return place;
      if (!next && (!chosen || place.from < chosen->from)) found = place;
    }
  }
  return found;
}

void LoginView::Choose(const Place& place) {
  QTextCursor cursor(document());
  cursor.setPosition(place.from);
  cursor.setPosition(place.to, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
}

bool LoginView::focusNextPrevChild(bool next) {
  const auto place = Beyond(next);
  if (!place) return TextPageView::focusNextPrevChild(next);
  Choose(*place);
  return true;
}

void LoginView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const auto chosen = enter ? Chosen() : std::nullopt;
  if (!chosen) return TextPageView::keyPressEvent(event);
  links_.Open(chosen->link);
}

void LoginView::mousePressEvent(QMouseEvent* event) {
  TextPageView::mousePressEvent(event);
  const auto place = event->button() == Qt::LeftButton ? At(event->pos()) : std::nullopt;
  pressed_ = place ? std::optional(place->link) : std::nullopt;
  pressedAt_ = event->pos();
}

void LoginView::mouseMoveEvent(QMouseEvent* event) {
  TextPageView::mouseMoveEvent(event);
  const int moved = (event->pos() - pressedAt_).manhattanLength();
  if (moved >= QApplication::startDragDistance()) pressed_.reset();
  viewport()->setCursor(At(event->pos()) ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

// A click is for what was under the pointer when the button went down, whatever has come since.
void LoginView::mouseReleaseEvent(QMouseEvent* event) {
  TextPageView::mouseReleaseEvent(event);
  if (const auto pressed = std::exchange(pressed_, std::nullopt)) links_.Open(*pressed);
}

void LoginView::contextMenuEvent(QContextMenuEvent* event) {
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const auto place = byKey ? Chosen() : At(event->pos());
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (place) AddActions(menu, place->link);
  menu->popup(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

void LoginView::AddActions(QMenu* menu, const session::Link& link) {
  auto* open = new QAction(tr("&Open link"), menu);
  auto* copy = new QAction(tr("Copy &link"), menu);
  connect(open, &QAction::triggered, this, [this, link] { links_.Open(link); });
  connect(copy, &QAction::triggered, this,
          [link] { QApplication::clipboard()->setText(platform::qt::TextOf(link.text)); });
  QAction* first = menu->actions().value(0);
  menu->insertActions(first, {open, copy});
  menu->insertSeparator(first);
}

void LoginView::changeEvent(QEvent* event) {
  TextPageView::changeEvent(event);
  const bool looksElse =
      event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange;
  if (looksElse) marks_->rehighlight();
}

}  // namespace ui
