#include "platform/qt/pictureofwindow.h"

#include <QCoreApplication>
#include <QFile>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <cstdio>

#include <time.h>
#include <unistd.h>

namespace morlan {
namespace {

constexpr const char* kPictureVariable = "MORLAN7_PICTURE";
constexpr const char* kTraceVariable = "MORLAN7_TRACE_START";
constexpr int kRestMilliseconds = 300;
constexpr int kStartTimeField = 22;  // of /proc/self/stat, counted from 1, in clock ticks since the machine's start

// 0 when it cannot be told.
double StartOfProcessInSeconds() {
  QFile file(QStringLiteral("/proc/self/stat"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  const QByteArray line = file.readAll();
  // The second field, in parentheses, may hold blanks.
  const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
  return fields.size() <= kStartTimeField - 3 ? 0 : fields[kStartTimeField - 3].toDouble() / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double SecondsOf(clockid_t clock) {
  timespec now = {};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

}  // namespace

bool IsPictureWanted() { return !qEnvironmentVariableIsEmpty(kPictureVariable); }

bool SavePictureAndQuit(QWidget& window) {
  if (!IsPictureWanted()) return false;
  QTimer::singleShot(kRestMilliseconds, &window,
                     [&window] { QCoreApplication::exit(window.grab().save(qEnvironmentVariable(kPictureVariable)) ? 0 : 1); });
  return true;
}

void TraceStart() {
  if (qEnvironmentVariableIsEmpty(kTraceVariable)) return;
  const double passed = SecondsOf(CLOCK_BOOTTIME) - StartOfProcessInSeconds();
  std::fprintf(stderr, "first paint after %.0f ms, %.1f ms of them at work\n", passed * 1000, SecondsOf(CLOCK_PROCESS_CPUTIME_ID) * 1000);
}

}  // namespace morlan
