#pragma once

#include <QDialog>

namespace ui {

// All keys of the window. Opened without holding anything up.
class KeyList : public QDialog {
 public:
  explicit KeyList(QWidget* parent);
};

}  // namespace ui
