// The rows of a list or combo box as an item model, read straight from the control.
#pragma once

#include <QAbstractListModel>
#include <QIcon>
#include <functional>
#include <string>

#include "platform/forms/controls.h"

namespace morlan {

class RowModel : public QAbstractListModel {
 public:
  explicit RowModel(const RowControl& rows, QObject* parent = nullptr) : QAbstractListModel(parent), rows_(rows) {}

  // Takes up the control's rows as they are now; until then the view shows as many as it knew of.
  void Reset();

  std::function<QIcon(const std::string& row)> iconOf;      // empty: no icons
  std::function<std::string(std::size_t row)> draggedPath;  // native path in UTF-8 of the file that a row stands for; empty: no dragging

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;

 private:
  const RowControl& rows_;
  int count_ = 0;
};

}  // namespace morlan
