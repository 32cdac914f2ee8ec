#include "ui/spot_heads.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <array>

#include "platform/qt/qt_text.h"
#include "ui/fonts.h"

namespace ui {
namespace {

using spots::Column;
using Press = spots::SpotTable::Press;

constexpr const char* kLastHourSays = QT_TR_NOOP("the last hour, each station once a band");
constexpr core::Position kLongestRow = 300;
constexpr int kBetween = 4;  // pixels at least, from a caption to the next head

struct Name {
  int button;
  const char* name;
};
constexpr std::array kNames = {Name{0, QT_TR_NOOP("Sort by frequency")},
                               Name{1, QT_TR_NOOP("Sort by time")},
                               Name{2, QT_TR_NOOP("Sort by DX call")},
                               Name{3, QT_TR_NOOP("Sort by spotter")},
                               Name{4, QT_TR_NOOP("Sort by node")},
                               Name{5, QT_TR_NOOP("Sort by DX country")},
                               Name{6, QT_TR_NOOP("Sort by DX state")},
                               Name{7, QT_TR_NOOP("Sort by DX CQ zone")},
                               Name{8, QT_TR_NOOP("Sort by DX ITU zone")},
                               Name{9, QT_TR_NOOP("Sort by DX grid")},
                               Name{10, QT_TR_NOOP("Sort by country of the spotter")},
                               Name{11, QT_TR_NOOP("Sort by state of the spotter")},
                               Name{12, QT_TR_NOOP("Sort by CQ zone of the spotter")},
                               Name{13, QT_TR_NOOP("Sort by ITU zone of the spotter")},
                               Name{14, QT_TR_NOOP("Sort by grid of the spotter")},
                               Name{15, QT_TR_NOOP("Sort by IP address of the spotter")},
                               Name{16, QT_TR_NOOP("Sort by bearing")},
                               Name{18, QT_TR_NOOP("Sort by distance")}};

// Columns that nothing is sorted by.
struct Plain {
  Column column;
  const char* caption;
  bool centred;
};
constexpr std::array kPlain = {Plain{Column::Comment, QT_TR_NOOP("Comment"), false},
                               Plain{Column::Day, QT_TR_NOOP("Day"), true}};

QString NameOf(int button) {
  const auto* found = std::find_if(kNames.begin(), kNames.end(),
                                   [button](const Name& each) { return each.button == button; });
  return found != kNames.end() ? SpotHeads::tr(found->name) : QString();
}

Press PressOf(Qt::MouseButton button) {
  if (button == Qt::MiddleButton) return Press::Middle;
  return button == Qt::RightButton ? Press::Right : Press::Left;
}

Press PressOf(Qt::KeyboardModifiers keys) {
  if (keys.testFlag(Qt::ShiftModifier)) return Press::Middle;
  return keys.testFlag(Qt::ControlModifier) ? Press::Right : Press::Left;
}

bool Presses(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

}  // namespace

class SpotHead : public QAbstractButton {
 public:
  SpotHead(const spots::SortButton& model, SpotHeads& heads)
      : QAbstractButton(&heads), model_(model), heads_(heads) {
    setAccessibleName(NameOf(model.button));
    setText(platform::qt::TextOf(model.caption));
    setToolTip(SpotHeads::tr("%1.  Middle button: from the end.  Right button: nothing left out.")
                   .arg(accessibleName()));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [this] { Do(Press::Left); });
  }

  const spots::SortButton& model() const { return model_; }
  bool IsActive() const { return heads_.table_.optSortBy.Get() == model_.button; }
  bool IsReversed() const { return IsActive() && heads_.table_.Reversed(); }

  // With the arrow of the order in force.
  QString Caption() const {
    if (!IsActive()) return text();
    const QString arrow = IsReversed() ? QStringLiteral("↑") : QStringLiteral("↓");
    const QString airy = text() + QLatin1Char(' ') + arrow;
    return WidthOf(airy) + kBetween <= heads_.RoomOf(model_) ? airy : text() + arrow;
  }
  QFont Font() const {
    QFont font = InterfaceFont();
    if (IsActive()) font.setWeight(QFont::DemiBold);
    return font;
  }
  int Width() const { return WidthOf(Caption()); }

