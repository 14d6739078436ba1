#include "platform/qt/webview/enginestart.h"

#include <unistd.h>

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QQuickWindow>

// Part of the toolkit that has no header: the engine expects the shared context that a program makes at its start, and
// this one does not, since it would pay for that each time.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
Q_GUI_EXPORT QOpenGLContext* qt_gl_global_share_context();

namespace morlan {
namespace {

constexpr char kFlags[] = "QTWEBENGINE_CHROMIUM_FLAGS";

// Pages are painted by the processor: they need no graphics card, and the main window needs no other kind of surface.
void PaintByProcessor() {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  if (!qt_gl_global_share_context()) qt_gl_set_global_share_context(new QOpenGLContext(qGuiApp));
}

}  // namespace

EngineStart::EngineStart() : flags_(qgetenv(kFlags)), hadFlags_(qEnvironmentVariableIsSet(kFlags)) {
  PaintByProcessor();
  QByteArray flags = flags_ + " --disable-gpu";
  // The engine refuses to shut pages off from the program where that runs as root.
  if (::geteuid() == 0) flags += " --no-sandbox";
  qputenv(kFlags, flags.trimmed());
}

EngineStart::~EngineStart() {
  if (hadFlags_)
    qputenv(kFlags, flags_);
  else
    qunsetenv(kFlags);
}

}  // namespace morlan
