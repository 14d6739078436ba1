#include "platform/qt/webplugin.h"

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>
#include <cstdio>

namespace morlan {
namespace {

const QString kLibrary = QStringLiteral("libmorlan7-webview.so");

// The engine ends the whole program where it cannot shut its pages off from it, so that is tried out first. As root it
// does without.
bool CanShutOff() {
  if (::geteuid() == 0) return true;
  const pid_t child = ::fork();
  if (child == 0) ::_exit(::unshare(CLONE_NEWUSER | CLONE_NEWPID) == 0 ? 0 : 1);
  int status = 1;
  return child > 0 && ::waitpid(child, &status, 0) == child && status == 0;
}

QStringList Folders() {
  const QDir beside(QCoreApplication::applicationDirPath());
  return QStringList{beside.path(), beside.absoluteFilePath(QStringLiteral(MORLAN7_PLUGIN_PATH))} + QCoreApplication::libraryPaths();
}

QString FindLibrary() {
  for (const QString& folder : Folders())
    if (QFile::exists(folder + QLatin1Char('/') + kLibrary)) return QDir(folder).absoluteFilePath(kLibrary);
  return {};
}

// The engine complains of being loaded late and of painting without a graphics card, both of which are meant.
class QuietStart {
 public:
  QuietStart() : before_(qInstallMessageHandler(ShowFaults)) {}
  ~QuietStart() { qInstallMessageHandler(before_); }
  QuietStart(const QuietStart&) = delete;
  QuietStart& operator=(const QuietStart&) = delete;

 private:
  static void ShowFaults(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
  }
  QtMessageHandler before_;
};

}  // namespace

MadeWebWidget MakeWebWidget(QWidget* parent) {
  const QString file = FindLibrary();
  if (file.isEmpty()) return {nullptr, QStringLiteral("Wtyczka podglądu wewnętrznego nie jest zainstalowana.")};
  if (!CanShutOff())
    return {nullptr, QStringLiteral("System nie pozwala odgrodzić oglądanej strony od programu (przestrzenie nazw użytkownika).")};
  const QuietStart quiet;
  QPluginLoader loader(file);
  if (auto* plugin = qobject_cast<WebWidgetPlugin*>(loader.instance())) return {plugin->Make(parent), {}};
  return {nullptr, QStringLiteral("Nie można wczytać wtyczki podglądu wewnętrznego: ") + loader.errorString()};
}

}  // namespace morlan
