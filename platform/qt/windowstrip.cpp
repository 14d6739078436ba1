#include "platform/qt/windowstrip.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>

namespace morlan {
namespace {

FlatTabBar* MakeBar(QWidget* parent) {
  auto* bar = new FlatTabBar(parent);
  bar->setTabsClosable(true);
  bar->setFocusPolicy(Qt::NoFocus);
  bar->setAccessibleName(QStringLiteral("Otwarte dokumenty"));
  return bar;
}

}  // namespace

WindowStrip::WindowStrip(Morlan& frame, Files& files, QWidget* parent)
    : QWidget(parent),
      bar_(MakeBar(this)),
      tabs_(frame.WindowsManager, bar_, [&files](const std::string& path) { return files.ToNative(path); }),
      watch_(frame.WindowsPanel, [this, &frame](Aspect aspect) {
        if (aspect == Aspect::Visible) setVisible(frame.WindowsPanel.Visible());
      }) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(bar_, 1);
  bar_->installEventFilter(this);
  setVisible(frame.WindowsPanel.Visible());
}

// The middle button closes a tab.
bool WindowStrip::eventFilter(QObject* watched, QEvent* event) {
  if (watched != bar_ || event->type() != QEvent::MouseButtonRelease) return false;
  const auto& mouse = *static_cast<QMouseEvent*>(event);
  const int index = bar_->tabAt(mouse.position().toPoint());
  if (mouse.button() != Qt::MiddleButton || index < 0) return false;
  emit bar_->tabCloseRequested(index);
  return true;
}

void WindowStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, 0, width(), 0);
}

}  // namespace morlan
