#include "ui/node_rows.h"

#include <array>

#include "session/built_in_nodes.h"
#include "ui/one_line.h"

namespace ui {
namespace {

using session::NodeDirectory;

constexpr core::Position kLongestNodeText = 100;

struct NodeColumn {
  const char* heading;
  const std::vector<std::string>& (NodeDirectory::*texts)() const;
};
constexpr std::array<NodeColumn, NodeRows::kColumns> kNodeColumns = {{
    {QT_TR_NOOP("Call"), &NodeDirectory::NodeCalls},
    {QT_TR_NOOP("Host"), &NodeDirectory::NodeHosts},
    {QT_TR_NOOP("Port"), &NodeDirectory::NodePorts},
    {QT_TR_NOOP("Info"), &NodeDirectory::NodeInfo},
}};

const NodeColumn& ColumnAt(int column) { return kNodeColumns[static_cast<std::size_t>(column)]; }

}  // namespace

NodeRows::NodeRows(const session::NodeForm& form, const NodeDirectory& directory, QObject* parent)
    : QAbstractTableModel(parent), form_(form), directory_(directory) {}

void NodeRows::Renew() {
  beginResetModel();
  rows_ = static_cast<int>(form_.cboNode.Options.Get().size());
  endResetModel();
}

int NodeRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int NodeRows::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

// Until it is renewed a table may be longer than the entries that are left.
QVariant NodeRows::data(const QModelIndex& index, int role) const {
  if (role == Qt::TextAlignmentRole && index.column() == kPort)
    return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
  const auto place = form_.PlaceOf(index.row());
  if (role != Qt::DisplayRole || !place) return {};
  const std::string& text = (directory_.*ColumnAt(index.column()).texts)()[*place];
  const bool practice = directory_.NodeCalls()[*place] == session::kPracticeNode.call;
  if (practice && index.column() == kInfo && text.empty()) return tr("practice node");
  return OneLine(text, kLongestNodeText);
}

QVariant NodeRows::headerData(int column, Qt::Orientation side, int role) const {
  if (side != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole && column == kPort)
    return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
  if (role != Qt::DisplayRole) return {};
  return tr(ColumnAt(column).heading);
}

}  // namespace ui
