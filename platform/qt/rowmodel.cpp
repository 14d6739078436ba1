#include "platform/qt/rowmodel.h"

#include <QMimeData>
#include <QUrl>

#include "platform/qt/qttext.h"

namespace morlan {

void RowModel::Reset() {
  beginResetModel();
  count_ = static_cast<int>(rows_.ListCount());
  endResetModel();
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if (!index.isValid() || row >= rows_.ListCount()) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole) return ToQt(rows_.List(row));
  if (role == Qt::DecorationRole && iconOf) return iconOf(rows_.List(row));
  return {};
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractListModel::flags(index) | Qt::ItemNeverHasChildren;
  return draggedPath && index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList RowModel::mimeTypes() const { return {QStringLiteral("text/uri-list")}; }

QMimeData* RowModel::mimeData(const QModelIndexList& indexes) const {
  if (indexes.isEmpty() || !draggedPath) return nullptr;
  const std::string path = draggedPath(static_cast<std::size_t>(indexes.front().row()));
  if (path.empty()) return nullptr;
  auto* data = new QMimeData;
  data->setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
  data->setData(QStringLiteral("application/x-morlan7-file"), QByteArray::fromStdString(path));
  return data;
}

}  // namespace morlan
