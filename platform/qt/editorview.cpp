#include "platform/qt/editorview.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "core/defs.h"
#include "core/document.h"
#include "core/keyboard.h"
#include "platform/qt/editoraccessible.h"
#include "platform/qt/flatscrollbar.h"
#include "platform/qt/outsidetext.h"
#include "platform/qt/qtfont.h"
#include "platform/qt/qtkeys.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr std::size_t kContextRows = 3;                 // round a place to which a command has moved
constexpr double kSmallestFont = 5, kLargestFont = 96;  // in points, after the zoom
constexpr double kWheelNotch = 120;
constexpr std::size_t kMostRectangles = 6;  // painted one by one; more are painted as one
constexpr double kWidthStep = 16;           // columns by which the text's width grows
constexpr int kMostSurroundingText = 512;   // characters of its line that an input method sees

std::shared_ptr<TEditor> HeldDocument(const TEditor& document) {
  for (const std::shared_ptr<TEditor>& open : document.program().documents)
    if (open.get() == &document) return open;
  return nullptr;
}

QFont FontOf(const FontChoice& choice, int zoom) {
  QFont font = ToQtFont(choice);
  font.setPointSizeF(std::clamp(choice.size + zoom, kSmallestFont, kLargestFont));
  font.setKerning(false);
  return font;
}

bool IsWhole(double number) { return number == std::floor(number); }

int BarValue(std::size_t value) { return static_cast<int>(std::min<std::size_t>(value, std::numeric_limits<int>::max())); }

}  // namespace

EditorWidget::EditorWidget(TEditor& document, QWidget* parent)
    : QAbstractScrollArea(parent),
      document_(document),
      editor_(document.EditedText),
      held_(HeldDocument(document)),
      scene_(editor_),
      painter_(scene_),
      mouse_(*this),
      hints_(document, *viewport(), [this] { return scene_.CaretArea(editor_.Caret(), CaretWidth()); }),
      settle_([this] { Settle(kContextRows); }) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setVerticalScrollBar(new FlatScrollBar(Qt::Vertical, this));
  setHorizontalScrollBar(new FlatScrollBar(Qt::Horizontal, this));
  setAttribute(Qt::WA_InputMethodEnabled);
  setAccessibleName(QStringLiteral("Tekst dokumentu"));
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setMouseTracking(true);
  viewport()->setAcceptDrops(true);
  connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this](int action) { MoveWrappedBar(action); });
  RegisterEditorAccessibility();
  painter_.SetColours(EditorColours::From(palette()));
  TakeFont();
  shown_ = PresentSelection();
  editor_.AttachView(this);
  editor_.AttachLayout(&scene_.Rows());
}

EditorWidget::~EditorWidget() {
  editor_.AttachView(nullptr);
  editor_.AttachLayout(nullptr);
}

bool EditorWidget::Run(const std::function<void()>& action) {
  if (!held_) held_ = HeldDocument(document_);
  const std::shared_ptr<TEditor> keptAlive = held_;
  const QPointer<EditorWidget> self(this);
  action();
  return !self.isNull();
}

void EditorWidget::TakeFont() {
  glyphRatio_ = devicePixelRatioF();
  auto glyphs = std::make_unique<GlyphTable>(FontOf(editor_.Font(), zoom_), glyphRatio_);
  scene_.SetGlyphs(glyphs.get());
  glyphs_ = std::move(glyphs);
  widest_ = 0;
}

// A change after which rows begin at other characters keeps the first character shown where it is.
void EditorWidget::LayOutAgain(const std::function<void()>& change) {
  const std::size_t first = std::min(editor_.LineIndex(scene_.Top().line), editor_.Length());
  const std::size_t firstShown = editor_.WordWrap() && scene_.Top().row > 0 ? scene_.Rows().SpanOf(scene_.Top()).start : first;
  change();
  scene_.SetTop(std::min(scene_.Rows().PositionOf(firstShown), scene_.LastTop()));
  if (editor_.WordWrap()) scene_.SetScroll(0);
  UpdateScrollBars();
  viewport()->update();
  hints_.Place();
}

void EditorWidget::SetLineNumbersShown(bool shown) {
  LayOutAgain([&] { scene_.SetNumbersShown(shown); });
}

void EditorWidget::SetZoom(int points) {
  const int least = static_cast<int>(std::ceil(kSmallestFont - editor_.Font().size));
  const int most = static_cast<int>(std::floor(kLargestFont - editor_.Font().size));
  points = std::clamp(points, least, most);
  if (points == zoom_) return;
  zoom_ = points;
  LayOutAgain([this] { TakeFont(); });
}

