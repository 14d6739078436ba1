// The text view: paints the visible part of a document straight from its model and turns what the user does in it into key
// presses and selections.
#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QDropEvent>
#include <QString>
#include <QVariant>
#include <cstddef>
#include <functional>
#include <memory>

#include "core/editsurface.h"
#include "platform/qt/deferred.h"
#include "platform/qt/editormouse.h"
#include "platform/qt/editorpainter.h"
#include "platform/qt/editorscene.h"
#include "platform/qt/hintpanel.h"

namespace morlan {

class TEditor;

class EditorWidget : public QAbstractScrollArea, private EditorView {
 public:
  // A document that is in the program's list stays alive as long as the widget.
  explicit EditorWidget(TEditor& document, QWidget* parent = nullptr);
  ~EditorWidget() override;

  TEditor& Document() const { return document_; }
  EditorScene& Scene() { return scene_; }
  EditorPainter& Painter() { return painter_; }

  void SetLineNumbersShown(bool shown);
  bool LineNumbersShown() const { return scene_.NumbersShown(); }
  // Points added to the size of the document's font, for this run only.
  int Zoom() const { return zoom_; }
  void SetZoom(int points);
  void ResetZoom() { SetZoom(0); }
  std::function<void(int points)> OnZoomChanged;  // the user turned the wheel with Ctrl

  // Where the caret stands, in pixels of the viewport.
  QRect CaretRectangle();
  // Runs something of the program that may close the document and take this widget with it. False when it is gone.
  bool Run(const std::function<void()>& action);
  // Shows what changed at once, with the caret in the view and some rows round it when it was outside.
  void Settle(std::size_t context = 0);
  void ScrollByRows(std::ptrdiff_t rows);
  // Hands the selected text to the desktop's primary selection, where it has one.
  void OfferSelection();
  // The place at which dragged text would come to lie; nothing is shown for kNoDrop.
  void ShowDropPlace(std::size_t offset);
  static constexpr std::size_t kNoDrop = static_cast<std::size_t>(-1);

  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }  // Tab is a character
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { mouse_.Press(*event); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mouse_.DoubleClick(*event); }
  void mouseMoveEvent(QMouseEvent* event) override { mouse_.Move(*event); }
  void mouseReleaseEvent(QMouseEvent* event) override { mouse_.Release(*event); }
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override { mouse_.DragOver(*event); }
  void dragMoveEvent(QDragMoveEvent* event) override { mouse_.DragOver(*event); }
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override { mouse_.Drop(*event); }

 private:
  void TextReplaced(std::size_t offset, std::size_t removed, std::size_t inserted, std::size_t firstLine, std::size_t linesRemoved,
                    std::size_t linesInserted) override;
  void TextReset() override;
  void StylesChanged(std::size_t offset, std::size_t length) override;
  void SelectionChanged() override;
  void PropertiesChanged() override;
  void FocusWanted() override { setFocus(); }

  void TakeFont();
  void LayOutAgain(const std::function<void()>& change);
  void SetTop(RowPosition top);
  void UpdateScrollBars();
  void UpdateHorizontalBar(double atLeast);
  void MoveWrappedBar(int action);
  void WidenTo(const QRectF& area);
  void UpdateArea(const QRectF& area);
  void ShowSelectionChange();
  void FollowCaret(std::size_t context);
  void ScrollPixels(int dx, double dy);
  void PaintCaret(QPainter& painter);
  void PaintPreedit(QPainter& painter);
  void RestartCaret();
  bool TakesAsKey(const QKeyEvent& event) const;
  void TypeText(const QString& text);
  double CaretWidth() const;

  // What the selection was when it was last shown, in offsets of the present text.
  struct ShownSelection {
    std::size_t start = 0, end = 0, caret = 0, caretLine = 0;
    bool operator==(const ShownSelection&) const = default;
  };
  ShownSelection PresentSelection() const;

  TEditor& document_;
  MlnEditor& editor_;
  std::shared_ptr<TEditor> held_;
  std::unique_ptr<GlyphTable> glyphs_;
  double glyphRatio_ = 1;
  EditorScene scene_;
  EditorPainter painter_;
  EditorMouse mouse_;
  HintPanel hints_;
  Deferred settle_;
  ShownSelection shown_;
  bool followForced_ = false, rangesChanged_ = false, movingBar_ = false;
  double widest_ = 0;  // of the lines painted so far
  double wheelRest_ = 0;
  int zoom_ = 0;
  QBasicTimer caretTimer_;
  bool caretLit_ = false;
  QRect caretShownAt_;  // where it was painted last
  std::size_t dropPlace_ = kNoDrop;
  QString preedit_;
};

}  // namespace morlan
