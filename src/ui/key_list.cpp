#include "ui/key_list.h"

#include <QHeaderView>
#include <QKeySequence>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/commands.h"
#include "ui/form.h"

namespace ui {
namespace {

constexpr QSize kUsualSize(480, 560);
constexpr int kKeyWidth = 130;
constexpr int kMargin = 8;

QString Spelled(const Command& command) {
  QStringList names;
  for (const QKeySequence& each : QKeySequence::listFromString(QString::fromLatin1(command.keys)))
    names << each.toString(QKeySequence::NativeText);
  return names.join(QStringLiteral(",  "));
}

}  // namespace

KeyList::KeyList(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Keys"));
  resize(kUsualSize);
  auto* list = new QTreeWidget(this);
  list->setAccessibleName(tr("Keys and what they do"));
  list->setColumnCount(2);
  list->setHeaderLabels({tr("Key"), tr("What it does")});
  list->setRootIsDecorated(false);
  list->setIndentation(0);
  list->setUniformRowHeights(true);
  for (const Command& command : Commands())
    if (command.HasKey())
      list->addTopLevelItem(new QTreeWidgetItem(QStringList{Spelled(command), tr(command.says)}));
  list->setCurrentItem(list->topLevelItem(0));
  list->setColumnWidth(0, kKeyWidth);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(list);
  AddCloseButton(column, this)->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
}

}  // namespace ui
