#include "platform/qt/escapewatch.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace morlan {

EscapeWatch::EscapeWatch() { QCoreApplication::instance()->installEventFilter(this); }
EscapeWatch::~EscapeWatch() { QCoreApplication::instance()->removeEventFilter(this); }

bool EscapeWatch::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
      wasPressed_ = wasPressed_ || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
      return true;
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::InputMethod:
      return true;
    case QEvent::Close:
      event->ignore();
      return true;
    default:
      return false;
  }
}

}  // namespace morlan
