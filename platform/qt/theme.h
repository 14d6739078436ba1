// Light and dark: the palette of the whole program.
#pragma once

#include <QObject>

#include "platform/qt/windowplaces.h"

namespace morlan {

class Theme {
 public:
  enum class Scheme { System, Light, Dark };

  // Gives the program the palette of the scheme that was chosen last. A desktop's own scheme is known from the last run.
  explicit Theme(WindowPlaces& places);

  Scheme Chosen() const { return chosen_; }
  void Choose(Scheme scheme);
  // Asks the desktop for its scheme, without waiting; the palette follows when the answer comes and System is chosen.
  void FollowDesktop();

 private:
  void Apply();
  WindowPlaces& places_;
  Scheme chosen_ = Scheme::System;
  bool desktopIsDark_ = false;
  QObject context_;
};

}  // namespace morlan
