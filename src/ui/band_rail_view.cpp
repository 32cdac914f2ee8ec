#include "ui/band_rail_view.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <utility>

#include "program/dx_tab.h"
#include "ui/bind.h"
#include "ui/figures.h"
#include "ui/fonts.h"
#include "ui/glyph_tiles.h"
#include "ui/one_line.h"
#include "ui/printed_row.h"
#include "ui/spot_colours.h"

namespace ui {
namespace {

constexpr int kWidth = 156;  // for counts of five digits
constexpr int kRowHeight = 25;
constexpr int kBarLeft = 10;
constexpr QSize kBar(4, 11);
constexpr int kLabelLeft = 22;
constexpr int kTotalFromRight = 10;  // of the row, which a scroll bar makes narrower
constexpr int kUnseenFromRight = 60;
constexpr core::Position kLongest = 20;

QString TextOf(std::string_view bytes) { return OneLine(bytes, kLongest); }

QFont Bold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

// None is shown as a dash.
QString TotalText(const core::Label& total) {
  const std::string& digits = total.Caption.Get();
  return digits == "0" ? QStringLiteral("–") : Grouped(digits);
}

}  // namespace

class BandRailView::Painter : public QStyledItemDelegate {
 public:
  Painter(BandRailView& view, const core::Settings& settings, LiveTheme& theme)
      : QStyledItemDelegate(&view), view_(view), settings_(settings), theme_(theme) {
    const QFontMetrics metrics(plain_.Text().Font());
    baseline_ = (kRowHeight - metrics.height() + 1) / 2 + metrics.ascent();
  }

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {1, kRowHeight};  // as wide as the rail
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Theme& theme = theme_.Get();
    const QRect& row = option.rect;
    const int band = index.row();
    const bool chosen = band == view_.model_.SelectedBand();
    const Token ground = chosen ? Token::Selection : Token::Panel;
    const QRect bar(QPoint(row.left() + kBarLeft, row.center().y() - kBar.height() / 2), kBar);
    if (view_.painted_.intersects(bar)) {
      painter->fillRect(row.left(), row.top(), kLabelLeft, row.height(), theme[ground]);
      DrawBar(*painter, bar, band, theme);
    }
    PrintTexts(*painter, row.adjusted(kLabelLeft, 0, 0, 0), static_cast<std::size_t>(band), ground);
    if (!chosen || !view_.hasFocus()) return;
    painter->setBrush(Qt::NoBrush);  // that of the bar
    painter->setPen(theme[Token::Accent]);
    painter->drawRect(row.adjusted(0, 0, -1, -1));
  }

 private:
  void DrawBar(QPainter& painter, const QRect& bar, int band, const Theme& theme) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(BandColourOf(band, settings_, theme));
    painter.drawRoundedRect(bar, 2, 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
  }

  void PrintTexts(QPainter& painter, const QRect& place, std::size_t band, Token ground) const {
    const Theme& theme = theme_.Get();
    const core::Label& unseen = view_.model_.lblUnseen[band];
    const core::Label& total = view_.model_.lblTotal[band];
    const bool any = total.Caption.Get() != "0";
    const bool chosen = ground == Token::Selection;
    printed_.Begin(painter, place.size(), theme[ground]);
    const auto print = [&](GlyphTiles& glyphs, double left, Token ink, const QString& text) {
      printed_.Print(glyphs, {left, static_cast<double>(baseline_)}, text, theme[ink]);
    };
    const auto printBefore = [&](int fromRight, GlyphTiles& glyphs, Token ink,
                                 const QString& text) {
      print(glyphs, place.width() - fromRight - glyphs.Text().WidthOf(text), ink, text);
    };
    print(chosen ? bold_ : plain_, 0, any || chosen ? Token::Text : Token::DimText,
          TextOf(view_.model_.optBand.Options.Get()[band]));
    if (unseen.Visible.Get())
      printBefore(kUnseenFromRight, bold_, Token::Accent, Grouped(unseen.Caption.Get()));
    printBefore(kTotalFromRight, plain_, Token::DimText, TotalText(total));
    printed_.Show(painter, place.topLeft());
  }

  BandRailView& view_;
  const core::Settings& settings_;
  LiveTheme& theme_;
  // Painting draws the glyphs that it needs.
  mutable GlyphTiles plain_{InterfaceFont()};
  mutable GlyphTiles bold_{Bold(InterfaceFont())};
  mutable PrintedRow printed_;
  int baseline_;
};

