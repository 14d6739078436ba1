#include "platform/qt/statusline.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr int kMargin = 10, kPanelWidthInCharacters = 13, kVerticalMargin = 4;
constexpr int kMessageMilliseconds = 100;

}  // namespace

StatusLine::StatusLine(StatusBar& statusBar, QWidget* parent)
    : QWidget(parent),
      statusBar_(statusBar),
      shown_(statusBar.Panels().size()),
      watch_(statusBar, [this](Aspect aspect) { Changed(aspect); }) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(QStringLiteral("Listwa statusu"));
  for (std::size_t i = 0; i < shown_.size(); ++i) shown_[i] = statusBar.Panels()[i].text;
  setVisible(statusBar.Visible());
}

QSize StatusLine::sizeHint() const { return {200, fontMetrics().height() + 2 * kVerticalMargin + 1}; }

// The first panel takes the room that the others leave.
QRect StatusLine::AreaOf(std::size_t panel) const {
  const int wide = fontMetrics().averageCharWidth() * kPanelWidthInCharacters + 2 * kMargin;
  const int others = static_cast<int>(shown_.size()) - 1;
  if (panel == 0) return {0, 0, width() - others * wide, height()};
  return {width() - (others + 1 - static_cast<int>(panel)) * wide, 0, wide, height()};
}

void StatusLine::Changed(Aspect aspect) {
  if (aspect == Aspect::Visible) return setVisible(statusBar_.Visible());
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    if (statusBar_.Panels()[i].text == shown_[i]) continue;
    shown_[i] = statusBar_.Panels()[i].text;
    update(AreaOf(i));
    if (i == 0) ShowMessageNow();
  }
}

// A message stands in front of the work that it tells of, so it cannot wait for the work's end; a running count can.
void StatusLine::ShowMessageNow() {
  if (!isVisible() || (sinceMessage_.isValid() && sinceMessage_.elapsed() < kMessageMilliseconds)) return;
  sinceMessage_.start();
  repaint(AreaOf(0));
}

void StatusLine::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(event->rect().left(), 0, event->rect().right(), 0);
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    const QRect area = AreaOf(i);
    if (!area.intersects(event->rect())) continue;
    if (i > 0) {
      painter.setPen(palette().color(QPalette::Mid));
      painter.drawLine(area.left(), kVerticalMargin + 1, area.left(), area.bottom() - kVerticalMargin);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect text = area.adjusted(kMargin, 1, -kMargin, 0);
    const QString shown = fontMetrics().elidedText(ToQt(shown_[i]), Qt::ElideRight, text.width());
    painter.drawText(text, int(Qt::AlignVCenter) | int(Qt::TextSingleLine) | int(i == 0 ? Qt::AlignLeft : Qt::AlignHCenter), shown);
  }
}

void StatusLine::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) updateGeometry();
}

}  // namespace morlan
