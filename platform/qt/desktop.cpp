#include "platform/qt/desktop.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <malloc.h>

#include "core/morlan.h"
#include "core/recovery.h"
#include "platform/qt/pictureofwindow.h"
#include "platform/qt/style.h"

namespace morlan {
namespace {

constexpr int kLargeBlock = 1 << 20;

}  // namespace

Desktop::Desktop(const MachineServices& machine)
    : machine_(machine),
      places_(machine.environment, machine.files),
      theme_(places_),
      windows_(machine.files, places_),
      frontEnd_(windows_, places_, theme_) {}

Platform Desktop::platform() {
  return {machine_.files, machine_.environment, machine_.registry, machine_.processes, machine_.clock, clipboard_, printer_, windows_};
}

void Desktop::Start(Program& program) {
  frontEnd_.Register(program);
  StartUp(program);
  // A picture is of the window, not of the greeting above it.
  if (IsPictureWanted()) program.frame().splashShown = true;
  frontEnd_.Show(program);
  termination_.Watch([&program] {
    KeepChangesNow(program);
    QCoreApplication::exit(0);
  });
  // The desktop ends without questions: what is not saved is kept, and offered at the next start.
  QObject::connect(
      qApp, &QGuiApplication::commitDataRequest, qApp, [&program] { KeepChangesNow(program); }, Qt::DirectConnection);
  // In the event loop, which a signal can end.
  if (!IsPictureWanted()) QTimer::singleShot(0, qApp, [&program] { OfferLeftBehind(program); });
}

void Desktop::Finish() { frontEnd_.Hide(); }

void PrepareToolkit() {
  // Without a fixed bound the allocator would keep the copies that a large page goes through while it is opened.
  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
  // One look on every desktop, and no search for the desktop's own style.
  QApplication::setStyle(new Style);
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
}

void SetUpToolkit() {
  QCoreApplication::setApplicationName(QStringLiteral("morlan7"));
  QGuiApplication::setDesktopFileName(QStringLiteral("morlan7"));
  QGuiApplication::setQuitOnLastWindowClosed(false);
  const QLocale polish(QLocale::Polish, QLocale::Poland);
  QLocale::setDefault(polish);
  // The toolkit's own dialogs speak Polish where its translation is installed.
  auto* translator = new QTranslator(qApp);
  if (translator->load(QStringLiteral("qtbase_pl"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(translator);
}

}  // namespace morlan