void EditorWidget::PropertiesChanged() {
  LayOutAgain([this] { TakeFont(); });
  followForced_ = true;
  settle_.Ask();
}

void EditorWidget::resizeEvent(QResizeEvent*) {
  LayOutAgain([this] { scene_.SetSize(viewport()->size()); });
}

void EditorWidget::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::StyleChange) return;
  painter_.SetColours(EditorColours::From(palette()));
  viewport()->update();
}

// While lines are wrapped the bar counts characters: the rows of a whole text are not known.
void EditorWidget::UpdateScrollBars() {
  const RowPosition last = scene_.LastTop();
  const bool wraps = editor_.WordWrap();
  const std::size_t page = scene_.Rows().RowsInPage();
  const std::size_t most = wraps ? scene_.Rows().SpanOf(last).start : last.line;
  const std::size_t value = wraps ? scene_.Rows().SpanOf(scene_.Top()).start : scene_.Top().line;
  QScrollBar& bar = *verticalScrollBar();
  const bool wasMoving = std::exchange(movingBar_, true);
  bar.setRange(0, BarValue(most));
  bar.setPageStep(BarValue(wraps ? std::max<std::size_t>(1, editor_.Length() - most) : page));
  bar.setValue(BarValue(value));
  movingBar_ = wasMoving;
  UpdateHorizontalBar(0);
}

void EditorWidget::UpdateHorizontalBar(double atLeast) {
  const double room = scene_.TextWidth(), beyond = std::max(widest_ + scene_.Glyphs().CellWidth() - room, atLeast);
  QScrollBar& bar = *horizontalScrollBar();
  bar.setRange(0, editor_.WordWrap() ? 0 : static_cast<int>(std::min(std::ceil(std::max(0.0, beyond)), 2e9)));
  bar.setPageStep(static_cast<int>(room));
  bar.setSingleStep(static_cast<int>(std::ceil(2 * scene_.Glyphs().CellWidth())));
}

void EditorWidget::SetTop(RowPosition top) {
  top = std::clamp(top, RowPosition{}, scene_.LastTop());
  if (top == scene_.Top()) return;
  const auto page = static_cast<std::ptrdiff_t>(scene_.Rows().RowsInPage()) + 1;
  const std::ptrdiff_t rows = scene_.Rows().Distance(scene_.Top(), top, page);
  scene_.SetTop(top);
  UpdateScrollBars();
  ScrollPixels(0, -static_cast<double>(rows) * scene_.RowHeight());
  hints_.Place();
}

void EditorWidget::ScrollByRows(std::ptrdiff_t rows) { SetTop(scene_.Rows().Moved(scene_.Top(), rows)); }

void EditorWidget::ScrollPixels(int dx, double dy) {
  const bool farAway = std::abs(dy) >= viewport()->height() || std::abs(dx) >= viewport()->width();
  if (farAway || !IsWhole(devicePixelRatioF()) || !IsWhole(dy)) return viewport()->update();
  const int margin = dx == 0 ? 0 : static_cast<int>(scene_.MarginWidth());
  viewport()->scroll(dx, static_cast<int>(dy), viewport()->rect().adjusted(margin, 0, 0, 0));
}

void EditorWidget::scrollContentsBy(int dx, int) {
  if (dx != 0) {
    const double before = scene_.Scroll();
    scene_.SetScroll(horizontalScrollBar()->value());
    ScrollPixels(static_cast<int>(before - scene_.Scroll()), 0);
    hints_.Place();
  }
  if (movingBar_) return;
  const auto value = static_cast<std::size_t>(verticalScrollBar()->value());
  SetTop(editor_.WordWrap() ? scene_.Rows().PositionOf(value) : RowPosition{value, 0});
}

// Steps of the bar are rows, though it counts characters.
void EditorWidget::MoveWrappedBar(int action) {
  if (!editor_.WordWrap()) return;
  const auto page = static_cast<std::ptrdiff_t>(scene_.Rows().RowsInPage());
  std::ptrdiff_t rows = 0;
  if (action == QAbstractSlider::SliderSingleStepAdd) rows = 1;
  if (action == QAbstractSlider::SliderSingleStepSub) rows = -1;
  if (action == QAbstractSlider::SliderPageStepAdd) rows = page;
  if (action == QAbstractSlider::SliderPageStepSub) rows = -page;
  if (rows == 0) return;
  const RowPosition top = std::min(scene_.Rows().Moved(scene_.Top(), rows), scene_.LastTop());
  verticalScrollBar()->setSliderPosition(BarValue(scene_.Rows().SpanOf(top).start));
}

