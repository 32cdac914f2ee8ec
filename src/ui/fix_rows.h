#pragma once

#include <QAbstractTableModel>

#include "spots/fix_form.h"
#include "ui/theme.h"

namespace ui {

// The rows of frmFixSpot as a table. The fields that have been put into a spot in this run are in
// red, and the last column names them.
class FixRows : public QAbstractTableModel {
 public:
  enum Column { kCall, kFirstField, kApplied = kFirstField + spots::kFixFields, kColumns };

  // Both outlive it.
  FixRows(const spots::FixForm& form, const LiveTheme& theme, QObject* parent);

  // The rows of the form have changed.
  void Renew();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int column, Qt::Orientation side, int role) const override;

 private:
  const spots::FixForm& form_;
  const LiveTheme& theme_;
  int rows_ = 0;
};

}  // namespace ui
