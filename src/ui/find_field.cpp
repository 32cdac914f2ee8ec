#include "ui/find_field.h"

#include <QKeyEvent>
#include <utility>

namespace ui {

FindField::FindField(Searchable& searched, std::function<void(bool found)> told, QWidget* parent)
    : QLineEdit(parent), searched_(searched), told_(std::move(told)) {
  connect(this, &QLineEdit::textChanged, this, [this] { Find(Searchable::Way::Here); });
}

void FindField::Find(Searchable::Way way) {
  told_(text().isEmpty() || searched_.Find(text(), way));
}

void FindField::keyPressEvent(QKeyEvent* event) {
  const bool goesOn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!goesOn) return QLineEdit::keyPressEvent(event);
  Find(event->modifiers().testFlag(Qt::ShiftModifier) ? Searchable::Way::Previous
                                                      : Searchable::Way::Next);
}

}  // namespace ui
