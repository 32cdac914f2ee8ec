#include "ui/tab_order.h"

#include <vector>

namespace ui {
namespace {

// The places in the part, in the order that the window has.
void AddPlaces(const QWidget& window, const QWidget& part, std::vector<QWidget*>& places) {
  for (QWidget* each = window.nextInFocusChain(); each != &window; each = each->nextInFocusChain())
    if ((each == &part || part.isAncestorOf(each)) && each->focusPolicy() != Qt::NoFocus)
      places.push_back(each);
}

}  // namespace

void OrderParts(QWidget* window, std::initializer_list<const QWidget*> parts) {
  std::vector<QWidget*> places;
  for (const QWidget* part : parts) AddPlaces(*window, *part, places);
  for (std::size_t i = 1; i < places.size(); ++i) QWidget::setTabOrder(places[i - 1], places[i]);
}

}  // namespace ui
