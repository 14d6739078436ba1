#include "platform/qt/editormouse.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <algorithm>
#include <string>

#include "core/defs.h"
#include "core/document.h"
#include "core/keyboard.h"
#include "platform/qt/editorview.h"
#include "platform/qt/outsidetext.h"
#include "platform/qt/textdrop.h"

namespace morlan {
namespace {

constexpr int kTick = 40;  // milliseconds between steps while the mouse selects outside the view

QString FileFormat() { return QStringLiteral("application/x-morlan7-file"); }

// Files dragged from a list of the program itself; those of other programs are opened, not written about.
bool HoldsOwnFiles(const QDropEvent& event) {
  const QMimeData& data = *event.mimeData();
  return data.hasFormat(FileFormat()) || (data.hasUrls() && event.source());
}

}  // namespace

EditorMouse::EditorMouse(EditorWidget& widget) : widget_(widget), selection_(widget.Document().EditedText) {
  ticks_.setInterval(kTick);
  QObject::connect(&ticks_, &QTimer::timeout, &ticks_, [this] { Tick(); });
}

void EditorMouse::SetState(State state) {
  state_ = state;
  if (state_ == State::Selecting)
    ticks_.start();
  else
    ticks_.stop();
}

bool EditorMouse::IsInMargin(const QPointF& point) const { return point.x() < widget_.Scene().MarginWidth(); }

bool EditorMouse::IsOnSelection(const QPointF& point) const {
  const MlnEditor& editor = widget_.Document().EditedText;
  if (editor.SelLength() == 0 || IsInMargin(point)) return false;
  const std::size_t offset = widget_.Scene().OffsetAt(point);
  return offset >= editor.SelStart() && offset <= editor.SelStart() + editor.SelLength();
}

bool EditorMouse::IsThirdClick(const QPointF& point) const {
  return sinceDoubleClick_.isValid() && sinceDoubleClick_.elapsed() < QApplication::doubleClickInterval() &&
         (point - pressPoint_).manhattanLength() < QApplication::startDragDistance();
}

void EditorMouse::Press(QMouseEvent& event) {
  const std::size_t offset = widget_.Scene().OffsetAt(event.position());
  if (event.button() == Qt::LeftButton)
    PressLeft(event);
  else if (event.button() == Qt::RightButton && !IsOnSelection(event.position()))
    PressRight(offset);
  else if (event.button() == Qt::RightButton)
    widget_.Run([&] { widget_.Document().EditedText_OnMouseDown(MouseButton::Right); });
  else if (event.button() == Qt::MiddleButton)
    PressMiddle(offset);
}

void EditorMouse::PressLeft(QMouseEvent& event) {
  const QPointF point = event.position();
  const std::size_t offset = widget_.Scene().OffsetAt(point);
  const bool third = IsThirdClick(point);
  pressPoint_ = lastPoint_ = point;
  sinceDoubleClick_.invalidate();
  if (IsOnSelection(point) && !third && !(event.modifiers() & Qt::ShiftModifier)) {
    SetState(State::OnSelection);
  } else {
    SetState(State::Selecting);
    if (event.modifiers() & Qt::ShiftModifier)
      selection_.Continue(offset);
    else
      selection_.Begin(offset, third || IsInMargin(point) ? MouseSelection::Unit::Line : MouseSelection::Unit::Character);
  }
  if (!widget_.Run([&] { widget_.Document().EditedText_OnMouseDown(MouseButton::Left); })) return;
  widget_.Settle();
}

void EditorMouse::PressRight(std::size_t offset) {
  widget_.Document().EditedText.Select(offset, 0);
  widget_.Settle();
  widget_.Run([&] { widget_.Document().EditedText_OnMouseDown(MouseButton::Right); });
}

void EditorMouse::PressMiddle(std::size_t offset) {
  const QClipboard& clipboard = *QGuiApplication::clipboard();
  const bool known = clipboard.supportsSelection();
  const std::string text = known ? FromOutside(clipboard.text(QClipboard::Selection)) : "";
  const bool alive = widget_.Run([&] {
    TEditor& document = widget_.Document();
    document.EditedText_OnMouseDown(MouseButton::Middle);
    document.EditedText.Select(offset, 0);
    InsertTyped(document, text);
  });
  if (alive) widget_.Settle();
}

void EditorMouse::DoubleClick(QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return Press(event);
  pressPoint_ = lastPoint_ = event.position();
  sinceDoubleClick_.start();
  SetState(State::Selecting);
  const auto unit = IsInMargin(pressPoint_) ? MouseSelection::Unit::Line : MouseSelection::Unit::Word;
  selection_.Begin(widget_.Scene().OffsetAt(pressPoint_), unit);
  widget_.Settle();
}

void EditorMouse::Move(QMouseEvent& event) {
  lastPoint_ = event.position();
  if (state_ == State::Idle) return ShowPointer(lastPoint_);
  if (state_ == State::OnSelection) {
    if ((lastPoint_ - pressPoint_).manhattanLength() >= QApplication::startDragDistance()) DragOut();
    return;
  }
  selection_.Extend(widget_.Scene().OffsetAt(lastPoint_));
  widget_.Settle();
}

void EditorMouse::ShowPointer(const QPointF& point) {
  const Qt::CursorShape shape = IsInMargin(point) || IsOnSelection(point) ? Qt::ArrowCursor : Qt::IBeamCursor;
  if (widget_.viewport()->cursor().shape() != shape) widget_.viewport()->setCursor(shape);
}

// Where the pointer lies outside the view, the text under it comes into the view with each tick.
void EditorMouse::Tick() {
  if (state_ != State::Selecting || QRectF(widget_.viewport()->rect()).contains(lastPoint_)) return;
  const double page = widget_.viewport()->height();
  selection_.Extend(widget_.Scene().OffsetAt({lastPoint_.x(), std::clamp(lastPoint_.y(), -page, 2 * page)}));
  widget_.Settle();
}

void EditorMouse::Release(QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || state_ == State::Idle) return;
  if (state_ == State::OnSelection) selection_.Begin(widget_.Scene().OffsetAt(event.position()), MouseSelection::Unit::Character);
  SetState(State::Idle);
  widget_.Settle();
  widget_.OfferSelection();
  widget_.Document().ShowLineInfo();
}

