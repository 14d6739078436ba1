// Lists and combo boxes.
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "platform/qt/bindings.h"
#include "platform/qt/deferred.h"
#include "platform/qt/formgeometry.h"
#include "platform/qt/qttext.h"
#include "platform/qt/rowmodel.h"

namespace morlan {
namespace {

constexpr int kRowRoom = 4, kWidestInCharacters = 60;

// Rows with some air between them.
class RoomyRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowRoom);
  }
};

// As wide as its rows, within reason.
class RoomyList : public QListView {
 public:
  using QListView::QListView;
  QSize sizeHint() const override {
    const int rows = sizeHintForColumn(0) + verticalScrollBar()->sizeHint().width() + 2 * frameWidth() + kRowRoom;
    const int most = fontMetrics().averageCharWidth() * kWidestInCharacters;
    return {std::max(minimumWidth(), std::min(rows, most)), minimumHeight()};
  }
};

class ListBinding : public ControlBinding {
 public:
  ListBinding(ListBox& list, QListView* widget) : ControlBinding(list, widget), list_(list), widget_(widget), model_(list) {
    widget->setModel(&model_);
    widget->setUniformItemSizes(true);
    widget->setItemDelegate(new RoomyRows(widget));
    widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget->setSelectionMode(list.IsMultiple() ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    widget->setMinimumHeight((widget->fontMetrics().lineSpacing() + kRowRoom) * list.HeightInRows + 8);
    widget->setMinimumWidth(widget->fontMetrics().averageCharWidth() * 20);
    connect(widget->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& on, const QItemSelection& off) { UserSelected(on, off); });
    connect(widget, &QListView::clicked, this, [this](const QModelIndex&) {
      if (!selectedByThisClick_) list_.UserClicks();
      selectedByThisClick_ = false;
    });
    connect(widget, &QListView::doubleClicked, this, [this](const QModelIndex&) { list_.UserDblClicks(); });
    widget->viewport()->installEventFilter(this);
    rowsChanged_ = true;
    Synchronise();
  }

  void Update(Aspect aspect) override {
    rowsChanged_ |= aspect == Aspect::Rows;
    if (!telling_ || rowsChanged_) synchronise_.Ask();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress) selectedByThisClick_ = false;
    if (watched == widget_ && event->type() == QEvent::KeyPress && ActivatedBy(*static_cast<QKeyEvent*>(event))) return true;
    return ControlBinding::eventFilter(watched, event);
  }

 private:
  // Enter does what a double click does.
  bool ActivatedBy(const QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!enter || !list_.OnDblClick || list_.ListIndex() < 0) return false;
    list_.UserDblClicks();
    return true;
  }

  void UserSelected(const QItemSelection& on, const QItemSelection& off) {
    if (showing_) return;
    telling_ = true;
    selectedByThisClick_ = true;
    if (list_.IsMultiple()) {
      for (const QModelIndex& index : off.indexes()) list_.UserSelectsInMultiple(static_cast<std::size_t>(index.row()), false);
      for (const QModelIndex& index : on.indexes()) list_.UserSelectsInMultiple(static_cast<std::size_t>(index.row()), true);
    } else if (!on.isEmpty()) {
      list_.UserSelects(on.indexes().front().row());
    }
    telling_ = false;
  }

  void Synchronise() {
    showing_ = true;
    if (rowsChanged_) model_.Reset();
    rowsChanged_ = false;
    QItemSelectionModel* selection = widget_->selectionModel();
    if (list_.IsMultiple()) {
      for (int row = 0; row < model_.rowCount(); ++row)
        selection->select(model_.index(row),
                          list_.Selected(static_cast<std::size_t>(row)) ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
    } else if (list_.ListIndex() >= 0) {
      widget_->setCurrentIndex(model_.index(list_.ListIndex()));
      widget_->scrollTo(model_.index(list_.ListIndex()));
    } else {
      selection->clearSelection();
    }
    showing_ = false;
  }

  ListBox& list_;
  QListView* widget_;
  RowModel model_;
  Deferred synchronise_{[this] { Synchronise(); }};
  bool rowsChanged_ = false, showing_ = false, telling_ = false, selectedByThisClick_ = false;
};

class ComboBinding : public ControlBinding {
 public:
  ComboBinding(ComboBox& box, QComboBox* widget) : ControlBinding(box, widget), box_(box), widget_(widget), model_(box) {
    widget->setEditable(box.IsEditable());
    widget->setModel(&model_);
    widget->setInsertPolicy(QComboBox::NoInsert);
    widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    widget->setMinimumContentsLength(box.WidthInCharacters);
    if (IsNarrow(box)) widget->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    widget->setMaxVisibleItems(20);
    widget->setItemDelegate(new RoomyRows(widget));
    if (box.IsEditable()) {
      widget->setCompleter(nullptr);
      connect(widget->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { box_.UserSets(FromQt(text)); });
    }
    connect(widget, &QComboBox::activated, this, [this](int row) { box_.UserSelects(row); });
    rowsChanged_ = true;
    Synchronise();
  }

  void Update(Aspect aspect) override {
    rowsChanged_ |= aspect == Aspect::Rows;
    synchronise_.Ask();
  }

 private:
  void Synchronise() {
    const QSignalBlocker quiet(widget_);
    if (rowsChanged_) model_.Reset();
    const QString text = ToQt(box_.Text());
    if (widget_->currentIndex() != box_.ListIndex() || rowsChanged_) widget_->setCurrentIndex(box_.ListIndex());
    if (box_.IsEditable() && (widget_->currentText() != text || rowsChanged_)) {
      const int caret = widget_->lineEdit()->cursorPosition();
      widget_->setEditText(text);
      if (widget_->hasFocus()) widget_->lineEdit()->setCursorPosition(caret);
    }
    rowsChanged_ = false;
  }

  ComboBox& box_;
  QComboBox* widget_;
  RowModel model_;
  Deferred synchronise_{[this] { Synchronise(); }};
  bool rowsChanged_ = false;
};

}  // namespace

std::unique_ptr<ControlBinding> BindListBox(ListBox& list, BindingContext& context) {
  return std::make_unique<ListBinding>(list, new RoomyList(context.parent));
}

std::unique_ptr<ControlBinding> BindComboBox(ComboBox& box, BindingContext& context) {
  return std::make_unique<ComboBinding>(box, new QComboBox(context.parent));
}

}  // namespace morlan
