#include "ui/colour_list.h"

#include <QCoreApplication>
#include <QPainter>
#include <QStyledItemDelegate>

#include "ui/bind.h"
#include "ui/fonts.h"
#include "ui/surface.h"

namespace ui {
namespace {

using program::ColourKey;
using program::ColourValues;

constexpr int kRowHeight = 28;
constexpr QSize kSample(64, 20);
constexpr int kSampleLeft = 8;
constexpr int kWordsLeft = 84;
constexpr int kFromRight = 12;
constexpr int kCorner = 4;

ColourKey KeyAt(int row) { return static_cast<ColourKey>(row); }

}  // namespace

class ColourList::Painter : public QStyledItemDelegate {
 public:
  Painter(ColourList& list, LiveTheme& theme)
      : QStyledItemDelegate(&list), list_(list), theme_(theme) {}

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {1, kRowHeight};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Theme& theme = theme_.Get();
    painter->save();
    painter->setFont(InterfaceFont());
    if (option.state.testFlag(QStyle::State_Selected))
      painter->fillRect(option.rect, theme[Token::Selection]);
    DrawSample(*painter, option.rect, KeyAt(index.row()));
    painter->setPen(theme[Token::Text]);
    const QRect words = option.rect.adjusted(kWordsLeft, 0, -kFromRight, 0);
    painter->drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                      index.data(Qt::DisplayRole).toString());
    DrawWhose(*painter, words, KeyAt(index.row()));
    painter->restore();
  }

 private:
  void DrawSample(QPainter& painter, const QRect& row, ColourKey key) const {
    const Theme& theme = theme_.Get();
    const Sample sample = SampleOf(key, list_.model_.OnShow.Get(), theme);
    const QRect place(QPoint(row.left() + kSampleLeft, row.center().y() + 1 - kSample.height() / 2),
                      kSample);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme[Token::DimText]);
    painter.setBrush(sample.ground);
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
    painter.setPen(sample.text);
    painter.drawText(place, Qt::AlignCenter, ColourList::tr("Sample"));
  }

  // His own colour is told by its number, whatever it looks like.
  void DrawWhose(QPainter& painter, const QRect& row, ColourKey key) const {
    const core::Colour stored = list_.model_.OnShow.Get()[key];
    if (program::FollowsTheme(key, stored)) return;
    painter.setFont(FixedFont());
    painter.setPen(theme_.Get()[Token::DimText]);
    painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, AsStored(stored).name().toUpper());
  }

  ColourList& list_;
  LiveTheme& theme_;
};

// What it says stands in the model.
class ColourList::Entry : public QListWidgetItem {
  Q_DECLARE_TR_FUNCTIONS(ui::ColourList)

 public:
  Entry(const program::ColourForm& model, ColourKey key) : model_(model), key_(key) {}

  QVariant data(int role) const override {
    if (role == Qt::DisplayRole) return tr(program::RowOf(key_).words);
    if (role == Qt::AccessibleTextRole) return Spoken();
    return QListWidgetItem::data(role);
  }

 private:
  QString Spoken() const {
    const core::Colour stored = model_.OnShow.Get()[key_];
    const QString words = tr(program::RowOf(key_).words);
    if (program::FollowsTheme(key_, stored)) return tr("%1, as the theme has it").arg(words);
    return tr("%1, your own, %2").arg(words, AsStored(stored).name().toUpper());
  }

  const program::ColourForm& model_;
  const ColourKey key_;
};

ColourList::ColourList(program::ColourForm& model, Frames& frames, LiveTheme& theme,
                       QWidget* parent)
    : QListWidget(parent), model_(model) {
  setAccessibleName(tr("Colours"));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setItemDelegate(new Painter(*this, theme));
  for (const program::ColourRow& row : program::kColourTable) addItem(new Entry(model, row.key));
  Follow(frames, theme);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0 && row != model_.optColour.Selected.Get()) model_.optColour.UserSelects(row);
  });
  connect(this, &QListWidget::itemActivated, this, [this] { model_.cmdChoose.Press(); });
}

void ColourList::Follow(Frames& frames, LiveTheme& theme) {
  const auto repaint = [this](const auto&) { viewport()->update(); };
  BindProperty<int>(this, model_.optColour.Selected, frames,
                    [this](int row) { setCurrentRow(row); });
  BindProperty<ColourValues>(this, model_.OnShow, frames, repaint);
  BindProperty<Theme>(this, theme, frames, repaint);
}

ColourList::Sample ColourList::SampleOf(ColourKey key, const ColourValues& values,
                                        const Theme& theme) {
  const bool isText = program::RowOf(key).kind == program::ColourKind::Text;
  const bool isRaw = key == ColourKey::Raw || key == ColourKey::RawText;
  if (isText && !isRaw) return {theme[Token::Panel], theme.Of(key, values[key])};
  const ColourKey ground = isRaw ? ColourKey::Raw : key;
  const Surface surface(ground, values[ground], theme);
  const core::Colour rawText = values[ColourKey::RawText];
  if (isRaw && !program::FollowsTheme(ColourKey::RawText, rawText))
    return {surface.Ground(), theme.Of(ColourKey::RawText, rawText)};
  return {surface.Ground(), surface[Token::Text]};
}

double ColourList::ContrastOf(ColourKey key, const ColourValues& values, const Theme& theme) {
  const Sample sample = SampleOf(key, values, theme);
  return Contrast(sample.ground, sample.text);
}

}  // namespace ui
