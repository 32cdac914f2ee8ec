#include "ui/fix_rows.h"

#include "ui/one_line.h"

namespace ui {
namespace {

constexpr core::Position kLongest = 40;

bool IsField(int column) { return column >= FixRows::kFirstField && column < FixRows::kApplied; }

std::size_t FieldAt(int column) { return static_cast<std::size_t>(column - FixRows::kFirstField); }

bool IsChanged(const spots::FixEntry& entry, std::size_t field) {
  return (entry.changed >> field & 1) != 0;
}

QString Caption(const spots::FixForm& form, std::size_t field) {
  return OneLine(form.chkFix[field].Caption.Get(), kLongest);
}

QString AppliedFields(const spots::FixForm& form, const spots::FixEntry& entry) {
  QStringList words;
  for (std::size_t field = 0; field < spots::kFixFields; ++field)
    if (IsChanged(entry, field)) words << Caption(form, field);
  return words.join(QStringLiteral(", "));
}

QString TextAt(const spots::FixForm& form, const spots::FixEntry& entry, int column) {
  if (column == FixRows::kCall) return OneLine(entry.FixCall, kLongest);
  return IsField(column) ? OneLine(entry.fields[FieldAt(column)], kLongest)
                         : AppliedFields(form, entry);
}

}  // namespace

FixRows::FixRows(const spots::FixForm& form, const LiveTheme& theme, QObject* parent)
    : QAbstractTableModel(parent), form_(form), theme_(theme) {}

void FixRows::Renew() {
  beginResetModel();
  rows_ = static_cast<int>(form_.cboCall.Options.Get().size());
  endResetModel();
}

int FixRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int FixRows::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant FixRows::data(const QModelIndex& index, int role) const {
  const spots::FixEntry* entry = form_.EntryOf(index.row());
  if (entry == nullptr) return {};
  const int column = index.column();
  if (role == Qt::DisplayRole) return TextAt(form_, *entry, column);
  const bool red = column == kApplied || (IsField(column) && IsChanged(*entry, FieldAt(column)));
  if (role == Qt::ForegroundRole && red) return theme_.Get()[Token::Bad];
  return {};
}

QVariant FixRows::headerData(int column, Qt::Orientation side, int role) const {
  if (role != Qt::DisplayRole || side != Qt::Horizontal) return {};
  if (column == kCall) return tr("Call");
  return IsField(column) ? Caption(form_, FieldAt(column)) : tr("Applied in this run");
}

}  // namespace ui
