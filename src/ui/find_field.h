#pragma once

#include <QLineEdit>
#include <functional>

#include "ui/searchable.h"

namespace ui {

// Where the text to be found is typed. It is found while typing; Return goes to the next place,
// Shift+Return to the one before.
class FindField : public QLineEdit {
 public:
  // `searched` outlives the field's use. `told` is called with each try: whether it was found.
  FindField(Searchable& searched, std::function<void(bool found)> told, QWidget* parent);

  void Find(Searchable::Way way);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Searchable& searched_;
  std::function<void(bool found)> told_;
};

}  // namespace ui