void EditorWidget::wheelEvent(QWheelEvent* event) {
  const QPoint delta = event->angleDelta();
  if (std::abs(delta.x()) > std::abs(delta.y()) || event->modifiers() & Qt::ShiftModifier) return QAbstractScrollArea::wheelEvent(event);
  event->accept();
  const bool zooms = event->modifiers() & Qt::ControlModifier;
  // The rest of a notch is kept, so that touch pads with their small steps get on.
  wheelRest_ += delta.y() / kWheelNotch * (zooms ? 1 : QApplication::wheelScrollLines());
  const double steps = std::trunc(wheelRest_);
  wheelRest_ -= steps;
  if (steps == 0) return;
  if (!zooms) return ScrollByRows(-static_cast<std::ptrdiff_t>(steps));
  SetZoom(zoom_ + static_cast<int>(steps));
  if (OnZoomChanged) OnZoomChanged(zoom_);
}

void EditorWidget::TextReplaced(std::size_t offset, std::size_t removed, std::size_t inserted, std::size_t firstLine,
                                std::size_t linesRemoved, std::size_t linesInserted) {
  const RowsChange rows = scene_.Rows().TextReplaced(offset, removed, inserted, firstLine, linesRemoved, linesInserted);
  RowPosition top = scene_.Top();
  if (firstLine + linesRemoved < top.line)
    top.line = top.line + linesInserted - linesRemoved;
  else if (firstLine < top.line)
    top = {firstLine, 0};
  if (top.row > 0) top.row = std::min(top.row, scene_.Rows().RowsOfLine(top.line) - 1);
  scene_.SetTop(top);
  const auto moved = [&](std::size_t place) {
    return place >= offset + removed ? place + inserted - removed : std::min(place, offset + inserted);
  };
  shown_ = {moved(shown_.start), moved(shown_.end), moved(shown_.caret), shown_.caretLine};
  if (shown_.caretLine > firstLine + linesRemoved) shown_.caretLine = shown_.caretLine + linesInserted - linesRemoved;
  followForced_ = true;
  if (rows.moved) rangesChanged_ = true;
  if (rows.moved)
    UpdateArea(scene_.AreaFrom({firstLine, rows.first}));
  else
    UpdateArea(scene_.AreaOfRows({firstLine, rows.first}, {firstLine, rows.last}));
  settle_.Ask();
  if (!QAccessible::isActive() || inserted == 0) return;
  QAccessibleTextInsertEvent told(this, static_cast<int>(offset), ToQt(editor_.Slice(offset, inserted)));
  QAccessible::updateAccessibility(&told);
}

void EditorWidget::TextReset() {
  scene_.Rows().Forget();
  scene_.SetTop({std::min(scene_.Top().line, editor_.LineCount() - 1), 0});
  shown_ = PresentSelection();
  widest_ = 0;
  rangesChanged_ = followForced_ = true;
  viewport()->update();
  settle_.Ask();
}

void EditorWidget::StylesChanged(std::size_t offset, std::size_t length) {
  if (scene_.Rows().StylesChanged(offset, length) && editor_.WordWrap()) {
    rangesChanged_ = true;
    UpdateArea(scene_.AreaFrom({editor_.LineFromChar(offset), 0}));
    return settle_.Ask();
  }
  UpdateArea(scene_.AreaOfStretch(offset, offset + length));
}

void EditorWidget::SelectionChanged() { settle_.Ask(); }

void EditorWidget::UpdateArea(const QRectF& area) {
  const QRect shown = area.toAlignedRect() & viewport()->rect();
  if (!shown.isEmpty()) viewport()->update(shown);
}

EditorWidget::ShownSelection EditorWidget::PresentSelection() const {
  const std::size_t start = editor_.SelStart(), caret = editor_.Caret();
  return {start, start + editor_.SelLength(), caret, editor_.LineFromChar(caret)};
}

void EditorWidget::ShowSelectionChange() {
  const ShownSelection before = shown_, now = PresentSelection();
  shown_ = now;
  const auto updateBetween = [this](std::size_t one, std::size_t other) {
    if (one != other) UpdateArea(scene_.AreaOfStretch(std::min(one, other), std::max(one, other)));
  };
  if (before.start != before.end || now.start != now.end) {
    updateBetween(before.start, now.start);
    updateBetween(before.end, now.end);
  }
  if (before.caretLine != now.caretLine) {
    UpdateArea(scene_.AreaOfLine(std::min(before.caretLine, editor_.LineCount() - 1)));
    UpdateArea(scene_.AreaOfLine(now.caretLine));
  }
  viewport()->update(caretShownAt_);
  RestartCaret();
  if (!QAccessible::isActive()) return;
  QAccessibleTextCursorEvent moved(this, static_cast<int>(now.caret));
  QAccessible::updateAccessibility(&moved);
}