  void Renew() {
    QStringList says;
    if (IsActive()) says << SpotHeads::tr("in force");
    if (model_.button == spots::kLastHour) says << SpotHeads::tr(kLastHourSays);
    if (IsReversed()) says << SpotHeads::tr("from the end");
    setAccessibleDescription(says.join(QStringLiteral(", ")));
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const SpotColours& colours = heads_.colours_;
    QPainter painter(this);
    painter.setFont(Font());
    painter.setPen(IsActive() || underMouse() ? colours.text : colours.dim);
    const int side = model_.atEnd ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(rect(), side | Qt::AlignVCenter, Caption());
    if (!hasFocus()) return;
    painter.setPen(colours.accent);
    painter.drawRect(rect().adjusted(0, 2, -1, -3));
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (Presses(event->key())) return Do(PressOf(event->modifiers()));
    switch (event->key()) {
      case Qt::Key_Left:
        return heads_.Go(this, -1);
      case Qt::Key_Right:
        return heads_.Go(this, 1);
      case Qt::Key_Down:
        return heads_.parentWidget()->setFocus(Qt::OtherFocusReason);
      default:
        event->ignore();
    }
  }
  void keyReleaseEvent(QKeyEvent* event) override { event->ignore(); }
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) return QAbstractButton::mousePressEvent(event);
    event->accept();
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) return QAbstractButton::mouseReleaseEvent(event);
    const bool here = rect().contains(event->position().toPoint());
    const bool counts = event->button() == Qt::MiddleButton || event->button() == Qt::RightButton;
    if (here && counts) Do(PressOf(event->button()));
  }
  void contextMenuEvent(QContextMenuEvent* event) override { event->accept(); }

 private:
  int WidthOf(const QString& words) const { return QFontMetrics(Font()).horizontalAdvance(words); }
  void Do(Press press) { heads_.Press(model_.button, press); }

  spots::SortButton model_;
  SpotHeads& heads_;
};

SpotHeads::SpotHeads(spots::SpotTable& table, spots::DisplayChoice& display,
                     const SpotPainter& painter, const SpotColours& colours, QWidget* parent)
    : QWidget(parent), table_(table), display_(display), painter_(painter), colours_(colours) {
  MakeHeads();
  following_.push_back(display.LaidOut.Add([this] { MakeHeads(); }));
  following_.push_back(table.optSortBy.Observe([this](int) { Renew(); }));
}

void SpotHeads::MakeHeads() {
  for (SpotHead* head : heads_) {
    head->hide();
    head->deleteLater();
  }
  heads_.clear();
  for (const spots::SortButton& button : spots::OptDisplayPositions(display_.Layout())) {
    auto* head = new SpotHead(button, *this);
    heads_.push_back(head);
    head->show();
  }
  if (!heads_.empty()) LetTabReach(heads_.front());
  Renew();
}

void SpotHeads::Renew() {
  for (SpotHead* head : heads_) head->Renew();
  Place(scrolled_);
}

// A caption may be wider than its column.
void SpotHeads::Place(int scrolled) {
  scrolled_ = scrolled;
  int free = 0;
  for (SpotHead* head : heads_) {
    const int start = painter_.ColumnAt(head->model().column - 1) - scrolled;
    const int end = painter_.ColumnAt(head->model().column - 1 + head->model().width) - scrolled;
    const int width = head->Width();
    const int left = head->model().atEnd ? std::max(std::min(start, end - width), free) : start;
    const int right = std::max(end, left + width);
    head->setGeometry(left, 0, right - left, height() - 1);
    free = (head->model().atEnd ? right : left + width) + kBetween;
    if (head->IsActive()) head->raise();
  }
  update();
}

// A caption at the end of its column grows to the left, over the gap between the two.
int SpotHeads::RoomOf(const spots::SortButton& button) const {
  if (button.atEnd) return painter_.WidthOf(button.width + 1) + kBetween;
  core::Position next = button.column + kLongestRow;
  const auto isNext = [&](core::Position column) {
    if (column > button.column) next = std::min(next, column);
  };
  for (const SpotHead* head : heads_) isNext(head->model().column);
  for (const Plain& plain : kPlain)
    if (display_.Layout().Shows(plain.column)) isNext(display_.Layout().Start(plain.column));
  return painter_.WidthOf(next - button.column);
}

void SpotHeads::Press(int button, spots::SpotTable::Press press) {
  table_.SortBy(button, press);
  Renew();
}

void SpotHeads::Go(const SpotHead* from, int steps) {
  const auto at = static_cast<int>(std::find(heads_.begin(), heads_.end(), from) - heads_.begin());
  const int to = std::clamp(at + steps, 0, static_cast<int>(heads_.size()) - 1);
  LetTabReach(heads_[static_cast<std::size_t>(to)]);
  heads_[static_cast<std::size_t>(to)]->setFocus(Qt::TabFocusReason);
}

void SpotHeads::LetTabReach(SpotHead* head) {
  for (SpotHead* each : heads_) each->setFocusPolicy(Qt::NoFocus);
  head->setFocusPolicy(Qt::TabFocus);
  setTabOrder(parentWidget(), head);
}

void SpotHeads::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), colours_.ground);
  painter.fillRect(0, height() - 1, width(), 1, colours_.line);
  painter.setFont(InterfaceFont());
  painter.setPen(colours_.dim);
  for (const Plain& plain : kPlain) {
    const spots::RowLayout& layout = display_.Layout();
    if (!layout.Shows(plain.column)) continue;
    const QString caption = tr(plain.caption);
    int left = painter_.ColumnAt(layout.Start(plain.column) - 1);
    if (plain.centred)
      left += (painter_.WidthOf(layout.Width(plain.column)) -
               painter.fontMetrics().horizontalAdvance(caption)) /
              2;
    painter.drawText(QRect(left - scrolled_, 0, width(), height() - 1),
                     Qt::AlignLeft | Qt::AlignVCenter, caption);
  }
}

void SpotHeads::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Place(scrolled_);
}

}  // namespace ui
