#include "platform/qt/theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>

#include "platform/posix/files.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

int Lightness() { return QApplication::palette().color(QPalette::Window).lightness(); }

TEST(Theme, TheChoiceIsSeenAtOnceAndRemembered) {
  ThrowAwayFolder folder;
  PosixFiles files;
  TestEnvironment environment;
  environment.windows = files.FromNative(folder.path.string());
  const QPalette before = QApplication::palette();
  {
    WindowPlaces places(environment, files);
    Theme theme(places);
    EXPECT_EQ(theme.Chosen(), Theme::Scheme::System);
    theme.Choose(Theme::Scheme::Dark);
    EXPECT_LT(Lightness(), 80);
  }
  WindowPlaces places(environment, files);
  Theme theme(places);
  EXPECT_EQ(theme.Chosen(), Theme::Scheme::Dark);
  EXPECT_LT(Lightness(), 80);
  theme.Choose(Theme::Scheme::Light);
  EXPECT_GT(Lightness(), 200);
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace morlan
