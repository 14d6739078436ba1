#include "platform/qt/scrolledrows.h"

#include <QEvent>
#include <QGridLayout>
#include <QScrollBar>
#include <QTimer>
#include <utility>

namespace morlan {
namespace {

constexpr int kMostLines = 28, kRoomBesideBar = 8;

}  // namespace

ScrolledRows::ScrolledRows(QWidget* parent) : QScrollArea(parent), grid_(new QGridLayout) {
  auto* sheet = new QWidget;
  sheet->setLayout(grid_);
  setWidget(sheet);
  setWidgetResizable(true);
  setFrameStyle(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  for (QWidget* surface : {static_cast<QWidget*>(sheet), viewport()}) surface->setAutoFillBackground(false);
}

void ScrolledRows::Fit() {
  const QSize wanted = widget()->sizeHint();
  const int height = std::min(wanted.height(), kMostLines * fontMetrics().lineSpacing());
  const bool scrolls = height < wanted.height();
  grid_->setContentsMargins(0, 0, scrolls ? kRoomBesideBar : 0, 0);
  setMinimumWidth(widget()->minimumSizeHint().width() + (scrolls ? verticalScrollBar()->sizeHint().width() : 0));
  setMinimumHeight(height);
  for (QWidget* field : widget()->findChildren<QWidget*>()) {
    if (!(field->focusPolicy() & Qt::TabFocus)) continue;
    field->setFocusPolicy(Qt::StrongFocus);
    field->installEventFilter(this);
  }
}

void ScrolledRows::FillNow() {
  if (!fill) return;
  // Each row that is shown would have all of them laid out again.
  grid_->setEnabled(false);
  std::exchange(fill, nullptr)();
  for (QWidget* field : widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
    if (!field->testAttribute(Qt::WA_WState_ExplicitShowHide)) field->show();
  grid_->setEnabled(true);
  // What asked for it in the meantime was not heard.
  grid_->activate();
  Fit();
}

bool ScrolledRows::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Paint && !std::exchange(painted_, true)) QTimer::singleShot(0, this, [this] { FillNow(); });
  return QScrollArea::viewportEvent(event);
}

bool ScrolledRows::eventFilter(QObject* watched, QEvent* event) {
  auto* field = qobject_cast<QWidget*>(watched);
  if (event->type() == QEvent::FocusIn && field) ensureWidgetVisible(field);
  if (event->type() == QEvent::Wheel && field && !field->hasFocus()) {
    event->ignore();
    return true;  // a wheel that passes over a field must not change it
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace morlan
