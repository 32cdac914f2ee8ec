#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace ui {

// What the keys of one place of the window do, in the order in which they are looked for.
struct KeyPlace {
  struct Row {
    QStringList keys;  // any of them does it
    QString says;
  };
  QString heading;
  std::vector<Row> rows;
};

// All keys that do something, where they do it.
std::vector<KeyPlace> KeyTable();

}  // namespace ui
