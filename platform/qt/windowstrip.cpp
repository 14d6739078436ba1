#include "platform/qt/windowstrip.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr int kSwitchSpacing = 4;

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
      editor_(MakeSwitch(frame.SelEditor)),
      viewer_(MakeSwitch(frame.SelViewer)),
      tabs_(frame.WindowsManager, bar_, [&files](const std::string& path) { return files.ToNative(path); }),
      watch_(frame.WindowsPanel, [this, &frame](Aspect aspect) {
        if (aspect == Aspect::Visible) setVisible(frame.WindowsPanel.Visible());
      }) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSwitchSpacing);
  row->addWidget(bar_, 1);
  row->addWidget(editor_);
  row->addWidget(viewer_);
  row->addSpacing(kSwitchSpacing);
  bar_->installEventFilter(this);
  ShowSwitch(false);
  // The tab of the document that lies behind the viewer brings it back.
  connect(bar_, &QTabBar::tabBarClicked, this, [this, &frame](int index) {
    if (viewer_->isChecked() && index == bar_->currentIndex()) frame.SelEditor.UserClicks();
  });
  setVisible(frame.WindowsPanel.Visible());
}

QToolButton* WindowStrip::MakeSwitch(Button& button) {
  auto* widget = new QToolButton(this);
  widget->setObjectName(ToQt(button.Name()));
  widget->setText(ToQt(button.Caption()));
  widget->setToolTip(ToQt(button.ToolTip()));
  widget->setAutoRaise(true);
  widget->setCheckable(true);
  widget->setFocusPolicy(Qt::TabFocus);
  connect(widget, &QToolButton::clicked, this, [this, &button] {
    ShowSwitch(shown_);
    button.UserClicks();
  });
  return widget;
}

void WindowStrip::ShowSwitch(bool viewer) {
  shown_ = viewer;
  editor_->setChecked(!viewer);
  viewer_->setChecked(viewer);
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
