// Lists and combo boxes.
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <algorithm>

#include "platform/qt/bindings.h"
#include "platform/qt/deferred.h"
#include "platform/qt/formgeometry.h"
#include "platform/qt/qttext.h"
#include "platform/qt/rowmodel.h"

namespace morlan {
namespace {

constexpr int kRowRoom = 4, kWidestInCharacters = 60, kFieldRoom = 2;

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

// A box whose list of rows is made when it opens: a dialog may have a hundred boxes of which none is ever opened. Its
// width is asked of the field alone; the toolkit's ways to set a width make the list.
class LazyBox : public QComboBox {
 public:
  LazyBox(int widthInCharacters, QWidget* parent) : QComboBox(parent), widthInCharacters_(widthInCharacters) {}
  QSize sizeHint() const override {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize text(fontMetrics().horizontalAdvance(QLatin1Char('X')) * widthInCharacters_, fontMetrics().height() + kFieldRoom);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
  void showPopup() override {
    if (!roomy_) setItemDelegate(roomy_ = new RoomyRows(this));
    QComboBox::showPopup();
  }

 private:
  int widthInCharacters_;
  RoomyRows* roomy_ = nullptr;
};

// The box would make a completer of its own for a field without one.
QLineEdit* FieldWithoutCompleter(QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setCompleter(new QCompleter(field));
  return field;
}

class ComboBinding : public ControlBinding {
 public:
  ComboBinding(ComboBox& box, QComboBox* widget) : ControlBinding(box, widget), box_(box), widget_(widget), model_(box) {
    widget->setModel(&model_);
    if (box.IsEditable()) {
      widget->setLineEdit(FieldWithoutCompleter(widget));
      widget->setCompleter(nullptr);
      connect(widget->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { box_.UserSets(FromQt(text)); });
    }
    widget->setInsertPolicy(QComboBox::NoInsert);
    if (IsNarrow(box)) widget->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    widget->setMaxVisibleItems(20);
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
  return std::make_unique<ComboBinding>(box, new LazyBox(box.WidthInCharacters, context.parent));
}

}  // namespace morlan
