#include "platform/qt/symbolstrip.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "platform/qt/qtkeys.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr int kNarrowestCell = 15, kWidestCell = 26, kHeight = 26, kMargin = 6;

}  // namespace

LetterRow::LetterRow(ListBox& letters, QWidget* parent)
    : QWidget(parent), letters_(letters), watch_(letters, [this](Aspect aspect) {
        if (aspect == Aspect::Selection && letters_.ListIndex() >= 0) ScrollTo(letters_.ListIndex());
        update();
      }) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setObjectName(ToQt(letters.Name()));
  setAccessibleName(QStringLiteral("Symbole"));
}

QSize LetterRow::sizeHint() const { return {Count() * kWidestCell, kHeight}; }
QSize LetterRow::minimumSizeHint() const { return {kNarrowestCell * 8, kHeight}; }

int LetterRow::CellWidth() const { return std::clamp(width() / std::max(1, Count()), kNarrowestCell, kWidestCell); }

QRect LetterRow::CellOf(int row) const {
  const QRect cell((row - first_) * CellWidth(), 0, CellWidth(), height());
  return row >= first_ && row < Count() && cell.left() < width() ? cell : QRect();
}

int LetterRow::RowAt(const QPoint& place) const {
  const int row = first_ + place.x() / CellWidth();
  return place.x() >= 0 && row < Count() ? row : -1;
}

void LetterRow::ScrollTo(int row) {
  const int visible = std::max(1, width() / CellWidth());
  first_ = std::clamp(first_, row - visible + 1, row);
  first_ = std::clamp(first_, 0, std::max(0, Count() - visible));
  update();
}

void LetterRow::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  for (int row = first_; row < Count(); ++row) {
    const QRect cell = CellOf(row);
    if (cell.isEmpty() || !cell.intersects(event->rect())) continue;
    const bool chosen = row == letters_.ListIndex();
    if (chosen)
      painter.fillRect(cell, palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    else if (row == hovered_)
      painter.fillRect(cell, palette().color(QPalette::Midlight));
    painter.setPen(palette().color(chosen && hasFocus() ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawText(cell, Qt::AlignCenter, ToQt(letters_.List(static_cast<std::size_t>(row))));
  }
}

void LetterRow::mousePressEvent(QMouseEvent* event) {
  const int row = RowAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && row >= 0) letters_.UserSelects(row);
}

void LetterRow::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && RowAt(event->position().toPoint()) == letters_.ListIndex()) letters_.UserDblClicks();
}

void LetterRow::mouseMoveEvent(QMouseEvent* event) {
  const int row = RowAt(event->position().toPoint());
  if (row == hovered_) return;
  hovered_ = row;
  update();
}

void LetterRow::leaveEvent(QEvent*) {
  hovered_ = -1;
  update();
}

void LetterRow::keyPressEvent(QKeyEvent* event) {
  const int row = letters_.ListIndex(), last = Count() - 1;
  switch (event->key()) {
    case Qt::Key_Left:
      letters_.UserSelects(std::max(0, row - 1));
      return;
    case Qt::Key_Right:
      letters_.UserSelects(std::min(last, row + 1));
      return;
    case Qt::Key_Home:
      letters_.UserSelects(0);
      return;
    case Qt::Key_End:
      letters_.UserSelects(last);
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (row >= 0) letters_.UserDblClicks();
      return;
    default:
      event->ignore();
  }
}

void LetterRow::wheelEvent(QWheelEvent* event) {
  const int step = event->angleDelta().y() > 0 || event->angleDelta().x() > 0 ? -1 : 1;
  const int visible = std::max(1, width() / CellWidth());
  first_ = std::clamp(first_ + step * 3, 0, std::max(0, Count() - visible));
  update();
}

void LetterRow::resizeEvent(QResizeEvent*) { ScrollTo(std::max(0, letters_.ListIndex())); }
void LetterRow::focusInEvent(QFocusEvent*) { update(); }
void LetterRow::focusOutEvent(QFocusEvent*) { update(); }

SymbolStrip::SymbolStrip(Morlan& frame, QWidget* parent) : QWidget(parent), frame_(frame) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, 2, kMargin, 2);
  row->setSpacing(2);
  row->addWidget(new LetterRow(frame.Chars, this), 1);
  auto* chosen = new QLabel(this);
  chosen->setFixedSize(kHeight + 6, kHeight);
  chosen->setAlignment(Qt::AlignCenter);
  chosen->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 1.3);
  chosen->setFont(large);
  row->addWidget(chosen);
  const auto showChosen = [chosen, &frame] { chosen->setText(WithoutMnemonic(ToQt(frame.CharsLabel.Caption()))); };
  showChosen();
  watches_.push_back(std::make_unique<ControlWatch>(frame.CharsLabel, [showChosen](Aspect) { showChosen(); }));
  for (std::size_t i = 0; i < buttons_.size(); ++i) row->addWidget(buttons_[i] = MakeButton(*frame.Chars2[i]));
  watches_.push_back(std::make_unique<ControlWatch>(frame.UnderChars, [this](Aspect aspect) {
    if (aspect == Aspect::Visible) setVisible(frame_.UnderChars.Visible());
  }));
  setVisible(frame.UnderChars.Visible());
}

QToolButton* SymbolStrip::MakeButton(Button& button) {
  auto* widget = new QToolButton(this);
  widget->setAutoRaise(true);
  widget->setFixedSize(kHeight + 2, kHeight);
  widget->setFocusPolicy(Qt::TabFocus);
  widget->setObjectName(ToQt(button.Name()));
  widget->installEventFilter(this);
  connect(widget, &QToolButton::clicked, this, [&button] { button.UserClicks(); });
  const auto show = [widget, &button] {
    const QString symbol = WithoutMnemonic(ToQt(button.Caption()));
    widget->setText(symbol.isEmpty() ? QStringLiteral("·") : symbol);
    widget->setEnabled(button.Enabled());
    widget->setAccessibleName(QStringLiteral("Symbol %1").arg(symbol));
    widget->setToolTip(ToQt(button.ToolTip()));
  };
  show();
  watches_.push_back(std::make_unique<ControlWatch>(button, [show](Aspect) { show(); }));
  return widget;
}

void SymbolStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, 0, width(), 0);
}

// The right mouse button and the menu key change what a button of the user's own inserts.
bool SymbolStrip::eventFilter(QObject* watched, QEvent* event) {
  const auto place = std::find(buttons_.begin(), buttons_.end(), watched);
  if (place == buttons_.end()) return false;
  Button& button = *frame_.Chars2[static_cast<std::size_t>(place - buttons_.begin())];
  if (event->type() == QEvent::ContextMenu) {
    if (static_cast<QContextMenuEvent*>(event)->reason() != QContextMenuEvent::Keyboard) button.UserRightClicks();
    return true;
  }
  if (event->type() != QEvent::KeyPress || !button.OnKeyDown) return false;
  KeyPress press = ReadKey(*static_cast<QKeyEvent*>(event)).press;
  if (press.code == 0) return false;
  button.OnKeyDown(press);
  return press.code == 0;
}

}  // namespace morlan