// What it shows and what is spoken of it stand in the model: counts that change many times a second
// cost no more than their painting.
class BandRailView::Band : public QListWidgetItem {
  Q_DECLARE_TR_FUNCTIONS(ui::BandRailView)

 public:
  Band(const spots::BandRail& model, int band) : model_(model), band_(band) {}

  QVariant data(int role) const override {
    if (role == Qt::DisplayRole)
      return TextOf(model_.optBand.Options.Get()[static_cast<std::size_t>(band_)]);
    if (role == Qt::AccessibleTextRole) return Spoken();
    return QListWidgetItem::data(role);
  }

 private:
  QString Spoken() const {
    const auto place = static_cast<std::size_t>(band_);
    const std::string_view words = program::BandWords(band_);
    const QString name = words.empty() ? text() : TextOf(words);
    const core::Label& unseen = model_.lblUnseen[place];
    const QString unseenText =
        unseen.Visible.Get() ? tr("%1 unseen, ").arg(Grouped(unseen.Caption.Get())) : QString();
    return tr("%1, %2%3 in all")
        .arg(name, unseenText, Grouped(model_.lblTotal[place].Caption.Get()));
  }

  const spots::BandRail& model_;
  const int band_;
};

BandRailView::BandRailView(spots::BandRail& model, const core::Settings& settings, Frames& frames,
                           LiveTheme& theme, QWidget* parent)
    : QListWidget(parent), model_(model), theme_(theme) {
  setObjectName(QStringLiteral("BandRail"));
  setAccessibleName(tr("Bands of the spots"));
  setFixedWidth(kWidth);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  setItemDelegate(new Painter(*this, settings, theme));
  for (int band = 0; band < static_cast<int>(changed_.size()); ++band)
    addItem(new Band(model, band));
  Watch(frames);
  BindProperty<Theme>(this, theme, frames, [this](const Theme&) { viewport()->update(); });
  // What is chosen, not what is current: a screen reader chooses without going there.
  connect(this, &QListWidget::itemSelectionChanged, this, [this] {
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (!rows.isEmpty() && rows.front().row() != model_.SelectedBand())
      model_.optBand.UserSelects(rows.front().row());
  });
}

void BandRailView::Watch(Frames& frames) {
  item_ = frames.Add([this] { ShowCounts(); });
  for (std::size_t band = 0; band < changed_.size(); ++band) {
    const auto changed = [this, band](const auto&) {
      changed_[band] = true;
      if (isVisible()) item_->Changed();
    };
    watching_.push_back(model_.lblUnseen[band].Caption.Observe(changed));
    watching_.push_back(model_.lblUnseen[band].Visible.Observe(changed));
    watching_.push_back(model_.lblTotal[band].Caption.Observe(changed));
  }
  // Not with the next frame: the user looks at what he has chosen.
  watching_.push_back(model_.optBand.Selected.Observe([this](int band) { setCurrentRow(band); }));
}

// Qt asks the style for it anew each time.
QRect BandRailView::FirstRow() const {
  return {0, -verticalScrollBar()->value(), viewport()->width(), kRowHeight};
}

// The bars stay as they are.
void BandRailView::ShowCounts() {
  const QRect first = FirstRow().adjusted(kLabelLeft, 0, 0, 0);
  QRegion region;
  for (int band = 0; band < count(); ++band)
    if (std::exchange(changed_[static_cast<std::size_t>(band)], false))
      region |= first.translated(0, band * kRowHeight);
  viewport()->update(region);
}

// Qt would paint all from the first to the last that has changed.
void BandRailView::paintEvent(QPaintEvent* event) {
  painted_ = event->region();
  QPainter painter(viewport());
  QStyleOptionViewItem option;
  option.rect = FirstRow();
  for (int band = 0; band < count(); ++band, option.rect.translate(0, kRowHeight))
    if (painted_.intersects(option.rect))
      itemDelegate()->paint(&painter, option, indexFromItem(item(band)));
  painter.fillRect(0, option.rect.top(), viewport()->width(),
                   viewport()->height() - option.rect.top(), theme_.Get()[Token::Panel]);
}

}  // namespace ui
