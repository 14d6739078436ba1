#include "platform/qt/flatscrollbar.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>

namespace morlan {
namespace {

constexpr int kThumbInset = 3;      // between the thumb and the bar's edges
constexpr double kArrowSize = 3.5;  // half the length of an arrow's base

QColor Mix(const QColor& first, const QColor& second, double share) {
  return QColor::fromRgbF(static_cast<float>(first.redF() * share + second.redF() * (1 - share)),
                          static_cast<float>(first.greenF() * share + second.greenF() * (1 - share)),
                          static_cast<float>(first.blueF() * share + second.blueF() * (1 - share)));
}

}  // namespace

void FlatScrollBar::paintEvent(QPaintEvent*) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto part = [&](QStyle::SubControl control) { return style()->subControlRect(QStyle::CC_ScrollBar, &option, control, this); };
  const QColor base = palette().color(QPalette::Base), text = palette().color(QPalette::Text);
  QPainter painter(this);
  painter.fillRect(rect(), Mix(text, base, 0.04));
  if (minimum() == maximum()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mix(text, base, 0.5));
  const bool upright = orientation() == Qt::Vertical;
  PaintArrow(painter, part(QStyle::SC_ScrollBarSubLine), upright ? Qt::UpArrow : Qt::LeftArrow);
  PaintArrow(painter, part(QStyle::SC_ScrollBarAddLine), upright ? Qt::DownArrow : Qt::RightArrow);
  painter.setBrush(Mix(text, base, isSliderDown() ? 0.5 : underMouse() ? 0.38 : 0.25));
  const QRect slider = part(QStyle::SC_ScrollBarSlider);
  const QRectF thumb = upright ? slider.adjusted(kThumbInset, 1, -kThumbInset, -1) : slider.adjusted(1, kThumbInset, -1, -kThumbInset);
  const double radius = std::min(thumb.width(), thumb.height()) / 2;
  painter.drawRoundedRect(thumb, radius, radius);
}

void FlatScrollBar::PaintArrow(QPainter& painter, const QRect& button, Qt::ArrowType direction) const {
  const QPointF centre = QRectF(button).center();
  const bool towardsStart = direction == Qt::UpArrow || direction == Qt::LeftArrow;
  const double tip = towardsStart ? -kArrowSize / 2 : kArrowSize / 2;
  if (direction == Qt::UpArrow || direction == Qt::DownArrow)
    painter.drawPolygon(QPolygonF{{centre + QPointF(-kArrowSize, -tip), centre + QPointF(kArrowSize, -tip), centre + QPointF(0, tip)}});
  else
    painter.drawPolygon(QPolygonF{{centre + QPointF(-tip, -kArrowSize), centre + QPointF(-tip, kArrowSize), centre + QPointF(tip, 0)}});
}

}  // namespace morlan
