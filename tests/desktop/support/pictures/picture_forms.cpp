// Pictures of every form, light and dark: picture_forms FOLDER [FORM ...]
#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <iostream>
#include <set>

#include "platform/qt/desktop.h"
#include "platform/qt/formdialog.h"
#include "tests/desktop/support/formtour.h"

namespace morlan {
namespace {

bool PictureForms(FormTour::Scheme scheme, const QString& folder, const std::set<std::string>& wanted) {
  bool complete = true;
  FormTour tour(scheme);
  const QString ending = scheme == FormTour::Scheme::Dark ? QStringLiteral("-dark.png") : QStringLiteral(".png");
  for (const FormStop& stop : tour.Stops()) {
    if (!wanted.empty() && !wanted.contains(stop.form)) continue;
    const bool came = tour.Open(stop, [&](FormDialog& dialog) {
      VisitPages(dialog, [&](int page) {
        const QString name = QString::fromStdString(stop.Name()) + (page ? QStringLiteral("-page%1").arg(page) : QString());
        const QString file = folder + QLatin1Char('/') + name + ending;
        if (!dialog.grab().save(file)) complete = false;
        std::cout << file.toStdString() << "  " << dialog.width() << "x" << dialog.height() << '\n';
      });
    });
    if (came) continue;
    complete = false;
    std::cout << stop.Name() << ": no form came up\n";
  }
  return complete;
}

int Main(int& count, char** arguments) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  PrepareToolkit();
  QApplication application(count, arguments);
  SetUpToolkit();
  const QStringList given = QCoreApplication::arguments().mid(1);
  if (given.isEmpty() || !QDir().mkpath(given.front())) {
    std::cerr << "usage: picture_forms FOLDER [FORM ...]\n";
    return 2;
  }
  std::set<std::string> wanted;
  for (const QString& form : given.mid(1)) wanted.insert(form.toStdString());
  const bool light = PictureForms(FormTour::Scheme::Light, given.front(), wanted);
  const bool dark = PictureForms(FormTour::Scheme::Dark, given.front(), wanted);
  return light && dark ? 0 : 1;
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main(count, arguments); }
