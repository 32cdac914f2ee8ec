#pragma once

#include <QAbstractTableModel>

#include "session/node_form.h"

namespace ui {

// The nodes that fit the search of frmNode, as a table.
class NodeRows : public QAbstractTableModel {
 public:
  enum Column { kCall, kHost, kPort, kInfo, kColumns };

  // Both outlive it.
  NodeRows(const session::NodeForm& form, const session::NodeDirectory& directory, QObject* parent);

  // The entries of the form have changed.
  void Renew();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int column, Qt::Orientation side, int role) const override;

 private:
  const session::NodeForm& form_;
  const session::NodeDirectory& directory_;
  int rows_ = 0;
};

}  // namespace ui
