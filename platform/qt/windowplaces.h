// Where windows stood and how the user likes them to look, kept from run to run in a file of the user's configuration.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace morlan {

class Files;
class Environment;

class WindowPlaces {
 public:
  WindowPlaces(Environment& environment, Files& files);

  // Empty when nothing was kept under that name.
  QByteArray Place(const QString& name) const;
  void Keep(const QString& name, const QByteArray& place);
  QString Choice(const QString& name) const;
  void KeepChoice(const QString& name, const QString& choice);

 private:
  QSettings settings_;
};

}  // namespace morlan
