// The mouse in the text view: selecting, dragging text out, dropping text and files.
#pragma once

#include <QElapsedTimer>
#include <QPointF>
#include <QTimer>
#include <cstddef>

#include "platform/qt/mouseselection.h"

class QDropEvent;
class QMouseEvent;

namespace morlan {

class EditorWidget;

class EditorMouse {
 public:
  explicit EditorMouse(EditorWidget& widget);

  void Press(QMouseEvent& event);
  void DoubleClick(QMouseEvent& event);
  void Move(QMouseEvent& event);
  void Release(QMouseEvent& event);
  void DragOver(QDropEvent& event);
  void Drop(QDropEvent& event);

 private:
  // OnSelection: the button went down on selected text and has not moved far enough for a drag.
  enum class State { Idle, Selecting, OnSelection };

  void SetState(State state);
  void Tick();
  void PressLeft(QMouseEvent& event);
  void PressRight(std::size_t offset);
  void PressMiddle(std::size_t offset);
  void DragOut();
  void DropFiles(QDropEvent& event, std::size_t offset);
  void ShowPointer(const QPointF& point);
  bool IsThirdClick(const QPointF& point) const;
  bool IsInMargin(const QPointF& point) const;
  bool IsOnSelection(const QPointF& point) const;

  EditorWidget& widget_;
  MouseSelection selection_;
  State state_ = State::Idle;
  QPointF pressPoint_, lastPoint_;
  QTimer ticks_;  // run while the mouse selects
  QElapsedTimer sinceDoubleClick_;
  bool droppedInside_ = false;  // the drag that began here ended here
};

}  // namespace morlan
