// Macros in the real window: one that has no end must leave the user a way out.
#include <QElapsedTimer>

#include "core/text.h"
#include "platform/qt/escapewatch.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

class MacrosInTheWindow : public DesktopTest {
 protected:
  MacrosInTheWindow() {
    Start();
    program.ActiveEditor->SetText("nietkniety");
  }
  void WriteMacro(std::string_view text) {
    files.CreateDirectory(program.ProgramPath + "MAKRO");
    ASSERT_TRUE(files.Write(program.ProgramPath + "MAKRO\\proba.mac", text));
  }
};

TEST_F(MacrosInTheWindow, EscStopsAMacroWithoutEnd) {
  WriteMacro("{for name=\"i\" from=\"1\" to=\"2000000000\"}\r\n{print text=\"%%i\"}{next}");
  QTimer::singleShot(100, &Window(), [this] { PressIn(Editor(), Qt::Key_Escape); });
  QElapsedTimer time;
  time.start();
  EXPECT_TRUE(program.runMacro("proba"));
  EXPECT_LT(time.elapsed(), 20'000);
  EXPECT_EQ(Text(), "nietkniety");
}

TEST_F(MacrosInTheWindow, WhatTheUserDoesWhileAMacroRunsIsDropped) {
  WriteMacro("{for name=\"i\" from=\"1\" to=\"2000000000\"}\r\n{next}");
  bool closed = true;
  QTimer::singleShot(50, &Window(), [this] { TypeIn(Editor(), QStringLiteral("abc")); });
  QTimer::singleShot(60, &Window(), [&] { closed = Window().close(); });
  QTimer::singleShot(150, &Window(), [this] { PressIn(Editor(), Qt::Key_Escape); });
  EXPECT_TRUE(program.runMacro("proba"));
  EXPECT_EQ(Text(), "nietkniety");
  EXPECT_FALSE(closed);
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(MacrosInTheWindow, TheWindowTakesKeysAgainBehindAMacro) {
  WriteMacro("<HR>");
  EXPECT_TRUE(program.runMacro("proba"));
  TypeIn(Editor(), QStringLiteral("x"));
  EXPECT_EQ(Text(), "<HR>xnietkniety");
}

}  // namespace
}  // namespace morlan
