#include "platform/qt/flattabbar.h"

#include <QAbstractButton>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr int kHorizontalMargin = 12, kVerticalMargin = 6, kDotRoom = 12, kCloseRoom = 32, kLineWidth = 2;
// Widths of texts are rounded.
constexpr int kSlack = 2, kWidestTab = 260;

class CloseMark : public QAbstractButton {
 public:
  explicit CloseMark(FlatTabBar* bar) : QAbstractButton(bar) {
    setFixedSize(18, 18);
    setFocusPolicy(Qt::NoFocus);
    setToolTip(QStringLiteral("Zamknij"));
    setAccessibleName(toolTip());
    connect(this, &QAbstractButton::clicked, bar, [this, bar] {
      for (int i = 0; i < bar->count(); ++i)
        if (bar->tabButton(i, QTabBar::RightSide) == this) return emit bar->tabCloseRequested(i);
    });
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ink = palette().color(QPalette::WindowText);
    if (underMouse()) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(palette().color(QPalette::Mid));
      painter.drawRoundedRect(rect(), 4, 4);
    } else {
      ink.setAlpha(150);
    }
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap));
    const QRectF mark = QRectF(rect()).adjusted(5.5, 5.5, -5.5, -5.5);
    painter.drawLine(mark.topLeft(), mark.bottomRight());
    painter.drawLine(mark.topRight(), mark.bottomLeft());
  }
  void enterEvent(QEnterEvent*) override { update(); }
  void leaveEvent(QEvent*) override { update(); }
};

}  // namespace

FlatTabBar::FlatTabBar(QWidget* parent) : QTabBar(parent) {
  setDrawBase(false);
  setExpanding(false);
  setElideMode(Qt::ElideMiddle);
  setUsesScrollButtons(true);
  setMouseTracking(true);
}

void FlatTabBar::SetMarked(int index, bool marked) {
  if (IsMarked(index) == marked) return;
  setTabData(index, marked);
  update(tabRect(index));
}

bool FlatTabBar::IsMarked(int index) const { return tabData(index).toBool(); }

void FlatTabBar::tabInserted(int index) {
  if (tabsClosable()) setTabButton(index, RightSide, new CloseMark(this));
  QTabBar::tabInserted(index);
}

QSize FlatTabBar::tabSizeHint(int index) const {
  int width = fontMetrics().horizontalAdvance(WithoutMnemonic(tabText(index))) + 2 * kHorizontalMargin + kSlack;
  if (tabsClosable()) width = qMin(width + kDotRoom + kCloseRoom - 3 * kHorizontalMargin / 2, kWidestTab);
  return {width, fontMetrics().height() + 2 * kVerticalMargin};
}

QSize FlatTabBar::minimumTabSizeHint(int index) const { return tabSizeHint(index); }

void FlatTabBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  for (int i = 0; i < count(); ++i)
    if (isTabVisible(i)) PaintTab(painter, i);
}

void FlatTabBar::PaintTab(QPainter& painter, int index) const {
  const QRect area = tabRect(index);
  const bool selected = index == currentIndex();
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  if (selected && tabsClosable()) painter.fillRect(area, palette().color(QPalette::Base));
  if (!selected && index == hovered_ && isEnabled()) painter.fillRect(area, palette().color(QPalette::Midlight));
  QRect text = area.adjusted(kHorizontalMargin, 0, -kHorizontalMargin, 0);
  if (tabsClosable()) {
    text = area.adjusted(kHorizontalMargin / 2 + kDotRoom, 0, -kCloseRoom, 0);
    if (IsMarked(index)) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(palette().color(QPalette::Link));
      painter.drawEllipse(QPointF(area.left() + kHorizontalMargin / 2 + 4.5, area.center().y() + 1), 3.5, 3.5);
    }
  }
  QColor ink = palette().color(group, QPalette::WindowText);
  if (!selected) ink.setAlpha(190);
  painter.setPen(ink);
  painter.drawText(text, Qt::AlignCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(WithoutMnemonic(tabText(index)), elideMode(), text.width()));
  if (selected) {
    const QColor line = palette().color(group, isEnabled() ? QPalette::Link : QPalette::Mid);
    painter.fillRect(QRect(area.left(), area.bottom() - kLineWidth + 1, area.width(), kLineWidth), line);
  }
  if (selected && hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Link), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(3, 3, -4, -5));
  }
}

void FlatTabBar::enterEvent(QEnterEvent* event) {
  QTabBar::enterEvent(event);
  update();
}

void FlatTabBar::leaveEvent(QEvent* event) {
  hovered_ = -1;
  QTabBar::leaveEvent(event);
  update();
}

void FlatTabBar::mouseMoveEvent(QMouseEvent* event) {
  const int index = tabAt(event->position().toPoint());
  if (index != hovered_) update();
  hovered_ = index;
  QTabBar::mouseMoveEvent(event);
}

}  // namespace morlan