void EditorWidget::Settle(std::size_t context) {
  if (rangesChanged_) {
    rangesChanged_ = false;
    if (scene_.FitMargin()) LayOutAgain([] {});
    scene_.SetTop(std::min(scene_.Top(), scene_.LastTop()));
    UpdateScrollBars();
  }
  if (followForced_ || shown_ != PresentSelection()) {
    followForced_ = false;
    ShowSelectionChange();
    FollowCaret(context);
  }
  hints_.Place();
}

void EditorWidget::FollowCaret(std::size_t context) {
  EditorRows& rows = scene_.Rows();
  if (editor_.SelLength() > 0 && context > 0) SetTop(scene_.TopShowing(editor_.Anchor(), context));
  SetTop(scene_.TopShowing(editor_.Caret(), context));
  const double scroll = scene_.ScrollShowing(editor_.Caret());
  if (scroll == scene_.Scroll()) return;
  widest_ = std::max(widest_, rows.HorizontalPlace(editor_.Caret()));
  UpdateHorizontalBar(scroll);
  horizontalScrollBar()->setValue(static_cast<int>(scroll));
}

void EditorWidget::paintEvent(QPaintEvent* event) {
  if (glyphRatio_ != devicePixelRatioF()) LayOutAgain([this] { TakeFont(); });
  QPainter painter(viewport());
  const QRegion& region = event->region();
  if (static_cast<std::size_t>(region.rectCount()) <= kMostRectangles) {
    for (const QRect& part : region) {
      painter.setClipRect(part);
      painter_.Paint(painter, part);
    }
    painter.setClipping(false);
  } else {
    painter_.Paint(painter, region.boundingRect());
  }
  PaintCaret(painter);
  PaintPreedit(painter);
  WidenTo(region.boundingRect());
}

void EditorWidget::WidenTo(const QRectF& area) {
  if (editor_.WordWrap()) return;
  const RowPosition last = scene_.RowAt(area.bottom());
  const double before = widest_;
  for (RowPosition row = scene_.RowAt(std::max(0.0, area.top())); row <= last && row.line < editor_.LineCount(); ++row.line)
    widest_ = std::max(widest_, scene_.Measure().Width(scene_.Rows().SpanOf(row)));
  if (widest_ <= before) return;
  // In steps, so that the bar does not change with each character that is typed into the widest line.
  const double step = kWidthStep * scene_.Glyphs().CellWidth();
  widest_ = std::ceil(widest_ / step) * step;
  rangesChanged_ = true;
  settle_.Ask();
}

double EditorWidget::CaretWidth() const { return std::max(1, style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this)); }

QRect EditorWidget::CaretRectangle() { return scene_.CaretArea(editor_.Caret(), CaretWidth()).toAlignedRect(); }

void EditorWidget::PaintCaret(QPainter& painter) {
  const bool dragged = dropPlace_ != kNoDrop;
  if (!dragged && !caretLit_) return;
  const QRectF area = scene_.CaretArea(dragged ? dropPlace_ : editor_.Caret(), CaretWidth());
  if (!dragged) caretShownAt_ = area.toAlignedRect();
  if (area.left() >= scene_.MarginWidth()) painter.fillRect(area, painter_.Colours().caret);
}

void EditorWidget::PaintPreedit(QPainter& painter) {
  if (preedit_.isEmpty()) return;
  const QRectF caret = scene_.CaretArea(editor_.Caret(), CaretWidth());
  painter.setFont(scene_.Glyphs().Font());
  const double width = painter.fontMetrics().horizontalAdvance(preedit_), base = caret.top() + scene_.Glyphs().Ascent();
  painter.fillRect(QRectF(caret.left(), caret.top(), width, caret.height()), painter_.Colours().background);
  painter.setPen(painter_.Colours().caret);
  painter.drawText(QPointF(caret.left(), base), preedit_);
  painter.fillRect(QRectF(caret.left(), base + 1, width, 1), painter_.Colours().caret);
}

void EditorWidget::RestartCaret() {
  const int period = QApplication::cursorFlashTime();
  caretLit_ = hasFocus();
  if (caretLit_ && period > 1)
    caretTimer_.start(period / 2, this);
  else
    caretTimer_.stop();
  viewport()->update(CaretRectangle());
}

