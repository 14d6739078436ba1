// Tables of cells.
#include <QAbstractTableModel>
#include <QHeaderView>
#include <QTableView>

#include "platform/qt/bindings.h"
#include "platform/qt/deferred.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(Grid& grid) : grid_(grid) {}

  void Reset() {
    beginResetModel();
    rows_ = grid_.RowCount();
    columns_ = grid_.Columns();
    endResetModel();
  }
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return ToQt(grid_.Cell(index.column(), index.row()));
  }
  bool setData(const QModelIndex& index, const QVariant& value, int role) override {
    if (role != Qt::EditRole) return false;
    grid_.SetCurrent(index.column(), index.row());
    grid_.UserSetsCell(FromQt(value.toString()));
    return true;
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return grid_.Editable ? flags | Qt::ItemIsEditable : flags;
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole) return {};
    const auto index = static_cast<std::size_t>(section);
    if (orientation == Qt::Horizontal && index < grid_.ColumnTitles.size()) return ToQt(grid_.ColumnTitles[index]);
    return section + 1;
  }

 private:
  Grid& grid_;
  int rows_ = 0, columns_ = 0;
};

class GridBinding : public ControlBinding {
 public:
  GridBinding(Grid& grid, QTableView* widget) : ControlBinding(grid, widget), grid_(grid), widget_(widget), model_(grid) {
    widget->setModel(&model_);
    widget->setSelectionMode(QAbstractItemView::SingleSelection);
    widget->setTabKeyNavigation(false);
    widget->verticalHeader()->setVisible(false);
    widget->horizontalHeader()->setVisible(!grid.ColumnTitles.empty());
    widget->horizontalHeader()->setStretchLastSection(true);
    connect(widget->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
      const bool moved = current.isValid() && (current.column() != grid_.Column() || current.row() != grid_.Row());
      if (!showing_ && moved) grid_.UserSelectsCell(current.column(), current.row());
    });
    connect(widget, &QTableView::clicked, this, [this](const QModelIndex&) { grid_.UserClicks(); });
    connect(widget, &QTableView::doubleClicked, this, [this](const QModelIndex&) { grid_.UserDblClicks(); });
    Synchronise();
  }
  void Update(Aspect) override { synchronise_.Ask(); }

 private:
  void Synchronise() {
    showing_ = true;
    if (model_.rowCount() != grid_.RowCount() || model_.columnCount() != grid_.Columns()) model_.Reset();
    widget_->setCurrentIndex(model_.index(grid_.Row(), grid_.Column()));
    widget_->viewport()->update();
    showing_ = false;
  }

  Grid& grid_;
  QTableView* widget_;
  GridModel model_;
  Deferred synchronise_{[this] { Synchronise(); }};
  bool showing_ = false;
};

}  // namespace

std::unique_ptr<ControlBinding> BindGrid(Grid& grid, BindingContext& context) {
  return std::make_unique<GridBinding>(grid, new QTableView(context.parent));
}

}  // namespace morlan
