#include "ui/key_list.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/form.h"
#include "ui/key_table.h"

namespace ui {
namespace {

constexpr QSize kUsualSize(600, 640);
constexpr int kKeyWidth = 208;
constexpr int kMargin = 8;
constexpr int kRowHeight = 28;
constexpr int kHeadingHeight = 44;
constexpr int kLeft = 16;
constexpr int kBetweenCaps = 4;
constexpr QSize kAroundCap(6, 3);
constexpr int kCorner = 4;
constexpr int kKeysRole = Qt::UserRole;

// Draws each key as a cap, and a heading with room above it.
class CapPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
    return {1, index.parent().isValid() ? kRowHeight : kHeadingHeight};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected))
      painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
    painter->setPen(option.palette.color(QPalette::Text));
    const QStringList keys = index.data(kKeysRole).toStringList();
    if (!keys.isEmpty())
      DrawCaps(*painter, option, keys);
    else
      DrawWords(*painter, option, index);
    painter->restore();
  }

 private:
  static void DrawWords(QPainter& painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) {
    const bool heading = !index.parent().isValid();
    QFont font = option.font;
    if (heading) font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    const int left = index.column() == 0 ? kLeft : 0;
    const QRect room = heading ? option.rect.adjusted(left, kMargin * 2, 0, 0)
                               : option.rect.adjusted(left, 0, 0, 0);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, index.data().toString());
  }

  static void DrawCaps(QPainter& painter, const QStyleOptionViewItem& option,
                       const QStringList& keys) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(option.font);
    int left = option.rect.left() + kLeft;
    for (const QString& key : keys) {
      const QSize size(option.fontMetrics.horizontalAdvance(key) + 2 * kAroundCap.width(),
                       option.fontMetrics.height() + 2 * kAroundCap.height());
      const QRect cap(QPoint(left, option.rect.center().y() + 1 - size.height() / 2), size);
      painter.setPen(option.palette.color(QPalette::Mid));
      painter.setBrush(option.palette.color(QPalette::Window));
      painter.drawRoundedRect(QRectF(cap).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
      painter.setPen(option.palette.color(QPalette::Text));
      painter.drawText(cap, Qt::AlignCenter, key);
      left += size.width() + kBetweenCaps;
    }
  }
};

void Fill(QTreeWidget& list) {
  for (const KeyPlace& place : KeyTable()) {
    auto* heading = new QTreeWidgetItem(&list, QStringList{place.heading});
    heading->setFlags(Qt::ItemIsEnabled);
    heading->setFirstColumnSpanned(true);
    for (const KeyPlace::Row& row : place.rows) {
      auto* item =
          new QTreeWidgetItem(heading, QStringList{row.keys.join(QStringLiteral(", ")), row.says});
      item->setData(0, kKeysRole, row.keys);
    }
  }
}

}  // namespace

KeyList::KeyList(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Keys"));
  resize(kUsualSize);
  auto* list = new QTreeWidget(this);
  list->setAccessibleName(tr("Keys and what they do"));
  list->setColumnCount(2);
  list->setHeaderLabels({tr("Key"), tr("What it does")});
  list->setHeaderHidden(true);
  list->setRootIsDecorated(false);
  list->setItemsExpandable(false);
  list->setIndentation(0);
  list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  list->setItemDelegate(new CapPainter(list));
  Fill(*list);
  list->expandAll();
  list->setColumnWidth(0, kKeyWidth);
  list->setCurrentItem(list->topLevelItem(0)->child(0));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(list);
  AddCloseButton(column, this, QStringLiteral("C"))
      ->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
}

}  // namespace ui
