#include "platform/qt/windowplaces.h"

#include <string>

#include "platform/files.h"
#include "platform/services.h"

namespace morlan {
namespace {

QString PlacesFile(Environment& environment, Files& files) {
  return QString::fromStdString(files.ToNative(environment.WindowsDirectory())) + QStringLiteral("/window-places.ini");
}

}  // namespace

WindowPlaces::WindowPlaces(Environment& environment, Files& files) : settings_(PlacesFile(environment, files), QSettings::IniFormat) {}

QByteArray WindowPlaces::Place(const QString& name) const { return settings_.value(QStringLiteral("Places/") + name).toByteArray(); }

void WindowPlaces::Keep(const QString& name, const QByteArray& place) { settings_.setValue(QStringLiteral("Places/") + name, place); }

QString WindowPlaces::Choice(const QString& name) const { return settings_.value(QStringLiteral("Choices/") + name).toString(); }

void WindowPlaces::KeepChoice(const QString& name, const QString& choice) { settings_.setValue(QStringLiteral("Choices/") + name, choice); }

}  // namespace morlan