void EditorMouse::DragOut() {
  SetState(State::Idle);
  droppedInside_ = false;
  auto* drag = new QDrag(widget_.viewport());
  auto* data = new QMimeData;
  data->setText(ToOutside(widget_.Document().EditedText.SelText()));
  drag->setMimeData(data);
  Qt::DropAction action = Qt::IgnoreAction;
  if (!widget_.Run([&] { action = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction); })) return;
  widget_.ShowDropPlace(EditorWidget::kNoDrop);
  if (action == Qt::MoveAction && !droppedInside_) widget_.Run([&] { RemoveSelection(widget_.Document()); });
}

void EditorMouse::DragOver(QDropEvent& event) {
  const bool files = HoldsOwnFiles(event);
  if (!files && (event.mimeData()->hasUrls() || !event.mimeData()->hasText())) return event.ignore();
  if (files) event.setDropAction(Qt::CopyAction);
  event.accept();
  widget_.ShowDropPlace(widget_.Scene().OffsetAt(event.position()));
}

void EditorMouse::Drop(QDropEvent& event) {
  const std::size_t offset = widget_.Scene().OffsetAt(event.position());
  const bool files = HoldsOwnFiles(event), inside = event.source() == widget_.viewport();
  if (!files && event.mimeData()->hasUrls()) return event.ignore();
  widget_.ShowDropPlace(EditorWidget::kNoDrop);
  droppedInside_ = inside;
  if (files) event.setDropAction(Qt::CopyAction);
  event.accept();
  widget_.setFocus();
  const std::string text = FromOutside(event.mimeData()->text());
  const bool alive = widget_.Run([&] {
    TEditor& document = widget_.Document();
    if (document.program().DocumentLoading || !document.EditedText.Enabled) return;
    if (files)
      DropFiles(event, offset);
    else if (inside && event.dropAction() == Qt::MoveAction)
      MoveSelection(document, offset);
    else
      DropText(document, offset, text);
  });
  if (alive) widget_.Settle();
}

void EditorMouse::DropFiles(QDropEvent& event, std::size_t offset) {
  TEditor& document = widget_.Document();
  Files& files = document.program().platform.files;
  document.EditedText.Select(offset, 0);
  if (!event.mimeData()->hasUrls()) return document.DropFile(files.FromNative(event.mimeData()->data(FileFormat()).toStdString()));
  for (const QUrl& url : event.mimeData()->urls())
    if (url.isLocalFile()) document.DropFile(files.FromNative(url.toLocalFile().toStdString()));
}

}  // namespace morlan
