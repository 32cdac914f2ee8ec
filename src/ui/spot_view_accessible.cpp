#include "ui/spot_view_accessible.h"

#include <QAccessibleWidget>
#include <QHash>

#include "ui/spot_view.h"
#include "ui/spot_words.h"

namespace ui {
namespace {

using Number = SpotView::Number;

// One row. It may outlive its row, and says so then.
class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleRow(SpotView& view, Number row) : view_(view), row_(row) {}

  bool isValid() const override { return view_.Rows().Holds(row_); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return parent()->window(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&view_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  int Index() const { return static_cast<int>(row_ - view_.Rows().First()); }

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    const spots::TableRow& row = view_.Rows().Row(row_);
    if (kind == QAccessible::Name)
      return row.IsStars() ? NewSince(row, view_.SpotsBehind(row_)) : SpokenRow(row);
    return kind == QAccessible::Description && !row.IsStars() ? SpokenRest(row) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}

  // Pressing a row is pressing its call.
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (isValid() && action == pressAction()) view_.PressCall(row_, Qt::NoModifier);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

  QRect rect() const override {
    const QRect place = view_.PlaceOf(row_);
    return {view_.viewport()->mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.selectable = true;
    state.focusable = true;
    state.readOnly = true;
    state.selected = view_.IsChosen(row_);
    state.focused = view_.hasFocus() && view_.Current() == row_;
    state.offscreen = !view_.viewport()->rect().intersects(view_.PlaceOf(row_));
    state.invalid = !isValid();
    return state;
  }

 private:
  SpotView& view_;
  Number row_;
};

// The rows from the top, and behind them the heads of their columns.
class AccessibleView : public QAccessibleWidget {
 public:
  explicit AccessibleView(SpotView& view) : QAccessibleWidget(&view, QAccessible::List) {}
  ~AccessibleView() override {
    for (const QAccessible::Id id : std::as_const(rows_))
      QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return RowCount() + 1; }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index > RowCount()) return nullptr;
    return index == RowCount() ? Heads() : Row(View().Rows().First() + index);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    if (child->object() == View().Heads()) return RowCount();
    const auto* row = dynamic_cast<const AccessibleRow*>(child);
    return row != nullptr && row->isValid() ? row->Index() : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    if (Heads()->rect().contains(x, y)) return Heads();
    const auto row = View().RowAt(View().viewport()->mapFromGlobal(QPoint(x, y)));
    return row ? Row(*row) : nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    return View().Current() ? Row(*View().Current()) : nullptr;
  }

 private:
  SpotView& View() const { return *static_cast<SpotView*>(widget()); }
  int RowCount() const { return static_cast<int>(View().Rows().Rows().size()); }
  QAccessibleInterface* Heads() const {
    return QAccessible::queryAccessibleInterface(View().Heads());
  }

  // Made when it is asked for, and kept until its row has gone.
  QAccessibleInterface* Row(Number row) const {
    Forget();
    auto found = rows_.find(row);
    if (found == rows_.end())
      found = rows_.insert(
          row, QAccessible::registerAccessibleInterface(new AccessibleRow(View(), row)));
    return QAccessible::accessibleInterface(*found);
  }
  void Forget() const {
    const Number first = View().Rows().First();
    if (first == forgottenBefore_) return;
    forgottenBefore_ = first;
    for (auto each = rows_.begin(); each != rows_.end();) {
      if (each.key() >= first) {
        ++each;
        continue;
      }
      QAccessible::deleteAccessibleInterface(*each);
      each = rows_.erase(each);
    }
  }

  mutable QHash<Number, QAccessible::Id> rows_;
  mutable Number forgottenBefore_ = 0;
};

QAccessibleInterface* Make(const QString&, QObject* object) {
  auto* view = qobject_cast<SpotView*>(object);
  return view != nullptr ? new AccessibleView(*view) : nullptr;
}

}  // namespace

void MakeSpotViewsAccessible() { QAccessible::installFactory(Make); }

}  // namespace ui