void EditorWidget::ShowDropPlace(std::size_t offset) {
  if (offset == dropPlace_) return;
  const std::size_t before = std::exchange(dropPlace_, offset);
  for (const std::size_t place : {before, offset})
    if (place != kNoDrop) UpdateArea(scene_.CaretArea(place, CaretWidth()));
}

void EditorWidget::timerEvent(QTimerEvent* event) {
  if (event->timerId() != caretTimer_.timerId()) return QAbstractScrollArea::timerEvent(event);
  caretLit_ = !caretLit_;
  viewport()->update(CaretRectangle());
}

// Menus get the combinations of Alt that open them; every other key is the text's.
bool EditorWidget::TakesAsKey(const QKeyEvent& event) const {
  const TypedKey typed = ReadKey(event);
  if (typed.press.code == 0) return false;
  const bool altAlone = (typed.press.shift & (shift::kAlt | shift::kCtrl)) == shift::kAlt;
  if (!altAlone || typed.press.code == key::kSpace) return true;
  return document_.menu.FindShortcut(typed.press) != nullptr;
}

bool EditorWidget::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    if (!TakesAsKey(static_cast<QKeyEvent&>(*event))) return false;
    event->accept();
    return true;
  }
  return QAbstractScrollArea::event(event);
}

void EditorWidget::keyPressEvent(QKeyEvent* event) {
  const TypedKey typed = ReadKey(*event);
  if (typed.press.code == 0) return event->ignore();
  event->accept();
  if (hints_.ListIsShown() && typed.press == KeyPress{key::kDown, shift::kNone, 0}) return hints_.EnterList();
  const bool alive = Run([&] {
    if (typed.text.empty())
      PressKey(document_, typed.press);
    else
      InsertTyped(document_, typed.text);
  });
  if (alive) Settle();
}

void EditorWidget::keyReleaseEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat() && editor_.SelLength() > 0) OfferSelection();
  event->ignore();
}

void EditorWidget::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }  // the mouse and the key have opened it already

void EditorWidget::OfferSelection() {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  if (editor_.SelLength() == 0 || !clipboard.supportsSelection()) return;
  clipboard.setText(ToOutside(editor_.SelText()), QClipboard::Selection);
}

void EditorWidget::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  RestartCaret();
  Run([this] { document_.EditedText_GotFocus(); });
}

void EditorWidget::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  RestartCaret();
}

void EditorWidget::dragLeaveEvent(QDragLeaveEvent*) { ShowDropPlace(kNoDrop); }

void EditorWidget::TypeText(const QString& text) {
  const int byte = text.size() == 1 ? ByteOf(text[0].unicode()) : -1;
  if (byte >= ' ')
    PressKey(document_, {kCodeOfOtherKeys, shift::kNone, byte});
  else
    InsertTyped(document_, FromOutside(text));
}

void EditorWidget::inputMethodEvent(QInputMethodEvent* event) {
  preedit_ = event->preeditString();
  UpdateArea(scene_.AreaOfStretch(editor_.Caret(), editor_.Caret()));
  const QString commit = event->commitString();
  event->accept();
  const bool alive = commit.isEmpty() || Run([&] { TypeText(commit); });
  if (alive) Settle();
}

QVariant EditorWidget::inputMethodQuery(Qt::InputMethodQuery query) const {
  const std::size_t caret = editor_.Caret(), line = editor_.LineFromChar(caret);
  const std::size_t from = std::max(editor_.LineIndex(line), caret - std::min<std::size_t>(caret, kMostSurroundingText));
  switch (query) {
    case Qt::ImEnabled:
      return editor_.Enabled;
    case Qt::ImCursorRectangle: {
      // Measuring fills caches of the rows and changes nothing that can be seen.
      auto& self = const_cast<EditorWidget&>(*this);
      return self.CaretRectangle().translated(viewport()->pos());
    }
    case Qt::ImFont:
      return scene_.Glyphs().Font();
    case Qt::ImCursorPosition:
    case Qt::ImAnchorPosition:
      return static_cast<int>(caret - from);
    case Qt::ImSurroundingText:
      return ToQt(editor_.Slice(from, std::min<std::size_t>(editor_.LineEnd(line) - from, 2 * kMostSurroundingText)));
    case Qt::ImCurrentSelection:
      return ToQt(editor_.Slice(editor_.SelStart(), std::min<std::size_t>(editor_.SelLength(), kMostSurroundingText)));
    case Qt::ImHints:
      return static_cast<int>(Qt::ImhMultiLine | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText);
    default:
      return QAbstractScrollArea::inputMethodQuery(query);
  }
}

}  // namespace morlan
