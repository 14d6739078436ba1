#include "platform/qt/editoraccessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QString>
#include <algorithm>
#include <cstddef>
#include <string>

#include "core/document.h"
#include "platform/qt/editorview.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

// Offsets are those of the model: one character of Windows-1250 is one of UTF-16.
class AccessibleEditor : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit AccessibleEditor(EditorWidget& widget)
      : QAccessibleWidget(&widget, QAccessible::EditableText), widget_(widget), editor_(widget.Document().EditedText) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = state.selectableText = state.editable = true;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? text(0, characterCount()) : QAccessibleWidget::text(kind);
  }

  void selection(int index, int* start, int* end) const override {
    *start = *end = 0;
    if (index != 0 || editor_.SelLength() == 0) return;
    *start = static_cast<int>(editor_.SelStart());
    *end = static_cast<int>(editor_.SelStart() + editor_.SelLength());
  }
  int selectionCount() const override { return editor_.SelLength() != 0; }
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int) override { editor_.Select(editor_.Caret(), 0); }
  void setSelection(int, int start, int end) override { editor_.SelectFrom(Offset(start), Offset(end)); }

  int cursorPosition() const override { return static_cast<int>(editor_.Caret()); }
  void setCursorPosition(int position) override { editor_.Select(Offset(position), 0); }
  int characterCount() const override { return static_cast<int>(editor_.Length()); }
  QString text(int start, int end) const override {
    const std::size_t from = Offset(start), to = std::max(from, Offset(end));
    return ToQt(editor_.Slice(from, to - from));
  }
  QRect characterRect(int offset) const override {
    const QRectF left = widget_.Scene().CaretArea(Offset(offset), 1), right = widget_.Scene().CaretArea(Offset(offset + 1), 1);
    const double width = right.top() == left.top() ? std::max(1.0, right.left() - left.left()) : 1;
    const QRect area(left.toRect().topLeft(), QSize(static_cast<int>(width), static_cast<int>(left.height())));
    return area.translated(widget_.viewport()->mapToGlobal(QPoint(0, 0)));
  }
  int offsetAtPoint(const QPoint& point) const override {
    return static_cast<int>(widget_.Scene().OffsetAt(widget_.viewport()->mapFromGlobal(QPointF(point))));
  }
  void scrollToSubstring(int start, int) override {
    editor_.Select(Offset(start), 0);
    widget_.Settle();
  }
  // Colours are no more than a reading aid here, so the whole text counts as one run.
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 private:
  std::size_t Offset(int offset) const { return std::min(static_cast<std::size_t>(std::max(offset, 0)), editor_.Length()); }

  EditorWidget& widget_;
  MlnEditor& editor_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  // Objects of libraries without run-time types must not reach the second cast.
  auto* widget = dynamic_cast<EditorWidget*>(qobject_cast<QAbstractScrollArea*>(object));
  return widget ? new AccessibleEditor(*widget) : nullptr;
}

}  // namespace

void RegisterEditorAccessibility() { QAccessible::installFactory(MakeAccessible); }

}  // namespace morlan
