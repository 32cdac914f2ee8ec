#include "ui/spot_view.h"

#include <QPaintEvent>
#include <QScrollBar>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "spots/row_layout.h"
#include "ui/bind.h"
#include "ui/figures.h"
#include "ui/fonts.h"
#include "ui/one_line.h"
#include "ui/spot_view_accessible.h"

namespace ui {
namespace {

constexpr int kFromEdge = 8;

}  // namespace

SpotView::SpotView(Model model, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QAbstractScrollArea(parent),
      model_(model),
      theme_(theme),
      painter_(model.look.font.Get(), model.look.size.Get()),
      colours_(ColoursOf(model.settings, theme.Get())),
      item_(frames.Add([this] { Refresh(); })),
      rows_(model.table.RtbDx,
            [this] {
              if (isVisible()) item_->Changed();
            }),
      heads_(new SpotHeads(model.table, model.display, painter_, colours_, this)),
      below_(new QPushButton(this)) {
  MakeSpotViewsAccessible();  // before Qt asks who speaks for it
  setAccessibleName(tr("Spots"));
  setFrameShape(QFrame::NoFrame);
  setAutoFillBackground(true);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setToolTip(platform::qt::TextOf(spots::kTableToolTip));
  below_->setObjectName(QStringLiteral("Below"));
  below_->setFocusPolicy(Qt::NoFocus);
  below_->hide();
  connect(below_, &QPushButton::clicked, this, [this] { GoToEnd(); });
  FollowLook(frames);
  BindProperty<std::string>(this, model.empty.Caption, frames,
                            [this](const std::string&) { viewport()->update(); });
}

void SpotView::FollowLook(Frames& frames) {
  SpotLook& look = model_.look;
  BindProperty<int>(this, look.size, frames, [this](int) { ChangeFont(); });
  BindProperty<program::SpotFont>(this, look.font, frames, [this](const auto&) { ChangeFont(); });
  BindProperty<bool>(this, look.heads, frames, [this](bool on) { ShowHeads(on); });
  BindProperty<Theme>(this, theme_, frames, [this](const Theme&) { Recolour(); });
  BindProperty<program::ColourValues>(this, look.colours, frames,
                                      [this](const auto&) { Recolour(); });
}

void SpotView::Recolour() {
  colours_ = ColoursOf(model_.settings, theme_.Get());
  // The scroll bars stand on the same ground.
  QPalette palette;
  palette.setColor(QPalette::Window, colours_.ground);
  setPalette(palette);
  heads_->update();
  viewport()->update();
}

void SpotView::ShowHeads(bool on) {
  heads_->setVisible(on);
  setViewportMargins(0, on ? SpotHeads::kHeight : 0, 0, 0);
}

// What is on the screen.

void SpotView::Refresh() {
  // Under a finger that is down nothing moves.
  if (!isVisible() || pressed_) return;
  const KeptPlace place(rows_, FirstInSight(), RowsInSight() + 1, current_, anchor_);
  const bool atNewest = NewestOnTop() ? verticalScrollBar()->value() == 0 : AtEnd();
  const SpotSnapshot::Batch batch = rows_.Take();
  if (batch.IsEmpty()) return;
  if (batch.sameList) {
    Renew(place, atNewest);
  } else {
    Follow(batch, atNewest || batch.allNew);
  }
}

void SpotView::Follow(const SpotSnapshot::Batch& batch, bool toNewest) {
  if (current_ && !rows_.Holds(*current_)) current_.reset();
  const int stays =
      verticalScrollBar()->value() - static_cast<int>(batch.removed) * painter_.RowHeight();
  const Number firstAdded = rows_.End() - static_cast<Number>(batch.added);
  const std::size_t below = newBelow_ + SpotsFrom(firstAdded);
  if (batch.allNew) widest_ = 0;
  Measure(firstAdded);
  const bool anew = batch.allNew || batch.added == rows_.Rows().size();
  following_ = !anew;
  SetRanges();
  if (toNewest) {
    GoToNewest();
  } else {
    verticalScrollBar()->setValue(std::max(stays, 0));
    CountBelow(below);
  }
  following_ = false;
  if (anew)
    viewport()->update();
  else
    MoveDrawn(firstAdded);
}

// What is drawn already moves, and only what is new is drawn, as far as there is text: in a flood
// most of a frame is text that stands there, and ground. A separator counts what is behind it.
void SpotView::MoveDrawn(Number firstAdded) {
  const int moved = PlaceOf(drawnFirst_).top() - drawnTop_;
  if (hasFocus()) return viewport()->update();
  const Number first = FirstInSight();
  const Number end = std::min(rows_.End(), first + RowsInSight() + 1);
  for (Number row = std::max(first, firstAdded); row < end; ++row) Reaches(row);
  const QRect text(0, 0, drawnEnd_, viewport()->height());
  // Moving costs more than to draw the few rows that stay.
  if (std::abs(moved) > text.height() / 2) return viewport()->update(text);
  drawnTop_ += moved;
  if (moved != 0) viewport()->scroll(0, moved, text);
  viewport()->update(text & text.translated(0, PlaceOf(firstAdded).top()));
  for (Number row = first; row < std::min(firstAdded, end); ++row)
    if (rows_.Row(row).IsStars()) viewport()->update(PlaceOf(row));
}

void SpotView::Reaches(Number row) {
  const int width = viewport()->width();
  const int end = painter_.EndOf(rows_.Row(row)) - horizontalScrollBar()->value();
  drawnEnd_ = std::max(drawnEnd_, IsChosen(row) ? width : std::min(end, width));
}

// What the user looks at stays where it is. It is drawn at once, so that his next press finds it.
void SpotView::Renew(const KeptPlace& place, bool toNewest) {
  current_ = place.Current(rows_);
  if (current_) anchor_ = place.Anchor(rows_).value_or(*current_);
  Measure(rows_.First());
  const int within = verticalScrollBar()->value() % painter_.RowHeight();
  SetRanges();
  CountBelow(0);
  const auto left = place.FirstLeft(rows_);
  if (toNewest)
    verticalScrollBar()->setValue(0);
  else if (left)
    verticalScrollBar()->setValue((static_cast<int>(left->row - rows_.First()) - left->place) *
                                      painter_.RowHeight() +
                                  within);
  viewport()->repaint();
}

// Where the reader is who waits for new rows: in time order at its end, in any other at the top.
bool SpotView::NewestOnTop() const {
  return model_.table.Reversed() || model_.table.optSortBy.Get() != spots::kTimeOrder;
}

void SpotView::GoToNewest() {
  if (!NewestOnTop()) return GoToEnd();
  verticalScrollBar()->setValue(0);
  CountBelow(0);
}

std::size_t SpotView::SpotsFrom(Number first) const {
  std::size_t spots = 0;
  for (Number row = first; row < rows_.End(); ++row)
    if (rows_.Row(row).IsSpot()) ++spots;
  return spots;
}

void SpotView::Measure(Number first) {
  for (Number row = first; row < rows_.End(); ++row)
    if (rows_.Row(row).IsSpot()) widest_ = std::max(widest_, rows_.Row(row).Text().size());
}

void SpotView::ChangeFont() {
  const bool atEnd = AtEnd();
  const Number first = FirstInSight();
  painter_ = SpotPainter(model_.look.font.Get(), model_.look.size.Get());
  SetRanges();
  verticalScrollBar()->setValue(static_cast<int>(first - rows_.First()) * painter_.RowHeight());
  if (atEnd && !NewestOnTop()) GoToEnd();
  heads_->Renew();
  viewport()->update();
  model_.table.SetPaneRows(RowsInSight());
}

void SpotView::SetRanges() {
  const int height = static_cast<int>(rows_.Rows().size()) * painter_.RowHeight();
  verticalScrollBar()->setSingleStep(painter_.RowHeight());
  verticalScrollBar()->setPageStep(RowsInSight() * painter_.RowHeight());
  verticalScrollBar()->setRange(0, WholeRows(std::max(height - viewport()->height(), 0)));
  const int width =
      painter_.ColumnAt(std::min(static_cast<core::Position>(widest_), kLongestShown)) + kFromEdge;
  horizontalScrollBar()->setSingleStep(painter_.RowHeight());
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setRange(0, std::max(width - viewport()->width(), 0));
}

// At the end as well the first row in sight is whole: what is too little for one stays empty below.
int SpotView::WholeRows(int pixels) const {
  const int row = painter_.RowHeight();
  return (pixels + row - 1) / row * row;
}

void SpotView::GoToEnd() {
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  CountBelow(0);
}

bool SpotView::AtEnd() const {
  return verticalScrollBar()->value() >= verticalScrollBar()->maximum();
}

void SpotView::CountBelow(std::size_t spots) {
  newBelow_ = std::min(spots, rows_.Rows().size());
  below_->setVisible(newBelow_ > 0);
  if (newBelow_ == 0) return;
  below_->setText(tr("%1 new below").arg(Grouped(newBelow_)));
  PlaceBelow();
}

void SpotView::PlaceBelow() {
  below_->adjustSize();
  const QRect area = viewport()->geometry();
  below_->move(area.center().x() - below_->width() / 2,
               area.bottom() - below_->height() - kFromEdge);
}

QRect SpotView::PlaceOf(Number row) const {
  const int height = painter_.RowHeight();
  const int top = static_cast<int>(row - rows_.First()) * height - verticalScrollBar()->value();
  return {0, top, viewport()->width(), height};
}

std::optional<SpotView::Number> SpotView::RowAt(QPoint place) const {
  if (place.y() < paintedTop_) return std::nullopt;
  const Number row = paintedFirst_ + (place.y() - paintedTop_) / painter_.RowHeight();
  if (!rows_.Holds(row)) return std::nullopt;
  return row;
}

SpotView::Number SpotView::FirstInSight() const {
  return rows_.First() + verticalScrollBar()->value() / painter_.RowHeight();
}

int SpotView::RowsInSight() const {
  return std::max(viewport()->height() / painter_.RowHeight(), 1);
}

std::size_t SpotView::SpotsBehind(Number stars) const {
  const Number step = model_.table.Reversed() ? -1 : 1;
  std::size_t spots = 0;
  for (Number row = stars + step; rows_.Holds(row) && !rows_.Row(row).IsStars(); row += step)
    ++spots;
  return spots;
}

void SpotView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  PaintRows(painter, event->region());
  if (rows_.Rows().empty()) {
    painter.setFont(InterfaceFont());
    painter.setPen(colours_.dim);
    painter.drawText(viewport()->rect(), Qt::AlignCenter,
                     OneLine(model_.empty.Caption.Get(), kLongestShown));
  }
  if (!hasFocus()) return;
  painter.setPen(colours_.accent);
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void SpotView::PaintRows(QPainter& painter, const QRegion& region) {
  if (region == viewport()->rect()) drawnEnd_ = 0;
  paintedFirst_ = drawnFirst_ = FirstInSight();
  paintedTop_ = drawnTop_ = PlaceOf(paintedFirst_).top();
  for (Number row = paintedFirst_; row < rows_.End(); ++row) {
    const QRect place = PlaceOf(row);
    if (place.top() > viewport()->height()) break;
    if (!region.intersects(place)) continue;
    Reaches(row);
    const spots::TableRow& content = rows_.Row(row);
    painter_.Draw(painter,
                  {.row = content,
                   .top = place.top(),
                   .width = place.width(),
                   .scrolled = horizontalScrollBar()->value(),
                   .selected = IsChosen(row),
                   .spotsBehind = content.IsStars() ? SpotsBehind(row) : 0},
                  colours_);
  }
  const int bottom = std::max(PlaceOf(rows_.End()).top(), 0);
  painter.fillRect(0, bottom, viewport()->width(), viewport()->height() - bottom, colours_.ground);
}

void SpotView::showEvent(QShowEvent* event) {
  QAbstractScrollArea::showEvent(event);
  item_->Changed();
}

void SpotView::resizeEvent(QResizeEvent* event) {
  const bool atEnd = AtEnd();
  QAbstractScrollArea::resizeEvent(event);
  heads_->setGeometry(0, 0, viewport()->width(), SpotHeads::kHeight);
  SetRanges();
  if (atEnd && !NewestOnTop()) GoToEnd();
  PlaceBelow();
  model_.table.SetPaneRows(RowsInSight());
}

void SpotView::scrollContentsBy(int dx, int) {
  if (AtEnd()) CountBelow(0);
  if (dx != 0) heads_->Place(horizontalScrollBar()->value());
  if (!following_ || dx != 0) viewport()->update();
}

void SpotView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void SpotView::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  Release();  // whoever took the focus gets the button's release too
  viewport()->update();
}

}  // namespace ui
